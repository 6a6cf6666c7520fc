// The box filter against its definition: sums of whole masks, one after the other.
#include <gtest/gtest.h>
#include <omp.h>

#include <cfenv>
#include <cmath>
#include <cstring>
#include <numeric>
#include <vector>

#include "box/quotient.h"
#include "support/no_memory.h"
#include "support/samples.h"
#include "support/targets.h"

namespace keli::test {
namespace {

template <class T>
struct Member {
  const char* name;
  int stored, used;  // channels
  KelStatus (*filter)(const T*, int, T*, int, KeliSize, KeliSize, KeliPoint);
  KelStatus (*inPlace)(T*, int, KeliSize, KeliSize, KeliPoint);
};

#define MEMBER(type, layout, stored, used)                               \
  {                                                                      \
#type "_" #layout, stored, used, keliFilterBox_##type##_##layout##R, \
        keliFilterBox_##type##_##layout##IR                              \
  }
#define MEMBERS(type)                                                       \
  {                                                                         \
    MEMBER(type, C1, 1, 1), MEMBER(type, C3, 3, 3), MEMBER(type, C4, 4, 4), \
        MEMBER(type, AC4, 4, 3)                                             \
  }
template <class T>
const Member<T> kMembers[4] = {};
template <>
const Member<Kel8u> kMembers<Kel8u>[4] = MEMBERS(8u);
template <>
const Member<Kel16s> kMembers<Kel16s>[4] = MEMBERS(16s);
template <>
const Member<Kel32f> kMembers<Kel32f>[4] = MEMBERS(32f);
#undef MEMBERS
#undef MEMBER

struct Mask {
  KeliSize size;
  KeliPoint anchor;
  std::int64_t pixels() const { return std::int64_t{size.width} * size.height; }
};

// A region with the pixels around it that a mask reaches, without padding.
template <class T>
struct Picture {
  KeliSize roi;
  Mask mask;
  int stored;
  std::vector<T> samples;

  Picture(KeliSize size, const Mask& m, int channels)
      : roi(size), mask(m), stored(channels), samples(count()) {}
  int columns() const { return roi.width + mask.size.width - 1; }
  int rows() const { return roi.height + mask.size.height - 1; }
  std::size_t count() const {
    return static_cast<std::size_t>(columns()) * static_cast<std::size_t>(rows() * stored);
  }
  int step() const { return columns() * stored * static_cast<int>(sizeof(T)); }
  // Column and row from the top left of all.
  T& at(int x, int y, int k) {
    return samples[static_cast<std::size_t>((std::int64_t{y} * columns() + x) * stored + k)];
  }
  T& inRegion(int x, int y, int k) { return at(x + mask.anchor.x, y + mask.anchor.y, k); }
};

template <class T>
registry::Type typeOf() {
  return sizeof(T) == 1   ? registry::Type::k8u
         : sizeof(T) == 2 ? registry::Type::k16s
                          : registry::Type::k32f;
}

// Floats are finite but for a few.
template <class T>
void fill(Picture<T>& p, Random& random) {
  fillSamples(typeOf<T>(), reinterpret_cast<std::uint8_t*>(p.samples.data()), p.samples.size(),
              random);
  if constexpr (std::is_same_v<T, Kel32f>) {
    for (T& v : p.samples) {
      if (pick(random, 64) != 0) v = std::ldexp(static_cast<float>(random() % 2001) - 1000, -3);
    }
  }
}

// The smallest factor of 12 bits above 2^k / pixels.
std::uint64_t meanOfBytes(std::uint64_t sum, const Mask& m, int stored, int used, bool inPlace) {
  const bool three = m.size.width == 3 && m.size.height == 3;
  const bool five = m.size.width == 5 && m.size.height == 5;
  if (stored == 1 && three) return sum * 29128 >> 18;
  if (used == 4 && !inPlace && three) return sum * 29127 >> 18;
  if (used == 4 && !inPlace && five) return sum * 10485 >> 18;
  const std::uint64_t pixels = static_cast<std::uint64_t>(m.pixels());
  int k = 12;
  while ((std::uint64_t{1} << k) / pixels < 2048) ++k;
  return sum * ((std::uint64_t{1} << k) / pixels + 1) >> k;
}

float plainSum(const std::vector<float>& v, std::size_t first, std::size_t end) {
  float sum = v[first];
  for (std::size_t i = first + 1; i < end; ++i) sum += v[i];
  return sum;
}

// A column whose top is row `top` of the image.
float columnSum(const std::vector<float>& v, std::size_t top) {
  const std::size_t height = v.size(), chunk = std::min<std::size_t>(height, 32);
  if (height <= 6) return plainSum(v, 0, height);
  const std::size_t cut = std::min(height, chunk - top % chunk);
  const std::size_t lastCut = height - 1 - (top + height - 1) % chunk;
  float sum = v[cut - 1];
  for (std::size_t i = cut - 1; i-- > 0;) sum += v[i];
  if (cut == height) return sum;
  if (lastCut > cut) {
    float between = plainSum(v, cut, cut + chunk);
    for (std::size_t i = cut + chunk; i < lastCut; i += chunk) between += plainSum(v, i, i + chunk);
    sum += between;
  }
  return sum + plainSum(v, lastCut, height);
}

float groupSum(const std::vector<float>& v, std::size_t first, std::size_t size) {
  if (size == 1) return v[first];
  std::vector<float> quarters;
  for (std::size_t k = 0; k < 4; ++k)
    quarters.push_back(groupSum(v, first + k * size / 4, size / 4));
  return plainSum(quarters, 0, 4);
}

float rowSum(const std::vector<float>& columns) {
  if (columns.size() <= 8) return plainSum(columns, 0, columns.size());
  std::vector<float> groups;
  std::size_t left = 0;
  for (std::size_t size = 1; size <= columns.size(); size *= 4) {
    for (std::size_t k = columns.size() / size % 4; k > 0; --k, left += size)
      groups.push_back(groupSum(columns, left, size));
  }
  return plainSum(groups, 0, groups.size());
}

template <class T>
using Sum = std::conditional_t<std::is_integral_v<T>, std::int64_t, float>;

// Of one column of the mask whose top left pixel is at x and y.
template <class T>
Sum<T> sumOfColumn(Picture<T>& p, int x, int y, int k) {
  std::vector<Sum<T>> column;
  for (int j = 0; j < p.mask.size.height; ++j) column.push_back(p.at(x, y + j, k));
  if constexpr (std::is_integral_v<T>) {
    return std::accumulate(column.begin(), column.end(), std::int64_t{0});
  } else {
    return columnSum(column, static_cast<std::size_t>(y));
  }
}

// Of a mask's columns.
template <class T>
T meanOfColumns(const std::vector<Sum<T>>& columns, const Picture<T>& p, int used, bool inPlace) {
  const float r = 1.0f / static_cast<float>(p.mask.pixels());
  if constexpr (std::is_integral_v<T>) {
    const std::int64_t sum = std::accumulate(columns.begin(), columns.end(), std::int64_t{0});
    const auto wrapped = static_cast<std::int32_t>(static_cast<std::uint32_t>(sum));
    if (sizeof(T) == 2) return static_cast<T>(std::nearbyint(static_cast<float>(wrapped) * r));
    return static_cast<T>(
        meanOfBytes(static_cast<std::uint64_t>(sum), p.mask, p.stored, used, inPlace));
  } else {
    const float mean = rowSum(columns) * r;
    const std::uint32_t bits = 0xFFC00000;
    float nan;
    std::memcpy(&nan, &bits, sizeof(nan));
    return std::isnan(mean) ? nan : mean;
  }
}

// The region of an image after the call.
template <class T>
Picture<T> expected(Picture<T> src, const Picture<T>& before, int used, bool inPlace) {
  Picture<T> out = before;
  for (int y = 0; y < src.roi.height; ++y) {
    for (int k = 0; k < used; ++k) {
      std::vector<Sum<T>> columns;
      for (int x = 0; x < src.columns(); ++x) columns.push_back(sumOfColumn(src, x, y, k));
      for (int x = 0; x < src.roi.width; ++x) {
        const auto first = columns.begin() + x;
        out.inRegion(x, y, k) =
            meanOfColumns<T>({first, first + src.mask.size.width}, src, used, inPlace);
      }
    }
  }
  return out;
}

template <class T>
bool same(const Picture<T>& a, const Picture<T>& b) {
  return std::memcmp(a.samples.data(), b.samples.data(), a.samples.size() * sizeof(T)) == 0;
}

template <class T>
KelStatus run(const Member<T>& m, Picture<T>& src, Picture<T>& dst) {
  return m.filter(&src.inRegion(0, 0, 0), src.step(), &dst.inRegion(0, 0, 0), dst.step(), src.roi,
                  src.mask.size, src.mask.anchor);
}

template <class T>
KelStatus runInPlace(const Member<T>& m, Picture<T>& image) {
  return m.inPlace(&image.inRegion(0, 0, 0), image.step(), image.roi, image.mask.size,
                   image.mask.anchor);
}

// Both forms on every target.
template <class T>
void check(const Member<T>& m, KeliSize size, const Mask& mask, Random& random) {
  Picture<T> src(size, mask, m.stored), before(size, mask, m.stored);
  fill(src, random);
  fill(before, random);
  const Picture<T> apart = expected(src, before, m.used, false);
  const Picture<T> within = expected(src, src, m.used, true);
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    Picture<T> dst = before, image = src;
    ASSERT_EQ(run(m, src, dst), kelStatusOk);
    ASSERT_EQ(runInPlace(m, image), kelStatusOk);
    for (const bool inPlace : {false, true}) {
      ASSERT_TRUE(inPlace ? same(image, within) : same(dst, apart))
          << m.name << (inPlace ? " in place, " : " ") << targetName(target) << " " << size.width
          << "x" << size.height << ", mask " << mask.size.width << "x" << mask.size.height
          << ", anchor " << mask.anchor.x << "," << mask.anchor.y;
    }
  }
}

template <class T>
class Box : public testing::Test {};
using Samples = testing::Types<Kel8u, Kel16s, Kel32f>;
TYPED_TEST_SUITE(Box, Samples, );

Mask withAnchor(KeliSize size, Random& random) {
  return {size,
          {static_cast<int>(pick(random, static_cast<std::size_t>(size.width))),
           static_cast<int>(pick(random, static_cast<std::size_t>(size.height)))}};
}

TYPED_TEST(Box, SmallMasks) {
  Random random(runSeed());
  static constexpr KeliSize kSizes[] = {{1, 1}, {37, 5}, {70, 2}, {131, 3}, {6, 19}, {16, 12}};
  std::size_t turn = 0;
  for (int width = 2; width <= 9; ++width) {
    for (int height = 2; height <= 9; ++height) {
      for (const Member<TypeParam>& m : kMembers<TypeParam>) {
        check(m, kSizes[turn++ % std::size(kSizes)], withAnchor({width, height}, random), random);
        if (this->HasFatalFailure()) return;
      }
    }
  }
}

// Each with a region: masks as large as it and larger, sums that leave 16 bits, products that leave
// 32, columns cut once and many times.
TYPED_TEST(Box, LargeMasks) {
  static constexpr std::pair<KeliSize, KeliSize> kCases[] = {
      {{15, 15}, {67, 9}},  {{16, 16}, {40, 40}}, {{2, 128}, {33, 3}},  {{128, 2}, {33, 3}},
      {{31, 31}, {50, 40}}, {{64, 64}, {9, 5}},   {{40, 30}, {40, 30}}, {{3, 300}, {21, 40}},
      {{300, 3}, {17, 4}},  {{17, 33}, {9, 70}},  {{95, 91}, {10, 3}},  {{257, 2}, {5, 2}}};
  Random random(runSeed());
  for (const auto& [mask, size] : kCases) {
    for (const Member<TypeParam>& m : kMembers<TypeParam>) {
      check(m, size, withAnchor(mask, random), random);
      if (this->HasFatalFailure()) return;
    }
  }
}

// One sample everywhere.
template <class T>
T meanOfUniform(const Member<T>& m, KeliSize mask, T value, bool inPlace) {
  Picture<T> image({20, 3}, {mask, {1, 1}}, m.stored), dst = image;
  std::fill(image.samples.begin(), image.samples.end(), value);
  EXPECT_EQ(inPlace ? runInPlace(m, image) : run(m, image, dst), kelStatusOk);
  return (inPlace ? image : dst).inRegion(7, 1, 0);
}

TEST(BoxValues, UniformImages) {
  const Member<Kel8u>* const bytes = kMembers<Kel8u>;
  for (const KeliSize mask : {KeliSize{3, 3}, {5, 5}, {4, 4}, {2, 9}, {31, 31}, {100, 100}}) {
    const bool fixed = mask.width == mask.height && (mask.width == 3 || mask.width == 5);
    for (int i = 0; i < 4; ++i) {
      EXPECT_EQ(meanOfUniform<Kel8u>(bytes[i], mask, 255, false), fixed && i == 2 ? 254 : 255)
          << bytes[i].name;
      EXPECT_EQ(meanOfUniform<Kel8u>(bytes[i], mask, 255, true), 255) << bytes[i].name;
    }
    for (const Kel16s v : {Kel16s{-32768}, Kel16s{32767}, Kel16s{-7}}) {
      for (const Member<Kel16s>& m : kMembers<Kel16s>)
        EXPECT_EQ(meanOfUniform<Kel16s>(m, mask, v, false), v) << m.name;
    }
  }
}

// One mask of these samples, from left to right and from top to bottom.
template <class T>
T meanOf(KeliSize mask, const std::vector<T>& samples) {
  Picture<T> image({1, 1}, {mask, {0, 0}}, 1), dst = image;
  image.samples = samples;
  EXPECT_EQ(run(kMembers<T>[0], image, dst), kelStatusOk);
  return dst.samples[0];
}

TEST(BoxValues, Rounding) {
  std::vector<Kel8u> bytes(16, 37);
  bytes[3] += 15;
  EXPECT_EQ(meanOf<Kel8u>({4, 4}, bytes), 37);
  EXPECT_EQ(meanOf<Kel16s>({2, 2}, {1, 2, 2, 2}), 2);
  EXPECT_EQ(meanOf<Kel16s>({2, 2}, {2, 3, 2, 3}), 2);
  EXPECT_EQ(meanOf<Kel16s>({2, 2}, {3, 4, 3, 4}), 4);
  EXPECT_EQ(meanOf<Kel16s>({2, 2}, {-2, -3, -2, -3}), -2);
  // Sums wrap at 32 bits: -2949120000 is 1345847296.
  EXPECT_EQ(meanOf<Kel16s>({300, 300}, std::vector<Kel16s>(90000, -32768)), 14954);
}

TEST(BoxValues, QuotientOfBytes) {
  static constexpr struct {
    KeliSize mask;
    std::uint32_t multiplier;
    int shift;
  } kCases[] = {{{2, 2}, 2049, 13}, {{3, 3}, 3641, 15}, {{4, 4}, 2049, 15}, {{5, 5}, 2622, 16}};
  for (const auto& c : kCases) {
    const box::ByteQuotient q = box::byteQuotient(box::reciprocalOf(c.mask));
    EXPECT_EQ(q.multiplier, c.multiplier);
    EXPECT_EQ(q.shift, c.shift);
  }
}

// A NaN and an infinity reach the masks that hold them and no others.
TEST(BoxValues, SpecialFloatsStayWhereTheyAre) {
  for (const KeliSize mask : {KeliSize{3, 3}, {31, 31}, {9, 70}}) {
    Picture<Kel32f> image({120, 150}, {mask, {0, 0}}, 1), dst = image;
    std::fill(image.samples.begin(), image.samples.end(), 1.0f);
    image.at(60, 80, 0) = NAN;
    image.at(100, 20, 0) = -INFINITY;
    ASSERT_EQ(run(kMembers<Kel32f>[0], image, dst), kelStatusOk);
    const auto holds = [&](int x, int y, int column, int row) {
      return x <= column && column < x + mask.width && y <= row && row < y + mask.height;
    };
    for (int y = 0; y < 150; ++y) {
      for (int x = 0; x < 120; ++x) {
        const float v = dst.inRegion(x, y, 0);
        ASSERT_EQ(std::isnan(v), holds(x, y, 60, 80)) << x << "," << y;
        if (std::isnan(v)) continue;
        ASSERT_EQ(std::isinf(v), holds(x, y, 100, 20)) << x << "," << y;
        ASSERT_TRUE(std::isinf(v) || std::fabs(v - 1) < 1e-6f) << v;
      }
    }
  }
}

TYPED_TEST(Box, SameOnAnyNumberOfThreadsInEveryRoundingMode) {
  const int threads = omp_get_max_threads();
  Random random(runSeed());
  for (const KeliSize mask : {KeliSize{5, 5}, {12, 31}, {3, 150}}) {
    const Member<TypeParam>& m = kMembers<TypeParam>[3];
    Picture<TypeParam> src({1400, 353}, {mask, {1, 2}}, m.stored), one = src;
    fill(src, random);
    omp_set_num_threads(1);
    ASSERT_EQ(run(m, src, one), kelStatusOk);
    for (const auto& [team, mode] :
         {std::pair(2, FE_TONEAREST), {7, FE_TONEAREST}, {1, FE_UPWARD}, {2, FE_DOWNWARD}}) {
      omp_set_num_threads(team);
      Picture<TypeParam> dst(src.roi, src.mask, m.stored), within = src, inPlace = src;
      runInPlace(m, inPlace);
      std::fesetround(mode);
      const KelStatus status = run(m, src, dst);
      runInPlace(m, within);
      EXPECT_EQ(std::fegetround(), mode);
      std::fesetround(FE_TONEAREST);
      ASSERT_EQ(status, kelStatusOk);
      EXPECT_TRUE(same(dst, one)) << m.name << " on " << team << " threads, mode " << mode;
      EXPECT_TRUE(same(within, inPlace)) << m.name << " in place, mode " << mode;
    }
  }
  omp_set_num_threads(threads);
}

TYPED_TEST(Box, NothingIsWrittenWithoutMemory) {
  for (const Member<TypeParam>& m : kMembers<TypeParam>) {
    for (const KeliSize mask : {KeliSize{3, 3}, {5, 5}, {20, 20}}) {
      Picture<TypeParam> src({65, 64}, {mask, {0, 0}}, m.stored), dst = src;
      std::fill(src.samples.begin(), src.samples.end(), TypeParam{9});
      const Picture<TypeParam> unchanged = src, untouched = dst;
      const KelStatus apart = withoutMemory([&] { return run(m, src, dst); });
      const KelStatus within = withoutMemory([&] { return runInPlace(m, src); });
      EXPECT_EQ(apart, kelStatusNoMemory) << m.name;
      EXPECT_EQ(within, kelStatusNoMemory) << m.name;
      EXPECT_TRUE(same(src, unchanged) && same(dst, untouched)) << m.name;
    }
  }
}

}  // namespace
}  // namespace keli::test
