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

struct RealRgbToHls {
  template <class D>
  HWY_INLINE Channels<D> operator()(D d, const Channels<D>& rgb) const {
    const auto c = [&](float v) KELI_LAMBDA { return hn::Set(d, v); };
    const Hue<D> hue = hueOf<Tie::kFirst, 120, false>(d, rgb);
    const auto sum = hue.most + hue.least, delta = hue.most - hue.least;
    const auto lightness = sum * c(0.5f);
    const auto colored = hn::Gt(delta, c(std::numeric_limits<float>::epsilon()));
    const auto divisor = hn::IfThenElse(hn::Le(lightness, c(0.5f)), sum, c(2) - sum);
    const auto angle = c(60) * (hue.ahead - hue.behind) / delta + hue.middle;
    return {hn::IfThenElseZero(colored, fromZeroOn(d, angle, 360) / c(360)), lightness,
            hn::IfThenElseZero(colored, delta / divisor)};
  }
};

// An operation on pixels of integers.
template <class T>
struct WholeRgbToHls {
  static constexpr bool kOnce = true;

  template <class D>
  HWY_INLINE Channels<D> vector(D d, const Channels<D>& rgb) const {
    using DU = hn::RebindToUnsigned<D>;
    const DU du;
    const auto sign = hn::Set(du, kSign<T>);
    Channels<DU> samples;
    unrolled<3>([&](auto k) KELI_LAMBDA { samples[k] = hn::BitCast(du, rgb[k]) ^ sign; });
    const Hue<DU> hue = hueOf<Tie::kFirst, 60, true>(du, samples);
    const auto hs = hueAndSaturation<30>(du, hue, roomOf(du, hue), OfHalfDegrees());
    const auto odd = (hue.most ^ hue.least) & hn::Set(du, 1);
    const auto lightness = hn::AverageRound(hue.most, hue.least) - odd;
    return {hn::BitCast(d, hs[0] ^ sign), hn::BitCast(d, lightness ^ sign),
            hn::BitCast(d, hs[1] ^ sign)};
  }
  HWY_INLINE std::array<T, 3> scalar(const std::array<T, 3>& in) const {
    return onOneLane(*this, in);
  }

 private:
  // The greatest difference that a color of this lightness can have: of the sum of its extremes and
  // that of their distances from full scale, the one that is no more than full scale.
  template <class D>
  static HWY_INLINE hn::Vec<D> roomOf(D d, const Hue<D>& hue) {
    const auto full = hn::Set(d, std::numeric_limits<hn::TFromD<D>>::max());
    return hn::Min(hn::SaturatedAdd(hue.most, hue.least),
                   hn::SaturatedAdd(full - hue.most, full - hue.least));
  }

  // Halves of degrees fit 8 bits; every step gives exactly half of what it gives in degrees.
  struct OfHalfDegrees {
    template <class D>
    HWY_INLINE Channels<hn::RebindToSigned<D>, 2> operator()(D d, const Reals<D>& of) const {
      const hn::RebindToSigned<D> di;
      const auto angle = of.difference / of.delta + of.middle;
      return {truncateToInt(di, hn::Set(d, 2 * kHuePerDegree<T>) * angle),
              truncateToInt(di, hn::Set(d, kFullScale<T>) * of.delta / of.whole)};
    }
  };
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

// Floats have loops of their own for rows of all lengths.
struct FloatRgbToHls : RealPixels<Kel32f, RealRgbToHls> {
  static constexpr bool kOnce = false;
};

template <class T>
using RgbToHls = std::conditional_t<std::is_same_v<T, Kel32f>, FloatRgbToHls, WholeRgbToHls<T>>;
template <class T>
using HlsToRgb =
    RealPixels<T, std::conditional_t<std::is_same_v<T, Kel32f>, RealHlsToRgb, WholeHlsToRgb<T>>>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
