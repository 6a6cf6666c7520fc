// The factor that takes the place of a division by the number of a mask's pixels.
//
// For bytes (sum * M) >> k, where M has 12 bits and is above 2^k / pixels, so that sums that are
// multiples of the number of pixels are divided exactly. It follows from the reciprocal in single
// precision. Calls stay calls: their operations must not move to before the rounding mode is set.
#pragma once

#include "box/box_rows.h"
#include "core/nearest.h"

namespace keli::box {

[[gnu::noinline]] inline float reciprocalOf(KeliSize mask) {
  const std::int64_t pixels = std::int64_t{mask.width} * mask.height;
  return 1.0f / static_cast<float>(pixels);
}

[[gnu::noinline]] inline ByteQuotient byteQuotient(float reciprocal) {
  const float scaled = reciprocal * 4294967296.0f - 0.49998998641967773f;
  std::uint32_t v = scaled > 0 ? static_cast<std::uint32_t>(nearestInteger(scaled)) : 0;
  int shifts = 0;
  for (; v >> 31 == 0 && shifts < 24; ++shifts) v <<= 1;
  return {(v >> 20) + 1, shifts + 12};
}

}  // namespace keli::box
