// Row kernels of Abs: |src|; -32768 gives 32767, and of 32f the sign bit is cleared.
#include <cmath>
#include <limits>

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "math/abs_rows.cc"
#include <hwy/foreach_target.h>
//
#include "math/unary-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct AbsInteger : UnaryOp {
  template <class D, class V>
  HWY_INLINE V vector(D d, Nothing, V v) const {
    return hn::Max(v, hn::SaturatedSub(hn::Zero(d), v));
  }
  HWY_INLINE Kel16s scalar(std::size_t, Kel16s v) const {
    return v == std::numeric_limits<Kel16s>::min() ? std::numeric_limits<Kel16s>::max()
                                                   : static_cast<Kel16s>(v < 0 ? -v : v);
  }
};

struct AbsReal : UnaryOp {
  template <class D, class V>
  HWY_INLINE V vector(D, Nothing, V v) const {
    return hn::Abs(v);
  }
  HWY_INLINE Kel32f scalar(std::size_t, Kel32f v) const { return std::fabs(v); }
};

KelStatus ownAbs16s(const Band<1>& b, int) { return quietly<Kel16s, KeepNone>(b, AbsInteger()); }
KelStatus ownAbs32f(const Band<1>& b, int) { return quietly<Kel32f, KeepNone>(b, AbsReal()); }

constexpr math::Unary kAbs16s = {ownAbs16s, nullptr};
constexpr math::Unary kAbs32f = {ownAbs32f, nullptr};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::math {
template <>
KELI_SELECT_ROWS(Unary, kAbs16s, unaryRows<Abs, Kel16s>)
template <>
KELI_SELECT_ROWS(Unary, kAbs32f, unaryRows<Abs, Kel32f>)
}  // namespace keli::math
#endif
