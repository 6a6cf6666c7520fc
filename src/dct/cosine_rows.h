// Kernels of cosine transforms along the rows and along the columns of images, for every SIMD
// target.
#pragma once

#include "fft/fft_rows.h"

namespace keli::dct {

// job.scale is the factor of all coefficients but the first. turns: cos and sin of pi k / 2n for
// all k <= n / 2, n being the length of the job's plan.
using Kernel = void (*)(const fft::Job& job, float firstScale, const float* turns);

struct CosineRows {
  Kernel rows;
  Kernel columns;
};

const CosineRows& cosineRows();

}  // namespace keli::dct
