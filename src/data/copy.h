// Frame of Copy: whole pixels, under a mask, between layouts and single channels. Arguments have
// been checked. Images without padding are walked as one long row.
#pragma once

#include "data/copy_rows.h"
#include "data/masked_rows.h"

namespace keli::data {

template <class T, Layout kLayout>
KelStatus copy(const T* src, int srcStep, T* dst, int dstStep, KeliSize size) {
  constexpr std::size_t kSamples = pixelSamples(kLayout);
  const std::size_t samples = kSamples * static_cast<std::size_t>(size.width);
  if constexpr (kLayout == Layout::AC4) {
    Band<1> b = makeBand(src, srcStep, dst, dstStep, samples, size.height);
    layOut(b, {sizeof(T), sizeof(T)});
    copyRows().ac4.template get<T>()(b);
  } else {
    Band<1> b = makeBand(src, srcStep, dst, dstStep, samples * sizeof(T), size.height);
    layOut(b, {1, 1});
    copyRows().bytes(b);
  }
  return kelStatusOk;
}

template <class T, Layout kLayout>
KelStatus copyMasked(const T* src, int srcStep, T* dst, int dstStep, KeliSize size,
                     const Kel8u* mask, int maskStep) {
  constexpr std::size_t kPixel = pixelSamples(kLayout) * sizeof(T);
  Band<2> b = makeBand(src, srcStep, mask, maskStep, dst, dstStep,
                       static_cast<std::size_t>(size.width), size.height);
  layOut(b, {kPixel, 1, kPixel});
  const MaskedRows& rows = maskedRows();
  (kLayout == Layout::AC4 ? rows.copyAC4.template get<T>() : rows.copy[kPixel])(b);
  return kelStatusOk;
}

// One channel of pixels of kFrom to or from an image of one channel.
template <class T>
KelStatus copyPixels(CopyBand kernel, const T* src, int srcStep, std::size_t srcSamples, T* dst,
                     int dstStep, std::size_t dstSamples, KeliSize size) {
  Band<1> b =
      makeBand(src, srcStep, dst, dstStep, static_cast<std::size_t>(size.width), size.height);
  layOut(b, {srcSamples * sizeof(T), dstSamples * sizeof(T)});
  kernel(b);
  return kelStatusOk;
}

template <class T, Layout kFrom>
KelStatus extractChannel(const T* src, int srcStep, T* dst, int dstStep, KeliSize size) {
  const CopyChannelsRows& rows = copyChannelsRows();
  return copyPixels<T>((kFrom == Layout::C3 ? rows.c3c1 : rows.c4c1).template get<T>(), src,
                       srcStep, pixelSamples(kFrom), dst, dstStep, 1, size);
}

template <class T, Layout kTo>
KelStatus insertChannel(const T* src, int srcStep, T* dst, int dstStep, KeliSize size) {
  const CopyChannelsRows& rows = copyChannelsRows();
  return copyPixels<T>((kTo == Layout::C3 ? rows.c1c3 : rows.c1c4).template get<T>(), src, srcStep,
                       1, dst, dstStep, pixelSamples(kTo), size);
}

template <class T, Layout kLayout>
KelStatus copyChannel(const T* src, int srcStep, T* dst, int dstStep, KeliSize size) {
  const std::size_t samples = pixelSamples(kLayout) * static_cast<std::size_t>(size.width);
  Band<1> b = makeBand(src, srcStep, dst, dstStep, samples, size.height);
  layOut(b, {sizeof(T), sizeof(T)});
  (kLayout == Layout::C3 ? copyRows().c3c : copyRows().c4c).template get<T>()(b);
  return kelStatusOk;
}

// source and destination: a pointer to an image, or an array of pointers to planes.
template <class T, Layout kFrom, Layout kTo, class Source, class Destination>
KelStatus copyLayout(Source src, int srcStep, Destination dst, int dstStep, KeliSize size) {
  if constexpr (isPlanar(kFrom) || isPlanar(kTo)) {
    const CopyPlanesRows& rows = copyPlanesRows();
    constexpr bool kThree = usedChannels(kFrom) == 3;
    const auto& kernels =
        isPlanar(kTo) ? (kThree ? rows.c3p3 : rows.c4p4) : (kThree ? rows.p3c3 : rows.p4c4);
    walkPlanes<Team::kCaller, kFrom, kTo, T, T>(
        makePlanesBand<kFrom, kTo, T, T>(src, srcStep, dst, dstStep, size),
        kernels.template get<T>());
    return kelStatusOk;
  } else {
    const CopyChannelsRows& rows = copyChannelsRows();
    const auto& kernels = kFrom == Layout::AC4 ? rows.ac4c3 : rows.c3ac4;
    return copyPixels<T>(kernels.template get<T>(), src, srcStep, pixelSamples(kFrom), dst, dstStep,
                         pixelSamples(kTo), size);
  }
}

}  // namespace keli::data
