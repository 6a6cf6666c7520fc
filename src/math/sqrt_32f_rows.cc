// Row kernels of Sqrt of 32f: correctly rounded; a negative number gives the NaN 0xFFC00000 and a
// warning, a NaN the NaN 0x7FC00000, -0 itself.
#include <cmath>
#include <cstring>

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "math/sqrt_32f_rows.cc"
#include <hwy/foreach_target.h>
//
#include "math/unary-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// kAC4: only the first three samples of four raise the warning.
template <bool kAC4>
struct RootOf32f {
  static constexpr std::size_t kPeriod = kAC4 ? 4 : 1;
  static constexpr std::size_t kUnroll = 4;
  static constexpr std::size_t kVectorBytes = 64;
  bool& negative;

  template <class D>
  HWY_INLINE auto at(D d, std::size_t phase) const {
    if constexpr (kAC4) {
      return cycleMask<4, 3>(d, phase);
    } else {
      return Nothing();
    }
  }
  template <class D, class K, class V>
  HWY_INLINE V vector(D d, const K& used, V x) const {
    const V root = hn::Sqrt(x);
    const auto ordinary = x >= hn::Zero(d);
    if (HWY_LIKELY(hn::AllTrue(d, ordinary))) return root;
    const auto below = x < hn::Zero(d);
    if constexpr (kAC4) {
      negative |= !hn::AllFalse(d, hn::And(used, below));
    } else {
      negative |= !hn::AllFalse(d, below);
    }
    const hn::RebindToUnsigned<D> du;
    const V nan = hn::BitCast(d, hn::IfThenElse(hn::RebindMask(du, below), hn::Set(du, 0xFFC00000),
                                                hn::Set(du, 0x7FC00000)));
    return hn::IfThenElse(ordinary, root, nan);
  }
  HWY_INLINE Kel32f scalar(std::size_t, Kel32f x) const {
    if (x >= 0) return std::sqrt(x);
    negative |= x < 0;
    const std::uint32_t bits = x < 0 ? 0xFFC00000 : 0x7FC00000;
    Kel32f nan;
    std::memcpy(&nan, &bits, sizeof(nan));
    return nan;
  }
};

template <class Keep>
KelStatus ownSqrt32f(const Band<1>& b, int) {
  bool negative = false;
  mapRows<Kel32f, Kel32f, Keep>(b, RootOf32f<Keep::kPeriod == 4>{negative});
  return negative ? kelStatusNegativeSqrtWarning : kelStatusOk;
}

constexpr math::Unary kSqrt32f = {ownSqrt32f<KeepNone>, ownSqrt32f<KeepOthers<4, 3>>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::math {
template <>
KELI_SELECT_ROWS(Unary, kSqrt32f, unaryRows<Sqrt, Kel32f>)
}  // namespace keli::math
#endif
