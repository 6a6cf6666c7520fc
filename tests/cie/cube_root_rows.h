// Cube roots of floats as the library computes them, for every SIMD target.
#pragma once

#include <cstddef>

namespace keli::test {

struct CubeRootRows {
  // n: a multiple of 16.
  void (*roots)(const float* y, float* root, std::size_t n);
};

const CubeRootRows& cubeRootRows();

}  // namespace keli::test
