// Frame of Remap: which coordinates are written, which mode does it, one plane after another.
// Arguments have been checked.
#pragma once

#include <cmath>
#include <limits>

#include "core/band.h"
#include "core/rounding_mode.h"
#include "remap/remap_rows.h"

namespace keli::remap {

// The floats between two integers >= 0, which may not be floats themselves.
inline Span spanOf(std::int64_t low, std::int64_t high) {
  if (low > high) return {1, 0};
  Span span = {static_cast<float>(low), static_cast<float>(high)};
  if (static_cast<std::int64_t>(span.low) < low) span.low = std::nextafter(span.low, HUGE_VALF);
  if (static_cast<std::int64_t>(span.high) > high) span.high = std::nextafter(span.high, 0.f);
  return span;
}

// The same, with all that is below the next integer.
inline Span spanBelow(std::int64_t low, std::int64_t high) {
  if (low > high) return {1, 0};
  Span span = spanOf(low, high + 1);
  if (span.high == static_cast<float>(high + 1)) span.high = std::nextafter(span.high, 0.f);
  return span;
}

// Sets which coordinates vectors may do: see Remapping.
template <class T, int kStored, class Mode>
void setFree(Remapping& r, KeliSize srcSize) {
  constexpr std::int64_t kPixel = kStored * sizeof(T);
  constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr std::int64_t kAhead = readAhead<T, kStored, Mode::kAfter>();
  const std::int64_t row = srcSize.width * kPixel;
  const std::int64_t least = kPixel == 1 ? 4 : kAhead;  // bytes are read four at a time
  const std::int64_t beyondX = row < least ? -1 : (row - kAhead) / kPixel;
  const std::int64_t beyondY = row > kMost ? -1 : (kMost - row) / r.srcStep - Mode::kAfter;
  const std::int64_t lastX = std::min<std::int64_t>(r.xMax - Mode::kAfter, beyondX);
  const std::int64_t lastY = std::min<std::int64_t>(r.yMax - Mode::kAfter, beyondY);
  r.lastWord = srcSize.width - 4;
  // The nearest pixel may be the next one.
  const auto span = Mode::kAfter == 0 ? spanOf : spanBelow;
  r.xFree = span(r.xMin + Mode::kBefore, lastX);
  r.yFree = span(r.yMin + Mode::kBefore, lastY);
}

template <class T, Layout kLayout>
void remapPlane(Remapping r, KeliSize srcSize, KelInterpolation mode, const T* src, T* dst) {
  constexpr int kStored = pixelSamples(kLayout),
                kUsed = isPlanar(kLayout) ? 1 : usedChannels(kLayout);
  r.src = bytes(src);
  r.dst = bytes(dst);
  if (mode == kelInterpolationNearest) {
    setFree<T, kStored, Nearest<T, kStored, kUsed>>(r, srcSize);
    nearestRows().get<T>().template of<kLayout>()(r);
  } else if (mode == kelInterpolationLinear) {
    setFree<T, kStored, Linear<T, kStored, kUsed>>(r, srcSize);
    linearRows().get<T>().template of<kLayout>()(r);
  } else {
    setFree<T, kStored, Cubic<T, kStored, kUsed>>(r, srcSize);
    cubicRows().get<T>().template of<kLayout>()(r);
  }
}

// src and dst: pointers to images, or arrays of pointers to planes.
template <class T, Layout kLayout, class Source, class Destination>
KelStatus remap(Source src, KeliSize srcSize, int srcStep, KeliRect region, const Kel32f* xMap,
                int xMapStep, const Kel32f* yMap, int yMapStep, Destination dst, int dstStep,
                KeliSize dstSize, KelInterpolation mode) {
  const core::RoundToNearest weights;
  if (mode == kelInterpolationCubic && (srcSize.width < 4 || srcSize.height < 4))
    mode = kelInterpolationLinear;
  if (srcSize.width == 1 || srcSize.height == 1) mode = kelInterpolationNearest;
  Remapping r = {};
  r.srcStep = srcStep;
  r.xMap = bytes(xMap);
  r.xMapStep = xMapStep;
  r.yMap = bytes(yMap);
  r.yMapStep = yMapStep;
  r.dstStep = dstStep;
  r.width = static_cast<std::size_t>(dstSize.width);
  r.rows = static_cast<std::size_t>(dstSize.height);
  const std::int64_t right = std::int64_t{region.x} + region.width - 1;
  const std::int64_t bottom = std::int64_t{region.y} + region.height - 1;
  r.xMin = region.x;
  r.yMin = region.y;
  r.xMax = static_cast<int>(std::min<std::int64_t>(right, srcSize.width - 1));
  r.yMax = static_cast<int>(std::min<std::int64_t>(bottom, srcSize.height - 1));
  r.x = spanOf(r.xMin, r.xMax);
  r.y = spanOf(r.yMin, r.yMax);
  if constexpr (isPlanar(kLayout)) {
    for (int k = 0; k < storedChannels(kLayout); ++k)
      remapPlane<T, kLayout>(r, srcSize, mode, src[k], dst[k]);
  } else {
    remapPlane<T, kLayout>(r, srcSize, mode, src, dst);
  }
  return kelStatusOk;
}

}  // namespace keli::remap
