// The conversions of hue spaces, by which their kernels are found.
#pragma once

#include "color/color_rows.h"

namespace keli::hue {

struct RGBToHSV {};
struct HSVToRGB {};
struct RGBToHLS {};
struct HLSToRGB {};
struct BGRToHLS {};
struct HLSToBGR {};

}  // namespace keli::hue
