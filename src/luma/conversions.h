// The conversions of luma and chroma spaces, by which their kernels are found.
#pragma once

#include "color/color_rows.h"

namespace keli::luma {

struct RGBToYCC {};
struct YCCToRGB {};
struct RGBToYCbCr {};
struct YCbCrToRGB {};
struct RGBToYUV {};
struct YUVToRGB {};

}  // namespace keli::luma
