// Row kernels of Div of 32f: one IEEE 754 division, src2 / src1. A divisor of 0 of either sign
// gives an infinity of the dividend's sign, or the quiet NaN 0xFFC00000 for a dividend of 0 or NaN.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "division/div_32f_rows.cc"
#include <hwy/foreach_target.h>
//
#include "division/quotient-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Zero divisors are rare, and a branch costs less than their results in every vector.
template <class Keep>
struct DivideFloats {
  static constexpr std::size_t kPeriod = Keep::kPeriod;
  static constexpr std::size_t kUnroll = 4;
  static constexpr std::size_t kVectorBytes = 64;
  static constexpr std::uint32_t kNaN = 0xFFC00000;

  bool* zeroDivisor;

  template <class D>
  HWY_INLINE auto at(D d, std::size_t phase) const {
    return Keep().at(d, phase);
  }
  template <class D, class K, class V>
  HWY_INLINE V vector(D d, [[maybe_unused]] const K& used, V a, V b) const {
    auto byZero = hn::Eq(a, hn::Zero(d));
    if constexpr (kPeriod != 1) byZero = hn::And(byZero, used);
    const V quotient = b / a;
    if (HWY_LIKELY(hn::AllFalse(d, byZero))) return quotient;
    *zeroDivisor = true;
    return hn::IfThenElse(byZero, overZero(d, b), quotient);
  }
  template <class D, class V>
  static HWY_INLINE V overZero(D d, V b) {
    const V infinity = hn::CopySign(hn::Inf(d), b);
    const V nan = hn::BitCast(d, hn::Set(hn::RebindToUnsigned<D>(), kNaN));
    return hn::IfThenElse(hn::Gt(hn::Abs(b), hn::Zero(d)), infinity, nan);
  }
  HWY_INLINE float scalar(std::size_t, float a, float b) const {
    if (a != 0) return b / a;
    *zeroDivisor = true;
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    if (b > 0) return kInfinity;
    if (b < 0) return -kInfinity;
    float nan;
    std::memcpy(&nan, &kNaN, sizeof(nan));
    return nan;
  }
};

template <class Keep>
bool ownDiv32f(const Band<2>& b, int) {
  bool zeroDivisor = false;
  mapTwoImages<Kel32f, Keep>(b, DivideFloats<Keep>{&zeroDivisor});
  return zeroDivisor;
}

constexpr division::TwoImages kDiv32f = {ownDiv32f<KeepNone>, ownDiv32f<KeepOthers<4, 3>>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::division {
template <>
KELI_SELECT_ROWS(TwoImages, kDiv32f, twoImages<Kel32f>)
}  // namespace keli::division
#endif
