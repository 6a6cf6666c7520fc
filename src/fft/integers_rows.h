// Row kernels between one channel of an interleaved image of integers and an image of floats.
#pragma once

#include "core/band.h"

namespace keli::fft {

// n counts pixels. channels: samples from one pixel of the integers to the next.
struct IntegersRows {
  using From = void (*)(const Band<1>&, int channels);
  using To = void (*)(const Band<1>&, int channels, int scaleFactor);
  From fromBytes;
  From fromIntegers;
  To toIntegers;  // times 2^-scaleFactor, rounded to nearest, ties to even, and saturated
  To toBytes;
};

const IntegersRows& integersRows();

}  // namespace keli::fft
