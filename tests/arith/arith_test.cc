// Add, Sub, Mul, their forms with a constant, MulScale and MulCScale against their definitions.
#include <gtest/gtest.h>

#include "reference/pointwise.h"
#include "reference/rounding.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Type;

struct Integers {
  const char* operation;
  Exact (*exact)(Exact first, Exact second);
  int vanish8u;
  int vanish16s;
};

constexpr Integers kIntegers[] = {
    {"Add", [](Exact a, Exact b) { return a + b; }, 9, 16},
    {"Sub", [](Exact a, Exact b) { return b - a; }, 8, 16},
    {"Mul", [](Exact a, Exact b) { return a * b; }, 16, 30},
    {"AddC", [](Exact a, Exact c) { return a + c; }, 9, 16},
    {"SubC", [](Exact a, Exact c) { return a - c; }, 8, 16},
    {"MulC", [](Exact a, Exact c) { return a * c; }, 16, 30},
};

template <class T>
void checkIntegers(const Integers& row, Type type, int vanish) {
  const int members = forMembers(row.operation, type, [&](const Function& f) {
    checkMember<T>(f, scaleFactors(vanish),
                   [&](T a, T b, int sf) { return scaledQuotient<T>(row.exact(a, b), 1, sf); });
  });
  EXPECT_EQ(members, 8) << row.operation;
}

TEST(Arith, IntegersAreTheirDefinitions) {
  for (const Integers& row : kIntegers) {
    checkIntegers<Kel8u>(row, Type::k8u, row.vanish8u);
    checkIntegers<Kel16s>(row, Type::k16s, row.vanish16s);
  }
}

// All pairs of bytes at every scale factor that matters.
TEST(Arith, EveryPairOfBytes) {
  std::vector<Kel8u> a(65536), b(65536), dst(65536);
  for (std::size_t i = 0; i < a.size(); ++i) {
    a[i] = static_cast<Kel8u>(i);
    b[i] = static_cast<Kel8u>(i >> 8);
  }
  const auto check = [&](auto function, const Integers& row) {
    for (int sf = -9; sf <= row.vanish8u + 1; ++sf) {
      std::vector<Kel8u> expected(65536);
      for (std::size_t i = 0; i < a.size(); ++i)
        expected[i] = scaledQuotient<Kel8u>(row.exact(a[i], b[i]), 1, sf);
      for (const std::int64_t target : testedTargets()) {
        const UseTarget use(target);
        ASSERT_EQ(function(a.data(), 256, b.data(), 256, dst.data(), 256, KeliSize{256, 256}, sf),
                  kelStatusOk);
        ASSERT_TRUE(dst == expected) << row.operation << " " << targetName(target) << " sf " << sf;
      }
    }
  };
  check(keliAdd_8u_C1RSfs, kIntegers[0]);
  check(keliSub_8u_C1RSfs, kIntegers[1]);
  check(keliMul_8u_C1RSfs, kIntegers[2]);
}

TEST(Arith, FloatsAreOneOperation) {
  struct Floats {
    const char* operation;
    float (*result)(float, float);
  };
  static constexpr Floats kFloats[] = {
      {"Add", [](float a, float b) { return a + b; }},
      {"Sub", [](float a, float b) { return b - a; }},
      {"Mul", [](float a, float b) { return a * b; }},
      {"AddC", [](float a, float c) { return a + c; }},
      {"SubC", [](float a, float c) { return a - c; }},
      {"MulC", [](float a, float c) { return a * c; }},
  };
  for (const Floats& row : kFloats) {
    const int members = forMembers(row.operation, Type::k32f, [&](const Function& f) {
      checkMember<float>(f, {}, [&](float a, float b, int) { return row.result(a, b); });
    });
    EXPECT_EQ(members, 8) << row.operation;
  }
}

template <class T>
void checkMulScale(const char* operation, Type type, Exact max) {
  const int members = forMembers(operation, type, [&](const Function& f) {
    checkMember<T>(f, {}, [&](T a, T b, int) { return static_cast<T>(Exact{a} * b / max); });
  });
  EXPECT_EQ(members, 8) << operation;
}

TEST(Arith, MulScaleIsTheQuotientRoundedDown) {
  for (const char* operation : {"MulScale", "MulCScale"}) {
    checkMulScale<Kel8u>(operation, Type::k8u, 255);
    checkMulScale<Kel16u>(operation, Type::k16u, 65535);
  }
  // Every product of two bytes, and every carry of 16 bits that is near.
  for (int a = 0; a < 256; ++a) {
    Kel8u src[256], dst[256];
    for (int b = 0; b < 256; ++b) src[b] = static_cast<Kel8u>(b);
    ASSERT_EQ(keliMulCScale_8u_C1R(src, 256, static_cast<Kel8u>(a), dst, 256, {256, 1}), 0);
    for (int b = 0; b < 256; ++b) ASSERT_EQ(dst[b], a * b / 255);
  }
  for (std::uint32_t a = 0; a < 65536; a += 51) {
    Kel16u src[64], dst[64];
    for (std::uint32_t i = 0; i < 64; ++i) {
      // Factors whose product is next to a multiple of max.
      src[i] = static_cast<Kel16u>(a == 0 ? i : 65535 * std::uint64_t{i * 1023 + 1} / a + i % 3);
    }
    ASSERT_EQ(keliMulCScale_16u_C1R(src, 128, static_cast<Kel16u>(a), dst, 128, {64, 1}), 0);
    for (int i = 0; i < 64; ++i) ASSERT_EQ(dst[i], std::uint64_t{a} * src[i] / 65535);
  }
}

TEST(Arith, KnownResults) {
  const auto add = [](int a, int b, int sf) {
    const Kel8u x = static_cast<Kel8u>(a), y = static_cast<Kel8u>(b);
    Kel8u d = 99;
    EXPECT_EQ(keliAdd_8u_C1RSfs(&x, 1, &y, 1, &d, 1, {1, 1}, sf), kelStatusOk);
    return int{d};
  };
  EXPECT_EQ(add(1, 2, 1), 2);
  EXPECT_EQ(add(2, 3, 1), 2);
  EXPECT_EQ(add(3, 4, 1), 4);
  EXPECT_EQ(add(255, 255, 10), 0);
  EXPECT_EQ(add(0, 1, -8), 255);
  EXPECT_EQ(add(0, 0, -8), 0);
  const Kel8u three = 3, ten = 10;
  Kel8u d = 99;
  EXPECT_EQ(keliSub_8u_C1RSfs(&ten, 1, &three, 1, &d, 1, {1, 1}, 0), kelStatusOk);
  EXPECT_EQ(d, 0);
  EXPECT_EQ(keliSub_8u_C1RSfs(&three, 1, &ten, 1, &d, 1, {1, 1}, 0), kelStatusOk);
  EXPECT_EQ(d, 7);
}

}  // namespace
}  // namespace keli::test
