// Sums, means, norms and the quality index against plain loops: exactly where a result is defined
// to the bit, and within what single precision loses elsewhere.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <functional>
#include <limits>

#include "reference/image.h"
#include "support/targets.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Role;
using registry::Type;

double sampleOf(Type type, const ImageView& image, int x, int y, int k) {
  if (type == Type::k8u) return image.get<Kel8u>(x, y, k);
  if (type == Type::k16s) return image.get<Kel16s>(x, y, k);
  if (type == Type::k32s) return image.get<Kel32s>(x, y, k);
  return static_cast<double>(image.get<Kel32f>(x, y, k));
}

// One channel of a region as summands see it: a sample or a difference by column and row.
using Samples = std::function<double(int x, int y)>;

struct Sum {
  double value;
  double magnitudes;  // how large errors of rounding may be
};

// The two accumulators of the accurate hint; sums of integers are exact in them.
Sum sumOf(const Samples& samples, KeliSize size, const std::function<double(double)>& term) {
  double even = 0, odd = 0, magnitudes = 0;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const double v = term(samples(x, y));
      (x % 2 == 0 ? even : odd) += v;
      magnitudes += std::fabs(v);
    }
  }
  return {odd + even, magnitudes};
}

Sum largestOf(const Samples& samples, KeliSize size) {
  double largest = 0;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const double v = std::fabs(samples(x, y));
      largest = v > largest || v != v ? v : largest;
      if (largest != largest) return {largest, largest};
    }
  }
  return {largest, largest};
}

// One call and what it has to answer. Samples of 32f are small where sums lose digits, and any
// where they are exact; everything else is random from extreme to extreme.
class Case {
 public:
  Case(const Function& f, const Geometry& g, std::uint64_t seed, int hint)
      : call_(f, g, seed), size_{g.width, g.height}, type_(f.arguments[0].type) {
    const std::size_t at = call_.find(Role::kHint);
    if (at != TestCall::npos) call_.values[at].i = hint;
    exact_ = at == TestCall::npos || hint == kelAlgHintAccurate;
    Random random(seed);
    for (std::size_t i = 0; i < f.arguments.size; ++i) {
      if (f.arguments[i].role != Role::kSource) continue;
      if (!exact_) makeSmall(i, random);
      images_.emplace_back(call_, i);
    }
  }

  TestCall& call() { return call_; }
  KeliSize size() const { return size_; }
  int channels() const { return images_[0].channels(); }
  bool exact() const { return exact_; }

  Samples image(std::size_t image, int k) const {
    const ImageView view = images_[image];
    const Type type = type_;
    return [view, type, k](int x, int y) { return sampleOf(type, view, x, y, k); };
  }

  // rounded: to the single precision that the largest of differences is formed in.
  Samples operands(int k, bool rounded) const {
    if (images_.size() == 1) return image(0, k);
    const bool single = rounded && type_ == Type::k32f;
    return [a = image(0, k), b = image(1, k), single](int x, int y) {
      const double d = a(x, y) - b(x, y);
      return single ? static_cast<double>(static_cast<float>(d)) : d;
    };
  }

  void expect(int k, double expected, double error) {
    const std::size_t at = static_cast<std::size_t>(k);
    const double found = call_.result<double>(call_.find(Role::kResult), at);
    if (expected != expected) {
      ASSERT_NE(found, found) << where(k);
    } else if (exact_) {
      ASSERT_EQ(found, expected) << where(k);
    } else {
      ASSERT_NEAR(found, expected, error) << where(k);
    }
  }

 private:
  void makeSmall(std::size_t i, Random& random) {
    std::vector<std::uint8_t> samples = call_.samples(i);
    for (std::size_t j = 0; j < samples.size(); j += sizeof(float)) {
      const float v = static_cast<float>(static_cast<int>(pick(random, 200001)) - 100000) / 128;
      std::memcpy(samples.data() + j, &v, sizeof(v));
    }
    call_.setSamples(i, samples);
  }

  std::string where(int k) const {
    return std::string(call_.function.name) + " channel " + std::to_string(k) + " at width " +
           std::to_string(size_.width);
  }

  TestCall call_;
  KeliSize size_;
  Type type_;
  bool exact_;
  std::vector<ImageView> images_;
};

// Runs check(case) for all members of an operation, on every target, in several widths.
int forCases(const std::string& operation, const std::function<void(Case&)>& check) {
  int members = 0;
  for (const Function& f : registry::functions()) {
    if (operation != f.operation) continue;
    ++members;
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      for (const int width : {1, 2, 3, 7, 8, 21, 31, 32, 33, 64, 97, 130, 300, 1001}) {
        for (const int hint : {kelAlgHintNone, kelAlgHintAccurate}) {
          Case c(f, {width, 3, width % 2 * 5, Place::kMiddle, width % 3},
                 runSeed() + static_cast<std::uint64_t>(width), hint);
          check(c);
          if (testing::Test::HasFatalFailure()) return members;
        }
      }
    }
  }
  return members;
}

constexpr double kSingle = 1e-6;  // relative, for sums of a few thousand samples

TEST(Sums, SumAndMean) {
  const auto itself = [](double v) { return v; };
  EXPECT_EQ(forCases("Sum",
                     [&](Case& c) {
                       ASSERT_EQ(c.call().run().status, kelStatusOk);
                       for (int k = 0; k < c.channels(); ++k) {
                         const Sum s = sumOf(c.image(0, k), c.size(), itself);
                         c.expect(k, s.value, kSingle * s.magnitudes);
                       }
                     }),
            12);
  EXPECT_EQ(forCases("Mean",
                     [&](Case& c) {
                       ASSERT_EQ(c.call().run().status, kelStatusOk);
                       const double pixels = c.size().width * c.size().height;
                       for (int k = 0; k < c.channels(); ++k) {
                         const Sum s = sumOf(c.image(0, k), c.size(), itself);
                         const bool one = c.channels() == 1;
                         c.expect(k, one ? s.value / pixels : s.value * (1.0 / pixels),
                                  kSingle * s.magnitudes / pixels);
                       }
                     }),
            12);
}

// The norm's sum, without the root.
Sum normOf(const std::string& norm, const Samples& samples, KeliSize size) {
  if (norm == "Inf") return largestOf(samples, size);
  if (norm == "L1") return sumOf(samples, size, [](double v) { return std::fabs(v); });
  return sumOf(samples, size, [](double v) { return v * v; });
}

double finished(const std::string& norm, double sum) { return norm == "L2" ? std::sqrt(sum) : sum; }

TEST(Norms, OfOneImageAndOfDifferences) {
  for (const std::string norm : {"Inf", "L1", "L2"}) {
    for (const std::string kind : {"Norm_", "NormDiff_"}) {
      const int members = forCases(kind + norm, [&](Case& c) {
        ASSERT_EQ(c.call().run().status, kelStatusOk);
        for (int k = 0; k < c.channels(); ++k) {
          const Sum s = normOf(norm, c.operands(k, norm == "Inf"), c.size());
          const double value = finished(norm, s.value);
          c.expect(k, value, kSingle * value);
        }
      });
      EXPECT_EQ(members, kind + norm == "Norm_Inf" ? 13 : 12) << kind << norm;
    }
  }
}

// Where it is divided and where not, the one member that takes its root last included.
TEST(Norms, Relative) {
  for (const std::string norm : {"Inf", "L1", "L2"}) {
    int undivided = 0, divided = 0;
    const int members = forCases("NormRel_" + norm, [&](Case& c) {
      // Every third width, the second channel (or the one) of the second image is 0.
      const ImageView second(c.call(), 2);
      const int zeroed = c.channels() == 1 ? 0 : 1;
      for (int x = 0; c.size().width % 3 == 0 && x < c.size().width; ++x) {
        for (int y = 0; y < c.size().height; ++y)
          std::memset(second.at(x, y, zeroed), 0, second.sampleBytes());
      }
      const bool rootLast = std::string(c.call().function.name) == "keliNormRel_L2_16s_C1R";
      double numerators[4], values[4];
      bool divides = true;
      for (int k = 0; k < c.channels(); ++k) {
        const double d = normOf(norm, c.operands(k, norm == "Inf"), c.size()).value;
        const double of2 = normOf(norm, c.image(1, k), c.size()).value;
        numerators[k] = finished(norm, d);
        values[k] = rootLast ? std::sqrt(d / of2) : finished(norm, d) / finished(norm, of2);
        divides = divides && of2 >= DBL_MIN;
      }
      ++(divides ? divided : undivided);
      ASSERT_EQ(c.call().run().status, divides ? kelStatusOk : kelStatusDivByZeroWarning);
      for (int k = 0; k < c.channels(); ++k) {
        const double value = divides ? values[k] : numerators[k];
        c.expect(k, value, 3 * kSingle * value);
      }
    });
    EXPECT_EQ(members, 12);
    EXPECT_GT(divided, 0);
    EXPECT_GT(undivided, 0);
  }
}

TEST(Norms, OneZeroChannelLeavesAllUndivided) {
  const Kel8u first[6] = {9, 20, 30, 1, 2, 3}, second[6] = {4, 0, 10, 4, 0, 10};
  double value[3];
  EXPECT_EQ(keliNormRel_L1_8u_C3R(first, 6, second, 6, {2, 1}, value), kelStatusDivByZeroWarning);
  EXPECT_EQ(value[0], 8);
  EXPECT_EQ(value[1], 22);
  EXPECT_EQ(value[2], 27);
  const Kel16s a[3] = {-32768, 5, 7}, zero[3] = {};
  EXPECT_EQ(keliNormRel_Inf_16s_C1R(a, 6, zero, 6, {3, 1}, value), kelStatusDivByZeroWarning);
  EXPECT_EQ(value[0], 32768);
}

// ---- Accumulators ------------------------------------------------------------------------------

// Rows that are read again and again: every row starts one sample after the one before, and all
// hold the same value but for the last.
template <class T, class Call>
void checkRepeated(T sample, KeliSize size, double expected, const Call& call) {
  const std::size_t count = static_cast<std::size_t>(size.width + size.height);
  const std::vector<T> first(count, sample), second(count, std::numeric_limits<T>::min());
  for (const std::int64_t target : testedTargets()) {
    if (target == HWY_SCALAR) continue;  // a minute's work
    const UseTarget use(target);
    double value = 0;
    ASSERT_EQ(call(first.data(), second.data(), static_cast<int>(sizeof(T)), size, &value),
              kelStatusOk);
    ASSERT_EQ(value, expected) << targetName(target);
  }
}

TEST(Sums, AccumulatorsHoldGigapixels) {
  constexpr KeliSize kSize = {70001, 20000};
  const double n = 70001.0 * 20000;
  const auto one = [](auto function) {
    return [function](const auto* a, const auto*, int step, KeliSize size, double* value) {
      return function(a, step, size, value);
    };
  };
  const auto two = [](auto function) {
    return [function](const auto* a, const auto* b, int step, KeliSize size, double* value) {
      return function(a, step, b, step, size, value);
    };
  };
  checkRepeated<Kel8u>(255, kSize, 255 * n, one(keliSum_8u_C1R));
  checkRepeated<Kel8u>(255, kSize, std::sqrt(255.0 * 255 * n), one(keliNorm_L2_8u_C1R));
  checkRepeated<Kel8u>(255, kSize, 255 * n, two(keliNormDiff_L1_8u_C1R));
  checkRepeated<Kel16s>(-32768, kSize, -32768 * n, one(keliSum_16s_C1R));
  checkRepeated<Kel16s>(-32768, kSize, 32768 * n, one(keliNorm_L1_16s_C1R));
  constexpr KeliSize kSmall = {70001, 20};  // so that the sum of squares fits 53 bits
  checkRepeated<Kel16s>(-32768, kSmall, std::sqrt(32768.0 * 32768 * 70001 * 20),
                        one(keliNorm_L2_16s_C1R));
  checkRepeated<Kel16s>(32767, kSmall, std::sqrt(65535.0 * 65535 * 70001 * 20),
                        two(keliNormDiff_L2_16s_C1R));
  checkRepeated<Kel16s>(32767, kSize, 65535 * n, two(keliNormDiff_L1_16s_C1R));
}

// Single-precision sums of many equal samples do not stop growing.
TEST(Sums, SinglePrecisionLosesLittleInLargeRegions) {
  constexpr KeliSize kSize = {70001, 3000};
  const std::vector<float> samples(73002, 0.1f);
  double sum = 0;
  ASSERT_EQ(keliSum_32f_C1R(samples.data(), sizeof(float), kSize, &sum, kelAlgHintFast),
            kelStatusOk);
  const double exact = static_cast<double>(0.1f) * 70001 * 3000;
  EXPECT_NEAR(sum, exact, 1e-5 * exact);
}

// The fixed order of the accurate hint shows in sums whose digits do not fit.
TEST(Sums, AccurateOrder) {
  const float row[3] = {0x1p60f, 1, -0x1p60f};
  double sum = 0;
  ASSERT_EQ(keliSum_32f_C1R(row, 12, {3, 1}, &sum, kelAlgHintAccurate), kelStatusOk);
  EXPECT_EQ(sum, 1);  // (2^60 - 2^60) + 1
  const float other[3] = {0x1p60f, -0x1p60f, 1};
  ASSERT_EQ(keliSum_32f_C1R(other, 12, {3, 1}, &sum, kelAlgHintAccurate), kelStatusOk);
  EXPECT_EQ(sum, 0);  // (2^60 + 1) - 2^60
}

// ---- Quality index -----------------------------------------------------------------------------

double qualityOf(const Samples& first, const Samples& second, KeliSize size) {
  const auto itself = [](double v) { return v; };
  const double n = static_cast<double>(size.width) * size.height;
  const double mx = sumOf(first, size, itself).value / n;
  const double my = sumOf(second, size, itself).value / n;
  double xy = 0, xx = 0, yy = 0;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const double a = first(x, y) - mx, b = second(x, y) - my;
      xy += a * b;
      xx += a * a;
      yy += b * b;
    }
  }
  return 4 * xy * mx * my / ((xx + yy) * (mx * mx + my * my));
}

TEST(QualityIndex, OfNoiseAndOfEqualImages) {
  int members = 0;
  for (const Function& f : registry::functions()) {
    if (std::string("QualityIndex") != f.operation) continue;
    ++members;
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      for (const int width : {2, 3, 16, 47, 48, 100, 333}) {
        const Geometry g = {width, 41, width % 2 * 7, Place::kMiddle, width % 3};
        TestCall call(f, g, runSeed());
        for (const std::size_t image : {std::size_t{0}, std::size_t{2}}) {
          std::vector<std::uint8_t> samples = call.samples(image);
          Random random(runSeed() + image);
          for (std::size_t i = 0; f.arguments[0].type == Type::k32f && i < samples.size(); i += 4) {
            const float v = static_cast<float>(pick(random, 1000)) + (image != 0 ? 100.f : 0.f);
            std::memcpy(samples.data() + i, &v, sizeof(v));
          }
          call.setSamples(image, samples);
        }
        const std::size_t result = call.find(Role::kResult);
        for (const bool same : {false, true}) {
          if (same) call.setSamples(2, call.samples(0));
          ASSERT_EQ(call.run().status, kelStatusOk);
          const ImageView first(call, 0), second(call, 2);
          const Type type = f.arguments[0].type;
          for (int k = 0; k < first.channels(); ++k) {
            const auto of = [&](const ImageView& v) -> Samples {
              return [v, type, k](int x, int y) { return sampleOf(type, v, x, y, k); };
            };
            const double expected = qualityOf(of(first), of(second), {width, 41});
            const float found = call.result<float>(result, static_cast<std::size_t>(k));
            ASSERT_NEAR(static_cast<double>(found), expected, 2e-5) << f.name << " " << width;
            ASSERT_TRUE(!same || found == 1.0f) << f.name << " of equal images: " << found;
          }
        }
      }
    }
  }
  EXPECT_EQ(members, 6);
}

TEST(QualityIndex, OfConstantImagesIsTheIeeeQuotient) {
  const std::vector<float> first(1000, 0.1f), second(1000, 0.7f);
  float index = 0;
  ASSERT_EQ(keliQualityIndex_32f_C1R(first.data(), 400, second.data(), 400, {100, 10}, &index),
            kelStatusOk);
  EXPECT_TRUE(std::isnan(index)) << index;
  const std::vector<Kel8u> third(1000, 3);
  ASSERT_EQ(keliQualityIndex_8u32f_C1R(third.data(), 100, third.data(), 100, {100, 10}, &index),
            kelStatusOk);
  EXPECT_TRUE(std::isnan(index)) << index;
}

}  // namespace
}  // namespace keli::test
