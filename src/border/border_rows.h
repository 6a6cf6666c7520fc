// Row kernels of the borders, for every SIMD target.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/by_size.h"

namespace keli::border {

// A source and the larger region that it goes to.
struct BorderBand {
  const std::uint8_t* src;
  std::ptrdiff_t srcStep;
  std::uint8_t* dst;
  std::ptrdiff_t dstStep;
  std::size_t left, middle,
      right;                      // bytes of a destination row; the source has those in the middle
  std::size_t top, rows, bottom;  // destination rows; the source has those of rows
  bool streams;                   // stores may bypass the caches

  std::size_t rowBytes() const { return left + middle + right; }
};

// pixel: 16 bytes that begin with the pixel's.
using ConstBand = void (*)(const BorderBand&, const std::uint8_t* pixel);
using CopyBand = void (*)(const BorderBand&);

struct ConstRows {
  ConstBand whole[17];  // by the bytes of a pixel
  BySize<ConstBand> ac4;
};

struct ReplicateRows {
  CopyBand whole[17];
  BySize<CopyBand> ac4;
};

struct WrapRows {
  CopyBand copy;
  CopyBand inPlace;  // writes the margins alone, of a source that lies in the destination
};

const ConstRows& constRows();
const ReplicateRows& replicateRows();
const WrapRows& wrapRows();

}  // namespace keli::border
