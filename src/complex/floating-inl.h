// What products and quotients of floating-point samples share: signs of single parts, and one bit
// pattern for all results that are not a number.
#if defined(KELI_COMPLEX_FLOATING_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_COMPLEX_FLOATING_INL_H_
#undef KELI_COMPLEX_FLOATING_INL_H_
#else
#define KELI_COMPLEX_FLOATING_INL_H_
#endif

#include "complex/samples-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

constexpr std::uint32_t kNanBits = 0xFFC00000;

HWY_INLINE float oneNan(float v) {
  if (v == v) return v;
  float nan;
  std::memcpy(&nan, &kNanBits, sizeof(nan));
  return nan;
}

template <class D, class V>
HWY_INLINE V oneNan(D d, V v) {
  const auto nan = hn::BitCast(d, hn::Set(hn::RebindToUnsigned<D>(), kNanBits));
  return hn::IfThenElse(hn::IsNaN(v), nan, v);
}

// Adding what is negated subtracts exactly.
template <class D, class V>
HWY_INLINE V evenNegated(D d, V v) {
  return hn::Xor(v, hn::OddEven(hn::Zero(d), hn::Set(d, hn::TFromD<D>{-0.0f})));
}
template <class D, class V>
HWY_INLINE V oddNegated(D d, V v) {
  return hn::Xor(v, hn::OddEven(hn::Set(d, hn::TFromD<D>{-0.0f}), hn::Zero(d)));
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
