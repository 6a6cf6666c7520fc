// Row kernels of RGBToYUV and YUVToRGB: the luma of ITU-R BT.601 in full range, and differences of
// blue and red from it, in integers. Products of 15 fractional bits are rounded to nearest, ties
// up, by the one instruction that multiplies so.
#include "luma/conversions.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "luma/yuv_rows.cc"
#include <hwy/foreach_target.h>
//
#include "color/products-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// The factors' sum is 65535, and white is 255 by the half that is added.
struct LumaOfRgb {
  static constexpr int kShift = 16;
  static constexpr color::ProductRow kRows[1] = {{{19595, 38469, 7471}, 32768}};
};

// What green is above luma, from U, V and any third channel.
struct GreenOfUv {
  static constexpr int kShift = 13;
  static constexpr color::ProductRow kRows[1] = {{{-3228, -4760, 0}, 128 * (3228 + 4760) + 4096}};
};

struct RgbToYuv {
  static constexpr bool kOnce = true;

  // As luma lies between the least and the largest channel, V alone leaves the range of bytes.
  template <class D>
  HWY_INLINE Channels<D> vector(D d, const Channels<D>& rgb) const {
    const Words<D> luma = productRows<LumaOfRgb>(d, rgb)[0];
    const auto chroma = [&](std::int16_t factor) KELI_LAMBDA {
      return [=](auto dw, auto color, auto y) KELI_LAMBDA {
        return hn::MulFixedPoint15(color - y, hn::Set(dw, factor)) + hn::Set(dw, 128);
      };
    };
    return {bytesOf(d, luma), bytesOf(d, mapHalves(d, chroma(16121), wordsOf(d, rgb[2]), luma)),
            bytesOf(d, mapHalves(d, chroma(28737), wordsOf(d, rgb[0]), luma))};
  }
  HWY_INLINE auto scalar(const std::array<Kel8u, 3>& rgb) const { return onOneLane(*this, rgb); }
};

struct YuvToRgb {
  static constexpr bool kOnce = true;

  template <class D>
  HWY_INLINE Channels<D> vector(D d, const Channels<D>& yuv) const {
    const Words<D> luma = wordsOf(d, yuv[0]);
    // Factors of 13 fractional bits, and chroma times 4.
    const auto plus = [&](std::int16_t factor) KELI_LAMBDA {
      return [=](auto dw, auto y, auto chroma) KELI_LAMBDA {
        const auto fourfold = hn::ShiftLeft<2>(chroma - hn::Set(dw, 128));
        return y + hn::MulFixedPoint15(fourfold, hn::Set(dw, factor));
      };
    };
    const auto sum = [](auto, auto y, auto green) KELI_LAMBDA { return y + green; };
    const auto green = productRows<GreenOfUv>(d, {yuv[1], yuv[2], yuv[0]})[0];
    return {bytesOf(d, mapHalves(d, plus(9339), luma, wordsOf(d, yuv[2]))),
            bytesOf(d, mapHalves(d, sum, luma, green)),
            bytesOf(d, mapHalves(d, plus(16646), luma, wordsOf(d, yuv[1])))};
  }
  HWY_INLINE auto scalar(const std::array<Kel8u, 3>& yuv) const { return onOneLane(*this, yuv); }
};

const color::Kernels kToYuv = [] {
  color::Kernels kernels = interleavedKernels<Kel8u, RgbToYuv, 64>();
  kernels.p3 = ownConvertPixels<Kel8u, Layout::P3, Layout::P3, 64, RgbToYuv>;
  kernels.c3p3 = ownConvertPixels<Kel8u, Layout::C3, Layout::P3, 64, RgbToYuv>;
  return kernels;
}();

const color::Kernels kFromYuv = [] {
  color::Kernels kernels = interleavedKernels<Kel8u, YuvToRgb, 64>();
  kernels.p3 = ownConvertPixels<Kel8u, Layout::P3, Layout::P3, 64, YuvToRgb>;
  kernels.p3c3 = ownConvertPixels<Kel8u, Layout::P3, Layout::C3, 64, YuvToRgb>;
  return kernels;
}();

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::color {
template <>
KELI_SELECT_ROWS(Kernels, kToYuv, kernelsOf<luma::RGBToYUV, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels, kFromYuv, kernelsOf<luma::YUVToRGB, Kel8u>)
}  // namespace keli::color
#endif
