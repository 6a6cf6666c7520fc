// Frames of the conversions between images of one bit and of one byte for each pixel. Arguments
// have been checked.
#pragma once

#include "convert/bits_rows.h"
#include "core/cache.h"

namespace keli::convert {

// Rows of whole bytes of pixels without padding are one row. unit: bytes of eight pixels in source
// and destination.
inline void layOutBits(Band<1>& b, std::size_t offset, const std::size_t (&unit)[2]) {
  constexpr std::size_t kPixels = 8;
  if (offset == 0 && b.n % kPixels == 0) {
    b.n /= kPixels;
    layOut(b, unit);
    b.n *= kPixels;
  } else {
    b.streams = exceedsCache(b.n / kPixels * (unit[0] + unit[1]), b.rows);
  }
}

inline KelStatus bitsToBytes(const Kel8u* src, int srcStep, int bitOffset, Kel8u* dst, int dstStep,
                             KeliSize size) {
  const std::size_t offset = static_cast<std::size_t>(bitOffset);
  Band<1> b = makeBand(src, srcStep, dst, dstStep, rowSamples<Layout::C1>(size), size.height);
  layOutBits(b, offset, {1, 8});
  bitsRows().toBytes(b, offset);
  return kelStatusOk;
}

inline KelStatus bytesToBits(const Kel8u* src, int srcStep, Kel8u* dst, int dstStep, int bitOffset,
                             KeliSize size, Kel8u threshold) {
  const std::size_t offset = static_cast<std::size_t>(bitOffset);
  Band<1> b = makeBand(src, srcStep, dst, dstStep, rowSamples<Layout::C1>(size), size.height);
  layOutBits(b, offset, {8, 1});
  bitsRows().fromBytes(b, offset, threshold);
  return kelStatusOk;
}

}  // namespace keli::convert
