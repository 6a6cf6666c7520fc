// The operations of one operand and the kernels that compute them. A member's kernels are found by
// its operation and type: keliSqrt_16s_AC4RSfs is unaryRows<Sqrt, Kel16s>().ac4.
#pragma once

#include "core/band.h"
#include "core/types.h"

namespace keli::math {

struct Abs {};
struct Sqr {};
struct Sqrt {};
struct Ln {};
struct Exp {};

// n counts samples. The result is the warning of the band's first row that has one, or 0. Kernels
// of 32f ignore the scale factor, and those of Sqr get none above kBits.
struct Unary {
  using Kernel = KelStatus (*)(const Band<1>&, int scaleFactor);
  Kernel flat;  // all samples: C1, C3, C4
  Kernel ac4;   // null where there is no such member
};

// Squares are at most 2^kBits: a scale factor above this gives 0 for every pixel.
template <class T>
constexpr int kBits = 0;
template <>
inline constexpr int kBits<Kel8u> = 16;
template <>
inline constexpr int kBits<Kel16u> = 32;
template <>
inline constexpr int kBits<Kel16s> = 30;

// Defined in the rows files.
template <class Operation, class T>
const Unary& unaryRows();

}  // namespace keli::math
