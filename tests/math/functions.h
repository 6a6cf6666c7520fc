// The definitions of the unary functions, in long double arithmetic: 64 bits of significand.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "keli.h"

namespace keli::test {

static_assert(std::numeric_limits<long double>::digits >= 64, "the references need 64 bits");

// The nearest integer, ties to even, clamped to T. nearest: set to the distance from the closest
// tie, where there is one that could be missed.
template <class T>
T rounded(long double v, long double* nearestTie = nullptr) {
  const long double least = std::numeric_limits<T>::min(), most = std::numeric_limits<T>::max();
  if (v <= least) return std::numeric_limits<T>::min();
  if (v >= most) return std::numeric_limits<T>::max();
  const long double tie = std::fabs(v - std::floor(v) - 0.5L);
  if (nearestTie != nullptr && tie < *nearestTie) *nearestTie = tie;
  return static_cast<T>(std::nearbyint(v));
}

// v * 2^-scaleFactor; factors beyond any result are cut off.
inline long double scaledBy(long double v, int scaleFactor) {
  constexpr int kFar = 1 << 17;
  return std::ldexp(v, -std::min(std::max(scaleFactor, -kFar), kFar));
}

template <class T>
T sqrtDefinition(T v, int sf) {
  // Exact where it is a tie: ties are roots of squares.
  return v < 0 ? T{0} : rounded<T>(scaledBy(std::sqrt(static_cast<long double>(v)), sf));
}

template <class T>
T lnDefinition(T v, int sf, long double* nearestTie = nullptr) {
  if (v <= 1) return 0;
  return rounded<T>(scaledBy(std::log(static_cast<long double>(v)), sf), nearestTie);
}

template <class T>
T expDefinition(T v, int sf, long double* nearestTie = nullptr) {
  if (v == 0) return rounded<T>(scaledBy(1, sf));
  const long double ln2 = 0.693147180559945309417232121458176568L;
  return rounded<T>(std::exp(v - sf * ln2), nearestTie);
}

inline std::uint32_t bitsOf(Kel32f v) {
  std::uint32_t bits;
  std::memcpy(&bits, &v, sizeof(bits));
  return bits;
}

inline Kel32f ofBits(std::uint32_t bits) {
  Kel32f v;
  std::memcpy(&v, &bits, sizeof(v));
  return v;
}

constexpr std::uint32_t kQuietNan = 0x7FC00000, kNegativeNan = 0xFFC00000;

}  // namespace keli::test
