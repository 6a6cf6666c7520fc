// Row kernels of Set, for every SIMD target.
#pragma once

#include "core/band.h"
#include "core/by_size.h"

namespace keli::data {

// pixel: 16 bytes that begin with the samples of a pixel. n counts samples.
using SetBand = void (*)(const Band<0>&, const std::uint8_t* pixel);

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
