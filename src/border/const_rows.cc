// Row kernels of borders of a constant.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "border/const_rows.cc"
#include <hwy/foreach_target.h>
//
#include "border/border-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class Row, class D>
HWY_INLINE void constRowsOf(D d, const border::BorderBand& b, const std::uint8_t* pixel) {
  const auto left = Row::template repeated<false, 0>(d, pixel);
  const auto right = Row::template repeated<true, 0>(d, pixel);
  const std::uint8_t* src = b.src;
  std::uint8_t* row = b.dst + static_cast<std::ptrdiff_t>(b.top) * b.dstStep;
  for (std::size_t y = 0; y < b.rows; ++y, src += b.srcStep, row += b.dstStep) {
    Row::margins(d, b, left, right, row);
    Row::middle(b, src, row);
  }
  if (b.streams) hwy::FlushStream();
}

template <std::size_t kPixel, std::size_t kUsed = kPixel>
void ownConst(const border::BorderBand& b, const std::uint8_t* pixel) {
  using Row = BorderRow<kPixel, kUsed>;
  if (!kScalarTarget && b.rowBytes() >= 32) {
    constRowsOf<Row>(hn::CappedTag<std::uint8_t, 32>(), b, pixel);
  } else if (!kScalarTarget && b.rowBytes() >= 16) {
    constRowsOf<Row>(hn::CappedTag<std::uint8_t, 16>(), b, pixel);
  } else {
    for (std::size_t y = 0; y < b.rows; ++y) {
      const auto at = static_cast<std::ptrdiff_t>(y);
      Row::shortRow(b, b.src + at * b.srcStep, pixel, pixel,
                    b.dst + (static_cast<std::ptrdiff_t>(b.top) + at) * b.dstStep);
    }
  }
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
