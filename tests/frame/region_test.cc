// What every function of the registry does to memory: nothing outside the region is read or
// written, and the result does not depend on address, step, SIMD target, threads, or on being in
// place.
#include <gtest/gtest.h>
#include <omp.h>

#include <functional>

#include "core/cache.h"
#include "core/parallel.h"
#include "support/targets.h"
#include "support/test_call.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Role;
using Bytes = std::vector<std::uint8_t>;

// Runs f for every function that reads or writes an image and fails if there was none.
void forEachImageFunction(const std::function<void(const Function&)>& f) {
  std::size_t count = 0;
  for (const Function& function : registry::functions()) {
    bool writes = false, image = false;
    for (const auto& a : function.arguments) {
      writes |= registry::isWritten(a.role) || registry::isResult(a.role);
      image |= registry::isImage(a.role);
    }
    if (!writes || !image) continue;
    ++count;
    f(function);
    if (testing::Test::HasFatalFailure()) return;
  }
  ASSERT_GT(count, 0u);
}

struct Outcome {
  KelStatus status;
  Bytes samples;
};

// With the same samples and parameters for the same seed and size, whatever the geometry.
Outcome outcomeOf(const Function& f, const Geometry& g, std::uint64_t seed) {
  TestCall call(f, g, seed);
  const KelStatus status = call.run().status;
  EXPECT_GE(status, 0) << f.name;
  EXPECT_EQ(call.strayWrites(), "") << "at width " << g.width << ", padding " << g.padding;
  return {status, call.outcome()};
}

// Tests that would take long give each function a share of their cases: the members of an
// operation, which share kernels, follow each other in the registry and cover them all.
std::size_t placeOf(const Function& f) {
  return static_cast<std::size_t>(&f - registry::functions().data);
}

std::vector<int> widthsFor(const Function& f) {
  std::vector<int> all;
  for (int w = 1; w <= 67; ++w) all.push_back(w);
  for (const int w : {95, 96, 97, 127, 128, 129, 191, 193, 255, 257}) all.push_back(w);
  std::vector<int> some;
  // Transforms need a specification for every call.
  const std::size_t share = registry::TransformSpec::isTakenBy(f) ? 12 : 4;
  for (std::size_t i = placeOf(f) % share; i < all.size(); i += share) some.push_back(all[i]);
  return some;
}

constexpr Geometry kGeometries[] = {
    {0, 3, 0, Place::kMiddle, 0},  {0, 3, 1, Place::kMiddle, 1}, {0, 2, 0, Place::kEnd, 0},
    {0, 3, 7, Place::kEnd, 0},     {0, 2, 3, Place::kStart, 0},  {0, 1, 0, Place::kStart, 0},
    {0, 3, 32, Place::kMiddle, 3}, {0, 1, 0, Place::kEnd, 0},    {0, 2, 64, Place::kMiddle, 17},
};

// Stores around the caches from the first byte on while it lives, as for the largest images.
class StreamEverything {
 public:
  StreamEverything() : before_(gStreamAbove) { gStreamAbove = 1; }
  ~StreamEverything() { gStreamAbove = before_; }
  StreamEverything(const StreamEverything&) = delete;
  StreamEverything& operator=(const StreamEverything&) = delete;

 private:
  std::size_t before_;
};

TEST(Region, SameResultStoredAroundTheCaches) {
  const std::uint64_t seed = runSeed();
  forEachImageFunction([&](const Function& f) {
    static constexpr std::pair<int, int> kPlaces[] = {{0, 0}, {0, 32}, {3, 4}, {5, 1}};
    for (const int width : {1, 45, 700, 1501, 4400}) {
      for (std::size_t i = placeOf(f) % 2; i < std::size(kPlaces); i += 2) {
        const auto [padding, offset] = kPlaces[i];
        const Geometry g = {width, 3, padding, Place::kMiddle, offset};
        const Outcome expected = outcomeOf(f, g, seed);
        for (const std::int64_t target : testedTargets()) {
          const UseTarget use(target);
          const StreamEverything stream;
          const Outcome o = outcomeOf(f, g, seed);
          ASSERT_EQ(o.status, expected.status) << f.name;
          ASSERT_TRUE(o.samples == expected.samples)
              << f.name << " " << targetName(target) << " width " << width << " padding " << padding
              << " offset " << offset;
        }
      }
    }
  });
}

TEST(Region, SameResultAtEveryPlaceOnEveryTarget) {
  const std::vector<std::int64_t> targets = testedTargets();
  for (const std::int64_t target : targets) std::printf("target %s\n", targetName(target));
  const std::uint64_t seed = runSeed();
  forEachImageFunction([&](const Function& f) {
    for (const int width : widthsFor(f)) {
      for (int height = 1; height <= 3; ++height) {
        Geometry g = {width, height, 0, Place::kMiddle, 0};
        const Outcome expected = [&] {
          const UseTarget use(HWY_SCALAR);
          return outcomeOf(f, g, seed + static_cast<std::uint64_t>(width));
        }();
        for (const std::int64_t target : targets) {
          const UseTarget use(target);
          for (const Geometry& place : kGeometries) {
            if (place.height != height) continue;
            g = place;
            g.width = width;
            const Outcome o = outcomeOf(f, g, seed + static_cast<std::uint64_t>(width));
            ASSERT_EQ(o.status, expected.status) << f.name << " width " << width;
            ASSERT_EQ(o.samples, expected.samples)
                << f.name << " " << targetName(target) << " " << width << "x" << height
                << " padding " << g.padding << " offset " << g.offset;
          }
        }
      }
    }
  });
}

// Each row of every image, with the pixels around the region, begins or ends at an inaccessible
// page.
TEST(Region, NothingIsTouchedBesideARow) {
  const std::uint64_t seed = runSeed();
  forEachImageFunction([&](const Function& f) {
    static constexpr int kWidths[] = {1, 5, 17, 35, 66, 100, 131, 259};
    for (std::size_t i = placeOf(f) % 2; i < std::size(kWidths); i += 2) {
      const Geometry g = {kWidths[i], 3, 0, Place::kMiddle, 0};
      const Outcome expected = outcomeOf(f, g, seed + i);
      for (const std::int64_t target : testedTargets()) {
        const UseTarget use(target);
        for (const bool atEnd : {false, true}) {
          TestCall call(f, g, seed + i);
          call.fence(atEnd);
          ASSERT_EQ(call.run().status, expected.status) << f.name;
          ASSERT_EQ(call.outcome(), expected.samples)
              << f.name << " " << targetName(target) << " width " << g.width;
        }
      }
    }
  });
}

// The function without the I of its descriptor.
const Function* outOfPlace(const Function& f) {
  std::string name = f.name;
  const std::size_t underscore = name.rfind('_');
  name.erase(name.find('I', underscore), 1);
  return registry::find(name);
}

// The index of a parameter that both forms have.
std::size_t parameter(const Function& f, const std::string& name) {
  for (std::size_t i = 0; i < f.arguments.size; ++i) {
    if (f.arguments[i].name == name) return i;
  }
  ADD_FAILURE() << f.name << " has no " << name;
  return 0;
}

// Out of place, the box filter of four bytes has factors of its own for 3 x 3 and 5 x 5 pixels.
bool differsInPlace(const TestCall& call) {
  const KeliSize mask = call.window().mask;
  return std::string(call.function.name) == "keliFilterBox_8u_C4IR" && mask.width == mask.height &&
         (mask.width == 3 || mask.width == 5);
}

TEST(Region, InPlaceEqualsOutOfPlace) {
  std::size_t count = 0;
  forEachImageFunction([&](const Function& f) {
    const Function* const plain = f.inPlace ? outOfPlace(f) : nullptr;
    if (plain == nullptr) return;  // a few functions work in place alone
    ++count;
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      for (const int width : {1, 2, 7, 16, 31, 45, 64, 97, 257}) {
        const Geometry g = {width, 2, 5, Place::kMiddle, 1};
        TestCall inPlace(f, g, runSeed());
        TestCall separate(*plain, g, runSeed());
        const std::size_t image = inPlace.find(Role::kInOut);
        // The images of a wrapped border are written where none is read.
        if (image == TestCall::npos) return;
        if (differsInPlace(inPlace)) continue;
        // The same parameters, found by their names, and sources; the last source of one is the
        // image of the other.
        for (std::size_t i = 0; i < f.arguments.size; ++i) {
          const Role role = f.arguments[i].role;
          if (role == Role::kSource) separate.setSamples(separate.find(role), inPlace.samples(i));
          if (role != Role::kStep && !registry::isImage(role))
            separate.values[parameter(*plain, f.arguments[i].name)] = inPlace.values[i];
        }
        separate.setRegion(separate.written(), inPlace.region(image));
        separate.setSamples(separate.lastSource(), inPlace.samples(image));
        ASSERT_EQ(inPlace.run().status, separate.run().status) << f.name;
        ASSERT_EQ(inPlace.region(image), separate.region(separate.written()))
            << f.name << " width " << width;
        if (f.reach != registry::Reach::kPixel) continue;

        // The out-of-place form with its last source as destination.
        TestCall aliased(*plain, g, runSeed());
        for (std::size_t i = 0; i < plain->arguments.size; ++i) {
          const Role role = plain->arguments[i].role;
          if (registry::isImage(role) && !registry::isWritten(role)) {
            aliased.setSamples(i, separate.samples(i));
          } else if (role != Role::kStep && !registry::isImage(role)) {
            aliased.values[i] = separate.values[i];
          }
        }
        aliased.values[aliased.written()] = aliased.values[aliased.lastSource()];
        aliased.run();
        ASSERT_EQ(aliased.samples(aliased.lastSource()), separate.samples(separate.written()))
            << f.name << " aliased, width " << width;
      }
    }
  });
  ASSERT_GT(count, 60u);
}

// The smallest region that is worth seven threads, so that every team runs.
Geometry manyThreads(const Function& f) {
  std::size_t pixel = 0;
  for (const auto& a : f.arguments) {
    if (registry::isImage(a.role))
      pixel += registry::bytesOf(a.type) * static_cast<std::size_t>(storedChannels(a.layout));
  }
  Geometry g = {64, 211, 3, Place::kMiddle, 0};
  while (core::teamSize(g.height, pixel * static_cast<std::size_t>(g.width) * 211) < 7)
    g.width += 37;
  return g;
}

TEST(Region, SameResultOnAnyNumberOfThreads) {
  const int threads = omp_get_max_threads();
  int count = 0;
  forEachImageFunction([&](const Function& f) {
    if (!f.parallel) return;
    ++count;
    omp_set_num_threads(7);
    TestCall call(f, manyThreads(f), runSeed());
    const std::size_t image = call.written();
    const Bytes initial = image == TestCall::npos ? Bytes() : call.region(image);
    Outcome expected;
    for (const int team : {1, 2, 7}) {
      omp_set_num_threads(team);
      if (image != TestCall::npos) call.setRegion(image, initial);
      const Outcome o = {call.run().status, call.outcome()};
      if (team == 1) expected = o;
      ASSERT_EQ(o.status, expected.status) << f.name;
      ASSERT_TRUE(o.samples == expected.samples) << f.name << " on " << team << " threads";
    }
    ASSERT_EQ(call.strayWrites(), "");
  });
  omp_set_num_threads(threads);
  EXPECT_GT(count, 0);
}

// Rows that are gigabytes apart, in memory that is only reserved.
TEST(Region, AddressesBeyond32Bits) {
  if (sizeof(void*) == 4) GTEST_SKIP() << "needs a 64-bit address space";
  forEachImageFunction([&](const Function& f) {
    Geometry g = {33, 4, 0, Place::kMiddle, 0};
    const Outcome expected = outcomeOf(f, g, runSeed());
    g.padding = 0x7ffff000;
    TestCall sparse(f, g, runSeed());
    for (std::size_t i = 0; i < f.arguments.size; ++i) {
      if (f.arguments[i].role == Role::kStep) {
        ASSERT_GT(sparse.values[i].i, 0x70000000);
      }
    }
    ASSERT_EQ(sparse.run().status, expected.status);
    ASSERT_EQ(sparse.outcome(), expected.samples) << f.name;
  });
}

}  // namespace
}  // namespace keli::test
