// What hue is made of. The greatest component of a color tells a third of the circle, at whose
// middle it is alone; the difference of the other two, in parts of the greatest difference, tells
// how far from there the hue is.
#if defined(KELI_HUE_HUE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_HUE_HUE_INL_H_
#undef KELI_HUE_HUE_INL_H_
#else
#define KELI_HUE_HUE_INL_H_
#endif

#include "color/lanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class D>
struct Hue {
  hn::Vec<D> most, least;
  hn::Vec<D> ahead, behind;  // the components after the greatest, in the cycle R, G, B
  hn::Vec<D> middle;         // of the third: 0, kThird or 2 kThird
};

// Which of several components that are the greatest is taken to be it.
enum class Tie { kFirst, kLast };

// In lanes of samples, unsigned or floats.
template <Tie kTie, int kThird, class D>
HWY_INLINE Hue<D> hueOf(D d, const Channels<D>& rgb) {
  const auto red = rgb[0], green = rgb[1], blue = rgb[2];
  const auto second = hn::Set(d, kThird), third = hn::Set(d, 2 * kThird);
  Hue<D> hue;
  hue.most = greaterElse(greaterElse(red, green), blue);
  hue.least = lessElse(lessElse(red, green), blue);
  const auto isGreen = hn::Eq(green, hue.most);
  if constexpr (kTie == Tie::kFirst) {
    const auto isRed = hn::Eq(red, hue.most);
    hue.ahead = hn::IfThenElse(isRed, green, hn::IfThenElse(isGreen, blue, red));
    hue.behind = hn::IfThenElse(isRed, blue, hn::IfThenElse(isGreen, red, green));
    hue.middle = hn::IfThenZeroElse(isRed, hn::IfThenElse(isGreen, second, third));
  } else {
    const auto isBlue = hn::Eq(blue, hue.most);
    hue.ahead = hn::IfThenElse(isBlue, red, hn::IfThenElse(isGreen, blue, green));
    hue.behind = hn::IfThenElse(isBlue, green, hn::IfThenElse(isGreen, red, blue));
    hue.middle = hn::IfThenElse(isBlue, third, hn::IfThenElseZero(isGreen, second));
  }
  return hue;
}

// v + turn where v is below 0.
template <class D>
HWY_INLINE hn::Vec<D> fromZeroOn(D d, hn::Vec<D> v, float turn) {
  return hn::IfThenElse(hn::Lt(v, hn::Zero(d)), v + hn::Set(d, turn), v);
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
