// What conversions and scalings of samples have in common, over the drivers of map-inl.h.
#if defined(KELI_CONVERT_KERNELS_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CONVERT_KERNELS_INL_H_
#undef KELI_CONVERT_KERNELS_INL_H_
#else
#define KELI_CONVERT_KERNELS_INL_H_
#endif

#include <limits>

#include "convert/rows.h"
#include "core/map-inl.h"
#include "core/narrow-inl.h"
#include "core/nearest.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct WideningOp {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 4;
  template <class D>
  HWY_INLINE Nothing at(D, std::size_t) const {
    return {};
  }
};

// Reads more than it writes, and computes on all that it reads: long vectors pay.
struct NarrowingOp {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 4;
  static constexpr std::size_t kVectorBytes = 64;
  static constexpr bool kLoads = true;
  template <class D>
  HWY_INLINE Nothing at(D, std::size_t) const {
    return {};
  }
};

template <class Op, class TS, class TD, class Keep, class... Terms>
void ownConvert(const Band<1>& b, Terms... terms) {
  mapRows<TS, TD, Keep>(b, Op(terms...));
}

// Terms: of the constructor of Op.
template <class Op, class TS, class TD, class... Terms>
constexpr convert::Kernels<Terms...> kKernels = {
    ownConvert<Op, TS, TD, KeepNone, Terms...>, ownConvert<Op, TS, TD, KeepOthers<4, 3>, Terms...>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
