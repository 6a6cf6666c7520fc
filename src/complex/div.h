// Frame of the division of two complex images. Arguments have been checked.
#pragma once

#include "complex/operations.h"
#include "core/walk.h"

namespace keli::complex {

template <class T, Layout kLayout>
KelStatus div(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
              KeliSize size, int scaleFactor = 0) {
  const DivImages& kernels = divImages<T>();
  bool zeroDivisor = false;
  walk<Team::kCaller>(makeBand(src1, src1Step, src2, src2Step, dst, dstStep,
                               rowSamples<kLayout>(size), size.height),
                      sizeof(T), kLayout == Layout::AC4 ? kernels.ac4 : kernels.flat, scaleFactor,
                      &zeroDivisor);
  return zeroDivisor ? kelStatusDivByZeroWarning : kelStatusOk;
}

}  // namespace keli::complex
