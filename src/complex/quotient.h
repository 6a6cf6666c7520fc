// Quotients of integers with a scale factor: the definition of the integer complex division.
#pragma once

#include <cstdint>
#include <limits>

namespace keli::complex {

// |value| of a part's numerator, the sum or difference of two products of 32-bit parts.
struct Numerator {
  std::uint64_t size;  // at most 2^63
  bool negative;
};

// The exact sum of a and b lies in -2^63 < a + b <= 2^63, so that wrapped it is its own size.
constexpr Numerator numerator(std::int64_t a, std::int64_t b) {
  const std::uint64_t sum = static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b);
  const bool negative = sum > std::uint64_t{1} << 63;
  return {negative ? 0 - sum : sum, negative};
}

// n / denominator * 2^-scaleFactor rounded to the nearest integer, ties to even, saturated.
// denominator: 1 to 2^63.
template <class Part>
constexpr Part scaledQuotient(Numerator n, std::uint64_t denominator, int scaleFactor) {
  constexpr std::uint64_t kSaturates = std::uint64_t{1} << 32;
  if (n.size == 0) return 0;
  std::uint64_t whole = n.size / denominator, rest = n.size % denominator;
  for (; scaleFactor < 0 && whole < kSaturates; ++scaleFactor) {
    whole *= 2;
    rest *= 2;
    if (rest >= denominator) {
      rest -= denominator;
      ++whole;
    }
  }
  if (scaleFactor >= 64) return 0;  // at most 2^63 / 2^64, a tie
  bool up = false;
  if (scaleFactor > 0) {
    const std::uint64_t half = std::uint64_t{1} << 63, low = whole << (64 - scaleFactor);
    whole >>= scaleFactor;
    up = low > half || (low == half && (rest != 0 || whole % 2 != 0));
  } else {
    up = rest > denominator - rest || (rest == denominator - rest && whole % 2 != 0);
  }
  using L = std::numeric_limits<Part>;
  const std::uint64_t rounded = whole + (up ? 1 : 0);
  const std::uint64_t most = static_cast<std::uint64_t>(L::max()) + (n.negative ? 1 : 0);
  if (rounded >= most) return n.negative ? L::min() : L::max();
  const auto size = static_cast<Part>(rounded);
  return n.negative ? static_cast<Part>(-size) : size;
}

template <class Part>
constexpr Part signSaturated(Part v) {
  using L = std::numeric_limits<Part>;
  return v > 0 ? L::max() : v < 0 ? L::min() : Part{0};
}

// x / y * 2^-scaleFactor, part by part; by zero, each part saturates with its sign.
template <class T, class Part = decltype(T::re)>
constexpr T scaledQuotient(T x, T y, int scaleFactor) {
  if (y.re == 0 && y.im == 0) return {signSaturated<Part>(x.re), signSaturated<Part>(x.im)};
  const std::int64_t a = x.re, b = x.im, c = y.re, d = y.im;
  const std::uint64_t square =
      static_cast<std::uint64_t>(c * c) + static_cast<std::uint64_t>(d * d);
  return {scaledQuotient<Part>(numerator(a * c, b * d), square, scaleFactor),
          scaledQuotient<Part>(numerator(b * c, -a * d), square, scaleFactor)};
}

}  // namespace keli::complex
