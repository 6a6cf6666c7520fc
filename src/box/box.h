// Frames of the box filter. Arguments have been checked.
//
// Rows are shared out among threads, each of which forms its first row's sums anew, and cut into
// strips of columns, so that the rows under a mask stay in the second-level cache. In place, rows
// wait in a ring until no row below needs what they overwrite.
#pragma once

#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>

#include "box/box_rows.h"
#include "box/quotient.h"
#include "core/memory.h"
#include "core/rounding_mode.h"
#include "core/walk.h"
#include "core/window.h"
#include "data/copy_rows.h"

namespace keli::box {

// Regions of up to so many pixels are never shared out.
constexpr std::int64_t kPixelsOfOneThread = 4096;

// Fixed factors of bytes: of one channel and 3 x 3 pixels always, of four channels not in place.
template <Layout kLayout>
bool hasFixedQuotient(KeliSize mask, bool inPlace) {
  const bool three = mask.width == 3 && mask.height == 3;
  const bool five = mask.width == 5 && mask.height == 5;
  return kLayout == Layout::C1 ? three : kLayout == Layout::C4 && !inPlace && (three || five);
}

template <Layout kLayout>
ByteQuotient fixedQuotient(KeliSize mask) {
  if (kLayout == Layout::C1) return {29128, 18};  // 2^18 / 9 rounded up
  // 2^18 / 9 and 2^18 / 25 rounded down
  return mask.width == 3 ? ByteQuotient{29127, 18} : ByteQuotient{10485, 18};
}

template <class T, Layout kLayout>
BoxRows boxRows(const T* src, int srcStep, T* dst, int dstStep, KeliSize size, KeliSize mask,
                KeliPoint anchor, bool inPlace) {
  BoxRows r = {};
  r.b = makeBand(windowStart<T, kLayout>(src, srcStep, anchor), srcStep, dst, dstStep,
                 rowSamples<kLayout>(size), size.height);
  r.pixel = static_cast<std::size_t>(pixelSamples(kLayout));
  r.maskWidth = static_cast<std::size_t>(mask.width);
  r.maskHeight = static_cast<std::size_t>(mask.height);
  r.reciprocal = reciprocalOf(mask);
  if constexpr (sizeof(T) == 1) {
    r.quotient = hasFixedQuotient<kLayout>(mask, inPlace) ? fixedQuotient<kLayout>(mask)
                                                          : byteQuotient(r.reciprocal);
  }
  return r;
}

template <class T, Layout kLayout>
auto kernelOf() {
  return kLayout == Layout::AC4 ? boxKernels<T>().ac4 : boxKernels<T>().flat;
}

// Whether so many bytes, shared by a team, can be asked for.
inline bool fitsMemory(std::uint64_t count) {
  return count <= std::numeric_limits<std::size_t>::max() / 1024;
}

// Of a strip: what a kernel keeps of its columns and the rows under a mask take about so much.
constexpr std::size_t kStripBytes = std::size_t{1} << 20;
// Whole pixels and whole vectors of any size.
constexpr std::size_t kStripUnit = 3 * 64;

// Samples of a strip. A strip is much wider than what masks reach beyond it.
template <class T>
std::size_t stripSamples(const BoxRows& r) {
  const std::uint64_t column =
      4 * scratchRows<T>(r) + (std::uint64_t{r.maskHeight} + 1) * sizeof(T);
  const std::uint64_t beside = (std::uint64_t{r.maskWidth} - 1) * r.pixel;
  const std::uint64_t least = std::max<std::uint64_t>(8 * beside, 4 * kStripUnit);
  const std::uint64_t samples = std::max<std::uint64_t>(least, kStripBytes / column);
  return samples >= r.b.n
             ? r.b.n
             : static_cast<std::size_t>((samples + kStripUnit - 1) / kStripUnit) * kStripUnit;
}

template <class T, Layout kLayout>
KelStatus filter(const T* src, int srcStep, T* dst, int dstStep, KeliSize size, KeliSize mask,
                 KeliPoint anchor) {
  const core::RoundToNearest nearest;
  const BoxRows all = boxRows<T, kLayout>(src, srcStep, dst, dstStep, size, mask, anchor, false);
  BoxRows strip = all;
  strip.b.n = stripSamples<T>(all);
  const std::uint64_t scratch = scratchBytes<T>(strip);
  if (!fitsMemory(scratch)) return kelStatusNoMemory;
  const bool alone =
      std::int64_t{size.width} * size.height <= kPixelsOfOneThread ||
      (sizeof(T) == 1 && kLayout == Layout::C4 && hasFixedQuotient<kLayout>(mask, false));
  const int team = alone ? 1 : core::teamSize(size.height, 2 * sizeof(T) * all.b.n * all.b.rows);
  const auto kernel = kernelOf<T, kLayout>();
  return core::runRows(core::Split::kStatic, size.height, team, static_cast<std::size_t>(scratch),
                       [&](const core::RowBlock& block) {
                         BoxRows part = all;
                         part.b = rowsOf(all.b, block);
                         part.row = static_cast<std::size_t>(block.first);
                         part.scratch = block.scratch;
                         for (std::size_t x = 0; x < all.b.n; x += strip.b.n) {
                           BoxRows piece = part;
                           piece.b.src[0] += x * sizeof(T);
                           piece.b.dst += x * sizeof(T);
                           piece.b.n = std::min(strip.b.n, all.b.n - x);
                           kernel(piece);
                         }
                       });
}

// Copies a finished row of the ring to its place.
template <class T, Layout kLayout>
void copyRow(const T* from, T* to, std::size_t samples) {
  if constexpr (kLayout == Layout::AC4) {
    data::copyRows().ac4.get<T>()(makeBand(from, 0, to, 0, samples, 1));
  } else {
    std::memcpy(to, from, samples * sizeof(T));
  }
}

template <class T, Layout kLayout>
KelStatus filterInPlace(T* srcDst, int step, KeliSize size, KeliSize mask, KeliPoint anchor) {
  const core::RoundToNearest nearest;
  BoxRows r = boxRows<T, kLayout>(srcDst, step, srcDst, step, size, mask, anchor, true);
  const std::uint64_t rowBytes = core::wholeLines(std::uint64_t{r.b.n} * sizeof(T));
  // A row is not needed by masks from the one on that is anchor.y + 1 rows below it.
  const int delay = anchor.y + 1;
  const int slots = static_cast<int>(std::min<std::int64_t>(std::int64_t{delay} + 1, size.height));
  const std::uint64_t needed = scratchBytes<T>(r) + rowBytes * static_cast<std::uint64_t>(slots);
  if (!fitsMemory(needed)) return kelStatusNoMemory;
  const core::Scratch scratch(static_cast<std::size_t>(needed));
  auto* const ring = scratch.as<std::uint8_t>();
  if (ring == nullptr) return kelStatusNoMemory;
  r.scratch = ring + rowBytes * static_cast<std::uint64_t>(slots);
  const Band<1> image = r.b;
  const auto slot = [&](int y) {
    return reinterpret_cast<T*>(ring + static_cast<std::size_t>(y % slots) * rowBytes);
  };
  const auto finish = [&](int y) {
    copyRow<T, kLayout>(slot(y), image.dstRow<T>(static_cast<std::size_t>(y)), image.n);
  };
  const auto kernel = boxKernels<T>().flat;
  for (int y = 0; y < size.height; ++y) {
    r.b = rowsOf(image, {y, 1, nullptr});
    r.b.dst = bytes(slot(y));
    r.row = static_cast<std::size_t>(y);
    kernel(r);
    r.resumes = true;
    if (y >= delay) finish(y - delay);
  }
  for (int y = std::max(0, size.height - delay); y < size.height; ++y) finish(y);
  return kelStatusOk;
}

}  // namespace keli::box
