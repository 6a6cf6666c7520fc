// Row kernels of the comparisons, for every SIMD target. n counts pixels.
#pragma once

#include "core/band.h"
#include "core/cycle.h"

namespace keli::compare {

// What a kernel compares with, besides images.
struct Terms {
  Cycle lower, upper;         // the ends of a range; of floats lower alone
  std::uint32_t signs = 0;    // sign bits that are flipped in floats before they are compared
  std::uint32_t ignored = 0;  // bits of four bytes, one for each channel, that do not count
  Kel32f eps = 0;
};

template <int kSources>
struct Kernels {
  using Kernel = void (*)(const Band<kSources>&, const Terms*);
  Kernel c1;
  Kernel c3;
  Kernel c4;
};

// src1 against src2, by KelCmpOp up to kelCmpEq.
struct TwoImageRows {
  Kernels<2> relations[3];
};

// Integers: lower <= src <= upper.
struct RangeRows {
  Kernels<1> within;
};

// Floats, with flipped signs where the terms say so, against lower, by KelCmpOp up to kelCmpEq.
struct ConstantRows {
  Kernels<1> relations[3];
};

// |src1 - src2| <= eps and |src - lower| <= eps, in single precision, and of four channels in
// double.
struct EqualEpsRows {
  Kernels<2> twoImages;
  Kernels<2>::Kernel twoImagesDouble;
  Kernels<1> imageAndConstant;
  Kernels<1>::Kernel imageAndConstantDouble;
};

// Defined in the rows files.
template <class T>
const TwoImageRows& twoImageRows();
template <class T>
const RangeRows& rangeRows();
const ConstantRows& constantRows();
const EqualEpsRows& equalEpsRows();

}  // namespace keli::compare
