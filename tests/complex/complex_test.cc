// Complex arithmetic against its definitions, with integers of 128 bits.
#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "reference/pointwise.h"
#include "reference/rounding.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Type;

// ---- Integers ----------------------------------------------------------------------------------

// A result before scaling: both parts over one positive denominator, or over 0.
struct Fraction {
  Exact re, im, denominator;
};

template <class T>
Fraction exactResult(char operation, T first, T second) {
  const Exact a = first.re, b = first.im, c = second.re, d = second.im;
  switch (operation) {
    case '+':
      return {a + c, b + d, 1};
    case '-':
      return {c - a, d - b, 1};
    case '*':
      return {a * c - b * d, a * d + b * c, 1};
    default:  // second / first
      return {c * a + d * b, d * a - c * b, a * a + b * b};
  }
}

template <class Part>
Part signSaturated(Part v) {
  using L = std::numeric_limits<Part>;
  return v == 0 ? Part{0} : v < 0 ? L::min() : L::max();
}

template <class T>
T integerResult(char operation, T first, T second, int sf) {
  using Part = decltype(T::re);
  const Fraction f = exactResult(operation, first, second);
  if (f.denominator == 0) return {signSaturated(second.re), signSaturated(second.im)};
  return {scaledQuotient<Part>(f.re, f.denominator, sf),
          scaledQuotient<Part>(f.im, f.denominator, sf)};
}

struct Operation {
  const char* name;
  char symbol;
  bool constant;  // the constant is the first operand of the symbol
};
constexpr Operation kOperations[] = {
    {"Add", '+', false}, {"Sub", '-', false}, {"Mul", '*', false}, {"Div", '/', false},
    {"AddC", '+', true}, {"SubC", '-', true}, {"MulC", '*', true}, {"DivC", '/', true},
};

// Result of an operation for the operands as a function has them: src1 and src2, or src and value.
template <class T, class Define>
auto ordered(const Operation& operation, const Define& defined) {
  return [&operation, defined](T a, T b, int sf) {
    return operation.constant ? defined(operation.symbol, b, a, sf)
                              : defined(operation.symbol, a, b, sf);
  };
}

bool isZero(const std::uint8_t* sample, Type type) {
  if (type == Type::k16sc) return (sample[0] | sample[1] | sample[2] | sample[3]) == 0;
  float parts[2];
  if (type == Type::k32fc) {
    std::memcpy(parts, sample, 8);
    return parts[0] == 0 && parts[1] == 0;
  }
  std::uint64_t bits;
  std::memcpy(&bits, sample, 8);
  return bits == 0;
}

// Makes a call's divisors nonzero but for AC4's fourth channel, which is all zero, so that status 0
// also says that it has no part.
void keepFromZero(TestCall& call) {
  const std::size_t first = call.find(registry::Role::kSource);
  if (first == TestCall::npos || call.function.operation != std::string("Div")) return;
  const registry::Argument& a = call.function.arguments[first];
  std::vector<std::uint8_t> samples = call.samples(first);
  const std::size_t bytes = registry::bytesOf(a.type);
  for (std::size_t i = 0; i < samples.size() / bytes; ++i) {
    std::uint8_t* const sample = samples.data() + i * bytes;
    if (isZero(sample, a.type)) sample[bytes / 2] = 64;
    if (a.layout == Layout::AC4 && i % 4 == 3) std::memset(sample, 0, bytes);
  }
  call.setSamples(first, samples);
}

template <class T>
void checkIntegers(Type type, const std::vector<int>& factors) {
  for (const Operation& operation : kOperations) {
    const int members = forMembers(operation.name, type, [&](const Function& f) {
      checkMember<T>(f, factors, ordered<T>(operation, integerResult<T>), keepFromZero);
    });
    EXPECT_EQ(members, 6) << operation.name;
  }
}

TEST(Complex, IntegersAreTheirDefinitions) {
  checkIntegers<Kel16sc>(Type::k16sc, scaleFactors(33));
  if (kExactHolds32sc) checkIntegers<Kel32sc>(Type::k32sc, scaleFactors(66));
}

// Pairs of parts that are extreme, small, or next to powers of two, all with all: sums that
// overflow their lanes, quotients that are ties or next to them.
template <class T>
std::vector<T> hardSamples() {
  using Part = decltype(T::re);
  using L = std::numeric_limits<Part>;
  std::vector<Part> parts = {L::min(), L::min() + 1, L::max(), L::max() - 1, L::min() / 2};
  for (const int v : {0, 1, 2, 3, 5, 7, 8, 255, 1023, 16384, 23170, 32767})
    for (const int sign : {1, -1}) parts.push_back(static_cast<Part>(sign * v));
  std::vector<T> samples;
  for (const Part re : parts)
    for (const Part im : parts) samples.push_back({re, im});
  return samples;
}

template <class T, class Call>
void checkHardSamples(char symbol, const std::vector<int>& factors, const Call& call) {
  const std::vector<T> hard = hardSamples<T>();
  const std::size_t n = hard.size();
  std::vector<T> first(n), dst(n);
  for (const int sf : factors) {
    for (std::size_t shift = 0; shift < n; shift += sf == 0 ? 3 : 31) {
      bool zero = false;
      for (std::size_t i = 0; i < n; ++i) {
        first[i] = hard[(i + shift) % n];
        zero |= first[i].re == 0 && first[i].im == 0;
      }
      const int step = static_cast<int>(n * sizeof(T));
      const KelStatus status = call(first.data(), step, hard.data(), step, dst.data(), step,
                                    KeliSize{static_cast<int>(n), 1}, sf);
      ASSERT_EQ(status, symbol == '/' && zero ? kelStatusDivByZeroWarning : kelStatusOk);
      for (std::size_t i = 0; i < n; ++i) {
        const T expected = integerResult(symbol, first[i], hard[i], sf);
        ASSERT_TRUE(dst[i].re == expected.re && dst[i].im == expected.im)
            << symbol << " (" << first[i].re << "," << first[i].im << ") (" << hard[i].re << ","
            << hard[i].im << ") sf " << sf << ": " << dst[i].re << "," << dst[i].im
            << " instead of " << expected.re << "," << expected.im;
      }
    }
  }
}

TEST(Complex, HardIntegers) {
  const std::vector<int> factors = {-128, -40, -16, -1, 0,  1,  2,  8,  15, 16,
                                    17,   30,  31,  32, 33, 48, 62, 63, 64, 100};
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    SCOPED_TRACE(targetName(target));
    checkHardSamples<Kel16sc>('+', factors, keliAdd_16sc_C1RSfs);
    checkHardSamples<Kel16sc>('-', factors, keliSub_16sc_C1RSfs);
    checkHardSamples<Kel16sc>('*', factors, keliMul_16sc_C1RSfs);
    checkHardSamples<Kel16sc>('/', factors, keliDiv_16sc_C1RSfs);
    if (!kExactHolds32sc) continue;
    checkHardSamples<Kel32sc>('+', factors, keliAdd_32sc_C1RSfs);
    checkHardSamples<Kel32sc>('-', factors, keliSub_32sc_C1RSfs);
    checkHardSamples<Kel32sc>('*', factors, keliMul_32sc_C1RSfs);
    checkHardSamples<Kel32sc>('/', factors, keliDiv_32sc_C1RSfs);
  }
}

// ---- Floating point ----------------------------------------------------------------------------

float oneNan(float v) {
  const std::uint32_t bits = 0xFFC00000;
  if (std::isnan(v)) std::memcpy(&v, &bits, sizeof(v));
  return v;
}

float quotient(double numerator, double dividend, double square) {
  if (square != 0) return oneNan(static_cast<float>(numerator / square));
  if (dividend == 0) return oneNan(NAN);
  return oneNan(static_cast<float>(dividend * HUGE_VAL));
}

Kel32fc floatResult(char operation, Kel32fc first, Kel32fc second, int) {
  const float a = first.re, b = first.im, c = second.re, d = second.im;
  switch (operation) {
    case '+':
      return {a + c, b + d};
    case '-':
      return {c - a, d - b};
    case '*':
      return {oneNan(a * c - b * d), oneNan(a * d + b * c)};
    default:
      break;
  }
  const double x = a, y = b, square = x * x + y * y;
  return {quotient(c * x + d * y, c, square), quotient(d * x - c * y, d, square)};
}

TEST(Complex, FloatsAreTheirFormulas) {
  for (const Operation& operation : kOperations) {
    const int members = forMembers(operation.name, Type::k32fc, [&](const Function& f) {
      checkMember<Kel32fc>(f, {}, ordered<Kel32fc>(operation, floatResult), keepFromZero);
    });
    EXPECT_EQ(members, 6) << operation.name;
  }
}

// ---- Zero divisors -----------------------------------------------------------------------------

// One zero divisor at each place of rows of several lengths, or one in a fourth channel.
template <class T, class Define>
void checkZeroDivisor(const Function& f, const Define& defined) {
  const std::size_t first = TestCall(f, {}, 1).find(registry::Role::kSource);
  const bool alpha = f.arguments[first].layout == Layout::AC4;
  const int channels = pixelSamples(f.arguments[first].layout);
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    for (const int width : {1, 2, 7, 40}) {
      for (int place = 0; place < 2 * width * channels; place += width < 8 ? 1 : 3) {
        const Geometry g = {width, 2, 0, Place::kMiddle, 0};
        TestCall call(f, g, runSeed()), expected(f, g, runSeed());
        for (TestCall* c : {&call, &expected}) {
          keepFromZero(*c);
          std::vector<std::uint8_t> samples = c->samples(first);
          for (std::size_t i = 3; alpha && i < samples.size() / sizeof(T); i += 4)
            samples[i * sizeof(T)] = 1;
          std::memset(samples.data() + static_cast<std::size_t>(place) * sizeof(T), 0, sizeof(T));
          c->setSamples(first, samples);
        }
        const bool counts = !alpha || place % 4 != 3;
        ASSERT_EQ(call.run().status, counts ? kelStatusDivByZeroWarning : kelStatusOk)
            << f.name << " " << targetName(target) << " width " << width << " place " << place;
        define<T>(expected, {width, 2}, [&](T a, T b, int sf) { return defined('/', a, b, sf); });
        ASSERT_EQ(call.samples(call.written()), expected.samples(expected.written())) << f.name;
      }
    }
  }
}

TEST(Complex, ZeroDivisorsWarnAndSaturate) {
  forMembers("Div", Type::k16sc,
             [](const Function& f) { checkZeroDivisor<Kel16sc>(f, integerResult<Kel16sc>); });
  if (kExactHolds32sc) {
    forMembers("Div", Type::k32sc,
               [](const Function& f) { checkZeroDivisor<Kel32sc>(f, integerResult<Kel32sc>); });
  }
  forMembers("Div", Type::k32fc,
             [](const Function& f) { checkZeroDivisor<Kel32fc>(f, floatResult); });
}

TEST(Complex, KnownResults) {
  const Kel16sc i = {0, 1}, zero = {0, 0}, sample = {3, -4}, divisor = {1, 2};
  Kel16sc d = {};
  EXPECT_EQ(keliMul_16sc_C1RSfs(&sample, 4, &i, 4, &d, 4, {1, 1}, 0), kelStatusOk);
  EXPECT_TRUE(d.re == 4 && d.im == 3);
  EXPECT_EQ(keliDiv_16sc_C1RSfs(&divisor, 4, &sample, 4, &d, 4, {1, 1}, 0), kelStatusOk);
  EXPECT_TRUE(d.re == -1 && d.im == -2);
  EXPECT_EQ(keliDiv_16sc_C1RSfs(&zero, 4, &sample, 4, &d, 4, {1, 1}, 40),
            kelStatusDivByZeroWarning);
  EXPECT_TRUE(d.re == 32767 && d.im == -32768);
  EXPECT_EQ(keliDivC_16sc_C1RSfs(&sample, 4, zero, &d, 4, {1, 1}, 0), kelStatusDivisorZero);
  EXPECT_EQ(keliDivC_16sc_C1RSfs(&sample, 4, i, &d, 4, {1, 1}, 0), kelStatusOk);
  EXPECT_TRUE(d.re == -4 && d.im == -3);
  // The only product that needs the 33rd bit.
  const Kel16sc least = {-32768, -32768};
  EXPECT_EQ(keliMul_16sc_C1RSfs(&least, 4, &least, 4, &d, 4, {1, 1}, 30), kelStatusOk);
  EXPECT_TRUE(d.re == 0 && d.im == 2);
}

// Several channels are no other function over more samples: pointers come first for them, too.
TEST(Complex, OrderOfChecks) {
  Kel16sc p[3] = {};
  const Kel16sc zero = {0, 0}, zeros[3] = {{1, 0}, {0, 0}, {0, 1}};
  const KeliSize none = {0, 1}, one = {1, 1};
  EXPECT_EQ(keliAdd_16sc_C3RSfs(nullptr, 0, p, 12, p, 12, none, 0), kelStatusNullPointer);
  EXPECT_EQ(keliDiv_16sc_C3RSfs(p, 0, p, 12, p, 12, none, 0), kelStatusBadSize);
  EXPECT_EQ(keliDivC_16sc_C1RSfs(p, 0, zero, p, 4, one, 0), kelStatusBadStep);
  EXPECT_EQ(keliDivC_16sc_C3RSfs(p, 12, zeros, p, 12, one, 0), kelStatusDivisorZero);
}

}  // namespace
}  // namespace keli::test
