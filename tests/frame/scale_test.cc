// The scale factor rule against long double arithmetic and its fixed points.
#include "core/scale.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <climits>
#include <cmath>

#include "keli.h"
#include "support/arena.h"

namespace keli::test {
namespace {

// nearbyint rounds to nearest even in the default mode; 64 bits of significand hold every v
// exactly, and scaling by a power of two is exact.
template <class T>
T reference(std::int64_t v, int scaleFactor) {
  const long double low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
  const long double exact = std::nearbyint(std::ldexp(static_cast<long double>(v), -scaleFactor));
  return static_cast<T>(exact < low ? low : exact > high ? high : exact);
}

template <class T>
void check(std::int64_t v, int scaleFactor) {
  ASSERT_EQ(scaled<T>(v, scaleFactor), reference<T>(v, scaleFactor)) << v << " by " << scaleFactor;
}

TEST(Scale, AgreesWithTheDefinition) {
  static_assert(std::numeric_limits<long double>::digits >= 64, "the reference needs 64 bits");
  ASSERT_EQ(std::fegetround(), FE_TONEAREST);
  Random random(runSeed());
  for (int scaleFactor = -70; scaleFactor <= 70; ++scaleFactor) {
    for (int i = 0; i < 2000; ++i) {
      const std::int64_t wide = static_cast<std::int64_t>(random()) >> pick(random, 64);
      // Values at and around ties.
      const int half = scaleFactor > 0 && scaleFactor < 50 ? scaleFactor - 1 : 0;
      const std::int64_t tie = (2 * (wide % 1000) + 1) * (std::int64_t{1} << half);
      for (const std::int64_t v : {wide, tie, tie - 1, tie + 1, std::int64_t{0}}) {
        check<Kel8u>(v, scaleFactor);
        check<Kel16u>(v, scaleFactor);
        check<Kel16s>(v, scaleFactor);
        check<Kel32s>(v, scaleFactor);
      }
    }
  }
}

TEST(Scale, FixedPoints) {
  const int halved[][2] = {{1, 0}, {3, 2}, {5, 2}, {6, 3}, {7, 4}};
  for (const auto& [v, result] : halved) EXPECT_EQ(scaled<Kel8u>(v, 1), result) << v;
  EXPECT_EQ(scaled<Kel8u>(510, 10), 0);
  EXPECT_EQ(scaled<Kel8u>(1, -8), 255);
  EXPECT_EQ(scaled<Kel8u>(-1, -8), 0);
  EXPECT_EQ(scaled<Kel8u>(0, -8), 0);
  EXPECT_EQ(scaled<Kel16s>(-1, -16), -32768);
  for (const int scaleFactor : {INT_MIN, INT_MIN + 1, -64, -63, 63, 64, INT_MAX}) {
    for (const std::int64_t v : {std::numeric_limits<std::int64_t>::min(), std::int64_t{-1},
                                 std::int64_t{1}, std::numeric_limits<std::int64_t>::max()}) {
      const int expected = scaleFactor > 63    ? 0
                           : scaleFactor == 63 ? (v == std::numeric_limits<std::int64_t>::min() ? -1
                                                  : v > 1                                       ? 1
                                                                                                : 0)
                           : v < 0             ? INT_MIN
                                               : INT_MAX;
      EXPECT_EQ(scaled<Kel32s>(v, scaleFactor), expected) << v << " by " << scaleFactor;
    }
  }
}

}  // namespace
}  // namespace keli::test
