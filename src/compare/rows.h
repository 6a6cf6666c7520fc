// Row kernels of the comparisons, for every SIMD target. n counts pixels.
#pragma once

#include "core/band.h"
#include "core/cycle.h"

namespace keli::compare {

// What a kernel compares with, besides images.
struct Terms {
  Cycle constants;
  std::uint32_t flips = 0;    // bits of samples that are flipped before these are compared
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

// By KelCmpOp, up to kelCmpEq: src1 against src2, and src, flipped, against constants.
struct CompareRows {
  Kernels<2> twoImages[3];
  Kernels<1> imageAndConstant[3];
};

// |src1 - src2| <= eps and |src - constant| <= eps, in single precision, and of four channels in
// double.
struct EqualEpsRows {
  Kernels<2> twoImages;
  Kernels<2>::Kernel twoImagesDouble;
  Kernels<1> imageAndConstant;
  Kernels<1>::Kernel imageAndConstantDouble;
};

// Defined in the rows files.
template <class T>
const CompareRows& compareRows();
const EqualEpsRows& equalEpsRows();

}  // namespace keli::compare
