// Conversions of pixels, written once as a formula in vectors of 32-bit lanes: for samples of every
// type, and for the single pixels of the scalar target.
//
// A formula takes the channels as an array of vectors and gives the destination's:
//   operator()(d, in)   of floats (RealPixels) or of signed integers (WordPixels)
// Integer samples are widened to such lanes, those of 16s offset by 32768 so that 0 is the least;
// results saturate on the way back. Floats that are no numbers become the quiet NaN 0x7FC00000. A
// formula of floats for integer samples tells how a result becomes an integer: whole(di, v), which
// Rounded and Truncated have.
#if defined(KELI_COLOR_LANES_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_COLOR_LANES_INL_H_
#undef KELI_COLOR_LANES_INL_H_
#else
#define KELI_COLOR_LANES_INL_H_
#endif

#include "color/color_rows.h"
#include "core/pixels-inl.h"
#include "core/wide-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class D, std::size_t kCount = 3>
using Channels = std::array<hn::Vec<D>, kCount>;

// To the nearest integer, ties to even.
struct Rounded {
  template <class DI, class V>
  HWY_INLINE hn::Vec<DI> whole(DI di, V v) const {
    return roundToInt(di, v);
  }
};

// Towards zero.
struct Truncated {
  template <class DI, class V>
  HWY_INLINE hn::Vec<DI> whole(DI di, V v) const {
    return truncateToInt(di, v);
  }
};

template <class Results>
constexpr std::size_t kResults = std::tuple_size_v<std::decay_t<Results>>;

// What full scale is in samples of T.
template <class T>
constexpr float kFullScale = 1;
template <>
inline constexpr float kFullScale<Kel8u> = 255;
template <>
inline constexpr float kFullScale<Kel16u> = 65535;
template <>
inline constexpr float kFullScale<Kel16s> = 65535;

// Floats cut to [0, 1]; what is no number stays.
template <class D>
HWY_INLINE hn::Vec<D> withinUnit(D d, hn::Vec<D> v) {
  return greaterElse(hn::Zero(d), lessElse(hn::Set(d, 1.f), v));
}

// f(dw, words) on unsigned lanes of in as signed ones of 32 bits; its results, saturated to lanes
// of to.
template <class DTo, class DFrom, std::size_t kIn, class F>
HWY_INLINE auto mapWords(DTo to, DFrom from, const Channels<DFrom, kIn>& in, const F& f) {
  if constexpr (hn::MaxLanes(DFrom()) * 4 <= HWY_MAX_BYTES) {
    const hn::Rebind<std::int32_t, DFrom> dw;
    Channels<decltype(dw), kIn> words;
    unrolled<kIn>([&](auto k) KELI_LAMBDA {
      if constexpr (sizeof(hn::TFromD<DFrom>) == 4) {
        words[k] = hn::BitCast(dw, in[k]);
      } else {
        words[k] = hn::PromoteTo(dw, in[k]);
      }
    });
    const auto results = f(dw, words);
    if constexpr (sizeof(hn::TFromD<DTo>) == 4) {
      return results;
    } else {
      Channels<DTo, kResults<decltype(results)>> out;
      unrolled<kResults<decltype(results)>>(
          [&](auto k) KELI_LAMBDA { out[k] = hn::DemoteTo(to, results[k]); });
      return out;
    }
  } else {
    const WideTag<DFrom> dw;
    Channels<WideTag<DFrom>, kIn> lo, hi;
    unrolled<kIn>([&](auto k) KELI_LAMBDA {
      const Wide<DFrom> both = widen(from, in[k]);
      lo[k] = both.lo;
      hi[k] = both.hi;
    });
    const hn::RebindToSigned<WideTag<DTo>> wider;
    const auto low = mapWords(wider, dw, lo, f), high = mapWords(wider, dw, hi, f);
    Channels<DTo, kResults<decltype(low)>> out;
    unrolled<kResults<decltype(low)>>([&](auto k) KELI_LAMBDA {
      const WideTag<DTo> du;
      out[k] = narrow(to, Wide<DTo>{hn::BitCast(du, low[k]), hn::BitCast(du, high[k])});
    });
    return out;
  }
}

// The bits that turn samples of 16s into unsigned ones, 32768 higher, and back.
template <class T>
constexpr std::make_unsigned_t<T> kSign = std::is_signed_v<T> ? 0x8000 : 0;

// The same on lanes of samples of any integer type.
template <class D, std::size_t kIn, class F>
HWY_INLINE auto mapSamples(D d, const Channels<D, kIn>& in, const F& f) {
  const hn::RebindToUnsigned<D> du;
  const auto sign = hn::Set(du, kSign<hn::TFromD<D>>);
  Channels<decltype(du), kIn> from;
  unrolled<kIn>([&](auto k) KELI_LAMBDA { from[k] = hn::BitCast(du, in[k]) ^ sign; });
  const auto to = mapWords(du, du, from, f);
  Channels<D, kResults<decltype(to)>> out;
  unrolled<kResults<decltype(to)>>([&](auto k)
                                       KELI_LAMBDA { out[k] = hn::BitCast(d, to[k] ^ sign); });
  return out;
}

// A pixel by the operation's vector form, in vectors of one lane.
template <class Op, class T, std::size_t kIn>
HWY_INLINE auto onOneLane(const Op& op, const std::array<T, kIn>& in) {
  const hn::CappedTag<T, 1> d;
  Channels<decltype(d), kIn> lanes;
  for (std::size_t k = 0; k < kIn; ++k) lanes[k] = hn::Set(d, in[k]);
  const auto results = op.vector(d, lanes);
  std::array<T, kResults<decltype(results)>> out;
  for (std::size_t k = 0; k < out.size(); ++k) out[k] = hn::GetLane(results[k]);
  return out;
}

// A formula of few instructions says kShort = true: floats then are loaded and stored by
// themselves.
template <class Formula, class = void>
constexpr bool kIsShort = false;
template <class Formula>
constexpr bool kIsShort<Formula, std::void_t<decltype(Formula::kShort)>> = Formula::kShort;

// An operation of core/pixels-inl.h on samples of type T from a formula in floats.
template <class T, class Formula>
struct RealPixels {
  static constexpr bool kOnce = !std::is_floating_point_v<T> || !kIsShort<Formula>;
  Formula formula;

  template <class D, std::size_t kIn>
  HWY_INLINE auto vector(D d, const Channels<D, kIn>& in) const {
    if constexpr (std::is_floating_point_v<T>) {
      auto out = formula(d, in);
      for (hn::Vec<D>& v : out) v = settledLanes(d, v);
      return out;
    } else {
      return mapSamples(d, in, [&](auto dw, const auto& words) KELI_LAMBDA {
        const hn::RebindToFloat<decltype(dw)> df;
        Channels<decltype(df), kIn> reals;
        unrolled<kIn>([&](auto k) KELI_LAMBDA { reals[k] = hn::ConvertTo(df, words[k]); });
        const auto results = formula(df, reals);
        Channels<decltype(dw), kResults<decltype(results)>> wholes;
        unrolled<kResults<decltype(results)>>(
            [&](auto k) KELI_LAMBDA { wholes[k] = formula.whole(dw, results[k]); });
        return wholes;
      });
    }
  }
  template <std::size_t kIn>
  HWY_INLINE auto scalar(const std::array<T, kIn>& in) const {
    return onOneLane(*this, in);
  }
};

// The same from a formula in integers.
template <class T, class Formula>
struct WordPixels {
  static constexpr bool kOnce = true;
  Formula formula;

  template <class D, std::size_t kIn>
  HWY_INLINE auto vector(D d, const Channels<D, kIn>& in) const {
    return mapSamples(d, in, formula);
  }
  template <std::size_t kIn>
  HWY_INLINE auto scalar(const std::array<T, kIn>& in) const {
    return onOneLane(*this, in);
  }
};

template <class T, Layout kFrom, Layout kTo, std::size_t kMostBytes, class Op>
void ownConvertPixels(const PlanesBand& b) {
  mapPixels<kFrom, kTo, T, T, kMostBytes>(b, Op());
}

// The kernels that members of every type have. kMostBytes: of a vector of samples; pixels of four
// floats are put in order in 32 bytes at most.
template <class T, class Op, std::size_t kMostBytes>
constexpr color::Kernels interleavedKernels() {
  color::Kernels kernels = {};
  kernels.c3 = ownConvertPixels<T, Layout::C3, Layout::C3, kMostBytes, Op>;
  constexpr std::size_t kFours =
      sizeof(T) == 4 ? std::min<std::size_t>(kMostBytes, 32) : kMostBytes;
  kernels.ac4 = ownConvertPixels<T, Layout::AC4, Layout::AC4, kFours, Op>;
  return kernels;
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
