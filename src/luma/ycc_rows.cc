// Row kernels of RGBToYCC and YCCToRGB: the photographic YCC space, whose luma is that of ITU-R
// BT.601 and whose chroma has different scales for either sign. Every operation is in single
// precision, in the order written here; integers are rounded to nearest, ties to even.
#include "luma/conversions.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "luma/ycc_rows.cc"
#include <hwy/foreach_target.h>
//
#include "color/lanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// 156 and 137 of 255, in the scale of T.
template <class T>
constexpr float kZeroOfC1 = std::is_same_v<T, Kel32f> ? 0.6117647f : 156.f * (kFullScale<T> / 255);
template <class T>
constexpr float kZeroOfC2 = std::is_same_v<T, Kel32f> ? 0.5372549f : 137.f * (kFullScale<T> / 255);

template <class T>
struct RgbToYcc : Rounded {
  static constexpr bool kShort = true;

  template <class D>
  HWY_INLINE Channels<D> operator()(D d, const Channels<D>& rgb) const {
    const auto c = [&](float v) KELI_LAMBDA { return hn::Set(d, v); };
    const auto luma = c(0.299f) * rgb[0] + c(0.587f) * rgb[1] + c(0.114f) * rgb[2];
    return {c(0.7132668f) * luma, c(0.43686f) * (rgb[2] - luma) + c(kZeroOfC1<T>),
            c(0.53192f) * (rgb[0] - luma) + c(kZeroOfC2<T>)};
  }
};

template <class T>
struct YccToRgb : Rounded {
  template <class D>
  HWY_INLINE Channels<D> operator()(D d, const Channels<D>& ycc) const {
    const auto c = [&](float v) KELI_LAMBDA { return hn::Set(d, v); };
    const auto luma = c(1.3584f) * ycc[0];
    const auto c1 = c(2.2179f) * (ycc[1] - c(kZeroOfC1<T>));
    const auto c2 = c(1.8215f) * (ycc[2] - c(kZeroOfC2<T>));
    Channels<D> rgb = {luma + c2, luma - c(0.194f) * c1 - c(0.509f) * c2, luma + c1};
    if constexpr (std::is_same_v<T, Kel32f>) {
      for (hn::Vec<D>& v : rgb) v = withinUnit(d, v);
    }
    return rgb;
  }
};

template <template <class> class Formula, class T>
constexpr color::Kernels yccKernels() {
  return interleavedKernels<T, RealPixels<T, Formula<T>>, 64>();
}

const color::Kernels kToYcc8u = yccKernels<RgbToYcc, Kel8u>();
const color::Kernels kToYcc16u = yccKernels<RgbToYcc, Kel16u>();
const color::Kernels kToYcc16s = yccKernels<RgbToYcc, Kel16s>();
const color::Kernels kToYcc32f = yccKernels<RgbToYcc, Kel32f>();
const color::Kernels kFromYcc8u = yccKernels<YccToRgb, Kel8u>();
const color::Kernels kFromYcc16u = yccKernels<YccToRgb, Kel16u>();
const color::Kernels kFromYcc16s = yccKernels<YccToRgb, Kel16s>();
const color::Kernels kFromYcc32f = yccKernels<YccToRgb, Kel32f>();

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::color {
template <>
KELI_SELECT_ROWS(Kernels, kToYcc8u, kernelsOf<luma::RGBToYCC, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels, kToYcc16u, kernelsOf<luma::RGBToYCC, Kel16u>)
template <>
KELI_SELECT_ROWS(Kernels, kToYcc16s, kernelsOf<luma::RGBToYCC, Kel16s>)
template <>
KELI_SELECT_ROWS(Kernels, kToYcc32f, kernelsOf<luma::RGBToYCC, Kel32f>)
template <>
KELI_SELECT_ROWS(Kernels, kFromYcc8u, kernelsOf<luma::YCCToRGB, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels, kFromYcc16u, kernelsOf<luma::YCCToRGB, Kel16u>)
template <>
KELI_SELECT_ROWS(Kernels, kFromYcc16s, kernelsOf<luma::YCCToRGB, Kel16s>)
template <>
KELI_SELECT_ROWS(Kernels, kFromYcc32f, kernelsOf<luma::YCCToRGB, Kel32f>)
}  // namespace keli::color
#endif
