// The scale factor rule from its definition: the exact value, a fraction of integers, halves to
// even, clamped. For the reference implementations.
#pragma once

#include <cstdint>
#include <limits>

namespace keli::test {

// Wide enough for any product of real samples, and for those of complex ones of 32 bits where there
// are integers of 128 bits.
#ifdef __SIZEOF_INT128__
__extension__ typedef __int128 Exact;
#else
using Exact = std::int64_t;
#endif
constexpr bool kExactHolds32sc = sizeof(Exact) == 16;

// numerator / denominator * 2^-scaleFactor rounded to the nearest integer, ties to even, clamped to
// T; the denominator is positive, and both leave a quarter of Exact's range.
template <class T>
T scaledQuotient(Exact numerator, Exact denominator, int scaleFactor) {
  const Exact least = std::numeric_limits<T>::min(), most = std::numeric_limits<T>::max();
  // Doubles the side that the factor makes larger, until the result is beyond doubt.
  for (; scaleFactor < 0 && numerator != 0; ++scaleFactor) {
    if (numerator / denominator > most) return static_cast<T>(most);
    if (numerator / denominator < least) return static_cast<T>(least);
    numerator *= 2;
  }
  for (; scaleFactor > 0; --scaleFactor) {
    const Exact size = numerator < 0 ? -numerator : numerator;
    if (size < denominator / 4) return 0;
    denominator *= 2;
  }
  Exact floor = numerator / denominator, rest = numerator % denominator;
  if (rest < 0) {
    rest += denominator;
    --floor;
  }
  const bool up = 2 * rest > denominator || (2 * rest == denominator && floor % 2 != 0);
  const Exact rounded = floor + (up ? 1 : 0);
  return static_cast<T>(rounded < least ? least : rounded > most ? most : rounded);
}

}  // namespace keli::test
