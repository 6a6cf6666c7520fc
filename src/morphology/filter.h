// Frames of minimum and maximum filters. Arguments have been checked.
#pragma once

#include "core/window.h"
#include "data/copy.h"
#include "morphology/element.h"

namespace keli::morphology {

// Floats have to be brought to their order, which a sample that is read nine times had better be
// but once.
template <class T>
constexpr bool kHasSquares = !std::is_floating_point_v<T>;

// The region seen from the window of its first pixel.
template <class T, Layout kLayout>
Band<1> windowBand(const T* src, int srcStep, T* dst, int dstStep, KeliSize size,
                   KeliPoint anchor) {
  Band<1> b = makeBand(windowStart<T, kLayout>(src, srcStep, anchor), srcStep, dst, dstStep,
                       rowSamples<kLayout>(size), size.height);
  b.streams = src != dst && exceedsCache(2 * sizeof(T) * b.n, b.rows);
  return b;
}

// Rows of scratch memory that a rectangle takes.
inline std::size_t scratchRows(const Rectangle& r, std::size_t rows) {
  return r.height <= kLowHeight ? 2 * r.batch : std::min(r.height, rows) + 1;
}

template <class Operation, class T, Layout kLayout>
KelStatus rectangleOfBand(const Band<1>& b, KeliSize mask, bool inPlace) {
  constexpr std::size_t kChannels = pixelSamples(kLayout);
  const std::size_t width = static_cast<std::size_t>(mask.width);
  Rectangle r;
  r.height = static_cast<std::size_t>(mask.height);
  r.steps = makeSteps(width, kChannels, r.step);
  // In place a strip would find the margin that it shares with the one before replaced.
  const std::size_t rowBytes =
      inPlace ? sizeof(T) * (b.n + 64) : fittingRow(r.height <= kLowHeight ? 1 : r.height);
  r.strips = makeStrips(b.n, (width - 1) * kChannels, sizeof(T), rowBytes);
  r.batch = batchOf(r.strips);
  Workspace workspace(bytesOfRows(scratchRows(r, b.rows), r.strips.rowBytes));
  r.strips.scratch = workspace.data();
  if (r.strips.scratch == nullptr) return kelStatusNoMemory;
  const ExtentRows& kernels = extentRows<Operation, T>();
  (kLayout == Layout::AC4 ? kernels.rectangleAC4 : kernels.rectangle)(b, r);
  return kelStatusOk;
}

template <class Operation, class T, Layout kLayout>
KelStatus rectangle(const T* src, int srcStep, T* dst, int dstStep, KeliSize size, KeliSize mask,
                    KeliPoint anchor) {
  const Band<1> b = windowBand<T, kLayout>(src, srcStep, dst, dstStep, size, anchor);
  if (mask.width == 1 && mask.height == 1)
    return data::copy<T, kLayout>(b.srcRow<T>(0, 0), srcStep, dst, dstStep, size);
  const bool inPlace = src == dst;
  if (kHasSquares<T> && mask.width == 3 && mask.height == 3 && !inPlace) {
    const ExtentRows& kernels = extentRows<Operation, T>();
    (kLayout == Layout::AC4 ? kernels.squareAC4 : kernels.square)(b, pixelSamples(kLayout));
    return kelStatusOk;
  }
  return rectangleOfBand<Operation, T, kLayout>(b, mask, inPlace);
}

// src may be dst.
template <class Operation, class T, Layout kLayout>
KelStatus square(const T* src, int srcStep, T* dst, int dstStep, KeliSize size) {
  return rectangle<Operation, T, kLayout>(src, srcStep, dst, dstStep, size, {3, 3}, {1, 1});
}

// Windows of exactly the lengths of the runs where the rows of scratch memory stay few.
inline Lengths lengthsOf(const Mask& mask, std::size_t widest) {
  constexpr std::size_t kMostLengths = 16, kMostBytes = 262144;
  Lengths lengths;
  const std::size_t fitting = kMostBytes / (fittingRow(kMostBytes) + widest) / mask.height;
  if (!lengths.ofRuns(mask, std::min(kMostLengths, fitting))) lengths.powersOfTwo(mask.width);
  return lengths;
}

template <class Operation, class T, Layout kLayout>
KelStatus element(const T* src, int srcStep, T* dst, int dstStep, KeliSize size, const Kel8u* bytes,
                  KeliSize maskSize, KeliPoint anchor) {
  const Mask mask = cropped(bytes, maskSize, anchor);
  if (mask.full())
    return rectangle<Operation, T, kLayout>(src, srcStep, dst, dstStep, size,
                                            {int(mask.width), int(mask.height)}, anchor);
  constexpr std::size_t kChannels = pixelSamples(kLayout);
  const std::size_t margin = (mask.width - 1) * kChannels;
  const Lengths lengths = lengthsOf(mask, margin * sizeof(T));
  Element e;
  makeElementSteps(mask, lengths, kChannels, e);
  e.chordCount = countChords(mask, lengths);
  const Band<1> b = windowBand<T, kLayout>(src, srcStep, dst, dstStep, size, anchor);
  e.strips = makeStrips(b.n, margin, sizeof(T), fittingRow(e.steps * e.height));
  const std::size_t scratch = bytesOfRows(e.steps * e.height, e.strips.rowBytes);
  const std::size_t chords = bytesOfRows(e.chordCount, sizeof(Chord) + sizeof(void*));
  if (scratch > SIZE_MAX - chords) return kelStatusNoMemory;
  Workspace workspace(scratch + chords);
  e.strips.scratch = workspace.data();
  if (e.strips.scratch == nullptr) return kelStatusNoMemory;
  Chord* const first = reinterpret_cast<Chord*>(e.strips.scratch + scratch);
  makeChords(mask, lengths, kChannels, first);
  e.chords = first;
  e.rows = reinterpret_cast<const void**>(first + e.chordCount);
  const ExtentRows& kernels = extentRows<Operation, T>();
  (kLayout == Layout::AC4 ? kernels.elementAC4 : kernels.element)(b, e);
  return kelStatusOk;
}

}  // namespace keli::morphology
