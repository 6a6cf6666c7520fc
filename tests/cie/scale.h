// What samples of a type hold, and the CIE's matrices, for the tests' definitions.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

#include "reference/pixels.h"

namespace keli::test {

constexpr double kToXyz[3][3] = {
    {0.412453, 0.35758, 0.180423}, {0.212671, 0.71516, 0.072169}, {0.019334, 0.119193, 0.950227}};
constexpr double kToRgb[3][3] = {{3.240479, -1.53715, -0.498535},
                                 {-0.969256, 1.875991, 0.041556},
                                 {0.055648, -0.204043, 1.057311}};

// full: what stands for 1. offset: what is added to a sample to reach 0.
struct Scale {
  double full, offset;
};

template <class T>
constexpr Scale scaleOf() {
  if (std::is_floating_point_v<T>) return {1, 0};
  if (sizeof(T) == 1) return {255, 0};
  return {65535, std::is_signed_v<T> ? 32768. : 0.};
}

}  // namespace keli::test
