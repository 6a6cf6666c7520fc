// Row kernels of the thresholds, for every SIMD target. Those of a type are named by what they do
// to the samples that lie beyond.
#pragma once

#include "core/band.h"
#include "core/cycle.h"

namespace keli::threshold {

// n counts samples. values: a cycle of thresholds, or of each of what the form takes in turn.
struct Kernels {
  using Kernel = void (*)(const Band<1>&, const Cycle* values);
  Kernel flat;  // a cycle of four: C1, C4
  Kernel c3;
  Kernel ac4;
};

struct ThresholdRows {
  Kernels raise;           // threshold: what is below becomes the threshold
  Kernels lower;           // threshold: what is above becomes the threshold
  Kernels replaceBelow;    // threshold, value
  Kernels replaceAbove;    // threshold, value
  Kernels replaceOutside;  // lower threshold, value below it, upper threshold, value above it
};

// Defined in the rows files.
template <class T>
const ThresholdRows& thresholdRows();

}  // namespace keli::threshold
