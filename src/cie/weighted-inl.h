// Weighted sums of the channels of pixels, in single precision and in the order of the channels.
#if defined(KELI_CIE_WEIGHTED_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CIE_WEIGHTED_INL_H_
#undef KELI_CIE_WEIGHTED_INL_H_
#else
#define KELI_CIE_WEIGHTED_INL_H_
#endif

#include "cie/matrices.h"
#include "color/lanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class D>
HWY_INLINE hn::Vec<D> weighted(D d, const cie::Weights& weights, const Channels<D>& in) {
  return hn::Set(d, weights.of[0]) * in[0] + hn::Set(d, weights.of[1]) * in[1] +
         hn::Set(d, weights.of[2]) * in[2];
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
