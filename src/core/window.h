// Neighbourhoods of pixels: where the one of the region's first pixel begins.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/band.h"
#include "core/types.h"

namespace keli {

// A region whose first pixel is at src, seen from the top left pixel of that pixel's neighbourhood.
template <class T, Layout kLayout>
const T* windowStart(const T* src, int srcStep, KeliPoint anchor) {
  constexpr std::ptrdiff_t kPixel = pixelSamples(kLayout) * sizeof(T);
  return reinterpret_cast<const T*>(bytes(src) - std::ptrdiff_t{anchor.y} * srcStep -
                                    anchor.x * kPixel);
}

}  // namespace keli
