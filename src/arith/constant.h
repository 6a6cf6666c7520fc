// Frame of the operations on an image and a constant. Arguments have been checked.
#pragma once

#include "arith/operations.h"
#include "arith/zero.h"
#include "core/cycle.h"
#include "core/walk.h"

namespace keli::arith {

// value: one value for C1, else a pointer to as many as there are channels processed.
template <class Operation, class T, Layout kLayout, Team kTeam, class Value>
KelStatus constant(const T* src, int srcStep, Value value, T* dst, int dstStep, KeliSize size,
                   int scaleFactor = 0) {
  if (scaleFactor > kBits<Operation, T>) return setZero<T, kLayout>(dst, dstStep, size);
  const ImageAndConstant& kernels = imageAndConstant<Operation, T>();
  const auto kernel = kLayout == Layout::C3    ? kernels.c3
                      : kLayout == Layout::AC4 ? kernels.ac4
                                               : kernels.flat;
  const Cycle cycle = cycleOf<T, kLayout>(value);
  walk<kTeam>(makeBand(src, srcStep, dst, dstStep, rowSamples<kLayout>(size), size.height),
              sizeof(T), kernel, cycle.bytes, scaleFactor);
  return kelStatusOk;
}

}  // namespace keli::arith
