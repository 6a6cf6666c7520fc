// The orders of minima and maxima, in samples and vectors. A NaN is neither above nor below.
#if defined(KELI_EXTREMES_ORDER_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_EXTREMES_ORDER_INL_H_
#undef KELI_EXTREMES_ORDER_INL_H_
#else
#define KELI_EXTREMES_ORDER_INL_H_
#endif

#include <limits>

#include "core/simd-inl.h"
#include "extremes/operations.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// first(a, b): whether a comes before b. of(v, best): v where it comes first, else best.
// The bound comes before all other values, and none after the last.
template <class Operation, class T>
struct Order;

template <class T>
struct Order<extremes::Min, T> {
  using Limits = std::numeric_limits<T>;
  static constexpr T kBound = Limits::has_infinity ? -Limits::infinity() : Limits::lowest();
  static constexpr T kLast = Limits::has_infinity ? Limits::infinity() : Limits::max();
  template <class Each>
  static HWY_INLINE Each pick(Each minimum, Each) {
    return minimum;
  }
  static constexpr bool first(T a, T b) { return a < b; }
  template <class V>
  static HWY_INLINE auto firstLanes(V a, V b) {
    return hn::Lt(a, b);
  }
  template <class V>
  static HWY_INLINE V of(V v, V best) {
    return lessElse(v, best);
  }
};

template <class T>
struct Order<extremes::Max, T> {
  using Reverse = Order<extremes::Min, T>;
  static constexpr T kBound = Reverse::kLast;
  static constexpr T kLast = Reverse::kBound;
  template <class Each>
  static HWY_INLINE Each pick(Each, Each maximum) {
    return maximum;
  }
  static constexpr bool first(T a, T b) { return a > b; }
  template <class V>
  static HWY_INLINE auto firstLanes(V a, V b) {
    return hn::Gt(a, b);
  }
  template <class V>
  static HWY_INLINE V of(V v, V best) {
    return greaterElse(v, best);
  }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
