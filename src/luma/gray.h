// Frame of RGBToGray and ColorToGray: a weighted sum of the three channels. Results do not depend
// on the caller's rounding mode. Arguments have been checked.
#pragma once

#include <algorithm>
#include <array>
#include <cstring>

#include "core/nearest.h"
#include "core/planes.h"
#include "core/rounding_mode.h"

namespace keli::luma {

// Of the channels in their order.
using Weights = std::array<Kel32f, 3>;

// Row kernels by the layout of the source, for every SIMD target.
struct GrayKernels {
  using Kernel = void (*)(const PlanesBand&, const Weights&);
  Kernel c3, ac4;
};

// Defined in gray_rows.cc, by KELI_SELECT_ROWS.
template <class T>
const GrayKernels& grayKernels();

// A weight of bytes, in units of 1 / 4096. Weights beyond 256 count as that, and those that are no
// numbers as 0: sums of three products fit 32 bits.
inline std::int32_t fixedWeight(Kel32f weight) {
  if (weight != weight) return 0;
  return nearestInteger(4096 * std::clamp(double{weight}, -256., 256.));
}

template <class T, Layout kFrom>
KelStatus colorToGray(const T* src, int srcStep, T* dst, int dstStep, KeliSize size,
                      const Kel32f* weights) {
  const GrayKernels& kernels = grayKernels<T>();
  Weights aligned;
  std::memcpy(aligned.data(), weights, sizeof aligned);
  const core::RoundToNearest arithmetic;
  walkPlanes<Team::kCaller, kFrom, Layout::C1, T, T>(
      makePlanesBand<kFrom, Layout::C1, T, T>(src, srcStep, dst, dstStep, size),
      kFrom == Layout::C3 ? kernels.c3 : kernels.ac4, aligned);
  return kelStatusOk;
}

// The luma of ITU-R BT.601.
template <class T, Layout kFrom>
KelStatus rgbToGray(const T* src, int srcStep, T* dst, int dstStep, KeliSize size) {
  constexpr Kel32f kLuma[3] = {0.299f, 0.587f, 0.114f};
  return colorToGray<T, kFrom>(src, srcStep, dst, dstStep, size, kLuma);
}

}  // namespace keli::luma
