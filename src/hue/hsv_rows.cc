// Row kernels of RGBToHSV and HSVToRGB (hue, saturation, value: Smith, "Color Gamut Transform
// Pairs", 1978). Every operation is in single precision, in the order written here; results are
// rounded to nearest, ties to even.
#include "hue/conversions.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "hue/hsv_rows.cc"
#include <hwy/foreach_target.h>
//
#include "hue/hue-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Hue and saturation of a color's value, greatest difference, difference of the other components
// and middle of its third. The divisors are at least 1, and what they divide is 0 where they had to
// be made so.
template <class T>
struct HueAndSaturation {
  template <class DW>
  HWY_INLINE Channels<DW, 2> operator()(DW dw, const Channels<DW, 5>& parts) const {
    const hn::RebindToFloat<DW> d;
    const auto c = [&](float v) KELI_LAMBDA { return hn::Set(d, v); };
    const auto real = [&](hn::Vec<DW> v) KELI_LAMBDA { return hn::ConvertTo(d, v); };
    const auto value = real(parts[0]), delta = real(parts[1]);
    const auto saturation = c(kFullScale<T>) * delta / hn::Max(value, c(1));
    const auto sixths = real(parts[2] - parts[3]) / hn::Max(delta, c(1)) + real(parts[4]);
    const auto hue = fromZeroOn(d, c(kFullScale<T> / 6) * sixths, kFullScale<T>);
    return {roundToInt(dw, hue), roundToInt(dw, saturation)};
  }
};

template <class T>
struct RgbToHsv {
  static constexpr bool kOnce = true;

  template <class D>
  HWY_INLINE Channels<D> vector(D d, const Channels<D>& rgb) const {
    const Hue<D> hue = hueOf<Tie::kLast, 2>(d, rgb);
    const auto delta = hue.most - hue.least;
    const auto middle = hn::IfThenZeroElse(hn::Eq(delta, hn::Zero(d)), hue.middle);
    const Channels<D, 5> parts = {hue.most, delta, hue.ahead, hue.behind, middle};
    const Channels<D, 2> hs = mapWords(d, d, parts, HueAndSaturation<T>());
    return {hs[0], hs[1], hue.most};
  }
  HWY_INLINE std::array<T, 3> scalar(const std::array<T, 3>& in) const {
    return onOneLane(*this, in);
  }
};

template <class T>
struct HsvToRgb : Rounded {
  template <class D>
  HWY_INLINE Channels<D> operator()(D d, const Channels<D>& hsv) const {
    const auto c = [&](float v) KELI_LAMBDA { return hn::Set(d, v); };
    constexpr float kDegrees = std::is_same_v<T, Kel8u> ? 1.4117647f : 360.f / 65535;
    const auto turn = hn::Eq(hsv[0], c(kFullScale<T>));
    const auto sixths = hn::IfThenZeroElse(turn, hsv[0]) * c(kDegrees) * c(1 / 60.f);
    const auto sector = hn::Trunc(sixths), f = sixths - sector;
    const auto saturation = hsv[1] * c(1 / kFullScale<T>), value = hsv[2];
    const auto p = value * (c(1) - saturation);
    const auto q = value * (c(1) - saturation * f);
    const auto t = value * (c(1) - saturation * (c(1) - f));
    const auto below1 = hn::Lt(sixths, c(1)), below2 = hn::Lt(sixths, c(2)),
               below3 = hn::Lt(sixths, c(3)), below4 = hn::Lt(sixths, c(4)),
               below5 = hn::Lt(sixths, c(5));
    const auto pick = [](auto mask, hn::Vec<D> yes, hn::Vec<D> no)
                          KELI_LAMBDA { return hn::IfThenElse(mask, yes, no); };
    const auto red = pick(below1, value, pick(below2, q, pick(below4, p, pick(below5, t, value))));
    const auto green = pick(below1, t, pick(below3, value, pick(below4, q, p)));
    const auto blue = pick(below2, p, pick(below3, t, pick(below5, value, q)));
    return {red, green, blue};
  }
};

template <class T>
using HsvToRgbPixels = RealPixels<T, HsvToRgb<T>>;

const color::Kernels kToHsv8u = interleavedKernels<Kel8u, RgbToHsv<Kel8u>, 64>();
const color::Kernels kToHsv16u = interleavedKernels<Kel16u, RgbToHsv<Kel16u>, 64>();
const color::Kernels kFromHsv8u = interleavedKernels<Kel8u, HsvToRgbPixels<Kel8u>, 64>();
const color::Kernels kFromHsv16u = interleavedKernels<Kel16u, HsvToRgbPixels<Kel16u>, 64>();

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::color {
template <>
KELI_SELECT_ROWS(Kernels, kToHsv8u, kernelsOf<hue::RGBToHSV, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels, kToHsv16u, kernelsOf<hue::RGBToHSV, Kel16u>)
template <>
KELI_SELECT_ROWS(Kernels, kFromHsv8u, kernelsOf<hue::HSVToRGB, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels, kFromHsv16u, kernelsOf<hue::HSVToRGB, Kel16u>)
}  // namespace keli::color
#endif
