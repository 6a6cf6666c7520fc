// Saturation and the scale factor rule: the definition of every integer result with a scale factor.
//
// An exact result v becomes v * 2^-scaleFactor, rounded to the nearest integer, ties to even, and
// is clamped to the range of the destination's type. Any 32-bit scale factor is defined.
#pragma once

#include <cstdint>
#include <limits>

namespace keli {

template <class T>
constexpr T saturate(std::int64_t v) {
  using L = std::numeric_limits<T>;
  if (v < std::int64_t{L::min()}) return L::min();
  if (v > std::int64_t{L::max()}) return L::max();
  return static_cast<T>(v);
}

constexpr double powerOfTwo(int exponent) {
  double power = 1;
  for (; exponent > 0; --exponent) power *= 2;
  for (; exponent < 0; ++exponent) power /= 2;
  return power;
}

// v * 2^-scaleFactor rounded, saturated to 64 bits where it is larger.
constexpr std::int64_t scaledExact(std::int64_t v, int scaleFactor) {
  using L = std::numeric_limits<std::int64_t>;
  if (scaleFactor > 0) {
    // |v| is at most 2^63, which is a tie at 64 and rounds to 0 there and beyond.
    if (scaleFactor >= 64) return 0;
    // The part shifted out decides, not a sum that could overflow.
    const std::int64_t floor = v >> scaleFactor;
    const std::uint64_t rest = static_cast<std::uint64_t>(v) << (64 - scaleFactor);
    const std::uint64_t half = std::uint64_t{1} << 63;
    return floor + (rest > half || (rest == half && (floor & 1) != 0) ? 1 : 0);
  }
  if (scaleFactor == 0 || v == 0) return v;
  const std::int64_t limit = v < 0 ? L::min() : L::max();
  if (scaleFactor <= -63) return limit;
  const int shift = -scaleFactor;
  if (v > (L::max() >> shift) || v < (L::min() >> shift)) return limit;
  return v * (std::int64_t{1} << shift);
}

template <class T>
constexpr T scaled(std::int64_t v, int scaleFactor) {
  return saturate<T>(scaledExact(v, scaleFactor));
}

}  // namespace keli
