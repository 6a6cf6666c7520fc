// Row kernels of Div and DivC of 16sc: the exact quotient, scaled and rounded once, by a quotient
// in double precision, which decides every rounding: numerators and squares are at most 2^31. A
// quotient of size q below 2^16 is a fraction of them times a power of two, so it lies on a half,
// or at least 1 / 2^32 of q away from it for scale factors of 0 and more, and 1 / 2^32 of a unit, 1
// / 2^48 of q, for negative ones. The double quotient is off by 1 / 2^53 of q at most, and where
// the exact one is a half not at all.
#include <algorithm>
#include <cmath>

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "complex/div_16sc_rows.cc"
#include <hwy/foreach_target.h>
//
#include "complex/div-inl.h"
#include "complex/product-inl.h"
#include "complex/quotient.h"
#include "core/wide-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct Divide16sc {
  int scaleFactor;
  double factor;

  // Beyond +-64 all quotients vanish, or saturate.
  explicit HWY_INLINE Divide16sc(int sf)
      : scaleFactor(sf), factor(std::ldexp(1.0, -std::clamp(sf, -64, 64))) {}

  template <class D, class V>
  HWY_INLINE auto isZero(D d, V y) const {
    return hn::Eq(y, hn::Zero(d));
  }

  template <class D, class V>
  HWY_INLINE V quotient(D d, V y, V x) const {
    const WholeTag<D> dw;
    const PartTag<Kel16sc, D> dp;
    const auto square = sumsOfProducts<Kel16sc>(d, y, y);  // 2^31 wraps to its negative
    const auto divided = [&](auto numerator, auto dividend) KELI_LAMBDA {
      return mapDoubles(
          dw,
          [&](auto dd, auto s, auto n, auto part) KELI_LAMBDA {
            const auto q = n * hn::Set(dd, factor) / hn::Abs(s);
            const auto saturating = part * hn::Set(dd, 65536.0);
            return hn::Round(hn::IfThenElse(hn::Eq(s, hn::Zero(dd)), saturating, q));
          },
          square, numerator, dividend);
    };
    const auto whole = hn::BitCast(dw, x);
    const auto re = divided(unwrapped(d, sumsOfProducts<Kel16sc>(d, x, y)),
                            hn::ShiftRight<16>(hn::ShiftLeft<16>(whole)));
    const auto im =
        divided(differencesOfProducts<Kel16sc>(d, exchanged(d, x), y), hn::ShiftRight<16>(whole));
    return hn::BitCast(d, packAlternately(dp, re, im));
  }

  HWY_INLINE Kel16sc quotient(Kel16sc y, Kel16sc x) const {
    return complex::scaledQuotient(x, y, scaleFactor);
  }
};

constexpr complex::DivImages kDiv = kDivImages<Kel16sc, Divide16sc>;
constexpr arith::ImageAndConstant kDivC = kDivConstant<Kel16sc, Divide16sc>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::complex {
template <>
KELI_SELECT_ROWS(DivImages, kDiv, divImages<Kel16sc>)
}  // namespace keli::complex
namespace keli::arith {
template <>
KELI_SELECT_ROWS(ImageAndConstant, kDivC, imageAndConstant<complex::Div, Kel16sc>)
}  // namespace keli::arith
#endif
