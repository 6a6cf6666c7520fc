// Row kernels of inverse transforms whose coefficients are 0 but for the first few of the first few
// rows: what is known to be 0 takes no part.
#include "core/simd_config.h"
#include "core/target.h"
#include "dct/dct_rows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "dct/corner_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/simd-inl.h"
#include "dct/block-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Lanes of the rows that have coefficients.
using Rows = hn::CappedTag<float, 4>;
constexpr std::size_t kRowLanes = hn::MaxLanes(Rows());

// Columns of rows y to y + lanes.
template <std::size_t kSide, class V>
HWY_INLINE void readCorner(const Kel16s* src, std::size_t y, V (&v)[8]) {
  const Rows d;
#if HWY_TARGET != HWY_SCALAR
  if constexpr (kSide == 4) {
    const hn::RebindToSigned<Rows> di;
    const hn::Rebind<Kel16s, Rows> dw;
    unrolled<4>([&](auto k) KELI_LAMBDA {
      v[k] = hn::ConvertTo(d, hn::PromoteTo(di, hn::LoadU(dw, src + 8 * k)));
    });
    return exchangeBlocks(d, v[0], v[1], v[2], v[3]);
  }
#endif
  unrolled<kSide>([&](auto k) KELI_LAMBDA {
    v[k] = hn::Set(d, static_cast<float>(load(src + 8 * y + k)));
    if constexpr (kRowLanes != 1) {
      const auto below = hn::Set(d, static_cast<float>(load(src + 8 * (y + 1) + k)));
      v[k] = hn::OddEven(below, v[k]);
    }
  });
}

template <std::size_t kSide>
void ownInverseCorner(const Kel16s* src, Kel16s* dst) {
  HWY_ALIGN float between[64];
  for (std::size_t y = 0; y < kSide; y += kRowLanes) {
    hn::Vec<Rows> v[8];
    readCorner<kSide>(src, y, v);
    scaleLanes<dct::OfFloats, kSide>(Rows(), y, v);
    inverseLanes<kSide>(Rows(), v);
    storeRows(Rows(), v, between + y);
  }
  for (std::size_t x = 0; x < 8; x += kLanes) {
    hn::Vec<Lanes> v[8];
    readColumns<4>(Lanes(), between + 8 * x, v);
    inverseLanes<kSide>(Lanes(), v);
    writeWords(Lanes(), x, v, dst, 8 * sizeof(Kel16s));
  }
}

const dct::CornerRows kCornerRows = {ownInverseCorner<4>, ownInverseCorner<2>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::dct {
KELI_SELECT_ROWS(CornerRows, kCornerRows, cornerRows)
}  // namespace keli::dct
#endif
