// HLS (hue, lightness, saturation) as formulas for samples of every type. Every operation is in
// single precision, in the order written here. Integers of HLS are cut off, those of RGB rounded to
// nearest, ties to even.
#if defined(KELI_HUE_HLS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_HUE_HLS_INL_H_
#undef KELI_HUE_HLS_INL_H_
#else
#define KELI_HUE_HLS_INL_H_
#endif

#include "hue/hue-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Samples of hue to a degree, and degrees to a sample.
template <class T>
constexpr float kHuePerDegree = std::is_same_v<T, Kel8u> ? 0.7083333f : 182.0416717f;
template <class T>
constexpr float kDegreesPerHue = std::is_same_v<T, Kel8u> ? 1.4117647f : 360.f / 65535;

// In degrees.
template <class D>
HWY_INLINE hn::Vec<D> degrees(D d, hn::Vec<D> difference, hn::Vec<D> delta, hn::Vec<D> middle) {
  return fromZeroOn(d, hn::Set(d, 60.f) * difference / delta + middle, 360);
}

struct RealRgbToHls {
  template <class D>
  HWY_INLINE Channels<D> operator()(D d, const Channels<D>& rgb) const {
    const auto c = [&](float v) KELI_LAMBDA { return hn::Set(d, v); };
    const Hue<D> hue = hueOf<Tie::kFirst, 120>(d, rgb);
    const auto sum = hue.most + hue.least, delta = hue.most - hue.least;
    const auto lightness = sum * c(0.5f);
    const auto colored = hn::Gt(delta, c(std::numeric_limits<float>::epsilon()));
    const auto divisor = hn::IfThenElse(hn::Le(lightness, c(0.5f)), sum, c(2) - sum);
    const auto angle = degrees(d, hue.ahead - hue.behind, delta, hue.middle) / c(360);
    return {hn::IfThenElseZero(colored, angle), lightness,
            hn::IfThenElseZero(colored, delta / divisor)};
  }
};

// An operation on pixels of integers. The two divisors are at least 1, and what they divide is 0
// where they had to be made so.
template <class T>
struct WholeRgbToHls {
  static constexpr bool kOnce = true;

  template <class D>
  HWY_INLINE Channels<D> vector(D d, const Channels<D>& rgb) const {
    using DU = hn::RebindToUnsigned<D>;
    const DU du;
    const auto sign = hn::Set(du, kSign<T>);
    Channels<DU> unsignedRgb;
    unrolled<3>([&](auto k) KELI_LAMBDA { unsignedRgb[k] = hn::BitCast(du, rgb[k]) ^ sign; });
    const Hue<DU> hue = hueOf<Tie::kFirst, 120>(du, unsignedRgb);
    const Channels<DU, 5> parts = {hue.most, hue.least, hue.ahead, hue.behind, hue.middle};
    const Channels<DU> hls = mapWords(du, du, parts, ofParts);
    Channels<D> out;
    unrolled<3>([&](auto k) KELI_LAMBDA { out[k] = hn::BitCast(d, hls[k] ^ sign); });
    return out;
  }

  struct OfParts {
    template <class DW>
    HWY_INLINE Channels<DW> operator()(DW dw, const Channels<DW, 5>& parts) const {
      const hn::RebindToFloat<DW> d;
      const auto real = [&](hn::Vec<DW> v) KELI_LAMBDA { return hn::ConvertTo(d, v); };
      const auto one = hn::Set(dw, 1);
      const auto sum = parts[0] + parts[1], delta = parts[0] - parts[1];
      const auto toEnds = hn::Min(sum, hn::Set(dw, static_cast<int>(2 * kFullScale<T>)) - sum);
      const auto saturation = hn::Set(d, kFullScale<T>) * real(delta) / real(hn::Max(toEnds, one));
      const auto angle =
          degrees(d, real(parts[2] - parts[3]), real(hn::Max(delta, one)), real(parts[4]));
      return {truncateToInt(dw, hn::Set(d, kHuePerDegree<T>) * angle), hn::ShiftRight<1>(sum),
              truncateToInt(dw, saturation)};
    }
  };
  static constexpr OfParts ofParts = {};

  HWY_INLINE std::array<T, 3> scalar(const std::array<T, 3>& in) const {
    return onOneLane(*this, in);
  }
};

// The two values between which the components of a color lie.
template <class D>
struct Ends {
  hn::Vec<D> low, high;
};

// saturation: in [0, 1] and as a sample.
template <class T, class D>
HWY_INLINE Ends<D> endsOf(D d, hn::Vec<D> lightness, hn::Vec<D> saturation, hn::Vec<D> sample) {
  const auto dark = lightness * (hn::Set(d, 1.f) + saturation);
  const auto bright = lightness + sample - lightness * saturation;
  const auto half = hn::Set(d, kFullScale<T> * 0.5f);
  const auto high = hn::IfThenElse(hn::Le(lightness, half), dark, bright);
  return {hn::Set(d, 2.f) * lightness - high, high};
}

struct RealHlsToRgb {
  template <class D>
  HWY_INLINE Channels<D> operator()(D d, const Channels<D>& hls) const {
    const auto c = [&](float v) KELI_LAMBDA { return hn::Set(d, v); };
    const Ends<D> ends = endsOf<Kel32f>(d, hls[1], hls[2], hls[2]);
    const auto at = [&](hn::Vec<D> x) KELI_LAMBDA {
      const auto rises = hn::Lt(x, c(60));
      const auto ramp = hn::IfThenElse(rises, x, c(240) - x);
      const auto sloping = ends.low + (ends.high - ends.low) * ramp / c(60);
      const auto beyond = hn::IfThenElse(hn::Lt(x, c(240)), sloping, ends.low);
      const auto level = hn::IfThenElse(hn::Lt(x, c(180)), ends.high, beyond);
      return hn::IfThenElse(rises, sloping, level);
    };
    const auto h = c(360) * hls[0];
    const auto ahead = h + c(120), behind = h - c(120);
    const auto red = at(hn::IfThenElse(hn::Gt(ahead, c(360)), ahead - c(360), ahead));
    const auto blue = at(fromZeroOn(d, behind, 360));
    const auto gray = hn::Eq(hls[2], hn::Zero(d));
    return {hn::IfThenElse(gray, hls[1], red), hn::IfThenElse(gray, hls[1], at(h)),
            hn::IfThenElse(gray, hls[1], blue)};
  }
};

// The same in sixths of the circle, of which a component's slopes take one each: |p - 3| - 1 falls
// from 1 to 0 between 1 and 2, and rises between 4 and 5.
template <class T>
struct WholeHlsToRgb : Rounded {
  template <class D>
  HWY_INLINE Channels<D> operator()(D d, const Channels<D>& hls) const {
    const auto c = [&](float v) KELI_LAMBDA { return hn::Set(d, v); };
    const auto saturation = hls[2] * c(1 / kFullScale<T>);
    const Ends<D> ends = endsOf<T>(d, hls[1], saturation, hls[2]);
    const auto range = ends.high - ends.low;
    const auto mix = [&](hn::Vec<D> weight) KELI_LAMBDA {
      return ends.low + range * hn::Min(hn::Max(weight, hn::Zero(d)), c(1));
    };
    const auto sixths = hls[0] * c(kDegreesPerHue<T>) * c(1 / 60.f);
    const auto from = [&](float middle) KELI_LAMBDA { return hn::Abs(sixths - c(middle)); };
    return {mix(from(3) - c(1)), mix(c(2) - from(2)), mix(c(2) - from(4))};
  }
};

template <class T>
using RgbToHls =
    std::conditional_t<std::is_same_v<T, Kel32f>, RealPixels<T, RealRgbToHls>, WholeRgbToHls<T>>;
template <class T>
using HlsToRgb =
    RealPixels<T, std::conditional_t<std::is_same_v<T, Kel32f>, RealHlsToRgb, WholeHlsToRgb<T>>>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
