// Frame of Set: whole pixels, under a mask, single channels. Arguments have been checked.
#pragma once

#include <cstring>

#include "data/masked_rows.h"
#include "data/set_rows.h"

namespace keli::data {

// The bytes of one pixel; those that are not given are 0.
struct Pixel {
  alignas(16) std::uint8_t bytes[16] = {};
};

template <class T, Layout kLayout, class Value>
inline Pixel pixelOf(const Value& value) {
  Pixel pixel;
  if constexpr (kLayout == Layout::C1) {
    std::memcpy(pixel.bytes, &value, sizeof(T));
  } else {
    std::memcpy(pixel.bytes, value, usedChannels(kLayout) * sizeof(T));
  }
  return pixel;
}

template <class T>
KelStatus setSamples(SetBand kernel, const Pixel& pixel, T* dst, int dstStep, int channels,
                     KeliSize size) {
  const std::size_t samples =
      static_cast<std::size_t>(channels) * static_cast<std::size_t>(size.width);
  Band<0> b = makeBand(dst, dstStep, samples, size.height);
  layOut(b, {sizeof(T)});
  kernel(b, pixel.bytes);
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
  return setSamples(kernels.template get<T>(), pixelOf<T, kLayout>(value), dst, dstStep,
                    pixelSamples(kLayout), size);
}

template <class T, Layout kLayout>
KelStatus setChannel(T value, T* dst, int dstStep, KeliSize size) {
  const auto& kernels = kLayout == Layout::C3 ? setRows().c3c : setRows().c4c;
  return setSamples(kernels.template get<T>(), pixelOf<T, Layout::C1>(value), dst, dstStep,
                    pixelSamples(kLayout), size);
}

template <class T, Layout kLayout, class Value>
KelStatus setMasked(Value value, T* dst, int dstStep, KeliSize size, const Kel8u* mask,
                    int maskStep) {
  constexpr std::size_t kPixel = pixelSamples(kLayout) * sizeof(T);
  Band<1> b =
      makeBand(mask, maskStep, dst, dstStep, static_cast<std::size_t>(size.width), size.height);
  layOut(b, {1, kPixel});
  const MaskedRows& rows = maskedRows();
  (kLayout == Layout::AC4 ? rows.setAC4.template get<T>() : rows.set[kPixel])(
      b, pixelOf<T, kLayout>(value).bytes);
  return kelStatusOk;
}

}  // namespace keli::data
