// Row kernels of Div and DivC of 32sc: the exact quotient, scaled and rounded once. A quotient of
// doubles is off by less than 1 / 2^51 of its size, so it decides the rounding of those that do not
// saturate unless they are nearer to a half than 1 / 2^19; vectors with such a quotient are left to
// the definition in integers.
#include <algorithm>
#include <cmath>

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "complex/div_32sc_rows.cc"
#include <hwy/foreach_target.h>
//
#include "complex/div-inl.h"
#include "complex/product-inl.h"
#include "complex/quotient.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct Divide32sc {
  int scaleFactor;
  double factor;

  // Beyond +-128 all quotients vanish, or saturate.
  explicit HWY_INLINE Divide32sc(int sf)
      : scaleFactor(sf), factor(std::ldexp(1.0, -std::clamp(sf, -128, 128))) {}

  template <class D, class V>
  HWY_INLINE auto isZero(D d, V y) const {
    return hn::Eq(y, hn::Zero(d));
  }

  template <class D, class V>
  HWY_INLINE V quotient(D d, V y, V x) const {
    const WholeTag<D> dw;
    const hn::Rebind<double, D> dd;
    const hn::Rebind<Kel32s, D> dp;
    const auto doubles = [&](auto v) KELI_LAMBDA { return hn::ConvertTo(dd, v); };
    const auto square = hn::Abs(doubles(sumsOfProducts<Kel32sc>(d, y, y)));  // 2^63 wraps
    const auto re = doubles(unwrapped(d, sumsOfProducts<Kel32sc>(d, x, y)));
    const auto im = doubles(differencesOfProducts<Kel32sc>(d, exchanged(d, x), y));
    const auto scale = hn::Set(dd, factor);
    const auto qRe = re * scale / square, qIm = im * scale / square;
    const auto wholeRe = hn::Round(qRe), wholeIm = hn::Round(qIm);
    // Not a number where the divisor is zero, which is not certain either.
    const auto certain = hn::Max(hn::Abs(qRe - wholeRe), hn::Abs(qIm - wholeIm)) <
                         hn::Set(dd, 0.5 - 1.0 / (1 << 19));
    const auto parts = [&](auto v) KELI_LAMBDA {
      return hn::BitCast(d, hn::PromoteTo(dw, hn::DemoteTo(dp, v)));
    };
    const hn::Repartition<Kel32s, D> dParts;
    const auto quotients =
        hn::BitCast(d, hn::OddEven(hn::BitCast(dParts, hn::ShiftLeft<32>(parts(wholeIm))),
                                   hn::BitCast(dParts, parts(wholeRe))));
    if (HWY_LIKELY(hn::AllTrue(dd, certain))) return quotients;
    return corrected(d, y, x, quotients, certain);
  }

  // The quotients with those lanes that are not certain by the definition.
  template <class D, class V, class M>
  HWY_NOINLINE V corrected(D d, V y, V x, V quotients, M certain) const {
    constexpr std::size_t kN = hn::MaxLanes(D());
    HWY_ALIGN BitsOf<Kel32sc> divisors[kN], samples[kN], results[kN];
    hn::Store(y, d, divisors);
    hn::Store(x, d, samples);
    hn::Store(quotients, d, results);
    std::uint8_t bits[8];
    hn::StoreMaskBits(hn::Rebind<double, D>(), certain, bits);
    for (std::size_t i = 0; i < kN; ++i) {
      if ((bits[0] >> i & 1) != 0) continue;
      results[i] = toBits(quotient(fromBits<Kel32sc>(divisors[i]), fromBits<Kel32sc>(samples[i])));
    }
    return hn::Load(d, results);
  }

  HWY_INLINE Kel32sc quotient(Kel32sc y, Kel32sc x) const {
    return complex::scaledQuotient(x, y, scaleFactor);
  }
};

constexpr complex::DivImages kDiv = kDivImages<Kel32sc, Divide32sc>;
constexpr arith::ImageAndConstant kDivC = kDivConstant<Kel32sc, Divide32sc>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::complex {
template <>
KELI_SELECT_ROWS(DivImages, kDiv, divImages<Kel32sc>)
}  // namespace keli::complex
namespace keli::arith {
template <>
KELI_SELECT_ROWS(ImageAndConstant, kDivC, imageAndConstant<complex::Div, Kel32sc>)
}  // namespace keli::arith
#endif
