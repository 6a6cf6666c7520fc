// The definitions of integer division: quotients scaled by 2^-scaleFactor, rounded to nearest with
// ties to even, and saturated; and the reciprocals of the division of two bytes.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

#include "core/scale.h"

namespace keli::division {

// Beyond these every quotient of samples of up to 16 bits has the result that it has at them: 0, or
// the bound of its sign.
constexpr int kLeastFactor = -32;
constexpr int kMostFactor = 32;

// dividend / divisor * 2^-scaleFactor, for samples of up to 16 bits; divisor is not 0.
template <class T>
constexpr T quotient(std::int64_t dividend, std::int64_t divisor, int scaleFactor) {
  const int sf = std::clamp(scaleFactor, kLeastFactor, kMostFactor);
  const std::int64_t n =
      (divisor < 0 ? -dividend : dividend) * (std::int64_t{1} << std::max(-sf, 0));
  const std::int64_t d = (divisor < 0 ? -divisor : divisor) * (std::int64_t{1} << std::max(sf, 0));
  const std::int64_t truncated = n / d, rest = n % d;
  const std::int64_t twice = 2 * (rest < 0 ? -rest : rest);
  const bool away = twice > d || (twice == d && truncated % 2 != 0);
  return saturate<T>(truncated + (away ? (n < 0 ? -1 : 1) : 0));
}

constexpr float scaleOf(int scaleFactor) { return static_cast<float>(powerOfTwo(-scaleFactor)); }

// For v of at least 0 and below 2^31.
constexpr std::int32_t nearestEven(float v) {
  const std::int32_t floor = static_cast<std::int32_t>(v);
  const float rest = v - static_cast<float>(floor);
  return floor + (rest > 0.5f || (rest == 0.5f && floor % 2 != 0) ? 1 : 0);
}

// 1 / k to six decimal places, ties away from zero.
constexpr std::array<float, 256> makeReciprocals() {
  std::array<float, 256> reciprocals{};
  reciprocals[0] = 4290772992.0f;
  for (int k = 1; k < 256; ++k) {
    const int millionths = (2000000 + k) / (2 * k);
    // No quotient is so near a tie of single precision that the first rounding could decide it.
    reciprocals[static_cast<std::size_t>(k)] = static_cast<float>(millionths / 1e6);
  }
  return reciprocals;
}

inline constexpr std::array<float, 256> kReciprocals = makeReciprocals();

// Factors M of 16 bits for k = 2 and more, in bytes: 2^25 / (257 k) rounded down, or for those even
// k whose reciprocal to six decimals is not 1 / k moved to the side of the reciprocal's error, far
// enough for ties to follow it. Odd k have no ties.
struct Multipliers {
  std::uint8_t low[256];
  std::uint8_t high[256];
};

constexpr Multipliers makeMultipliers() {
  Multipliers m{};
  for (int k = 2; k < 256; ++k) {
    const int floor = (1 << 25) / (257 * k);
    const int millionths = (2000000 + k) / (2 * k);
    const int error = k % 2 == 0 ? millionths * k - 1000000 : 0;
    const int multiplier = floor + (error > 0 ? 1 : error < 0 ? -(floor / 512 + 1) : 0);
    m.low[k] = static_cast<std::uint8_t>(multiplier & 255);
    m.high[k] = static_cast<std::uint8_t>(multiplier >> 8);
  }
  return m;
}

inline constexpr Multipliers kMultipliers = makeMultipliers();

}  // namespace keli::division
