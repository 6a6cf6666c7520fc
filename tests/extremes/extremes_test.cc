// Min, Max, MinMax, MinIndx and MaxIndx against plain loops over the samples.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "reference/image.h"
#include "support/targets.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Type;

template <class T>
using Content = T (*)(std::size_t i, Random& random);

template <class T>
constexpr T kLow = std::numeric_limits<T>::lowest();
template <class T>
constexpr T kHigh = std::numeric_limits<T>::max();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

// Ties, values that improve from sample to sample in either direction, and those near the bounds
// with and without the bounds themselves.
template <class T>
constexpr Content<T> kContents[] = {
    [](std::size_t, Random& r) { return static_cast<T>(100 + r() % 5); },
    [](std::size_t i, Random&) { return static_cast<T>(i / (sizeof(T) == 1 ? 128 : 1) % 30000); },
    [](std::size_t i, Random&) {
      return static_cast<T>(sizeof(T) == 1 ? 255 - i / 128 % 256 : 30000 - i % 30000);
    },
    [](std::size_t, Random& r) { return static_cast<T>(kLow<T> + 1 + r() % 250); },
    [](std::size_t, Random& r) {
      return r() % 3000 == 0 ? kLow<T> : r() % 999 == 0 ? kHigh<T> : T{7};
    },
};

const Content<float> kFloats[] = {
    [](std::size_t, Random&) { return std::nanf(""); },
    [](std::size_t i, Random&) { return i % 61 == 60 ? -3.5f : std::nanf(""); },
    [](std::size_t i, Random& r) {
      return i < 7 ? 9.0f : r() % 2 != 0 ? std::nanf("") : kInfinity;
    },
    [](std::size_t, Random& r) { return r() % 2 != 0 ? std::nanf("") : -kInfinity; },
    [](std::size_t, Random& r) { return r() % 2 != 0 ? 0.0f : -0.0f; },
    [](std::size_t, Random& r) { return static_cast<float>(std::int32_t(r() >> 24)) / 1024; },
};

template <class T>
struct Found {
  T value;
  int x = 0, y = 0;
};

// The first sample that no other is better than. NaNs are not compared.
template <class T>
Found<T> firstBest(const ImageView& image, KeliSize size, int k, bool greatest) {
  Found<T> best = {image.get<T>(0, 0, k)};
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const T v = image.get<T>(x, y, k);
      if (greatest ? v > best.value : v < best.value) best = {v, x, y};
    }
  }
  return best;
}

// The extreme of the numbers alone, zero without its sign.
template <class T>
T extremeOf(const ImageView& image, KeliSize size, int k, bool greatest) {
  bool any = false;
  T best{};
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const T v = image.get<T>(x, y, k);
      if (v != v) continue;
      if (!any || (greatest ? v > best : v < best)) best = v;
      any = true;
    }
  }
  if (!any) return std::numeric_limits<T>::quiet_NaN();
  return best == T{0} ? T{0} : best;
}

template <class T>
void append(std::vector<std::uint8_t>& bytes, const std::vector<T>& values) {
  const auto* p = reinterpret_cast<const std::uint8_t*>(values.data());
  bytes.insert(bytes.end(), p, p + values.size() * sizeof(T));
}

// All that the call is to write, result after result.
template <class T>
std::vector<std::uint8_t> expectedOutcome(const TestCall& call, KeliSize size) {
  const std::string operation = call.function.operation;
  const ImageView image(call, 0);
  std::vector<std::uint8_t> bytes;
  for (const bool greatest : {false, true}) {
    if (operation.find(greatest ? "Max" : "Min") == std::string::npos) continue;
    std::vector<T> values;
    std::vector<int> xs, ys;
    for (int k = 0; k < image.channels(); ++k) {
      const Found<T> found = firstBest<T>(image, size, k, greatest);
      xs.push_back(found.x);
      ys.push_back(found.y);
      const bool place = operation.find("Indx") != std::string::npos;
      values.push_back(place ? found.value : extremeOf<T>(image, size, k, greatest));
    }
    append(bytes, values);
    if (operation.find("Indx") == std::string::npos) continue;
    append(bytes, xs);
    append(bytes, ys);
  }
  return bytes;
}

template <class T>
void fill(TestCall& call, Content<T> content, Random& random) {
  std::vector<std::uint8_t> samples = call.samples(0);
  for (std::size_t i = 0; i < samples.size() / sizeof(T); ++i) {
    const T v = content(i, random);
    std::memcpy(samples.data() + i * sizeof(T), &v, sizeof(T));
  }
  call.setSamples(0, samples);
}

// The member on every target; content null: random samples with extremes and specials among them.
template <class T>
void checkMember(const Function& f, Content<T> content) {
  static constexpr KeliSize kSizes[] = {{1, 1},  {1, 5},   {3, 2},   {5, 3},    {7, 2},  {15, 3},
                                        {16, 2}, {17, 4},  {33, 2},  {45, 3},   {64, 5}, {65, 2},
                                        {97, 3}, {200, 4}, {257, 3}, {1100, 16}};
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    for (std::size_t i = 0; i < std::size(kSizes); ++i) {
      const KeliSize size = kSizes[i];
      const Geometry g = {size.width, size.height, i % 3 == 0 ? 0 : 5, Place::kMiddle,
                          static_cast<int>(i % 4)};
      TestCall call(f, g, runSeed() + i);
      Random random(runSeed() + i);
      if (content != nullptr) fill(call, content, random);
      ASSERT_EQ(call.run().status, kelStatusOk);
      ASSERT_EQ(call.outcome(), expectedOutcome<T>(call, size))
          << f.name << " " << targetName(target) << " " << size.width << "x" << size.height;
    }
  }
}

// f with every function of the operations whose samples are of one type.
template <class F>
int forMembers(std::initializer_list<const char*> operations, Type type, const F& f) {
  int count = 0;
  for (const Function& function : registry::functions()) {
    for (const char* operation : operations) {
      if (std::string(function.operation) != operation || function.arguments[0].type != type)
        continue;
      ++count;
      f(function);
    }
    if (testing::Test::HasFatalFailure()) break;
  }
  return count;
}

template <class T>
void checkType(Type type) {
  const int members =
      forMembers({"Min", "Max", "MinMax", "MinIndx", "MaxIndx"}, type, [](const Function& f) {
        checkMember<T>(f, nullptr);
        for (const Content<T> content : kContents<T>) checkMember<T>(f, content);
        if constexpr (std::is_floating_point_v<T>) {
          for (const Content<T> content : kFloats) checkMember<T>(f, content);
        }
      });
  EXPECT_EQ(members, 20);
}

TEST(Extremes, MembersAreTheirDefinitions) {
  checkType<Kel8u>(Type::k8u);
  checkType<Kel16s>(Type::k16s);
  checkType<Kel32f>(Type::k32f);
}

TEST(Extremes, KnownPlaces) {
  const auto check = [](std::initializer_list<KeliPoint> places, KeliPoint expected) {
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      for (const int width : {9, 90}) {
        std::vector<Kel8u> image(static_cast<std::size_t>(width) * 5, 50);
        for (const KeliPoint p : places) image[static_cast<std::size_t>(p.y * width + p.x)] = 3;
        Kel8u value;
        int x, y;
        ASSERT_EQ(keliMinIndx_8u_C1R(image.data(), width, {width, 5}, &value, &x, &y), 0);
        EXPECT_EQ(value, 3);
        EXPECT_EQ(x, expected.x);
        EXPECT_EQ(y, expected.y);
      }
    }
  };
  check({{5, 2}, {1, 3}}, {5, 2});
  check({{7, 2}, {4, 2}}, {4, 2});
  check({{0, 0}, {8, 4}}, {0, 0});
}

// Rows after the one that completes the channels lie in inaccessible memory.
template <class T>
void checkStop(const Function& f, int width, int lastRow) {
  const bool greatest = std::string(f.operation) == "MaxIndx";
  const T bound = greatest ? kHigh<T> : kLow<T>;
  const Layout layout = f.arguments[0].layout;
  const std::size_t pixel = static_cast<std::size_t>(storedChannels(layout));
  const std::size_t used = static_cast<std::size_t>(usedChannels(layout));
  const std::size_t row = pixel * static_cast<std::size_t>(width);
  const Arena arena(row * sizeof(T) * static_cast<std::size_t>(lastRow + 1));
  const std::size_t samples = row * static_cast<std::size_t>(lastRow + 1);
  std::vector<T> image(samples, T{50});
  // The first channel is complete at once, the others in the last row that may be read.
  image[row - pixel] = bound;
  for (std::size_t k = 1; k < used; ++k) image[samples - pixel + k] = bound;
  if (used == 1 && lastRow != 0) image[row - pixel] = T{49}, image[samples - 1] = bound;
  std::uint8_t* const at = arena.end() - samples * sizeof(T);
  std::memcpy(at, image.data(), samples * sizeof(T));
  TestCall call(f, {width, 3, 0, Place::kMiddle, 0}, runSeed());
  call.values[0].p = at;
  call.values[1].i = static_cast<std::int64_t>(row * sizeof(T));
  call.values[2].size = {width, 9};
  ASSERT_EQ(call.run().status, kelStatusOk);
  for (std::size_t k = 0; k < used; ++k) {
    const bool first = used > 1 && k == 0;
    EXPECT_EQ(call.result<T>(3, k), bound) << f.name;
    EXPECT_EQ(call.result<int>(4, k), width - 1) << f.name;
    EXPECT_EQ(call.result<int>(5, k), first ? 0 : lastRow) << f.name;
  }
}

TEST(Extremes, NoRowIsReadAfterTheBounds) {
  const auto checkWidths = [](auto check) {
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      for (const int width : {1, 2, 11, 64, 150}) {
        for (const int lastRow : {0, 1, 4}) check(width, lastRow);
      }
    }
  };
  const int bytes = forMembers({"MinIndx", "MaxIndx"}, Type::k8u, [&](const Function& f) {
    checkWidths([&](int width, int lastRow) { checkStop<Kel8u>(f, width, lastRow); });
  });
  const int words = forMembers({"MinIndx", "MaxIndx"}, Type::k16s, [&](const Function& f) {
    checkWidths([&](int width, int lastRow) { checkStop<Kel16s>(f, width, lastRow); });
  });
  EXPECT_EQ(bytes + words, 16);
}

}  // namespace
}  // namespace keli::test
