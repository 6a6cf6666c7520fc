// What the row kernels of the quality index add to, in lanes as those of FloatTotals.
#pragma once

#include "sums/totals.h"

namespace keli::sums {

constexpr std::size_t kQualityLanes = 48;  // a multiple of all channels and vectors
constexpr unsigned kQualityRounds = 256;

// Sums of the samples of one image, in double precision.
struct DoubleLanes {
  alignas(64) double sums[kQualityLanes] = {};
};

// Sums of products of deviations from the means, of two images.
struct Deviations {
  alignas(64) float mean1[kQualityLanes];  // of the channel of each lane
  alignas(64) float mean2[kQualityLanes];
  LaneSums<kQualityLanes> ofBoth, ofFirst, ofSecond;
  unsigned rounds = 0;

  void empty() {
    ofBoth.empty();
    ofFirst.empty();
    ofSecond.empty();
    rounds = 0;
  }
};

template <class T>
struct Quality {
  void (*sums)(const Band<1>& b, DoubleLanes& lanes);  // of 32f
  void (*deviations)(const Band<2>& b, Deviations& totals);
};

template <class T>
const Quality<T>& qualityKernels();

}  // namespace keli::sums
