// Frame of CountInRange. Arguments have been checked.
#pragma once

#include <algorithm>
#include <cstring>
#include <limits>

#include "core/checks.h"
#include "extremes/operations.h"

namespace keli::extremes {

// Bytes are counted by a comparison that has no form for all of them.
template <class T>
bool isWhole(T lower, T upper) {
  return std::is_same_v<T, Kel8u> && lower == 0 && upper == 255;
}

// Bound: a value for C1, else a pointer to one for each channel.
template <class T, Layout kLayout, class Bound>
KelStatus countInRange(const T* src, int srcStep, KeliSize size, int* counts, Bound lower,
                       Bound upper) {
  const Cycle low = cycleOf<T, kLayout>(lower), high = cycleOf<T, kLayout>(upper);
  const CountRows& rows = countRows<T>();
  std::uint64_t found[4];
  (kLayout == Layout::C3 ? rows.c3 : rows.flat)(
      readBand(src, srcStep, rowSamples<kLayout>(size), size.height, sizeof(T)), low, high, found);
  if constexpr (kLayout == Layout::C1) found[0] += found[1] + found[2] + found[3];
  for (int k = 0; k < usedChannels(kLayout); ++k) {
    if (isWhole(valueAt(reinterpret_cast<const T*>(low.bytes), k),
                valueAt(reinterpret_cast<const T*>(high.bytes), k)))
      found[k] = std::uint64_t(size.width) * std::uint64_t(size.height);
    const int count =
        static_cast<int>(std::min<std::uint64_t>(found[k], std::numeric_limits<int>::max()));
    std::memcpy(counts + k, &count, sizeof(int));
  }
  return kelStatusOk;
}

}  // namespace keli::extremes
