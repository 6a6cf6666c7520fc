// The conversions to and from the spaces of the CIE, by which their kernels are found.
#pragma once

#include "color/color_rows.h"

namespace keli::cie {

struct RGBToXYZ {};
struct XYZToRGB {};
struct RGBToLUV {};
struct LUVToRGB {};

}  // namespace keli::cie
