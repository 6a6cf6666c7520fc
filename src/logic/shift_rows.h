// Row kernels of LShiftC and RShiftC, for every SIMD target.
#pragma once

#include "core/band.h"

namespace keli::logic {

// n counts samples. counts: four, one for each channel in turn, of any size.
struct ShiftKernels {
  using Kernel = void (*)(const Band<1>&, const std::uint32_t* counts);
  Kernel c1;  // to the right of 8 bits, by 1 and more
  Kernel c3;
  Kernel c4;
  Kernel ac4;
};

// Defined in the rows files.
template <class T>
const ShiftKernels& leftShifts();
template <class T>
const ShiftKernels& rightShifts();

}  // namespace keli::logic
