// Div and DivC of the real types against their definitions.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "reference/pointwise.h"
#include "reference/rounding.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Type;

constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

float fromBits(std::uint32_t bits) {
  float v;
  std::memcpy(&v, &bits, sizeof(v));
  return v;
}

std::uint32_t bitsOf(float v) {
  std::uint32_t bits;
  std::memcpy(&bits, &v, sizeof(v));
  return bits;
}

// ---- Definitions: the second operand by the first --------------------------------------------

float reciprocal(int k) {
  if (k == 0) return fromBits(0x4F7FC000);
  const int millionths = (10000000 / k + 5) / 10;
  char text[16];
  std::snprintf(text, sizeof(text), "%d.%06d", millionths / 1000000, millionths % 1000000);
  return std::strtof(text, nullptr);
}

Kel8u divided(Kel8u a, Kel8u b, int sf) {
  const float product = reciprocal(a) * static_cast<float>(b);
  const double scaled = std::ldexp(double{product}, -std::max(-1000, std::min(1000, sf)));
  return static_cast<Kel8u>(std::nearbyint(std::min(scaled, 255.0)));
}

template <class T>
T quotient(T a, T b, int sf) {
  return scaledQuotient<T>(a < 0 ? -Exact{b} : Exact{b}, a < 0 ? -Exact{a} : Exact{a}, sf);
}

Kel16s divided(Kel16s a, Kel16s b, int sf) {
  if (a == 0) return static_cast<Kel16s>(b > 0 ? 32767 : b < 0 ? -32768 : 0);
  return quotient(a, b, sf);
}

float divided(float a, float b, int) {
  if (a != 0) return b / a;
  return b > 0 ? kInfinity : b < 0 ? -kInfinity : fromBits(0xFFC00000);
}

// ---- Comparison -------------------------------------------------------------------------------

template <class T>
void checkDiv(const Function& f, const std::vector<int>& factors) {
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    for (std::size_t i = 0; i < 60; ++i) {
      const int width = static_cast<int>(i < 40 ? i + 1 : 31 * i - 1200);
      const Geometry g = {width, 2, i % 3 == 0 ? 0 : 3, Place::kMiddle, static_cast<int>(i % 4)};
      TestCall call(f, g, runSeed() + i), expected(f, g, runSeed() + i);
      const int sf = factors.empty() ? 0 : factors[i % factors.size()];
      const std::size_t factor = call.find(registry::Role::kScaleFactor);
      if (!factors.empty()) call.values[factor].i = expected.values[factor].i = sf;
      const KelStatus status = call.run().status;
      bool zero = false;
      define<T>(expected, {width, 2}, [&](T a, T b, int) {
        zero |= a == 0;
        return divided(a, b, sf);
      });
      ASSERT_EQ(status, zero ? kelStatusDivByZeroWarning : kelStatusOk) << f.name << " " << width;
      ASSERT_EQ(call.samples(call.written()), expected.samples(expected.written()))
          << f.name << " " << targetName(target) << " width " << width << " scale factor " << sf;
    }
  }
}

TEST(Division, OfImagesIsItsDefinition) {
  const std::vector<int> factors = scaleFactors(17);
  const auto check8u = [&](const Function& f) { checkDiv<Kel8u>(f, factors); };
  const auto check16s = [&](const Function& f) { checkDiv<Kel16s>(f, factors); };
  const auto check32f = [&](const Function& f) { checkDiv<Kel32f>(f, {}); };
  EXPECT_EQ(forMembers("Div", Type::k8u, check8u), 4);
  EXPECT_EQ(forMembers("Div", Type::k16s, check16s), 4);
  EXPECT_EQ(forMembers("Div", Type::k32f, check32f), 8);
}

template <class T>
void checkDivC(Type type, int vanish) {
  const int members = forMembers("DivC", type, [&](const Function& f) {
    for (int round = 0; round < 4; ++round) {
      checkMember<T>(f, scaleFactors(vanish), [](T a, T c, int sf) { return quotient(c, a, sf); });
    }
  });
  EXPECT_EQ(members, 4);
}

TEST(Division, ByConstantsIsItsDefinition) {
  checkDivC<Kel8u>(Type::k8u, 9);
  checkDivC<Kel16s>(Type::k16s, 17);
  const int members = forMembers("DivC", Type::k32f, [&](const Function& f) {
    const bool one = f.arguments[f.inPlace ? 0 : 2].length == 0;
    for (const float c : {3.0f, 0.1f, 1.0f, -1.0f, 1e-40f, 3e38f, kInfinity, -kInfinity, NAN}) {
      const auto prepare = [&](TestCall& call) {
        registry::Value& value = call.values[call.find(registry::Role::kConstant)];
        value.f = c;
        static float values[3];
        for (int k = 0; k < 3; ++k) values[k] = c * (k == 1 ? -7 : 1);
        if (!one) value.p = values;
      };
      checkMember<float>(
          f, {},
          [&](float a, float constant, int) {
            const float r = 1 / constant;
            if (one && (r == 1 || r == 0)) return r == 1 ? a : 0;
            return a * r;
          },
          prepare);
    }
  });
  EXPECT_EQ(members, 4);
}

// ---- Exhaustive and adverse pairs -------------------------------------------------------------

TEST(Division, EveryPairOfBytes) {
  std::vector<Kel8u> a(65536), b(65536), dst(65536), expected(65536);
  for (std::size_t i = 0; i < a.size(); ++i) {
    a[i] = static_cast<Kel8u>(i);
    b[i] = static_cast<Kel8u>(i >> 8);
  }
  std::vector<int> factors = {kIntMin, -200, -126, -64, 24, 25,  32,
                              40,      41,   42,   43,  64, 200, kIntMax};
  for (int sf = -20; sf <= 20; ++sf) factors.push_back(sf);
  for (const int sf : factors) {
    for (std::size_t i = 0; i < a.size(); ++i) expected[i] = divided(a[i], b[i], sf);
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      ASSERT_EQ(keliDiv_8u_C1RSfs(a.data(), 256, b.data(), 256, dst.data(), 256, {256, 256}, sf),
                kelStatusDivByZeroWarning);
      ASSERT_TRUE(dst == expected) << targetName(target) << " scale factor " << sf;
    }
  }
  for (int sf = -9; sf <= 10; ++sf) {
    for (int c = 1; c < 256; ++c) {
      const Kel8u constant = static_cast<Kel8u>(c);
      for (int v = 0; v < 256; ++v) {
        expected[static_cast<std::size_t>(v)] = quotient(constant, static_cast<Kel8u>(v), sf);
      }
      for (const std::int64_t target : testedTargets()) {
        const UseTarget use(target);
        for (std::size_t v = 0; v < 256; ++v) dst[v] = static_cast<Kel8u>(v);
        ASSERT_EQ(keliDivC_8u_C1IRSfs(constant, dst.data(), 256, {256, 1}, sf), kelStatusOk);
        ASSERT_EQ(std::memcmp(dst.data(), expected.data(), 256), 0)
            << targetName(target) << " by " << c << " scale factor " << sf;
      }
    }
  }
}

// Dividends whose scaled quotients are ties or as near to one as can be.
TEST(Division, ShortsNextToTies) {
  constexpr std::size_t kCount = 8192;
  Random random(runSeed());
  std::vector<Kel16s> a(kCount), b(kCount), dst(kCount), expected(kCount);
  const auto nextToTie = [&](std::int64_t divisor, int sf) {
    // Such that dividend * 2^-sf / divisor is near m + 1/2.
    const int bits = static_cast<int>(pick(random, 16));
    const double tie = static_cast<double>(random() >> (63 - bits)) + 0.5;
    const double dividend = std::nearbyint(std::ldexp(tie * static_cast<double>(divisor), sf));
    const double near = dividend + static_cast<double>(pick(random, 3)) - 1;
    const Kel16s other = static_cast<Kel16s>(random());
    return std::abs(near) > 32767 ? other : static_cast<Kel16s>(near);
  };
  for (int sf = -32; sf <= 18; ++sf) {
    for (std::size_t i = 0; i < kCount; ++i) {
      const int bits = static_cast<int>(pick(random, 16));
      a[i] = static_cast<Kel16s>(static_cast<Kel16s>(random()) >> bits);
      if (i % 4 == 0) a[i] = static_cast<Kel16s>(32767 - pick(random, 999));
      b[i] = nextToTie(a[i], sf);
      expected[i] = divided(a[i], b[i], sf);
    }
    const Kel16s c = a[0] == 0 ? Kel16s{1} : a[0];
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      ASSERT_GE(keliDiv_16s_C1RSfs(a.data(), 2 * kCount, b.data(), 2 * kCount, dst.data(),
                                   2 * kCount, {kCount, 1}, sf),
                kelStatusOk);
      for (std::size_t i = 0; i < kCount; ++i) {
        ASSERT_EQ(dst[i], expected[i])
            << targetName(target) << " " << b[i] << " / " << a[i] << " scale factor " << sf;
      }
    }
    for (std::size_t i = 0; i < kCount; ++i) b[i] = nextToTie(c, sf);
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      ASSERT_EQ(
          keliDivC_16s_C1RSfs(b.data(), 2 * kCount, c, dst.data(), 2 * kCount, {kCount, 1}, sf),
          kelStatusOk);
      for (std::size_t i = 0; i < kCount; ++i) {
        ASSERT_EQ(dst[i], quotient(c, b[i], sf))
            << targetName(target) << " " << b[i] << " / " << c << " scale factor " << sf;
      }
    }
  }
}

TEST(Division, KnownResults) {
  const auto bytes = [](int a, int b, int sf, KelStatus status) {
    const Kel8u x = static_cast<Kel8u>(a), y = static_cast<Kel8u>(b);
    Kel8u d = 99;
    EXPECT_EQ(keliDiv_8u_C1RSfs(&x, 1, &y, 1, &d, 1, {1, 1}, sf), status);
    return int{d};
  };
  EXPECT_EQ(bytes(0, 5, 0, kelStatusDivByZeroWarning), 255);
  EXPECT_EQ(bytes(0, 0, 0, kelStatusDivByZeroWarning), 0);
  EXPECT_EQ(bytes(6, 3, 0, kelStatusOk), 1);   // by 0.166667
  EXPECT_EQ(bytes(14, 7, 0, kelStatusOk), 1);  // by 0.071429
  EXPECT_EQ(bytes(12, 6, 0, kelStatusOk), 0);  // by 0.083333
  EXPECT_EQ(bytes(2, 5, 0, kelStatusOk), 2);
  const Kel8u pixel = 200;
  Kel8u d = 99;
  EXPECT_EQ(keliDivC_8u_C1RSfs(&pixel, 1, 0, &d, 1, {1, 1}, 0), kelStatusDivisorZero);
  EXPECT_EQ(d, 99);

  // A zero in the fourth channel alone is no division.
  const float divisors[4] = {2, -4, 0.5f, 0}, dividends[4] = {1, 1, 1, 1};
  float floats[4] = {9, 9, 9, 9};
  EXPECT_EQ(keliDiv_32f_AC4R(divisors, 16, dividends, 16, floats, 16, {1, 1}), kelStatusOk);
  EXPECT_EQ(floats[1], -0.25f);
  EXPECT_EQ(floats[3], 9);
  EXPECT_EQ(keliDiv_32f_C4R(divisors, 16, dividends, 16, floats, 16, {1, 1}),
            kelStatusDivByZeroWarning);
  EXPECT_EQ(floats[3], kInfinity);
  const float zeros[4] = {0, -0.0f, -0.0f, 0}, signs[4] = {-1, 1, 0, fromBits(0x7FC01234)};
  EXPECT_EQ(keliDiv_32f_C1R(zeros, 16, signs, 16, floats, 16, {4, 1}), kelStatusDivByZeroWarning);
  EXPECT_EQ(floats[0], -kInfinity);
  EXPECT_EQ(floats[1], kInfinity);
  EXPECT_EQ(bitsOf(floats[2]), 0xFFC00000u);
  EXPECT_EQ(bitsOf(floats[3]), 0xFFC00000u);
}

}  // namespace
}  // namespace keli::test
