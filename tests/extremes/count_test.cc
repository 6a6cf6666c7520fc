// CountInRange against plain loops, and counts that outgrow the lanes that form them.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "reference/image.h"
#include "support/targets.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Type;

// In the arguments of every member.
constexpr std::size_t kCounts = 3, kLower = 4, kUpper = 5;

template <class T>
struct Bounds {
  T lower[3];
  T upper[3];
};

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();
template <class T>
const std::vector<Bounds<T>> kBounds = {};
template <>
const std::vector<Bounds<Kel8u>> kBounds<Kel8u> = {
    {{0, 0, 0}, {255, 0, 127}},   {{255, 128, 1}, {255, 255, 254}}, {{7, 0, 128}, {200, 255, 129}},
    {{0, 0, 0}, {254, 255, 255}}, {{1, 127, 0}, {255, 128, 255}},
};
template <>
const std::vector<Bounds<Kel32f>> kBounds<Kel32f> = {
    {{-kInfinity, 0, kInfinity}, {kInfinity, 0, kInfinity}},
    {{kNan, -1, kNan}, {1, kNan, kNan}},
    {{-1e9f, -kInfinity, -0.0f}, {1e9f, -1, 1e30f}},
};

template <class T>
void setBounds(TestCall& call, const Bounds<T>& bounds) {
  const std::pair<std::size_t, const T*> ends[] = {{kLower, bounds.lower}, {kUpper, bounds.upper}};
  for (const auto& [argument, end] : ends) {
    if (call.function.arguments[argument].length != 0) {
      call.values[argument].p = end;
    } else if constexpr (std::is_floating_point_v<T>) {
      call.values[argument].f = end[0];
    } else {
      call.values[argument].i = end[0];
    }
  }
}

template <class T>
void checkMember(const Function& f, const Bounds<T>& bounds) {
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    for (const int width : {1, 2, 5, 11, 16, 17, 31, 33, 64, 65, 97, 129, 200, 1100}) {
      for (const int padding : {0, 5}) {
        TestCall call(f, {width, 3, padding, Place::kMiddle, width % 4}, runSeed());
        setBounds(call, bounds);
        ASSERT_EQ(call.run().status, kelStatusOk);
        const ImageView image(call, 0);
        for (int k = 0; k < image.channels(); ++k) {
          int count = 0;
          for (int i = 0; i < 3 * width; ++i) {
            const T v = image.get<T>(i % width, i / width, k);
            count += v >= bounds.lower[k] && v <= bounds.upper[k];
          }
          ASSERT_EQ(call.result<int>(kCounts, static_cast<std::size_t>(k)), count)
              << f.name << " " << targetName(target) << " width " << width << " channel " << k;
        }
      }
    }
  }
}

template <class F>
int forMembers(Type type, const F& f) {
  int count = 0;
  for (const Function& function : registry::functions()) {
    if (std::string(function.operation) != "CountInRange" || function.arguments[0].type != type)
      continue;
    ++count;
    f(function);
  }
  return count;
}

TEST(CountInRange, MembersAreTheirDefinition) {
  EXPECT_EQ(forMembers(Type::k8u,
                       [](const Function& f) {
                         for (const auto& bounds : kBounds<Kel8u>) checkMember<Kel8u>(f, bounds);
                       }),
            3);
  EXPECT_EQ(forMembers(Type::k32f,
                       [](const Function& f) {
                         for (const auto& bounds : kBounds<Kel32f>) checkMember<Kel32f>(f, bounds);
                       }),
            3);
}

// Rows overlap, one pixel further each, so that little memory makes many samples: of the three
// channels one counts always, one never, and one every other pixel.
template <class T>
void checkLong(KelStatus (*count)(const T*, int, KeliSize, int*, const T*, const T*),
               KeliSize size) {
  const T lower[3] = {2, 2, 2}, upper[3] = {9, 9, 9};
  const std::size_t pixels = static_cast<std::size_t>(size.width) + size.height;
  std::vector<T> image;
  for (std::size_t i = 0; i < pixels; ++i) {
    for (const int v : {5, 1, i % 2 == 0 ? 9 : 10}) image.push_back(static_cast<T>(v));
  }
  const std::int64_t all = std::int64_t{size.width} * size.height;
  // Rows begin with a sample that counts and one that does not by turns.
  const std::int64_t half = all / 2 + (size.width % 2 != 0 && size.height % 2 != 0 ? 1 : 0);
  const auto saturated = [](std::int64_t n) {
    return static_cast<int>(std::min<std::int64_t>(n, std::numeric_limits<int>::max()));
  };
  for (const std::int64_t target : testedTargets()) {
    if (target == HWY_SCALAR) continue;  // has no lanes
    const UseTarget use(target);
    int counts[3] = {-1, -1, -1};
    ASSERT_EQ(count(image.data(), 3 * sizeof(T), size, counts, lower, upper), kelStatusOk);
    EXPECT_EQ(counts[0], saturated(all)) << targetName(target);
    EXPECT_EQ(counts[1], 0) << targetName(target);
    EXPECT_EQ(counts[2], saturated(half)) << targetName(target);
  }
}

TEST(CountInRange, LongCounts) {
  checkLong<Kel8u>(keliCountInRange_8u_C3R, {100, 3001});     // lanes fill up over many rows
  checkLong<Kel8u>(keliCountInRange_8u_C3R, {200001, 3});     // and within one row
  checkLong<Kel8u>(keliCountInRange_8u_C3R, {40000, 60000});  // more than an int holds
  checkLong<Kel32f>(keliCountInRange_32f_C3R, {4001, 20001});
}

}  // namespace
}  // namespace keli::test
