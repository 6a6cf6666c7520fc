// Results that are 0 for every pixel: scale factors larger than any result.
#pragma once

#include <cstring>

#include "core/band.h"
#include "data/set.h"

namespace keli::arith {

template <class T, Layout kLayout>
void clearPixels(T* dst, int dstStep, KeliSize size) {
  std::uint8_t* row = bytes(dst);
  for (int y = 0; y < size.height; ++y, row += dstStep) {
    const std::size_t width = static_cast<std::size_t>(size.width);
    constexpr std::size_t kPixel = sizeof(T) * pixelSamples(kLayout);
    for (std::size_t x = 0; x < width; ++x)
      std::memset(row + x * kPixel, 0, sizeof(T) * usedChannels(kLayout));
  }
}

template <class T, Layout kLayout>
KelStatus setZero(T* dst, int dstStep, KeliSize size) {
  if constexpr (sizeof(T) > 4) {  // the kernels of Set go no further
    clearPixels<T, kLayout>(dst, dstStep, size);
    return kelStatusOk;
  } else {
    const data::SetRows& rows = data::setRows();
    const auto& kernels = kLayout == Layout::AC4 ? rows.ac4 : rows.c1;
    return data::setSamples(kernels.template get<T>(), data::Pixel{}, dst, dstStep,
                            pixelSamples(kLayout), size);
  }
}

}  // namespace keli::arith
