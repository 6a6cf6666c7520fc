// Row kernels of SwapChannels, for every SIMD target.
#pragma once

#include "core/band.h"
#include "core/by_size.h"

namespace keli::data {

using SwapChannelsBand = void (*)(const Band<1>&, const int* order);

// n counts pixels. Source and destination may be the same.
struct SwapChannelsRows {
  BySize<SwapChannelsBand> c3;
  BySize<SwapChannelsBand> ac4;
};

const SwapChannelsRows& swapChannelsRows();

}  // namespace keli::data
