// The kernels of extremes, their places, and counts. Each is found by its operation and type:
// keliMaxIndx_16s_C3R is placeRows<Max, Kel16s>().c3. Bands count samples, and have no destination.
#pragma once

#include "core/band.h"
#include "core/cycle.h"
#include "core/types.h"

namespace keli::extremes {

struct Min {};
struct Max {};
struct MinMax {};

// Writes the minima, the maxima or both of the samples at each place of a cycle: of four (flat: C1,
// C4, AC4) or of three. NaNs are passed over; a place without a number has the greatest value as
// its minimum and the least as its maximum, infinities of 32f.
template <class T>
struct ExtremeRows {
  using Kernel = void (*)(const Band<1>&, T* minima, T* maxima);
  Kernel flat;
  Kernel c3;
};

template <class T>
struct Place {
  T value;
  std::size_t x;
  std::size_t y;
};

// Writes the first place of the extreme of each of the first `used` channels. flat: C1, C4, AC4.
template <class T>
struct PlaceRows {
  using Kernel = void (*)(const Band<1>&, std::size_t channels, std::size_t used, Place<T>* places);
  Kernel flat;
  Kernel c3;
};

// Writes how many samples at each place of a cycle lie in that place's range: of four (flat: C1,
// AC4) or of three. A range of all bytes may count nothing.
struct CountRows {
  using Kernel = void (*)(const Band<1>&, const Cycle& lower, const Cycle& upper,
                          std::uint64_t* counts);
  Kernel flat;
  Kernel c3;
};

// Defined in the rows files.
template <class Operation, class T>
const ExtremeRows<T>& extremeRows();
template <class Operation, class T>
const PlaceRows<T>& placeRows();
template <class T>
const CountRows& countRows();

}  // namespace keli::extremes
