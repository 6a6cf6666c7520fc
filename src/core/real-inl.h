// Integers of real results: lanes of 32-bit integers computed in double precision and rounded to
// nearest, ties to even, whatever the caller's rounding mode.
#if defined(KELI_CORE_REAL_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_REAL_INL_H_
#undef KELI_CORE_REAL_INL_H_
#else
#define KELI_CORE_REAL_INL_H_
#endif

#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

#if HWY_TARGET == HWY_SCALAR
template <class DF, class F, class... V>
HWY_INLINE hn::Vec<hn::Rebind<std::int32_t, DF>> nearestInDoubles(DF, const F&, V...) {
  return hn::Zero(hn::Rebind<std::int32_t, DF>());  // never run: the drivers call definitions
}
#else
// The integers nearest to f(d, lanes...), where d is a tag of doubles that have the lanes' values.
template <class DF, class F, class... V>
HWY_INLINE hn::Vec<hn::Rebind<std::int32_t, DF>> nearestInDoubles(DF, const F& f, V... floats) {
  const hn::Rebind<std::int32_t, DF> di;
  if constexpr (8 * hn::MaxLanes(DF()) <= HWY_MAX_BYTES) {
    const hn::Rebind<double, DF> dd;
    return hn::DemoteTo(di, hn::Round(f(dd, hn::PromoteTo(dd, floats)...)));
  } else {
    const hn::Half<DF> dh;
    const auto low = nearestInDoubles(dh, f, hn::LowerHalf(dh, floats)...);
    const auto high = nearestInDoubles(dh, f, hn::UpperHalf(dh, floats)...);
    return hn::Combine(di, high, low);
  }
}
#endif

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
