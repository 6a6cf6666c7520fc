// Exact sums and products of a vector's lanes, in lanes twice as wide, and the way back.
//
// A Wide holds two vectors: the lower and the upper lanes of each 16-byte block, so that narrow()
// restores the order of the lanes without a shuffle across blocks. Vectors of less than 16 bytes
// need one vector only, lo.
#if defined(KELI_CORE_WIDE_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_WIDE_INL_H_
#undef KELI_CORE_WIDE_INL_H_
#else
#define KELI_CORE_WIDE_INL_H_
#endif

#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class D>
constexpr bool kTwoHalves = hn::MaxLanes(D()) * sizeof(hn::TFromD<D>) >= 16;

template <class D, bool kHalves = kTwoHalves<D>>
struct WideTagOf {
  using type = hn::RepartitionToWide<D>;
};
template <class D>
struct WideTagOf<D, false> {
  using type = hn::Rebind<hwy::MakeWide<hn::TFromD<D>>, D>;
};
template <class D>
using WideTag = typename WideTagOf<D>::type;

template <class D>
struct Wide {
  hn::Vec<WideTag<D>> lo;
  hn::Vec<WideTag<D>> hi;
};

template <class D, class F>
HWY_INLINE Wide<D> mapWide(D, const Wide<D>& w, const F& f) {
  Wide<D> result;
  result.lo = f(w.lo);
  if constexpr (kTwoHalves<D>) result.hi = f(w.hi);
  return result;
}

// Lanes of half the width, the lower ones of both and the upper ones of both.
template <class D>
struct Zipped {
  hn::Vec<D> lo;
  hn::Vec<D> hi;
};

template <class D>
HWY_INLINE Zipped<D> zip([[maybe_unused]] D d, hn::Vec<D> even, [[maybe_unused]] hn::Vec<D> odd) {
#if HWY_TARGET == HWY_SCALAR
  return {even, even};  // never run: the drivers call scalar definitions
#else
  return {hn::InterleaveLower(d, even, odd), hn::InterleaveUpper(d, even, odd)};
#endif
}

template <class D>
HWY_INLINE Wide<D> joined(const Zipped<D>& pairs) {
  const WideTag<D> dw;
  return {hn::BitCast(dw, pairs.lo), hn::BitCast(dw, pairs.hi)};
}

template <class D>
HWY_INLINE Wide<D> widen(D d, hn::Vec<D> v) {
  using T = hn::TFromD<D>;
  if constexpr (!kTwoHalves<D>) {
    return {hn::PromoteTo(WideTag<D>(), v), hn::Zero(WideTag<D>())};
  } else if constexpr (std::is_signed_v<T>) {
    return joined(zip(d, v, hn::ShiftRight<8 * sizeof(T) - 1>(v)));
  } else {
    return joined(zip(d, v, hn::Zero(d)));
  }
}

// a * b
template <class D>
HWY_INLINE Wide<D> products(D d, hn::Vec<D> a, hn::Vec<D> b) {
  if constexpr (kTwoHalves<D> && sizeof(hn::TFromD<D>) == 2) {
    return joined(zip(d, a * b, hn::MulHigh(a, b)));
  } else {
    const Wide<D> wa = widen(d, a), wb = widen(d, b);
    Wide<D> result;
    result.lo = wa.lo * wb.lo;
    if constexpr (kTwoHalves<D>) result.hi = wa.hi * wb.hi;
    return result;
  }
}

// Lanes are taken as signed, and saturate.
template <class D>
HWY_INLINE hn::Vec<D> narrow(D d, const Wide<D>& w) {
  const hn::RebindToSigned<WideTag<D>> dw;
  if constexpr (kTwoHalves<D>) {
    return packSaturated(d, hn::BitCast(dw, w.lo), hn::BitCast(dw, w.hi));
  } else {
    return hn::DemoteTo(d, hn::BitCast(dw, w.lo));
  }
}

// f(d, v...) on lanes of 32 bits as doubles, converted to those of D; integers saturate.
template <class D, class F, class... V>
HWY_INLINE hn::Vec<D> mapDoubles(D d, [[maybe_unused]] const F& f, [[maybe_unused]] V... v) {
#if HWY_TARGET == HWY_SCALAR
  return hn::Zero(d);  // never run: the drivers call scalar definitions
#else
  if constexpr (hn::MaxLanes(D()) * sizeof(double) > HWY_MAX_BYTES) {
    const hn::Half<D> dh;
    const hn::Rebind<double, hn::Half<D>> dd;
    const auto lo = f(dd, hn::PromoteTo(dd, hn::LowerHalf(v))...);
    const auto hi = f(dd, hn::PromoteTo(dd, hn::UpperHalf(hn::Half<hn::DFromV<V>>(), v))...);
    return hn::Combine(d, hn::DemoteTo(dh, hi), hn::DemoteTo(dh, lo));
  } else {
    const hn::Rebind<double, D> dd;
    return hn::DemoteTo(d, f(dd, hn::PromoteTo(dd, v)...));
  }
#endif
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
