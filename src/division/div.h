// Frame of Div, on two images. Arguments have been checked.
#pragma once

#include "division/rows.h"

namespace keli::division {

template <class T, Layout kLayout>
KelStatus divide(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                 KeliSize size, int scaleFactor = 0) {
  Band<2> b = makeBand(src1, src1Step, src2, src2Step, dst, dstStep, rowSamples<kLayout>(size),
                       size.height);
  layOut(b, {sizeof(T), sizeof(T), sizeof(T)});
  const TwoImages& kernels = twoImages<T>();
  const bool zeroDivisor = (kLayout == Layout::AC4 ? kernels.ac4 : kernels.flat)(b, scaleFactor);
  return zeroDivisor ? kelStatusDivByZeroWarning : kelStatusOk;
}

}  // namespace keli::division
