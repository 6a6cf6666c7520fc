// Row kernels of ordered dithering of integers, for every SIMD target, and their frame.
#pragma once

#include "core/band.h"
#include "core/parallel.h"
#include "core/walk.h"
#include "dither/bayer.h"
#include "dither/levels.h"

namespace keli::dither {

struct BayerRows {
  // n counts samples; firstRow: of the region, of which the band is a part.
  using Kernel = void (*)(const Band<1>&, std::size_t firstRow, std::size_t channels, int levels);
  Kernel all;
  Kernel ac4;
};

// Defined in the rows files.
template <class TS, class TD>
const BayerRows& bayerRows();

template <class TS, class TD, Layout kLayout>
KelStatus compareIntegers(const TS* src, int srcStep, TD* dst, int dstStep, KeliSize size,
                          int levels) {
  constexpr std::size_t kChannels = pixelSamples(kLayout);
  Band<1> whole = makeBand(src, srcStep, dst, dstStep, rowSamples<kLayout>(size), size.height);
  const std::size_t rowBytes = whole.n * (sizeof(TS) + sizeof(TD));
  whole.streams = whole.src[0] != whole.dst && exceedsCache(rowBytes, whole.rows);
  const BayerRows& rows = bayerRows<TS, TD>();
  const BayerRows::Kernel kernel = kLayout == Layout::AC4 ? rows.ac4 : rows.all;
  const int team = core::teamSize(size.height, rowBytes * whole.rows);
  return core::runRows(
      core::Split::kStatic, size.height, team, 0, [&](const core::RowBlock& block) {
        kernel(rowsOf(whole, block), static_cast<std::size_t>(block.first), kChannels, levels);
      });
}

}  // namespace keli::dither
