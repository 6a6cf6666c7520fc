// Row kernels of conversions and scalings, for every SIMD target. n counts samples.
#pragma once

#include "core/band.h"

namespace keli::convert {

template <class... Terms>
struct Kernels {
  using Kernel = void (*)(const Band<1>&, Terms...);
  Kernel flat;  // C1, C3, C4
  Kernel ac4;
};

struct RoundedRows {
  Kernels<> nearest;
  Kernels<> truncated;
};

// The ends of a range of floats.
using RangeRows = Kernels<Kel32f, Kel32f>;

// Defined in the rows files, for the pairs of types that functions have.
template <class TS, class TD>
const Kernels<>& convertRows();
template <class TD>
const RoundedRows& roundedRows();  // of 32f
template <class TS, class TD>
const Kernels<>& scaleRows();
const RangeRows& toRangeRows();    // 8u to 32f
const RangeRows& fromRangeRows();  // 32f to 8u

}  // namespace keli::convert
