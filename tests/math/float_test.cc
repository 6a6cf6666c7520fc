// Abs, Sqr, Sqrt, Ln and Exp of 32f: members against their definitions, and Sqrt, Ln and Exp over
// samples of all floats, or over all of them where the environment sets KELI_TEST_ALL_FLOATS.
#include <gtest/gtest.h>

#include <cstdlib>

#include "math/functions.h"
#include "reference/pointwise.h"

namespace keli::test {
namespace {

using Function = KelStatus (*)(const Kel32f*, int, Kel32f*, int, KeliSize);

// |v| in units in the last place of numbers of the size of `of`.
long double inUlps(long double v, long double of) {
  int exponent;
  std::frexp(of, &exponent);
  return std::ldexp(std::fabs(v), 24 - std::max(exponent, -125));
}

struct Real {
  const char* name;
  Function function;
  long double (*definition)(long double);
  long double ulps;                    // every result is nearer than this
  std::uint32_t (*special)(Kel32f v);  // the bits of the result, or 1 where the definition holds
};

constexpr std::uint32_t kDefined = 1;

std::uint32_t sqrtSpecial(Kel32f v) {
  if (std::isnan(v)) return kQuietNan;
  return v < 0 ? kNegativeNan : v == 0 || std::isinf(v) ? bitsOf(v) : kDefined;
}
std::uint32_t lnSpecial(Kel32f v) {
  if (std::isnan(v)) return kQuietNan;
  return v < 0 ? kNegativeNan : v == 0 ? 0xFF800000 : std::isinf(v) ? 0x7F800000 : kDefined;
}
std::uint32_t expSpecial(Kel32f v) {
  if (std::isnan(v)) return kQuietNan;
  const Kel32f infinite = ofBits(0x42B17218);  // the first whose exponential is above 2^128
  return v >= infinite ? 0x7F800000 : v < -104 ? 0 : kDefined;
}

// A root errs by at most half a unit, which no root of a number meets: it would take 25 bits.
constexpr Real kReals[] = {
    {"Sqrt", keliSqrt_32f_C1R, [](long double v) { return std::sqrt(v); }, 0.5L, sqrtSpecial},
    {"Ln", keliLn_32f_C1R, [](long double v) { return std::log(v); }, 1, lnSpecial},
    {"Exp", keliExp_32f_C1R, [](long double v) { return std::exp(v); }, 1, expSpecial},
};

// Compares one sample; the largest error so far.
void checkSample(const Real& real, Kel32f v, Kel32f result, long double* worst) {
  const std::uint32_t special = real.special(v);
  if (special != kDefined) {
    ASSERT_EQ(bitsOf(result), special) << real.name << " of " << bitsOf(v);
    return;
  }
  const long double exact = real.definition(v);
  const long double error = inUlps(result - exact, exact);
  if (!(error <= *worst)) {
    ASSERT_LT(error, real.ulps) << real.name << " of bits " << bitsOf(v);
    *worst = error;
  }
}

TEST(MathFloats, SampleOfAllFloats) {
  constexpr std::size_t kCount = 1 << 16;
  const std::uint64_t stride = std::getenv("KELI_TEST_ALL_FLOATS") != nullptr ? 1 : 997;
  std::vector<Kel32f> src(kCount), dst(kCount), first(kCount);
  const int step = static_cast<int>(kCount * sizeof(Kel32f));
  for (const Real& real : kReals) {
    long double worst = 0;
    const std::uint64_t all = std::uint64_t{1} << 32;
    for (std::uint64_t bits = runSeed() % stride; bits < all; bits += stride * kCount) {
      for (std::size_t i = 0; i < kCount; ++i)
        src[i] = ofBits(static_cast<std::uint32_t>(std::min(bits + i * stride, all - 1)));
      for (const std::int64_t target : testedTargets()) {
        const UseTarget use(target);
        real.function(src.data(), step, dst.data(), step, {static_cast<int>(kCount), 1});
        if (target == testedTargets().front()) first = dst;
        ASSERT_EQ(std::memcmp(first.data(), dst.data(), kCount * sizeof(Kel32f)), 0)
            << real.name << " " << targetName(target) << " from bits " << bits;
      }
      for (std::size_t i = 0; i < kCount; ++i) {
        checkSample(real, src[i], first[i], &worst);
        if (HasFatalFailure()) return;
      }
    }
    std::printf("%s: error up to %.4Lf ulp\n", real.name, worst);
    EXPECT_GT(worst, 0.4L);
  }
}

TEST(MathFloats, SpecialSamples) {
  constexpr std::uint32_t kBits[] = {0x00000000, 0x80000000, 0x00000001, 0x80000001, 0x007FFFFF,
                                     0x00800000, 0x3F3504F2, 0x3F3504F3, 0x3F7FFFFF, 0x3F800000,
                                     0x3F800001, 0x3FB504F3, 0x42AE0000, 0xC2AE0000, 0x42B17217,
                                     0x42B17218, 0xC2AEAC50, 0xC2CE8ED0, 0xC2CFF1B4, 0xC2CFF1B5,
                                     0xC2D00001, 0x7F7FFFFF, 0xFF7FFFFF, 0x7F800000, 0xFF800000,
                                     0x7FC00000, 0xFFC00000, 0x7F800001, 0xFF812345};
  for (const Real& real : kReals) {
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      for (const std::uint32_t bits : kBits) {
        const Kel32f src[3] = {1, ofBits(bits), 1};
        Kel32f dst[3];
        long double worst = 0;
        real.function(src, 12, dst, 12, {3, 1});
        checkSample(real, src[1], dst[1], &worst);
        ASSERT_EQ(dst[0], real.definition(1) == 0 ? 0 : dst[2]);
      }
    }
  }
}

TEST(MathFloats, MembersAreTheirDefinitions) {
  struct Simple {
    const char* operation;
    int members;
    Kel32f (*result)(Kel32f);
  };
  // Products of NaNs keep the operand's bits.
  constexpr Simple kSimple[] = {{"Abs", 8, [](Kel32f v) { return std::fabs(v); }},
                                {"Sqr", 8, [](Kel32f v) { return v * v; }}};
  for (const Simple& row : kSimple) {
    const int members = forMembers(row.operation, registry::Type::k32f, [&](const auto& f) {
      checkMember<Kel32f>(f, {}, [&](Kel32f v, int) { return row.result(v); });
    });
    EXPECT_EQ(members, row.members);
  }
  // Of the others, every member gives what the first one gives for a sample.
  for (const Real& real : kReals) {
    const int members = forMembers(real.name, registry::Type::k32f, [&](const auto& f) {
      const auto definition = [&](Kel32f v, int) {
        Kel32f result;
        real.function(&v, 4, &result, 4, {1, 1});
        return result;
      };
      checkMember<Kel32f>(f, {}, definition,
                          [](TestCall& call) {  // without samples that raise a warning
                            const std::size_t image = call.lastSource();
                            std::vector<std::uint8_t> samples = call.samples(image);
                            for (std::size_t i = 3; i < samples.size(); i += 4) {
                              samples[i] = samples[i] & 0x7F;
                              if (samples[i] == 0) samples[i] = 0x40;
                            }
                            call.setSamples(image, samples);
                          });
    });
    EXPECT_EQ(members, real.name == std::string("Sqrt") ? 7 : 4);
  }
}

}  // namespace
}  // namespace keli::test
