// Plans of one-dimensional complex transforms of any length: which butterflies, in which order,
// with which twiddle factors. A plan is read-only once made, and any number of threads may use it.
//
//   X[k] = sum over j of x[j] exp(-2 pi i j k / n)
//
// Lengths whose prime factors are at most 13 go through steps of radix 8, 4, 2, 13, 11, 7, 5 and 3,
// decimated in frequency. Other lengths become a convolution (L. Bluestein, 1970) by a plan of such
// a length, at least 2 n - 1. Factors are computed in double precision and stored in single.
#pragma once

#include <cstddef>
#include <cstdint>

namespace keli::fft {

// Of a transform of length radix * m: butterflies over elements m apart, whose results p are turned
// by the factors exp(-2 pi i j p / (radix m)) at place j; then radix transforms of length m.
struct Step {
  std::int32_t radix;
  std::int32_t m;
  const float* twiddles;  // re, im for p = 1 .. radix - 1 of place 0, of place 1, ...
};

struct Plan {
  static constexpr int kMostSteps = 32;

  std::int32_t n;
  std::int32_t work;  // elements that a transform needs memory for: n, or those of the convolution
  std::int32_t steps;
  Step step[kMostSteps];
  const std::uint32_t* place;  // where the steps leave X[k], and where their reverse expects x[k]

  // Of a convolution: its plan, exp(-pi i k^2 / n) for all k < n, and the transform of its
  // conjugate by that plan's steps, over their length.
  const Plan* convolution;
  const float* chirp;
  const float* response;
};

// Null if there is no memory for it. n: at least 1.
Plan* makePlan(int n);
void freePlan(const Plan* plan);

}  // namespace keli::fft
