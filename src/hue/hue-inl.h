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

// Of a color, in lanes of samples or wider ones.
template <class D>
struct Hue {
  hn::Vec<D> most, least;
  hn::Vec<D> ahead, behind;  // the components after the greatest, in the cycle R, G, B
  hn::Vec<D> middle;         // of the third: 0, kThird or 2 kThird
};

// Which of several components that are the greatest is taken to be it.
enum class Tie { kFirst, kLast };

// In lanes of samples, unsigned or floats. kUnwound: the hues of the third around 0 that lie before
// it have their middle at 3 kThird, so that none is below 0.
template <Tie kTie, int kThird, bool kUnwound, class D>
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
    auto first = hn::Zero(d);
    if constexpr (kUnwound)
      first = hn::IfThenZeroElse(hn::Eq(hn::Max(green, blue), green), hn::Set(d, 3 * kThird));
    hue.middle = hn::IfThenElse(isRed, first, hn::IfThenElse(isGreen, second, third));
  } else {
    static_assert(!kUnwound);
    const auto isBlue = hn::Eq(blue, hue.most);
    hue.ahead = hn::IfThenElse(isBlue, red, hn::IfThenElse(isGreen, blue, green));
    hue.behind = hn::IfThenElse(isBlue, green, hn::IfThenElse(isGreen, red, blue));
    hue.middle = hn::IfThenElse(isBlue, third, hn::IfThenElseZero(isGreen, second));
  }
  return hue;
}

// What integer formulas of hue and saturation are made of, as floats: the greatest difference of
// components, what saturation divides it by, kTimes the difference of the two other components, and
// the middle of the third.
template <class D>
struct Reals {
  hn::Vec<D> delta, whole, difference, middle;
};

// The same in lanes of samples; the greatest difference stands in place of the extremes.
template <class D>
struct Parts {
  hn::Vec<D> delta, whole, ahead, behind, middle;
};

// Where the bytes of a vector come from when they are widened twice, in each of its quarters.
template <std::size_t kBytes>
struct Quarters {
  using Table = std::array<std::array<std::uint8_t, kBytes>, 4>;
  static constexpr Table make() {
    Table t{};
    for (std::size_t q = 0; q < 4; ++q) {
      for (std::size_t i = 0; i < kBytes; ++i)
        t[q][i] = static_cast<std::uint8_t>(i / 16 * 16 + q * 4 + i % 16 / 4);
    }
    return t;
  }
  static constexpr Table kFrom = make();
};

// The words of a quarter of a vector's bytes, a quarter of each 16 that follow one another.
template <std::size_t kQuarter, class D>
HWY_INLINE hn::Vec<WideTag<WideTag<D>>> quarterOf(D d, hn::Vec<D> v) {
  const WideTag<D> dh;
  const WideTag<WideTag<D>> dw;
  if constexpr (kPermutesBytes && hn::MaxLanes(D()) == 64) {
    const auto from = hn::LoadU(d, Quarters<64>::kFrom[kQuarter].data());
    const auto lowest = hn::MaskFromVec(hn::BitCast(d, hn::Set(dw, 0xFFu)));
    return hn::BitCast(dw, hn::IfThenElseZero(lowest, permuteBytes(d, v, from)));
  } else {
    const Wide<D> halves = widen(d, v);
    const Wide<WideTag<D>> quarters = widen(dh, kQuarter < 2 ? halves.lo : halves.hi);
    return kQuarter % 2 == 0 ? quarters.lo : quarters.hi;
  }
}

// kTimes (a - b), of a quarter of the bytes.
template <int kTimes, std::size_t kQuarter, class D>
HWY_INLINE auto differenceOf(D d, hn::Vec<D> a, hn::Vec<D> b) {
  const WideTag<D> dh;
  const hn::RebindToSigned<WideTag<WideTag<D>>> di;
  const hn::RebindToSigned<WideTag<D>> dn;
  const Wide<D> wideA = widen(d, a), wideB = widen(d, b);
  const auto pairs =
      zip(dh, kQuarter < 2 ? wideA.lo : wideA.hi, kQuarter < 2 ? wideB.lo : wideB.hi);
  const auto factors = hn::BitCast(dn, hn::Set(di, kTimes - kTimes * 65536));
  return multiplyAddPairs(di, hn::BitCast(dn, kQuarter % 2 == 0 ? pairs.lo : pairs.hi), factors);
}

// f(d, reals) on floats of unsigned lanes; the two results are integers of the lanes' type.
template <int kTimes, class D, class F>
HWY_INLINE Channels<D, 2> mapParts(D d, const Parts<D>& parts, const F& f) {
  if constexpr (!kTwoHalves<D>) {
    using DI = hn::Rebind<std::int32_t, D>;
    using DF = hn::RebindToFloat<DI>;
    const DF df;
    const auto real = [&](hn::Vec<D> v)
                          KELI_LAMBDA { return hn::ConvertTo(df, hn::PromoteTo(DI(), v)); };
    const auto difference = hn::Set(df, kTimes) * (real(parts.ahead) - real(parts.behind));
    const auto results =
        f(df, Reals<DF>{real(parts.delta), real(parts.whole), difference, real(parts.middle)});
    return {hn::DemoteTo(d, results[0]), hn::DemoteTo(d, results[1])};
  } else if constexpr (sizeof(hn::TFromD<D>) == 1) {
    using DH = WideTag<D>;
    using DW = WideTag<DH>;
    using DI = hn::RebindToSigned<DW>;
    using DF = hn::RebindToFloat<DI>;
    const DH dh;
    Channels<DI, 2> of[4];
    unrolled<4>([&](auto q) KELI_LAMBDA {
      const auto real = [&](hn::Vec<D> v) KELI_LAMBDA {
        return hn::ConvertTo(DF(), hn::BitCast(DI(), quarterOf<q>(d, v)));
      };
      const auto difference =
          hn::ConvertTo(DF(), differenceOf<kTimes, q>(d, parts.ahead, parts.behind));
      of[q] =
          f(DF(), Reals<DF>{real(parts.delta), real(parts.whole), difference, real(parts.middle)});
    });
    Channels<D, 2> out;
    unrolled<2>([&](auto k) KELI_LAMBDA {
      const auto half = [&](std::size_t q) KELI_LAMBDA {
        return narrow(dh, Wide<DH>{hn::BitCast(DW(), of[q][k]), hn::BitCast(DW(), of[q + 1][k])});
      };
      out[k] = narrow(d, Wide<D>{half(0), half(2)});
    });
    return out;
  } else {
    using DW = WideTag<D>;
    using DI = hn::RebindToSigned<DW>;
    using DF = hn::RebindToFloat<DI>;
    const Wide<D> delta = widen(d, parts.delta), whole = widen(d, parts.whole),
                  ahead = widen(d, parts.ahead), behind = widen(d, parts.behind),
                  middle = widen(d, parts.middle);
    const auto half = [&](auto part) KELI_LAMBDA {
      const auto real = [&](const Wide<D>& w)
                            KELI_LAMBDA { return hn::ConvertTo(DF(), hn::BitCast(DI(), part(w))); };
      const auto difference = hn::Set(DF(), kTimes) * (real(ahead) - real(behind));
      return f(DF(), Reals<DF>{real(delta), real(whole), difference, real(middle)});
    };
    const auto low = half([](const Wide<D>& w) KELI_LAMBDA { return w.lo; });
    const auto high = half([](const Wide<D>& w) KELI_LAMBDA { return w.hi; });
    Channels<D, 2> out;
    unrolled<2>([&](auto k) KELI_LAMBDA {
      out[k] = narrow(d, Wide<D>{hn::BitCast(DW(), low[k]), hn::BitCast(DW(), high[k])});
    });
    return out;
  }
}

// Hue and saturation of a color by f of its Reals, of which delta and whole are at least 1; of gray
// both are 0.
template <int kTimes, class D, class F>
HWY_INLINE Channels<D, 2> hueAndSaturation(D d, const Hue<D>& hue, hn::Vec<D> whole, const F& f) {
  const auto one = hn::Set(d, 1);
  const auto delta = hue.most - hue.least;
  const auto gray = hn::Eq(delta, hn::Zero(d));
  const Parts<D> parts = {hn::Max(delta, one), hn::Max(whole, one), hue.ahead, hue.behind,
                          hue.middle};
  const Channels<D, 2> hs = mapParts<kTimes>(d, parts, f);
  return {hn::IfThenZeroElse(gray, hs[0]), hn::IfThenZeroElse(gray, hs[1])};
}

// v + turn where v is below 0.
template <class D>
HWY_INLINE hn::Vec<D> fromZeroOn(D d, hn::Vec<D> v, float turn) {
  return hn::IfThenElse(hn::Lt(v, hn::Zero(d)), v + hn::Set(d, turn), v);
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
