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

struct DivideFloats {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 4;
  static constexpr std::uint32_t kNaN = 0xFFC00000;

  template <class D>
  HWY_INLINE Nothing at(D, std::size_t) const {
    return {};
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, Nothing, V a, V b) const {
    const hn::RebindToUnsigned<D> du;
    const V zero = hn::Zero(d);
    const auto byZero = hn::Eq(a, zero);
    // A quotient by +0 has the dividend's sign.
    const V quotient = b / hn::IfThenElse(byZero, zero, a);
    const auto signless = hn::Not(hn::Gt(hn::Abs(b), zero));
    return hn::IfThenElse(hn::And(byZero, signless), hn::BitCast(d, hn::Set(du, kNaN)), quotient);
  }
  HWY_INLINE float scalar(std::size_t, float a, float b) const {
    if (a != 0) return b / a;
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
  return divideImages<Kel32f, Keep>(b, DivideFloats());
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
