// Add, Sub and Mul of floats for the row drivers: one IEEE 754 operation each.
#if defined(KELI_ARITH_FLOATING_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_ARITH_FLOATING_INL_H_
#undef KELI_ARITH_FLOATING_INL_H_
#else
#define KELI_ARITH_FLOATING_INL_H_
#endif

#include "arith/operations.h"
#include "core/pointwise-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// For vectors and samples alike.
template <class V>
HWY_INLINE V result(arith::Add, V a, V b) {
  return a + b;
}
template <class V>
HWY_INLINE V result(arith::Sub, V a, V b) {
  return b - a;
}
template <class V>
HWY_INLINE V result(arith::Mul, V a, V b) {
  return a * b;
}

template <class Operation>
struct Floating {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 4;
  template <class D>
  HWY_INLINE Nothing at(D, std::size_t) const {
    return {};
  }
  template <class D, class V>
  HWY_INLINE V vector(D, Nothing, V a, V b) const {
    return result(Operation(), a, b);
  }
  HWY_INLINE float scalar(std::size_t, float a, float b) const { return result(Operation(), a, b); }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
