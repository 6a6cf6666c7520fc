// Row kernels of Set, for every SIMD target.
#pragma once

#include "core/band.h"
#include "core/by_size.h"

namespace keli::data {

// pattern: the samples of a pixel, repeated to at least kSetPatternBytes. n counts samples.
using SetBand = void (*)(const Band<0>&, const void* pattern);

// A vector from any sample of a pixel of up to 16 bytes.
constexpr std::size_t kSetPatternBytes = 64 + 16;

struct SetRows {
  BySize<SetBand> c1;
  BySize<SetBand> c3;
  BySize<SetBand> c4;
  BySize<SetBand> ac4;
  BySize<SetBand> c3c;
  BySize<SetBand> c4c;
};

const SetRows& setRows();

}  // namespace keli::data
