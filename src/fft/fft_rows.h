// Kernels of transforms along the rows and along the columns of images, for every SIMD target.
#pragma once

#include <cstddef>
#include <cstdint>

#include "fft/plan.h"

namespace keli::fft {

// Floats per image pixel: one of real images and of packed spectra, two of complex images.
struct Job {
  const std::uint8_t* src;
  std::ptrdiff_t srcStep;
  std::uint8_t* dst;  // may be src
  std::ptrdiff_t dstStep;
  std::size_t width;  // pixels
  std::size_t height;
  const Plan* plan;  // of the rows' length, or the columns'
  float* scratch;    // on a 64-byte boundary, scratchFloats of them
  float scale;       // of results
  bool inverse;
};

using Kernel = void (*)(const Job&);

// Of the widest vector. Fewer sequences than fill a quarter of a vector's lanes go one by one.
constexpr std::size_t kMostLanes = 16;
constexpr bool fillsLanes(std::size_t sequences, std::size_t lanes) {
  return 4 * sequences >= lanes;
}

// Transforms of one batch: of as many sequences as the target's vectors have lanes (up to
// kMostLanes), or of a single one. re, im: of element 0; exchanged, they give the inverse.
struct BatchRows {
  using Transform = void (*)(float* re, float* im, const Plan& plan);
  Transform wide;
  Transform one;
};

const BatchRows& batchRows();

// Transforms along one direction. Real rows become packed spectra, and the columns of such rows
// are transformed to packed spectra of two dimensions; the inverse kernels undo it.
struct FftRows {
  Kernel complexRows;
  Kernel complexColumns;
  Kernel realRows;  // or, inverse, from packed rows
  Kernel realColumns;
};

const FftRows& fftRows();

// Floats that kernels need, on any target, for so many sequences of a plan, and rows of a width.
std::size_t scratchFloats(const Plan& plan, std::size_t sequences, std::size_t width);

}  // namespace keli::fft
