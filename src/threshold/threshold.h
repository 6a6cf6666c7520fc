// Frames of the thresholds. Arguments have been checked.
#pragma once

#include "core/walk.h"
#include "threshold/rows.h"

namespace keli::threshold {

// values: for each of the form's, one value for C1, else a pointer to as many as there are channels
// processed.
template <class T, Layout kLayout, class... Values>
KelStatus run(const Kernels& kernels, const T* src, int srcStep, T* dst, int dstStep, KeliSize size,
              Values... values) {
  const auto kernel = kLayout == Layout::C3    ? kernels.c3
                      : kLayout == Layout::AC4 ? kernels.ac4
                                               : kernels.flat;
  const Cycle cycles[] = {cycleOf<T, kLayout>(values)...};
  walk<Team::kCaller>(makeBand(src, srcStep, dst, dstStep, rowSamples<kLayout>(size), size.height),
                      sizeof(T), kernel, &cycles[0]);
  return kelStatusOk;
}

template <class T, Layout kLayout, class Value>
KelStatus clamp(const T* src, int srcStep, T* dst, int dstStep, KeliSize size, Value threshold,
                KelCmpOp op) {
  const ThresholdRows& rows = thresholdRows<T>();
  return run<T, kLayout>(op == kelCmpLess ? rows.raise : rows.lower, src, srcStep, dst, dstStep,
                         size, threshold);
}

template <KelCmpOp kOp, class T, Layout kLayout, class Value>
KelStatus clampBy(const T* src, int srcStep, T* dst, int dstStep, KeliSize size, Value threshold) {
  return clamp<T, kLayout>(src, srcStep, dst, dstStep, size, threshold, kOp);
}

template <class T, Layout kLayout, class Value>
KelStatus replace(const T* src, int srcStep, T* dst, int dstStep, KeliSize size, Value threshold,
                  Value value, KelCmpOp op) {
  const ThresholdRows& rows = thresholdRows<T>();
  return run<T, kLayout>(op == kelCmpLess ? rows.replaceBelow : rows.replaceAbove, src, srcStep,
                         dst, dstStep, size, threshold, value);
}

template <KelCmpOp kOp, class T, Layout kLayout, class Value>
KelStatus replaceBy(const T* src, int srcStep, T* dst, int dstStep, KeliSize size, Value threshold,
                    Value value) {
  return replace<T, kLayout>(src, srcStep, dst, dstStep, size, threshold, value, kOp);
}

template <class T, Layout kLayout, class Value>
KelStatus replaceOutside(const T* src, int srcStep, T* dst, int dstStep, KeliSize size,
                         Value thresholdLT, Value valueLT, Value thresholdGT, Value valueGT) {
  return run<T, kLayout>(thresholdRows<T>().replaceOutside, src, srcStep, dst, dstStep, size,
                         thresholdLT, valueLT, thresholdGT, valueGT);
}

}  // namespace keli::threshold
