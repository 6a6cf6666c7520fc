// Frames of Min, Max and MinMax. Arguments have been checked.
#pragma once

#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>

#include "extremes/operations.h"

namespace keli::extremes {

template <class T>
struct Extremes {  // of each channel
  T minima[4] = {};
  T maxima[4] = {};
};

template <class Operation, class T, Layout kLayout>
void find(const Band<1>& b, Extremes<T>& e) {
  const ExtremeRows<T>& rows = extremeRows<Operation, T>();
  (kLayout == Layout::C3 ? rows.c3 : rows.flat)(b, e.minima, e.maxima);
  if constexpr (kLayout == Layout::C1) {  // all places of the cycle are one channel
    e.minima[0] = *std::min_element(e.minima, e.minima + 4);
    e.maxima[0] = *std::max_element(e.maxima, e.maxima + 4);
  }
}

// A channel without a number has its minimum above its maximum.
template <class T>
void markEmpty(Extremes<T>& e) {
  for (int k = 0; k < 4; ++k) {
    if (e.minima[k] > e.maxima[k]) e.minima[k] = e.maxima[k] = std::numeric_limits<T>::quiet_NaN();
  }
}

// Which of two zeros a sweep keeps depends on its order: results are +0.
template <Layout kLayout, class T>
void storeExtremes(const T (&extremes)[4], T* results) {
  for (int k = 0; k < usedChannels(kLayout); ++k) {
    const T v = extremes[k] == T{0} ? T{0} : extremes[k];
    std::memcpy(results + k, &v, sizeof(T));
  }
}

template <class Operation, class T, Layout kLayout>
KelStatus extreme(const T* src, int srcStep, KeliSize size, T* results) {
  const Band<1> b = readBand(src, srcStep, rowSamples<kLayout>(size), size.height, sizeof(T));
  Extremes<T> e;
  find<Operation, T, kLayout>(b, e);
  constexpr bool kMin = std::is_same_v<Operation, Min>;
  if constexpr (std::is_floating_point_v<T>) {
    // The infinity that NaNs leave behind may be a sample as well: both extremes tell.
    constexpr T kInfinity = std::numeric_limits<T>::infinity();
    const T(&found)[4] = kMin ? e.minima : e.maxima;
    if (std::count(found, found + usedChannels(kLayout), kMin ? kInfinity : -kInfinity) != 0) {
      find<MinMax, T, kLayout>(b, e);
      markEmpty(e);
    }
  }
  storeExtremes<kLayout>(kMin ? e.minima : e.maxima, results);
  return kelStatusOk;
}

template <class T, Layout kLayout>
KelStatus minMax(const T* src, int srcStep, KeliSize size, T* minima, T* maxima) {
  Extremes<T> e;
  find<MinMax, T, kLayout>(
      readBand(src, srcStep, rowSamples<kLayout>(size), size.height, sizeof(T)), e);
  if constexpr (std::is_floating_point_v<T>) markEmpty(e);
  storeExtremes<kLayout>(e.minima, minima);
  storeExtremes<kLayout>(e.maxima, maxima);
  return kelStatusOk;
}

}  // namespace keli::extremes
