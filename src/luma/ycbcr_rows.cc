// Row kernels of RGBToYCbCr and YCbCrToRGB: the studio range of ITU-R BT.601, with luma from 16 to
// 235 and chroma from 16 to 240, in integers with 16 fractional bits. What is below them is cut
// off: forward a half has been added before, back nothing.
#include "luma/conversions.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "luma/ycbcr_rows.cc"
#include <hwy/foreach_target.h>
//
#include "color/products-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct RgbToYCbCr {
  static constexpr int kShift = 16;
  static constexpr color::ProductRow kRows[3] = {
      {{16843, 33030, 6423}, 0x108000},
      {{-9699, -19071, 28770}, 0x808000},
      {{28770, -24117, -4653}, 0x808000},
  };
};

struct YCbCrToRgb {
  static constexpr int kShift = 16;
  static constexpr std::int32_t kBlack = 76284 * 16;  // of luma; chroma is taken from 128
  static constexpr color::ProductRow kRows[3] = {
      {{76284, 0, 104595}, -kBlack - 128 * 104595},
      {{76284, -25690, -53281}, -kBlack + 128 * (25690 + 53281)},
      {{76284, 132186, 0}, -kBlack - 128 * 132186},
  };
};

const color::Kernels kToYCbCr = [] {
  using Op = ProductPixels<RgbToYCbCr>;
  color::Kernels kernels = interleavedKernels<Kel8u, Op, 64>();
  kernels.p3 = ownConvertPixels<Kel8u, Layout::P3, Layout::P3, 64, Op>;
  return kernels;
}();

const color::Kernels kFromYCbCr = [] {
  using Op = ProductPixels<YCbCrToRgb>;
  color::Kernels kernels = interleavedKernels<Kel8u, Op, 64>();
  kernels.p3 = ownConvertPixels<Kel8u, Layout::P3, Layout::P3, 64, Op>;
  kernels.p3c3 = ownConvertPixels<Kel8u, Layout::P3, Layout::C3, 64, Op>;
  return kernels;
}();

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::color {
template <>
KELI_SELECT_ROWS(Kernels, kToYCbCr, kernelsOf<luma::RGBToYCbCr, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels, kFromYCbCr, kernelsOf<luma::YCbCrToRGB, Kel8u>)
}  // namespace keli::color
#endif
