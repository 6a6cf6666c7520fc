// The argument checks. Each is true for bad arguments; the tables in api/ say which checks a
// function makes, in which order, and which status each returns.
#pragma once

#include <cstring>

#include "core/types.h"
#include "core/values.h"

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

inline bool badBitOffset(int offset) { return offset < 0 || offset > 7; }

// Sums of sizes need more than 32 bits.
inline bool badBorders(KeliSize src, KeliSize dst, int top, int left) {
  return badSize(src) || badSize(dst) || top < 0 || left < 0 ||
         dst.width < std::int64_t{left} + src.width || dst.height < std::int64_t{top} + src.height;
}

inline bool badBoxSize(KeliSize mask) { return mask.width < 2 || mask.height < 2; }

inline bool badAnchor(KeliPoint anchor, KeliSize mask) {
  return anchor.x < 0 || anchor.y < 0 || anchor.x >= mask.width || anchor.y >= mask.height;
}

inline bool allZero(const Kel8u* mask, KeliSize size) {
  const std::int64_t count = std::int64_t{size.width} * size.height;
  for (std::int64_t i = 0; i < count; ++i) {
    if (mask[i] != 0) return false;
  }
  return true;
}

// margin: pixels of a row beyond the region.
inline bool shortStep(int step, KeliSize size, int margin, std::size_t pixelBytes) {
  return step < (std::int64_t{size.width} + margin) * static_cast<std::int64_t>(pixelBytes);
}

inline bool badAxis(KelAxis axis) { return axis < kelAxisHorizontal || axis > kelAxisBoth; }

inline bool badRemapSizes(KeliSize src, KeliRect region, KeliSize dst) {
  return badSize(src) || region.x < 0 || region.y < 0 || region.width < 1 || region.height < 1 ||
         badSize(dst);
}

inline bool badInterpolation(KelInterpolation mode) {
  return mode != kelInterpolationNearest && mode != kelInterpolationLinear &&
         mode != kelInterpolationCubic;
}

// Whether an int is one of the methods that spread levels.
inline bool isDither(int dither) {
  return dither >= kelDitherFloydSteinberg && dither <= kelDitherBayer;
}

inline bool badNoise(int dither, int noise) {
  return isDither(dither) && (noise < 0 || noise > 100);
}

// T: of the result.
template <class T>
bool badGrayLevels(int dither, int levels) {
  return isDither(dither) && (levels < 2 || levels > (sizeof(T) == 1 ? 256 : 65536));
}

inline bool badChannelOrder(const int* order) {
  int o[3];
  std::memcpy(o, order, sizeof(o));
  return (o[0] | o[1] | o[2]) < 0 || o[0] > 2 || o[1] > 2 || o[2] > 2;
}

}  // namespace keli
