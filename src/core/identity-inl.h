// The operation of map-inl.h that copies samples.
#if defined(KELI_CORE_IDENTITY_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CORE_IDENTITY_INL_H_
#undef KELI_CORE_IDENTITY_INL_H_
#else
#define KELI_CORE_IDENTITY_INL_H_
#endif

#include "core/map-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct Identity {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 4;
  template <class D>
  HWY_INLINE Nothing at(D, std::size_t) const {
    return {};
  }
  template <class D, class V>
  HWY_INLINE V vector(D, Nothing, V a) const {
    return a;
  }
  template <class T>
  HWY_INLINE T scalar(std::size_t, T a) const {
    return a;
  }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
