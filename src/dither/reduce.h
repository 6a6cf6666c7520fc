// Frame of ReduceBits. Arguments have been checked, noise and levels for the methods alone.
#pragma once

#include "convert/convert.h"
#include "core/checks.h"
#include "data/copy.h"
#include "dither/bayer_rows.h"
#include "dither/sample_rows.h"

namespace keli::dither {

// An image and its result, whatever the types and the layout of their samples.
struct Images {
  const std::uint8_t* src;
  std::ptrdiff_t srcStep;
  std::size_t srcPixel;  // bytes
  std::uint8_t* dst;
  std::ptrdiff_t dstStep;
  std::size_t dstPixel;
  std::size_t width;
  std::size_t height;
  std::size_t channels;  // that take part
  Read read;
  Write write;
  Scale scale;
};

struct Method {
  int dither;
  int noise;
  Levels levels;

  // Of a row and a channel.
  Noise noiseOf(std::size_t y, std::size_t channel) const {
    const std::uint32_t place = static_cast<std::uint32_t>(4 * y + channel);
    return {place * 0x85EBCA77, levels.step * static_cast<Kel32f>(noise) / 100, levels.full};
  }
};

// Reads n pixels of row y from x on, with the method's noise.
void readValues(const Images& images, const Method& method, std::size_t x, std::size_t y,
                std::size_t n, Planes values);

KelStatus diffuse(const Images& images, const Method& method);

// Ordered dithering by way of values; integers without noise have kernels of their own.
KelStatus compareValues(const Images& images, const Method& method);

// What is written where nothing is asked for but another type.
template <class TS, class TD, Layout kLayout>
KelStatus convertOnly(const TS* src, int srcStep, TD* dst, int dstStep, KeliSize size) {
  if constexpr (std::is_same_v<TS, TD>) {
    return data::copy<TS, kLayout>(src, srcStep, dst, dstStep, size);
  } else if constexpr (std::is_same_v<TS, Kel32f>) {
    return convert::convertRounded<TD, kLayout>(src, srcStep, dst, dstStep, size, kelRoundNearest);
  } else {
    return convert::scale<TS, TD, kLayout>(src, srcStep, dst, dstStep, size);
  }
}

template <class TS, class TD, Layout kLayout>
KelStatus reduceBits(const TS* src, int srcStep, TD* dst, int dstStep, KeliSize size, int noise,
                     int dither, int levels) {
  if (dither == kelDitherNone)
    return convertOnly<TS, TD, kLayout>(src, srcStep, dst, dstStep, size);
  if (!isDither(dither)) return kelStatusOk;
  const core::RoundToNearest nearest;
  const Method method = {dither, noise, Levels(kFullScale<TD>, levels)};
  const Images images = {bytes(src),
                         srcStep,
                         pixelSamples(kLayout) * sizeof(TS),
                         bytes(dst),
                         dstStep,
                         pixelSamples(kLayout) * sizeof(TD),
                         static_cast<std::size_t>(size.width),
                         static_cast<std::size_t>(size.height),
                         usedChannels(kLayout),
                         readRows<TS>().template of<kLayout>(),
                         writeRows<TD>().template of<kLayout>(),
                         scaleOf<TS, TD>()};
  if (dither != kelDitherBayer) return diffuse(images, method);
  if constexpr (!std::is_same_v<TS, Kel32f>) {
    if (noise == 0)
      return compareIntegers<TS, TD, kLayout>(src, srcStep, dst, dstStep, size, levels);
  }
  return compareValues(images, method);
}

}  // namespace keli::dither
