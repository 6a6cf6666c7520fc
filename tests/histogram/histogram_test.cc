// Histograms against their definition: with levels of every kind, each channel with others, in
// regions small and large, on every target.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <functional>

#include "reference/image.h"
#include "support/targets.h"

namespace keli::test {
namespace {

using registry::Argument;
using registry::Function;
using registry::Role;
using registry::Type;
using registry::Value;
using Levels = std::vector<double>;

// ---- Calls with levels of one's own -------------------------------------------------------------

// Numbers at an odd address; the arrays of a call, one for each channel.
template <class N>
class Arrays {
 public:
  Arrays(int channels, const std::vector<std::size_t>& sizes) {
    for (int k = 0; k < channels; ++k) {
      bytes_.emplace_back(sizes[static_cast<std::size_t>(k)] * sizeof(N) + 2, std::uint8_t{0x5A});
      pointers_.push_back(bytes_.back().data() + 1);
    }
  }

  Value argument(bool array) const {
    Value v{};
    v.p = array ? static_cast<const void*>(pointers_.data()) : pointers_[0];
    return v;
  }
  void set(int k, std::size_t i, N n) { std::memcpy(at(k, i), &n, sizeof(n)); }
  N get(int k, std::size_t i) const {
    N n;
    std::memcpy(&n, at(k, i), sizeof(n));
    return n;
  }
  // What stands around the array.
  bool intact(int k) const {
    return bytes_[static_cast<std::size_t>(k)].front() == 0x5A &&
           bytes_[static_cast<std::size_t>(k)].back() == 0x5A;
  }

 private:
  std::uint8_t* at(int k, std::size_t i) const {
    return pointers_[static_cast<std::size_t>(k)] + i * sizeof(N);
  }
  std::vector<std::vector<std::uint8_t>> bytes_;
  std::vector<std::uint8_t*> pointers_;
};

// The samples of a channel that can be in a bin, sorted.
template <class T>
std::vector<double> sortedSamples(const TestCall& call, KeliSize size, int k) {
  const ImageView image(call, 0);
  std::vector<double> samples;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const double v = static_cast<double>(image.get<T>(x, y, k));
      if (!std::isnan(v)) samples.push_back(v);
    }
  }
  std::sort(samples.begin(), samples.end());
  return samples;
}

std::int64_t countBetween(const std::vector<double>& sorted, double lower, double upper) {
  if (!(lower < upper)) return 0;
  return std::lower_bound(sorted.begin(), sorted.end(), upper) -
         std::lower_bound(sorted.begin(), sorted.end(), lower);
}

// The histogram of channel k by the definition.
template <class T>
std::vector<std::int64_t> countsOf(const TestCall& call, KeliSize size, int k,
                                   const Levels& levels) {
  const std::vector<double> samples = sortedSamples<T>(call, size, k);
  std::vector<std::int64_t> counts;
  for (std::size_t i = 0; i + 1 < levels.size(); ++i)
    counts.push_back(countBetween(samples, levels[i], levels[i + 1]));
  return counts;
}

// Runs the call on all targets and compares its histograms; floats alone have kernels that differ.
void checkCounts(const TestCall& call, const std::vector<std::vector<std::int64_t>>& expected,
                 const Arrays<int>& counts) {
  std::vector<std::int64_t> targets = testedTargets();
  if (call.function.arguments[0].type != Type::k32f) targets.resize(1);
  for (const std::int64_t target : targets) {
    const UseTarget use(target);
    ASSERT_EQ(call.run().status, kelStatusOk) << call.function.name;
    ASSERT_EQ(call.strayWrites(), "");
    for (std::size_t k = 0; k < expected.size(); ++k) {
      for (std::size_t i = 0; i < expected[k].size(); ++i) {
        ASSERT_EQ(counts.get(static_cast<int>(k), i), expected[k][i])
            << call.function.name << " " << targetName(target) << " channel " << k << " bin " << i
            << " of " << expected[k].size();
      }
      ASSERT_TRUE(counts.intact(static_cast<int>(k)));
    }
  }
}

Value numbers(const std::vector<int>& all, bool array) {
  Value v{};
  if (array) {
    v.p = all.data();
  } else {
    v.i = all[0];
  }
  return v;
}

constexpr Geometry kGeometries[] = {{1, 1, 0, Place::kEnd, 0},     {5, 3, 1, Place::kMiddle, 1},
                                    {129, 1, 0, Place::kStart, 0}, {64, 3, 0, Place::kEnd, 0},
                                    {97, 2, 3, Place::kMiddle, 2}, {300, 14, 0, Place::kMiddle, 0},
                                    {700, 13, 5, Place::kEnd, 0}};

int forMembers(const char* operation, Type type, const std::function<void(const Function&)>& f) {
  int count = 0;
  for (const Function& function : registry::functions()) {
    if (std::string(function.operation) != operation || function.arguments[0].type != type)
      continue;
    ++count;
    f(function);
    if (testing::Test::HasFatalFailure()) break;
  }
  return count;
}

// ---- Given levels -------------------------------------------------------------------------------

template <class T, class Level>
void checkRange(const Function& f, const Geometry& g, const std::vector<Levels>& sets,
                std::size_t first) {
  TestCall call(f, g, runSeed() + first);
  const std::size_t counts = call.find(Role::kCounts);
  const bool array = f.arguments[counts].length != 0;
  const int channels = std::max(f.arguments[counts].length, 1);
  std::vector<int> levelCounts;
  std::vector<std::size_t> binCounts, sizes;
  const auto set = [&](int k) {
    return sets[(first + 7 * static_cast<std::size_t>(k)) % sets.size()];
  };
  for (int k = 0; k < channels; ++k) {
    sizes.push_back(set(k).size());
    binCounts.push_back(sizes.back() - 1);
    levelCounts.push_back(static_cast<int>(sizes.back()));
  }
  Arrays<int> found(channels, binCounts);
  Arrays<Level> levels(channels, sizes);
  std::vector<std::vector<std::int64_t>> expected;
  for (int k = 0; k < channels; ++k) {
    Levels given = set(k);
    for (std::size_t i = 0; i < given.size(); ++i) {
      levels.set(k, i, static_cast<Level>(given[i]));
      given[i] = static_cast<double>(levels.get(k, i));
    }
    expected.push_back(countsOf<T>(call, {g.width, g.height}, k, given));
  }
  call.values[counts] = found.argument(array);
  call.values[call.find(Role::kLevels)] = levels.argument(array);
  call.values[call.find(Role::kLevelCount)] = numbers(levelCounts, array);
  SCOPED_TRACE(std::to_string(g.width) + "x" + std::to_string(g.height));
  checkCounts(call, expected, found);
}

template <class T, class Level>
void checkRanges(Type type, const std::vector<Levels>& sets) {
  const int members = forMembers("HistogramRange", type, [&](const Function& f) {
    for (std::size_t i = 0; i < sets.size(); ++i) {
      for (const Geometry& g : kGeometries) checkRange<T, Level>(f, g, sets, i);
      if (testing::Test::HasFatalFailure()) return;
    }
  });
  EXPECT_EQ(members, 4);
}

Levels steps(double first, double step, int count) {
  Levels levels;
  for (int k = 0; k < count; ++k) levels.push_back(first + k * step);
  return levels;
}

TEST(Histogram, CountsOfIntegersInGivenBins) {
  std::vector<Levels> sets = {
      {0, 1},
      {INT_MIN, INT_MAX},
      {0, 1, 1, 2},
      {-5, 0, 3, 200, 255, 300},
      {255, 256},
      {300, 400},
      {200, 100, 50, 220, 0, 255},
      {7, 7, 7},
      {255, 128, 0},
      steps(0, 1, 257),
      steps(-3, 1, 300),
      steps(10, 3, 70),
      // Ends of 16 bits, multiples of every power of two, as many bins as a byte tells apart.
      {-32768, -32767, 32767, 32768},
      {-40000, -32768, 0, 40000},
      {-32768, 0, 32768},
      steps(-32768, 256, 257),
      steps(-32768, 257, 256),
      steps(-20000, 150, 255),
      steps(-20000, 150, 256),
      steps(-20000, 150, 257),
      steps(0, 48, 30),
      steps(100, -10, 40),
      {-100, 32767, -32768, 5000, 4000, 5000},
      steps(-32768, 16, 2050),
      steps(-30000, 13, 4000)};
  Random random(runSeed());
  for (const std::size_t count : {3u, 40u, 900u}) {
    Levels levels;
    for (std::size_t k = 0; k < count; ++k)
      levels.push_back(static_cast<double>(pick(random, 66000)) - 33000);
    sets.push_back(levels);
    std::sort(levels.begin(), levels.end());
    levels.erase(std::unique(levels.begin(), levels.end()), levels.end());
    if (levels.size() > 1) sets.push_back(levels);
  }
  checkRanges<Kel8u, int>(Type::k8u, sets);
  checkRanges<Kel16s, int>(Type::k16s, sets);
}

TEST(Histogram, CountsOfFloatsInGivenBins) {
  const double inf = HUGE_VAL, nan = std::nan(""), max = std::numeric_limits<float>::max();
  const double least = std::numeric_limits<float>::denorm_min();
  std::vector<Levels> sets = {{0, 1},
                              {-inf, inf},
                              {-inf, -max, -1, -0.0, least, 1, max, inf},
                              {0, 1, 1, 2},
                              {0, nan, 1},
                              {nan, nan},
                              {-0.0, 0.0, 1},
                              {-least, 0, least, 2 * least},
                              {max, inf},
                              {3, 2, 1, 400000, -9},
                              steps(-500000, 250, 4098),
                              steps(-500000, 200, 5002)};
  // Every depth of the search, full and not.
  for (const int bins : {1, 2, 3, 4, 5, 7, 8, 9, 16, 17, 31, 32, 33, 63, 64, 65, 300, 2000})
    sets.push_back(steps(-300000, 600000.0 / bins - 0.25, bins + 1));
  checkRanges<Kel32f, Kel32f>(Type::k32f, sets);
}

// Levels that are samples: which side of a boundary a value is on decides everywhere.
TEST(Histogram, CountsAtTheLevelsThemselves) {
  for (const Type type : {Type::k16s, Type::k32f}) {
    forMembers("HistogramRange", type, [&](const Function& f) {
      for (const std::size_t step : {1u, 5u, 40u}) {
        const Geometry g = {700, 3, 0, Place::kMiddle, 0};
        TestCall call(f, g, runSeed() + step);
        const std::vector<double> samples = type == Type::k16s
                                                ? sortedSamples<Kel16s>(call, {700, 3}, 0)
                                                : sortedSamples<Kel32f>(call, {700, 3}, 0);
        Levels levels;
        for (std::size_t i = 0; i < samples.size(); i += step) {
          if (levels.empty() || levels.back() != samples[i]) levels.push_back(samples[i]);
        }
        if (type == Type::k16s) {
          checkRange<Kel16s, int>(f, g, {levels}, step);
        } else {
          checkRange<Kel32f, Kel32f>(f, g, {levels}, step);
        }
      }
    });
  }
}

// ---- Even levels --------------------------------------------------------------------------------

struct Range {
  int lower, upper, bins;
};

constexpr Range kRanges[] = {{0, 256, 4},
                             {0, 10, 3},
                             {10, 8, 4},
                             {10, 8, 2},
                             {10, 1, 4},
                             {0, 256, 256},
                             {0, 256, 255},
                             {-7, 300, 100},
                             {5, 5, 3},
                             {0, 3, 7},
                             {255, 0, 256},
                             {INT_MIN, INT_MAX, 5},
                             {INT_MAX, INT_MIN, 7},
                             {-32768, 32768, 256},
                             {-32768, 32768, 255},
                             {-32768, 32768, 3000},
                             {-32768, 32767, 1},
                             {100, 50, 60}};

// Level k without the steps before it.
Levels evenLevels(const Range& r) {
  const std::int64_t range = std::int64_t{r.upper} - r.lower;
  const std::int64_t quotient = range / r.bins, rest = range % r.bins;
  Levels levels;
  for (std::int64_t k = 0; k <= r.bins; ++k) {
    const bool moves = range > 0 || quotient != 0;
    const std::int64_t longer = rest > 0 ? std::min(k, rest) : -std::min(k, -rest);
    levels.push_back(static_cast<double>(r.lower + (moves ? k * quotient + longer : 0)));
  }
  return levels;
}

template <class T>
void checkEven(const Function& f, const Geometry& g, std::size_t first) {
  TestCall call(f, g, runSeed() + first);
  const std::size_t counts = call.find(Role::kCounts), bound = call.find(Role::kLevelBound);
  const bool array = f.arguments[counts].length != 0;
  const int channels = std::max(f.arguments[counts].length, 1);
  const auto range = [&](int k) {
    return kRanges[(first + 5 * static_cast<std::size_t>(k)) % std::size(kRanges)];
  };
  std::vector<int> levelCounts, lower, upper;
  std::vector<std::size_t> bins, sizes;
  for (int k = 0; k < channels; ++k) {
    bins.push_back(static_cast<std::size_t>(range(k).bins));
    sizes.push_back(bins.back() + 1);
    levelCounts.push_back(range(k).bins + 1);
    lower.push_back(range(k).lower);
    upper.push_back(range(k).upper);
  }
  Arrays<int> found(channels, bins), levels(channels, sizes);
  call.values[counts] = found.argument(array);
  call.values[call.find(Role::kLevelsOut)] = levels.argument(array);
  call.values[call.find(Role::kLevelCount)] = numbers(levelCounts, array);
  call.values[bound] = numbers(lower, array);
  call.values[bound + 1] = numbers(upper, array);
  std::vector<std::vector<std::int64_t>> expected;
  for (int k = 0; k < channels; ++k)
    expected.push_back(countsOf<T>(call, {g.width, g.height}, k, evenLevels(range(k))));
  checkCounts(call, expected, found);
  for (int k = 0; k < channels; ++k) {
    const Levels given = evenLevels(range(k));
    for (std::size_t i = 0; i < given.size(); ++i) {
      ASSERT_EQ(levels.get(k, i), static_cast<int>(given[i]))
          << f.name << " " << range(k).lower << ".." << range(k).upper << " level " << i;
    }
    ASSERT_TRUE(levels.intact(k));
  }
}

TEST(Histogram, EvenLevelsAndTheirCounts) {
  int members = 0;
  for (const Type type : {Type::k8u, Type::k16s}) {
    members += forMembers("HistogramEven", type, [&](const Function& f) {
      for (std::size_t i = 0; i < std::size(kRanges); ++i) {
        for (const Geometry& g : kGeometries)
          type == Type::k8u ? checkEven<Kel8u>(f, g, i) : checkEven<Kel16s>(f, g, i);
      }
    });
  }
  EXPECT_EQ(members, 8);
}

// ---- Large images of bytes ----------------------------------------------------------------------

// Counted in ways that depend on what is in them: smooth, flat, in between, and neither.
TEST(Histogram, CountsOfLargeImagesOfBytes) {
  constexpr int kWidth = 601, kHeight = 230;
  Random random(runSeed());
  std::vector<int> levels(257), counts(256);
  for (int v = 0; v < 257; ++v) levels[static_cast<std::size_t>(v)] = v;
  for (const int padding : {0, 3}) {
    for (const int noise : {1, 2, 5, 256}) {
      for (const int flatColumns : {0, 100, 400, kWidth}) {
        const std::size_t step = kWidth + static_cast<std::size_t>(padding);
        std::vector<Kel8u> image(step * kHeight, 77);
        std::vector<int> expected(256);
        for (std::size_t y = 0; y < kHeight; ++y) {
          for (std::size_t x = 0; x < kWidth; ++x) {
            Kel8u& v = image[y * step + x];
            if (x >= static_cast<std::size_t>(flatColumns))
              v = static_cast<Kel8u>(x / 3 + y / 5 + pick(random, static_cast<std::size_t>(noise)));
            ++expected[v];
          }
        }
        for (const std::int64_t target : testedTargets()) {
          const UseTarget use(target);
          ASSERT_EQ(keliHistogramRange_8u_C1R(image.data(), static_cast<int>(step),
                                              {kWidth, kHeight}, counts.data(), levels.data(), 257),
                    kelStatusOk);
          ASSERT_EQ(counts, expected) << targetName(target) << " noise " << noise << ", "
                                      << flatColumns << " flat columns, padding " << padding;
        }
      }
    }
  }
}

// ---- Many pixels --------------------------------------------------------------------------------

// More pixels than 32 bits count, in rows that share their memory but for one byte.
TEST(Histogram, CountsEndAtTheGreatestInt) {
  constexpr int kWidth = 1 << 21, kHeight = 2049;
  std::vector<Kel8u> image(kWidth + kHeight, 7);
  image[kWidth / 2] = 9;  // in every row
  const int levels[] = {0, 8, 9, 10, 256};
  int counts[4];
  ASSERT_EQ(keliHistogramRange_8u_C1R(image.data(), 1, {kWidth, kHeight}, counts, levels, 5),
            kelStatusOk);
  EXPECT_EQ(counts[0], INT_MAX);
  EXPECT_EQ(counts[1], 0);
  EXPECT_EQ(counts[2], kHeight);
  EXPECT_EQ(counts[3], 0);
}

}  // namespace
}  // namespace keli::test
