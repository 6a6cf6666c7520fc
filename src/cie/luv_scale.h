// How samples of T carry L, u and v of CIE LUV (1976), and the numbers of its formulas.
//
// With the CIE's chromaticities u' = 4 X / D and v' = 9 Y / D, D = X + 15 Y + 3 Z, and those of
// white, un and vn, a sample of L is s L, and one of u is f s L (u' - un) + offset. In floats s =
// 1, f = 13 and offset = 0.
#pragma once

#include <type_traits>

#include "core/types.h"

namespace keli::cie {

constexpr double kWhiteU = 0.197839, kWhiteV = 0.468342;
// Above this Y (white's is 1) L follows the cube root, below it is proportional.
constexpr float kLeastRootY = 0.01f;
// Below this L, which is that of kLeastRootY, a colour is taken for black.
constexpr double kLeastL = 9.033;

struct LuvScale {
  double level, u, v, zeroU, zeroV;
};

template <class T>
constexpr LuvScale luvScale() {
  if constexpr (std::is_floating_point_v<T>) return {1, 13, 13, 0, 0};
  constexpr double kOfByte = sizeof(T) == 1 ? 1 : 257;
  return {2.55 * kOfByte, 3.6723163, 4.961832, 96.90396 * kOfByte, 136.7939 * kOfByte};
}

}  // namespace keli::cie
