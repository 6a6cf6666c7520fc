// The factor that takes the place of a division by the number of a mask's pixels.
//
// For bytes (sum * M) >> k, where M has 12 bits and is above 2^k / pixels, so that sums that are
// multiples of the number of pixels are divided exactly. It follows from the reciprocal in single
// precision. Calls stay calls: their operations must not move to before the rounding mode is set.
#pragma once

#include <cmath>

#include "box/box_rows.h"

namespace keli::box {

[[gnu::noinline]] inline float reciprocalOf(KeliSize mask) {
  const std::int64_t pixels = std::int64_t{mask.width} * mask.height;
  return 1.0f / static_cast<float>(pixels);
}

// To the nearest integer, ties to even, whatever the rounding mode. v: 0 or more.
inline std::uint32_t nearestInteger(float v) {
  const float whole = std::floor(v);
  const std::uint32_t integer = static_cast<std::uint32_t>(whole);
  const float rest = v - whole;
  return integer + (rest > 0.5f || (rest == 0.5f && integer % 2 != 0) ? 1 : 0);
}

[[gnu::noinline]] inline ByteQuotient byteQuotient(float reciprocal) {
  const float scaled = reciprocal * 4294967296.0f - 0.49998998641967773f;
  std::uint32_t v = scaled > 0 ? nearestInteger(scaled) : 0;
  int shifts = 0;
  for (; v >> 31 == 0 && shifts < 24; ++shifts) v <<= 1;
  return {(v >> 20) + 1, shifts + 12};
}

}  // namespace keli::box
