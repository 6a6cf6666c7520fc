// The operations of two operands and the kernels that compute them. A member's kernels are found by
// its operation and type: keliMulC_16s_C3RSfs is imageAndConstant<Mul, Kel16s>().c3.
#pragma once

#include "core/band.h"
#include "core/types.h"

namespace keli::arith {

struct Add {};       // src1 + src2, src + value
struct Sub {};       // src2 - src1, src - value
struct Mul {};       // src1 * src2, src * value
struct MulScale {};  // src1 * src2 / max, src * value / max

// A scale factor above this gives 0 for every pixel: the exact result is at most 2^kBits.
template <class Operation, class T>
constexpr int kBits = 0;
template <>
inline constexpr int kBits<Add, Kel8u> = 9;
template <>
inline constexpr int kBits<Sub, Kel8u> = 8;
template <>
inline constexpr int kBits<Mul, Kel8u> = 16;
template <>
inline constexpr int kBits<Add, Kel16s> = 16;
template <>
inline constexpr int kBits<Sub, Kel16s> = 16;
template <>
inline constexpr int kBits<Mul, Kel16s> = 30;

// Kernels get a scale factor of at most kBits; those of other types ignore it. n counts samples.
struct TwoImages {
  using Kernel = void (*)(const Band<2>&, int scaleFactor);
  Kernel flat;  // all samples: C1, C3, C4
  Kernel ac4;
};

// constants: those of the samples of a cycle; see Cycle. They stand for the first operand.
struct ImageAndConstant {
  using Kernel = void (*)(const Band<1>&, const void* constants, int scaleFactor);
  Kernel flat;  // a cycle of four: C1, C4
  Kernel c3;
  Kernel ac4;
};

// Defined in the rows files.
template <class Operation, class T>
const TwoImages& twoImages();
template <class Operation, class T>
const ImageAndConstant& imageAndConstant();

}  // namespace keli::arith
