// Row kernels between images of one bit and of one byte for each pixel, for every SIMD target. n
// counts pixels; the first pixel of a row stands in bit `offset` of its first byte, bit 0 being the
// most significant.
#pragma once

#include "core/band.h"

namespace keli::convert {

struct BitsRows {
  void (*toBytes)(const Band<1>&, std::size_t offset);
  void (*fromBytes)(const Band<1>&, std::size_t offset, Kel8u threshold);
};

const BitsRows& bitsRows();

}  // namespace keli::convert
