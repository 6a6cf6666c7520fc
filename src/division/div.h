// Frame of Div, on two images. Arguments have been checked.
#pragma once

#include "core/walk.h"
#include "division/rows.h"

namespace keli::division {

template <class T, Layout kLayout>
KelStatus divide(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                 KeliSize size, int scaleFactor = 0) {
  const TwoImages& kernels = twoImages<T>();
  const bool zeroDivisor = walk<Team::kCaller>(
      makeBand(src1, src1Step, src2, src2Step, dst, dstStep, rowSamples<kLayout>(size),
               size.height),
      sizeof(T), kLayout == Layout::AC4 ? kernels.ac4 : kernels.flat, scaleFactor);
  return zeroDivisor ? kelStatusDivByZeroWarning : kelStatusOk;
}

}  // namespace keli::division
