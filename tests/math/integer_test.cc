// Abs, Sqr, Sqrt, Ln and Exp of integers against their definitions.
#include <gtest/gtest.h>

#include "math/functions.h"
#include "reference/pointwise.h"
#include "reference/rounding.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Type;

// The warning of the first row that has one: 7 for zeros, 8 for a row with numbers below.
template <class T>
KelStatus lnStatus(const TestCall& call, KeliSize size) {
  const ImageView src(call, call.lastSource());
  for (int y = 0; y < size.height; ++y) {
    KelStatus status = kelStatusOk;
    for (int x = 0; x < size.width * src.channels(); ++x) {
      const T v = src.template get<T>(x / src.channels(), y, x % src.channels());
      if (v < 0) status = kelStatusNegativeLogWarning;
      if (v == 0 && status == kelStatusOk) status = kelStatusZeroLogWarning;
    }
    if (status != kelStatusOk) return status;
  }
  return kelStatusOk;
}

template <class T, class Definition>
void checkAll(const char* operation, Type type, int members, int vanish,
              const Definition& definition) {
  const std::vector<int> factors = vanish < 0 ? std::vector<int>() : scaleFactors(vanish);
  const int found = forMembers(operation, type, [&](const Function& f) {
    checkMember<T>(
        f, factors, definition, [](TestCall&) {},
        [&](const TestCall& call, KeliSize size) {
          return f.operation == std::string("Ln") ? lnStatus<T>(call, size) : kelStatusOk;
        });
  });
  EXPECT_EQ(found, members) << operation;
}

template <class T>
T sqrDefinition(T v, int sf) {
  return scaledQuotient<T>(Exact{v} * v, 1, sf);
}

TEST(MathIntegers, MembersAreTheirDefinitions) {
  checkAll<Kel16s>("Abs", Type::k16s, 8, -1,
                   [](int v, int) { return static_cast<Kel16s>(std::min(std::abs(v), 32767)); });
  checkAll<Kel8u>("Sqr", Type::k8u, 8, 16, sqrDefinition<Kel8u>);
  checkAll<Kel16u>("Sqr", Type::k16u, 8, 32, sqrDefinition<Kel16u>);
  checkAll<Kel16s>("Sqr", Type::k16s, 8, 30, sqrDefinition<Kel16s>);
  checkAll<Kel8u>("Sqrt", Type::k8u, 6, 4, sqrtDefinition<Kel8u>);
  checkAll<Kel16u>("Sqrt", Type::k16u, 6, 8, sqrtDefinition<Kel16u>);
  checkAll<Kel16s>("Sqrt", Type::k16s, 6, 8, sqrtDefinition<Kel16s>);
  checkAll<Kel8u>("Ln", Type::k8u, 4, 3, [](Kel8u v, int sf) { return lnDefinition(v, sf); });
  checkAll<Kel16s>("Ln", Type::k16s, 4, 4, [](Kel16s v, int sf) { return lnDefinition(v, sf); });
  checkAll<Kel8u>("Exp", Type::k8u, 4, 20, [](Kel8u v, int sf) { return expDefinition(v, sf); });
  checkAll<Kel16s>("Exp", Type::k16s, 4, 20, [](Kel16s v, int sf) { return expDefinition(v, sf); });
}

template <class T>
using Scaled = KelStatus (*)(const T*, int, T*, int, KeliSize, int);

// Every input at each scale factor from one end to the other, on every target.
template <class T, class Definition>
void checkInputs(Scaled<T> function, int first, int last, const Definition& definition) {
  constexpr std::size_t kCount = std::size_t{1} << (8 * sizeof(T));
  constexpr int kStep = 256 * sizeof(T);
  std::vector<T> src(kCount), dst(kCount), expected(kCount);
  for (std::size_t i = 0; i < kCount; ++i) src[i] = static_cast<T>(i);
  for (int sf = first; sf <= last; ++sf) {
    for (std::size_t i = 0; i < kCount; ++i) expected[i] = definition(src[i], sf);
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      function(src.data(), kStep, dst.data(), kStep, {256, static_cast<int>(kCount / 256)}, sf);
      for (std::size_t i = 0; i < kCount; ++i) {
        ASSERT_EQ(dst[i], expected[i]) << +src[i] << " sf " << sf << " " << targetName(target);
      }
    }
  }
}

TEST(MathIntegers, EveryInput) {
  checkInputs<Kel8u>(keliSqr_8u_C1RSfs, -9, 18, sqrDefinition<Kel8u>);
  checkInputs<Kel16u>(keliSqr_16u_C1RSfs, -17, 34, sqrDefinition<Kel16u>);
  checkInputs<Kel16s>(keliSqr_16s_C1RSfs, -16, 32, sqrDefinition<Kel16s>);
  checkInputs<Kel8u>(keliSqrt_8u_C1RSfs, -10, 7, sqrtDefinition<Kel8u>);
  checkInputs<Kel16u>(keliSqrt_16u_C1RSfs, -18, 11, sqrtDefinition<Kel16u>);
  checkInputs<Kel16s>(keliSqrt_16s_C1RSfs, -18, 11, sqrtDefinition<Kel16s>);
}

// The references of logarithm and exponential err by less than 10^-10, and no result lies that near
// to a tie.
TEST(MathIntegers, EveryInputOfLogarithmAndExponential) {
  long double tie = 1;
  const auto ln = [&](auto v, int sf) { return lnDefinition(v, sf, &tie); };
  const auto exp = [&](auto v, int sf) { return expDefinition(v, sf, &tie); };
  checkInputs<Kel8u>(keliLn_8u_C1RSfs, -11, 6, ln);
  checkInputs<Kel16s>(keliLn_16s_C1RSfs, -18, 7, ln);
  checkInputs<Kel8u>(keliExp_8u_C1RSfs, -10, 380, exp);
  // Of 16 bits, for every scale factor, the inputs around those whose results are neither 0 nor
  // saturated.
  for (int sf = -47400; sf <= 47400; ++sf) {
    Kel16s src[48], dst[48];
    const int first = static_cast<int>(sf * 0.6931471805599453) - 20;
    for (int i = 0; i < 48; ++i) {
      src[i] = static_cast<Kel16s>(std::min(std::max(first + i, -32768), 32767));
    }
    ASSERT_EQ(keliExp_16s_C1RSfs(src, 96, dst, 96, {48, 1}, sf), kelStatusOk);
    for (int i = 0; i < 48; ++i) ASSERT_EQ(dst[i], exp(src[i], sf)) << src[i] << " sf " << sf;
  }
  EXPECT_GT(tie, 1e-8L);
}

TEST(MathIntegers, KnownResults) {
  const auto one = [](Scaled<Kel8u> function, int v, int sf) {
    const Kel8u src = static_cast<Kel8u>(v);
    Kel8u dst = 99;
    EXPECT_GE(function(&src, 1, &dst, 1, {1, 1}, sf), kelStatusOk);
    return int{dst};
  };
  // The first inputs of the results 1, 2, ...
  struct Thresholds {
    Scaled<Kel8u> function;
    int scaleFactor;
    std::vector<int> first;
  };
  const Thresholds thresholds[] = {
      {keliSqrt_8u_C1RSfs, 1, {2, 9, 26, 49, 82, 121, 170, 225}},
      {keliSqrt_8u_C1RSfs, 2, {5, 36, 101, 196}},
      {keliSqrt_8u_C1RSfs, 3, {17, 144}},
      {keliSqrt_8u_C1RSfs, 4, {65}},
      {keliLn_8u_C1RSfs, 0, {2, 5, 13, 34, 91, 245}},
  };
  for (const Thresholds& t : thresholds) {
    for (int v = 0; v < 256; ++v) {
      const auto after = std::upper_bound(t.first.begin(), t.first.end(), v);
      EXPECT_EQ(one(t.function, v, t.scaleFactor), after - t.first.begin()) << v;
    }
  }
  EXPECT_EQ(one(keliSqrt_8u_C1RSfs, 0, -8), 0);
  EXPECT_EQ(one(keliSqrt_8u_C1RSfs, 1, -8), 255);
  EXPECT_EQ(one(keliLn_8u_C1RSfs, 4, -1), 3);
  EXPECT_EQ(one(keliExp_8u_C1RSfs, 0, 1), 0);
  EXPECT_EQ(one(keliExp_8u_C1RSfs, 5, 0), 148);
}

}  // namespace
}  // namespace keli::test
