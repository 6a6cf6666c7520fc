// Row kernels of borders that repeat the outermost pixels of the source.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "border/replicate_rows.cc"
#include <hwy/foreach_target.h>
//
#include "border/border-inl.h"
#include "border/short-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Calls makeRow(src, dst) for every destination row with the source row nearest to it.
template <class MakeRow>
HWY_INLINE void forNearestRows(const border::BorderBand& b, const MakeRow& makeRow) {
  const std::uint8_t* src = b.src;
  std::uint8_t* row = b.dst;
  const std::size_t last = b.top + b.rows - 1;
  for (std::size_t y = 0; y <= last + b.bottom; ++y, row += b.dstStep) {
    makeRow(src, row);
    if (y >= b.top && y < last) src += b.srcStep;
  }
}

// Of sources of at least a vector.
template <class Row, std::size_t kPixel, class D>
HWY_INLINE void replicateRowsOf(D d, const border::BorderBand& b) {
  forNearestRows(b, [&](const std::uint8_t* src, std::uint8_t* row) KELI_LAMBDA {
    const auto left = Row::template repeated<false, 0>(d, src);
    const auto right = Row::template repeated<true, 16 - kPixel>(d, src + b.middle - 16);
    Row::make(d, b, src, left, right, row);
  });
}

template <std::size_t kPixel, std::size_t kUsed = kPixel>
void ownReplicate(const border::BorderBand& band) {
  using Row = BorderRow<kPixel, kUsed>;
  if constexpr (kPermutesBytes) {
    if (makeShort(band, [&](auto vectors)
                            KELI_LAMBDA { shortReplicate<kPixel, kUsed, vectors>(band); })) {
      return;
    }
  }
  if (!kScalarTarget && band.middle >= 32) {
    replicateRowsOf<Row, kPixel>(hn::CappedTag<std::uint8_t, 32>(), border::BorderBand(band));
  } else if (!kScalarTarget && band.middle >= 16) {
    replicateRowsOf<Row, kPixel>(hn::CappedTag<std::uint8_t, 16>(), border::BorderBand(band));
  } else {
    forNearestRows(band, [&](const std::uint8_t* src, std::uint8_t* row) KELI_LAMBDA {
      Row::shortRow(band, src, src, src + band.middle - kPixel, row);
    });
  }
  if (band.streams) hwy::FlushStream();
}

const border::ReplicateRows kReplicateRows = {
    KELI_BY_PIXEL(ownReplicate),
    {{ownReplicate<4, 3>, ownReplicate<8, 6>, ownReplicate<16, 12>}},
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::border {
KELI_SELECT_ROWS(ReplicateRows, kReplicateRows, replicateRows)
}  // namespace keli::border
#endif
