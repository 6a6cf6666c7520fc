// Results that are 0 for every pixel: scale factors larger than any result.
#pragma once

#include "data/set.h"

namespace keli::arith {

template <class T, Layout kLayout>
KelStatus setZero(T* dst, int dstStep, KeliSize size) {
  const data::SetRows& rows = data::setRows();
  const auto& kernels = kLayout == Layout::AC4 ? rows.ac4 : rows.c1;
  return data::setSamples(kernels.template get<T>(), data::Pixel{}, dst, dstStep,
                          pixelSamples(kLayout), size);
}

}  // namespace keli::arith
