// Frame of Set: whole pixels, under a mask, single channels. Arguments have been checked.
#pragma once

#include <algorithm>
#include <cstring>

#include "data/masked_rows.h"
#include "data/set_rows.h"

namespace keli::data {

// A pixel's value, repeated so that a vector can be loaded from any of its samples.
struct SetPattern {
  alignas(16) std::uint8_t bytes[kSetPatternBytes + 16];

  // pixelBytes: 1, 2, 3, 4, 6, 8, 12 or 16, of which the first valueBytes are given and the others
  // 0.
  SetPattern(const void* value, std::size_t valueBytes, std::size_t pixelBytes) {
    std::memset(bytes, 0, pixelBytes);
    std::memcpy(bytes, value, valueBytes);
    for (std::size_t filled = pixelBytes; filled < kSetPatternBytes;) {
      const std::size_t count = std::min(filled, sizeof(bytes) - filled);
      std::memcpy(bytes + filled, bytes, count);
      filled += count;
    }
  }
};

template <class T, Layout kLayout, class Value>
SetPattern setPattern(const Value& value) {
  if constexpr (kLayout == Layout::C1) {
    return SetPattern(&value, sizeof(T), sizeof(T));
  } else {
    return SetPattern(value, usedChannels(kLayout) * sizeof(T), pixelSamples(kLayout) * sizeof(T));
  }
}

template <class T>
KelStatus setSamples(SetBand kernel, const void* pattern, T* dst, int dstStep, int channels,
                     KeliSize size) {
  const std::size_t samples =
      static_cast<std::size_t>(channels) * static_cast<std::size_t>(size.width);
  Band<0> b = makeBand(dst, dstStep, samples, size.height);
  joinRows(b, {sizeof(T)});
  kernel(b, pattern);
  return kelStatusOk;
}

// value: one value for C1, else a pointer to as many as there are channels set.
template <class T, Layout kLayout, class Value>
KelStatus set(Value value, T* dst, int dstStep, KeliSize size) {
  const SetRows& rows = setRows();
  const auto& kernels = kLayout == Layout::C1   ? rows.c1
                        : kLayout == Layout::C3 ? rows.c3
                        : kLayout == Layout::C4 ? rows.c4
                                                : rows.ac4;
  const SetPattern pattern = setPattern<T, kLayout>(value);
  return setSamples(kernels.template get<T>(), pattern.bytes, dst, dstStep, pixelSamples(kLayout),
                    size);
}

template <class T, Layout kLayout>
KelStatus setChannel(T value, T* dst, int dstStep, KeliSize size) {
  const auto& kernels = kLayout == Layout::C3 ? setRows().c3c : setRows().c4c;
  const SetPattern pattern(&value, sizeof(T), pixelSamples(kLayout) * sizeof(T));
  return setSamples(kernels.template get<T>(), pattern.bytes, dst, dstStep, pixelSamples(kLayout),
                    size);
}

template <class T, Layout kLayout, class Value>
KelStatus setMasked(Value value, T* dst, int dstStep, KeliSize size, const Kel8u* mask,
                    int maskStep) {
  constexpr std::size_t kPixel = pixelSamples(kLayout) * sizeof(T);
  Band<1> b =
      makeBand(mask, maskStep, dst, dstStep, static_cast<std::size_t>(size.width), size.height);
  joinRows(b, {1, kPixel});
  const SetPattern pattern = setPattern<T, kLayout>(value);
  const MaskedRows& rows = maskedRows();
  (kLayout == Layout::AC4 ? rows.setAC4.template get<T>() : rows.set[kPixel])(b, pattern.bytes);
  return kelStatusOk;
}

}  // namespace keli::data
