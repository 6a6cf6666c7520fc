// Frame of MinIndx and MaxIndx. Arguments have been checked.
#pragma once

#include <cstring>

#include "extremes/operations.h"

namespace keli::extremes {

template <class Operation, class T, Layout kLayout>
KelStatus place(const T* src, int srcStep, KeliSize size, T* values, int* x, int* y) {
  const Band<1> b = makeBand(src, srcStep, nullptr, 0, rowSamples<kLayout>(size), size.height);
  const PlaceRows<T>& rows = placeRows<Operation, T>();
  constexpr std::size_t kUsed = usedChannels(kLayout);
  Place<T> places[4];
  (kLayout == Layout::C3 ? rows.c3 : rows.flat)(b, storedChannels(kLayout), kUsed, places);
  for (std::size_t k = 0; k < kUsed; ++k) {
    const int column = static_cast<int>(places[k].x), row = static_cast<int>(places[k].y);
    std::memcpy(values + k, &places[k].value, sizeof(T));
    std::memcpy(x + k, &column, sizeof(int));
    std::memcpy(y + k, &row, sizeof(int));
  }
  return kelStatusOk;
}

}  // namespace keli::extremes
