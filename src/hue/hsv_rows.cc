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

template <class T>
struct RgbToHsv {
  static constexpr bool kOnce = true;

  template <class D>
  HWY_INLINE Channels<D> vector(D d, const Channels<D>& rgb) const {
    const Hue<D> hue = hueOf<Tie::kLast, 2, false>(d, rgb);
    const auto hs = hueAndSaturation<1>(d, hue, hue.most, OfSixths());
    return {hs[0], hs[1], hue.most};
  }
  HWY_INLINE std::array<T, 3> scalar(const std::array<T, 3>& in) const {
    return onOneLane(*this, in);
  }

 private:
  struct OfSixths {
    template <class D>
    HWY_INLINE Channels<hn::RebindToSigned<D>, 2> operator()(D d, const Reals<D>& of) const {
      const hn::RebindToSigned<D> di;
      const auto sixths = of.difference / of.delta + of.middle;
      const auto hue = fromZeroOn(d, hn::Set(d, kFullScale<T> / 6) * sixths, kFullScale<T>);
      return {roundToInt(di, hue), roundToInt(di, hn::Set(d, kFullScale<T>) * of.delta / of.whole)};
    }
  };
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
