// Frame of Mirror: rows in reverse order, rows reversed, or both. Arguments have been checked.
#pragma once

#include "data/copy_rows.h"
#include "mirror/mirror_rows.h"

namespace keli::mirror {

// The rows from the last of the source to its first.
inline void turnOver(Band<1>& b) {
  b.src[0] += static_cast<std::ptrdiff_t>(b.rows - 1) * b.srcStep[0];
  b.srcStep[0] = -b.srcStep[0];
}

template <class T, Layout kLayout>
void copyTurnedOver(const T* src, int srcStep, T* dst, int dstStep, KeliSize size) {
  constexpr std::size_t kUnit = kLayout == Layout::AC4 ? sizeof(T) : 1;
  Band<1> b = makeBand(src, srcStep, dst, dstStep, rowSamples<kLayout>(size) * sizeof(T) / kUnit,
                       size.height);
  turnOver(b);
  layOut(b, {kUnit, kUnit});
  if constexpr (kLayout == Layout::AC4) {
    data::copyRows().ac4.template get<T>()(b);
  } else {
    data::copyRows().bytes(b);
  }
}

template <class T, Layout kLayout>
KelStatus copyMirrored(const T* src, int srcStep, T* dst, int dstStep, KeliSize size,
                       KelAxis flip) {
  if (flip == kelAxisHorizontal) {
    copyTurnedOver<T, kLayout>(src, srcStep, dst, dstStep, size);
    return kelStatusOk;
  }
  constexpr std::size_t kPixel = pixelSamples(kLayout) * sizeof(T);
  Band<1> b =
      makeBand(src, srcStep, dst, dstStep, static_cast<std::size_t>(size.width), size.height);
  if (flip == kelAxisBoth) {  // an image without padding is one long row, reversed
    layOut(b, {kPixel, kPixel});
    turnOver(b);
  } else {
    b.streams = exceedsCache(2 * b.n * kPixel, b.rows);
  }
  const ReverseRows& rows = reverseRows();
  (kLayout == Layout::AC4 ? rows.ac4.template get<T>() : rows.whole[kPixel])(b);
  return kelStatusOk;
}

template <class T, Layout kLayout>
KelStatus mirrorInPlace(T* image, int step, KeliSize size, KelAxis flip) {
  constexpr std::size_t kPixel = pixelSamples(kLayout) * sizeof(T);
  constexpr bool kAC4 = kLayout == Layout::AC4;
  const ExchangeRows& rows = exchangeRows();
  const std::size_t width = static_cast<std::size_t>(size.width);
  const std::size_t height = static_cast<std::size_t>(size.height);
  std::uint8_t* const first = bytes(image);
  std::uint8_t* const last = first + static_cast<std::ptrdiff_t>(height - 1) * step;
  const Exchange reversed = kAC4 ? rows.reversedAC4.template get<T>() : rows.reversed[kPixel];
  // The halves of each of so many rows.
  const auto reverseEach = [&](std::uint8_t* row, std::size_t n, std::size_t count) {
    reversed({row, step, row + (n - n / 2) * kPixel, step, n / 2, count});
  };
  if (flip == kelAxisVertical) {
    reverseEach(first, width, height);
  } else if (flip == kelAxisHorizontal) {
    const Exchange straight = kAC4 ? rows.ac4.template get<T>() : rows.bytes;
    straight({first, step, last, -step, width * (kAC4 ? 1 : kPixel), height / 2});
  } else if (static_cast<std::size_t>(step) == width * kPixel) {
    reverseEach(first, width * height, 1);
  } else {
    reversed({first, step, last, -step, width, height / 2});
    if (height % 2 != 0)
      reverseEach(first + static_cast<std::ptrdiff_t>(height / 2) * step, width, 1);
  }
  return kelStatusOk;
}

}  // namespace keli::mirror
