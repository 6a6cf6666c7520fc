// Frame of SwapChannels. Arguments have been checked; source and destination may be the same.
#pragma once

#include "data/swap_channels_rows.h"

namespace keli::data {

template <class T, Layout kLayout>
KelStatus swapChannels(const T* src, int srcStep, T* dst, int dstStep, KeliSize size,
                       const int* order) {
  constexpr std::size_t kPixel = pixelSamples(kLayout) * sizeof(T);
  Band<1> b =
      makeBand(src, srcStep, dst, dstStep, static_cast<std::size_t>(size.width), size.height);
  layOut(b, {kPixel, kPixel});
  const SwapChannelsRows& rows = swapChannelsRows();
  (kLayout == Layout::C3 ? rows.c3 : rows.ac4).template get<T>()(b, order);
  return kelStatusOk;
}

}  // namespace keli::data
