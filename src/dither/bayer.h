// The 4 x 4 matrix of ordered dithering of B. E. Bayer, "An optimum method for two-level rendition
// of continuous-tone pictures" (1973), in fifteenths.
#pragma once

#include <cstdint>

namespace keli::dither {

constexpr std::uint8_t kBayer[4][4] = {
    {0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};

}  // namespace keli::dither
