// The argument checks. Each is true for bad arguments; the tables in api/ say which checks a
// function makes, in which order, and which status each returns.
#pragma once

#include <cstring>

#include "core/types.h"

namespace keli {

template <class... Pointers>
inline bool anyNull(const Pointers*... pointers) {
  return (... || (pointers == nullptr));
}

template <int kPlanes, class T>
inline bool anyPlaneNull(T* const* planes) {
  for (int k = 0; k < kPlanes; ++k) {
    if (planes[k] == nullptr) return true;
  }
  return false;
}

inline bool badSize(KeliSize size) { return size.width < 1 || size.height < 1; }

inline bool badWidth(KeliSize size) { return size.width < 1; }

template <class... Steps>
inline bool anyBadStep(Steps... steps) {
  return (... || (steps < 1));
}

template <class T>
inline bool isZero(T value) {
  return value == T{0};
}
inline bool isZero(Kel16sc value) { return value.re == 0 && value.im == 0; }
inline bool isZero(Kel32sc value) { return value.re == 0 && value.im == 0; }
inline bool isZero(Kel32fc value) { return value.re == 0 && value.im == 0; }

// Arrays stand at any address, as images do.
template <class T>
inline T valueAt(const T* values, int k) {
  T value;
  std::memcpy(&value, values + k, sizeof(T));
  return value;
}

template <class T>
inline bool anyZero(const T* values, int count) {
  for (int k = 0; k < count; ++k) {
    if (isZero(valueAt(values, k))) return true;
  }
  return false;
}

// Written so that a NaN is a bad threshold, and no bad bound of a range.
template <class T>
inline bool badThresholds(T lower, T upper) {
  return !(upper >= lower);
}
template <class T>
inline bool badThresholds(const T* lower, const T* upper, int count) {
  for (int k = 0; k < count; ++k) {
    if (badThresholds(valueAt(lower, k), valueAt(upper, k))) return true;
  }
  return false;
}

template <class T>
inline bool badRange(T lower, T upper) {
  return lower > upper;
}
template <class T>
inline bool badRange(const T* lower, const T* upper, int count) {
  for (int k = 0; k < count; ++k) {
    if (badRange(valueAt(lower, k), valueAt(upper, k))) return true;
  }
  return false;
}

inline bool badThresholdOp(KelCmpOp op) { return op != kelCmpLess && op != kelCmpGreater; }

// Channel by channel: a fault of the first channel hides those of the second.
template <class Counts, class Levels>
inline KelStatus histogramStatus(Counts* const* counts, Levels* const* levels, const int* nLevels,
                                 int channels) {
  for (int k = 0; k < channels; ++k) {
    if (anyNull(valueAt(counts, k), valueAt(levels, k))) return kelStatusNullPointer;
    if (valueAt(nLevels, k) < 2) return kelStatusBadHistogramLevels;
  }
  return kelStatusOk;
}

inline bool badChannelOrder(const int* order) {
  int o[3];
  std::memcpy(o, order, sizeof(o));
  return (o[0] | o[1] | o[2]) < 0 || o[0] > 2 || o[1] > 2 || o[2] > 2;
}

}  // namespace keli
