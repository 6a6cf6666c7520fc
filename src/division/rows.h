// The kernels of division. n counts samples.
#pragma once

#include "core/band.h"
#include "core/types.h"

namespace keli::division {

// Second source by first. Kernels return whether a divisor was 0, and take any scale factor, which
// those of floats ignore.
struct TwoImages {
  using Kernel = bool (*)(const Band<2>&, int scaleFactor);
  Kernel flat;  // all samples: C1, C3, C4
  Kernel ac4;   // of 32f alone
};

// Integers by the constants of a cycle, of which none is 0; see Cycle.
struct ImageByConstant {
  using Kernel = void (*)(const Band<1>&, const void* constants, int scaleFactor);
  Kernel flat;  // a cycle of four: C1
  Kernel c3;
};

// Defined in the rows files.
template <class T>
const TwoImages& twoImages();
template <class T>
const ImageByConstant& imageByConstant();

}  // namespace keli::division
