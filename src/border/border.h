// Frame of the borders: a source is copied into a larger region, whose margins take a constant, the
// outermost pixels of the source, or the source continued periodically. Arguments have been
// checked.
#pragma once

#include "border/border_rows.h"
#include "core/cache.h"
#include "data/set.h"

namespace keli::border {

// pixel: bytes of one pixel.
inline BorderBand makeBand(const void* src, int srcStep, KeliSize srcSize, void* dst, int dstStep,
                           KeliSize dstSize, int top, int left, std::size_t pixel) {
  BorderBand b = {};
  b.src = bytes(src);
  b.srcStep = srcStep;
  b.dst = bytes(dst);
  b.dstStep = dstStep;
  b.left = static_cast<std::size_t>(left) * pixel;
  b.middle = static_cast<std::size_t>(srcSize.width) * pixel;
  b.right = static_cast<std::size_t>(dstSize.width - left - srcSize.width) * pixel;
  b.top = static_cast<std::size_t>(top);
  b.rows = static_cast<std::size_t>(srcSize.height);
  b.bottom = static_cast<std::size_t>(dstSize.height - top - srcSize.height);
  b.streams = exceedsCache(b.rowBytes() + b.middle, static_cast<std::size_t>(dstSize.height));
  return b;
}

// value: one value for C1, else a pointer to as many as there are channels written.
template <class T, Layout kLayout, class Value>
KelStatus copyConst(const T* src, int srcStep, KeliSize srcSize, T* dst, int dstStep,
                    KeliSize dstSize, int top, int left, Value value) {
  constexpr std::size_t kPixel = pixelSamples(kLayout) * sizeof(T);
  const BorderBand b = makeBand(src, srcStep, srcSize, dst, dstStep, dstSize, top, left, kPixel);
  const data::Pixel pixel = data::pixelOf<T, kLayout>(value);
  const ConstRows& rows = constRows();
  (kLayout == Layout::AC4 ? rows.ac4.template get<T>() : rows.whole[kPixel])(b, pixel.bytes);
  return kelStatusOk;
}

template <class T, Layout kLayout>
KelStatus copyReplicate(const T* src, int srcStep, KeliSize srcSize, T* dst, int dstStep,
                        KeliSize dstSize, int top, int left) {
  constexpr std::size_t kPixel = pixelSamples(kLayout) * sizeof(T);
  const ReplicateRows& rows = replicateRows();
  (kLayout == Layout::AC4 ? rows.ac4.template get<T>() : rows.whole[kPixel])(
      makeBand(src, srcStep, srcSize, dst, dstStep, dstSize, top, left, kPixel));
  return kelStatusOk;
}

inline KelStatus copyWrap(const Kel32s* src, int srcStep, KeliSize srcSize, Kel32s* dst,
                          int dstStep, KeliSize dstSize, int top, int left) {
  wrapRows().copy(
      makeBand(src, srcStep, srcSize, dst, dstStep, dstSize, top, left, sizeof(Kel32s)));
  return kelStatusOk;
}

// src lies in the region that is to be completed.
inline KelStatus wrapMargins(Kel32s* src, int step, KeliSize srcSize, KeliSize dstSize, int top,
                             int left) {
  std::uint8_t* const dst = bytes(src) - static_cast<std::ptrdiff_t>(top) * step -
                            static_cast<std::ptrdiff_t>(left) * std::ptrdiff_t{sizeof(Kel32s)};
  wrapRows().inPlace(makeBand(src, step, srcSize, dst, step, dstSize, top, left, sizeof(Kel32s)));
  return kelStatusOk;
}

}  // namespace keli::border
