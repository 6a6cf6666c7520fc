// Row kernels of borders that continue the source periodically, of pixels of 4 bytes.
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "border/wrap_rows.cc"
#include <hwy/foreach_target.h>
//
#include "border/border-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

HWY_INLINE void copyBytes(const std::uint8_t* src, std::uint8_t* dst, std::size_t count) {
  if (kScalarTarget) {
    std::memcpy(dst, src, count);
  } else if (count != 0) {
    BorderRow<4, 4>::copy(src, dst, count);
  }
}

// Continues the middle of a row, which is there, on both sides. What is there is whole periods all
// the time, twice as many after each copy.
void wrapRow(const border::BorderBand& b, std::uint8_t* row) {
  std::uint8_t *const begin = row + b.left, *const end = begin + b.middle;
  std::size_t done = 0;
  for (std::size_t there = b.middle; done < b.right; there *= 2) {
    const std::size_t count = std::min(there, b.right - done);
    copyBytes(end + done - there, end + done, count);
    done += count;
  }
  done = 0;
  for (std::size_t there = b.middle; done < b.left; there *= 2) {
    const std::size_t count = std::min(there, b.left - done);
    copyBytes(begin - done - count + there, begin - done - count, count);
    done += count;
  }
}

void ownWrap(const border::BorderBand& band) {
  const border::BorderBand b = band;  // no store can change it
  // The source row whose copy is the destination's first.
  std::size_t from = (b.rows - b.top % b.rows) % b.rows;
  const std::size_t height = b.top + b.rows + b.bottom;
  // Margins that are wider than the source are made from the destination.
  const bool narrow = b.left <= b.middle && b.right <= b.middle;
  const bool streams = b.streams && narrow;
  for (std::size_t y = 0; y < height; ++y) {
    const std::uint8_t* const src = b.src + static_cast<std::ptrdiff_t>(from) * b.srcStep;
    std::uint8_t* const row = b.dst + static_cast<std::ptrdiff_t>(y) * b.dstStep;
    if (kScalarTarget) {
      std::memcpy(row + b.left, src, b.middle);
    } else {
      BorderRow<4, 4>::middle(src, row + b.left, b.middle, streams);
    }
    if (narrow) {
      copyBytes(src + b.middle - b.left, row, b.left);
      copyBytes(src, row + b.left + b.middle, b.right);
    } else {
      wrapRow(band, row);
    }
    from = from + 1 == b.rows ? 0 : from + 1;
  }
  if (streams) hwy::FlushStream();
}

void ownWrapInPlace(const border::BorderBand& b) {
  const auto rowAt = [&](std::size_t y) {
    return b.dst + static_cast<std::ptrdiff_t>(y) * b.dstStep;
  };
  for (std::size_t y = b.top; y < b.top + b.rows; ++y) wrapRow(b, rowAt(y));
  const std::size_t below = b.top + b.rows;
  for (std::size_t y = below; y < below + b.bottom; ++y)
    copyBytes(rowAt(y - b.rows), rowAt(y), b.rowBytes());
  for (std::size_t y = b.top; y-- > 0;) copyBytes(rowAt(y + b.rows), rowAt(y), b.rowBytes());
}

const border::WrapRows kWrapRows = {ownWrap, ownWrapInPlace};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::border {
KELI_SELECT_ROWS(WrapRows, kWrapRows, wrapRows)
}  // namespace keli::border
#endif
