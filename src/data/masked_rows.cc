// Row kernels of masked Copy and Set: dst = src, or a value, where the mask byte is not 0.
#include "data/masked_rows.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/masked_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/masked-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct CopySource {
  static constexpr std::size_t kAreasFrom = 4;
  const std::uint8_t* src;
  template <class D>
  HWY_INLINE hn::Vec<D> vector(D d, std::size_t, std::size_t offset) const {
    return hn::LoadU(d, src + offset);
  }
  HWY_INLINE std::uint8_t byte(std::size_t j, std::size_t offset) const { return src[offset + j]; }
};

template <std::size_t kPixel, std::size_t kUsed = kPixel>
void ownCopyMasked(const Band<2>& b) {
  for (std::size_t y = 0; y < b.rows; ++y) {
    Masked<kPixel, kUsed>::row(b.srcRow<std::uint8_t>(1, y),
                               CopySource{b.srcRow<std::uint8_t>(0, y)}, b.dstRow<std::uint8_t>(y),
                               b.n, false);
  }
}

// One pixel, over and over.
template <std::size_t kPixel>
struct SetSource {
  static constexpr std::size_t kAreasFrom = 6;
  const std::uint8_t* pixel;
  template <class D>
  HWY_INLINE hn::Vec<D> vector(D d, std::size_t v, std::size_t) const {
    return repeatPixel<kPixel>(d, pixel, v * hn::MaxLanes(D()) % kPixel);
  }
  HWY_INLINE std::uint8_t byte(std::size_t j, std::size_t) const { return pixel[j]; }
};

template <std::size_t kPixel, std::size_t kUsed = kPixel>
void ownSetMasked(const Band<1>& b, const std::uint8_t* pixel) {
  for (std::size_t y = 0; y < b.rows; ++y) {
    Masked<kPixel, kUsed>::row(b.srcRow<std::uint8_t>(0, y), SetSource<kPixel>{pixel},
                               b.dstRow<std::uint8_t>(y), b.n, b.streams);
  }
}

const data::MaskedRows kMaskedRows = {
    KELI_BY_PIXEL(ownCopyMasked),
    {{ownCopyMasked<4, 3>, ownCopyMasked<8, 6>, ownCopyMasked<16, 12>}},
    KELI_BY_PIXEL(ownSetMasked),
    {{ownSetMasked<4, 3>, ownSetMasked<8, 6>, ownSetMasked<16, 12>}},
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::data {
KELI_SELECT_ROWS(MaskedRows, kMaskedRows, maskedRows)
}  // namespace keli::data
#endif
