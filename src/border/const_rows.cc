// Row kernels of borders of a constant.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "border/const_rows.cc"
#include <hwy/foreach_target.h>
//
#include "border/border-inl.h"
#include "border/short-inl.h"
#include "data/fill-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class Row, class D>
HWY_INLINE void constRowsOf(D d, const border::BorderBand& b, const std::uint8_t* pixel) {
  const auto left = Row::template repeated<false, 0>(d, pixel);
  const auto right = Row::template repeated<true, 0>(d, pixel);
  const std::uint8_t* src = b.src;
  std::uint8_t* row = b.dst + static_cast<std::ptrdiff_t>(b.top) * b.dstStep;
  for (std::size_t y = 0; y < b.rows; ++y, src += b.srcStep, row += b.dstStep)
    Row::make(d, b, src, left, right, row);
}

// Rows of the constant alone.
template <std::size_t kPixel, std::size_t kUsed>
HWY_NOINLINE void fillRows(const border::BorderBand& b, const std::uint8_t* pixel,
                           std::size_t first, std::size_t count) {
  using T = typename BorderRow<kPixel, kUsed>::Sample;
  using Keep = typename BorderRow<kPixel, kUsed>::Keep;
  const Band<0> rows = {{nullptr},
                        {0},
                        b.dst + static_cast<std::ptrdiff_t>(first) * b.dstStep,
                        b.dstStep,
                        b.rowBytes() / sizeof(T),
                        count,
                        b.streams && kUsed == kPixel};
  mapRows<T, Keep>(rows, Fill<T, kPixel / sizeof(T)>{pixel});
}

template <std::size_t kPixel, std::size_t kUsed = kPixel>
void ownConst(const border::BorderBand& band, const std::uint8_t* pixel) {
  using Row = BorderRow<kPixel, kUsed>;
  if constexpr (kPermutesBytes) {
    if (makeShort(band, [&](auto vectors)
                            KELI_LAMBDA { shortConst<kPixel, kUsed, vectors>(band, pixel); })) {
      return;
    }
  }
  fillRows<kPixel, kUsed>(band, pixel, 0, band.top);
  if (!kScalarTarget && band.rowBytes() >= 32) {
    constRowsOf<Row>(hn::CappedTag<std::uint8_t, 32>(), border::BorderBand(band), pixel);
  } else if (!kScalarTarget && band.rowBytes() >= 16) {
    constRowsOf<Row>(hn::CappedTag<std::uint8_t, 16>(), border::BorderBand(band), pixel);
  } else {
    for (std::size_t y = 0; y < band.rows; ++y) {
      const auto at = static_cast<std::ptrdiff_t>(y);
      Row::shortRow(band, band.src + at * band.srcStep, pixel, pixel,
                    band.dst + (static_cast<std::ptrdiff_t>(band.top) + at) * band.dstStep);
    }
  }
  fillRows<kPixel, kUsed>(band, pixel, band.top + band.rows, band.bottom);
  if (band.streams) hwy::FlushStream();
}

const border::ConstRows kConstRows = {
    KELI_BY_PIXEL(ownConst),
    {{ownConst<4, 3>, ownConst<8, 6>, ownConst<16, 12>}},
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::border {
KELI_SELECT_ROWS(ConstRows, kConstRows, constRows)
}  // namespace keli::border
#endif
