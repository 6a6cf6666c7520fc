// Row kernels of masked Copy and Set, for every SIMD target.
#pragma once

#include "core/band.h"
#include "core/by_size.h"

namespace keli::data {

// n counts pixels. Sources: the image, the mask.
using CopyMaskedBand = void (*)(const Band<2>&);
// Source: the mask. pixel: 16 bytes that begin with the pixel's.
using SetMaskedBand = void (*)(const Band<1>&, const std::uint8_t* pixel);

struct MaskedRows {
  CopyMaskedBand copy[17];  // by the bytes of a pixel: 1, 2, 3, 4, 6, 8, 12, 16
  BySize<CopyMaskedBand> copyAC4;
  SetMaskedBand set[17];
  BySize<SetMaskedBand> setAC4;
};

const MaskedRows& maskedRows();

}  // namespace keli::data
