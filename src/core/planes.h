// A band of images that may be planar: up to four planes that share a step. An interleaved image is
// its plane 0. And its walk with a row kernel, on the calling thread or on a team.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/cache.h"
#include "core/walk.h"

namespace keli {

struct PlanesBand {
  const std::uint8_t* src[4];
  std::uint8_t* dst[4];
  std::ptrdiff_t srcStep;
  std::ptrdiff_t dstStep;
  std::size_t n;  // pixels of a row
  std::size_t rows;
  bool streams;  // as in Band

  template <class T>
  const T* srcRow(int plane, std::size_t y) const {
    return reinterpret_cast<const T*>(src[plane] + static_cast<std::ptrdiff_t>(y) * srcStep);
  }

  template <class T>
  T* dstRow(int plane, std::size_t y) const {
    return reinterpret_cast<T*>(dst[plane] + static_cast<std::ptrdiff_t>(y) * dstStep);
  }
};

// An argument that is a pointer to an image, or an array of pointers to planes.
template <Layout kLayout, class Byte, class Image>
inline void setPlanes(Byte* (&planes)[4], Image image) {
  if constexpr (isPlanar(kLayout)) {
    for (int k = 0; k < usedChannels(kLayout); ++k) planes[k] = reinterpret_cast<Byte*>(image[k]);
  } else {
    planes[0] = reinterpret_cast<Byte*>(image);
  }
}

template <Layout kFrom, Layout kTo, class TS, class TD, class Source, class Destination>
inline PlanesBand makePlanesBand(Source src, int srcStep, Destination dst, int dstStep,
                                 KeliSize size) {
  PlanesBand b = {};
  setPlanes<kFrom>(b.src, src);
  setPlanes<kTo>(b.dst, dst);
  b.srcStep = srcStep;
  b.dstStep = dstStep;
  b.n = static_cast<std::size_t>(size.width);
  b.rows = static_cast<std::size_t>(size.height);
  const std::size_t srcRow = b.n * sizeof(TS) * storedChannels(kFrom);
  const std::size_t dstRow = b.n * sizeof(TD) * storedChannels(kTo);
  b.streams = b.src[0] != b.dst[0] && exceedsCache(srcRow + dstRow, b.rows);
  return b;
}

// Images without padding become one long row.
template <Layout kFrom, Layout kTo, class TS, class TD>
inline void joinRows(PlanesBand& b) {
  if (b.n * sizeof(TS) * pixelSamples(kFrom) == static_cast<std::size_t>(b.srcStep) &&
      b.n * sizeof(TD) * pixelSamples(kTo) == static_cast<std::size_t>(b.dstStep)) {
    b.n *= b.rows;
    b.rows = 1;
  }
}

inline PlanesBand rowsOf(const PlanesBand& b, const core::RowBlock& block) {
  PlanesBand part = b;
  for (int k = 0; k < 4; ++k) {
    if (b.src[k] != nullptr) part.src[k] += block.first * b.srcStep;
    if (b.dst[k] != nullptr) part.dst[k] += block.first * b.dstStep;
  }
  part.rows = static_cast<std::size_t>(block.count);
  return part;
}

// Calls kernel(band, arguments...), once or for blocks of rows on several threads.
template <Team kTeam, Layout kFrom, Layout kTo, class TS, class TD, class Kernel,
          class... Arguments>
void walkPlanes(PlanesBand b, Kernel kernel, const Arguments&... arguments) {
  if constexpr (kTeam == Team::kThreads) {
    const int height = static_cast<int>(b.rows);
    const std::size_t pixel = storedChannels(kFrom) * sizeof(TS) + storedChannels(kTo) * sizeof(TD);
    const int team = core::teamSize(height, pixel * b.n * b.rows);
    if (team > 1) {
      core::runRows(core::Split::kStatic, height, team, 0, [&](const core::RowBlock& block) {
        PlanesBand part = rowsOf(b, block);
        joinRows<kFrom, kTo, TS, TD>(part);
        kernel(part, arguments...);
      });
      return;
    }
  }
  joinRows<kFrom, kTo, TS, TD>(b);
  kernel(b, arguments...);
}

}  // namespace keli
