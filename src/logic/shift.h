// Frame of LShiftC and RShiftC. Arguments have been checked.
#pragma once

#include <cstring>
#include <type_traits>

#include "core/walk.h"
#include "data/copy.h"
#include "data/set.h"
#include "logic/shift_rows.h"

namespace keli::logic {

// value: one count for C1, else a pointer to as many as there are channels processed. A count that
// leaves nothing of one channel's samples needs no source, if no sign stays.
template <class T, Layout kLayout, class Value>
KelStatus shift(const ShiftKernels& kernels, bool signStays, const T* src, int srcStep, Value value,
                T* dst, int dstStep, KeliSize size) {
  std::uint32_t counts[4];
  if constexpr (kLayout == Layout::C1) {
    if (value == 0) return data::copy<T, kLayout>(src, srcStep, dst, dstStep, size);
    if (value >= 8 * sizeof(T) && !signStays)
      return data::set<T, kLayout>(T{0}, dst, dstStep, size);
    for (std::uint32_t& count : counts) count = value;
  } else {
    for (int k = 0; k < 4; ++k)
      std::memcpy(counts + k, value + (k < usedChannels(kLayout) ? k : 0), sizeof(counts[k]));
  }
  const auto kernel = kLayout == Layout::C1   ? kernels.c1
                      : kLayout == Layout::C3 ? kernels.c3
                      : kLayout == Layout::C4 ? kernels.c4
                                              : kernels.ac4;
  walk<Team::kCaller>(makeBand(src, srcStep, dst, dstStep, rowSamples<kLayout>(size), size.height),
                      sizeof(T), kernel, static_cast<const std::uint32_t*>(counts));
  return kelStatusOk;
}

template <class T, Layout kLayout, class Value>
KelStatus shiftLeft(const T* src, int srcStep, Value value, T* dst, int dstStep, KeliSize size) {
  return shift<T, kLayout>(leftShifts<T>(), false, src, srcStep, value, dst, dstStep, size);
}

template <class T, Layout kLayout, class Value>
KelStatus shiftRight(const T* src, int srcStep, Value value, T* dst, int dstStep, KeliSize size) {
  return shift<T, kLayout>(rightShifts<T>(), std::is_signed_v<T>, src, srcStep, value, dst, dstStep,
                           size);
}

}  // namespace keli::logic
