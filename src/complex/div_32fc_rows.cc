// Row kernels of Div and DivC of 32fc. In double precision, and rounded to single at the end:
//   (a + bi) / (c + di) = ((ac + bd) + (bc - ad)i) / (cc + dd)
// Products are exact there, and the divisor's square neither overflows nor vanishes. By zero, each
// part is that of the dividend divided by +0.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "complex/div_32fc_rows.cc"
#include <hwy/foreach_target.h>
//
#include "complex/div-inl.h"
#include "complex/floating-inl.h"
#include "core/wide-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct Divide32fc {
  explicit HWY_INLINE Divide32fc(int) {}

  template <class D, class V>
  HWY_INLINE auto isZero(D d, V y) const {
    return hn::Eq(hn::And(y, hn::Set(d, 0x7FFFFFFF7FFFFFFF)), hn::Zero(d));
  }

  template <class D, class V>
  HWY_INLINE V quotient(D d, V y, V x) const {
    const PartTag<Kel32fc, D> dp;
    const auto parts = mapDoubles(
        dp,
        [](auto dd, auto yy, auto xx) KELI_LAMBDA {
          const auto squares = yy * yy;
          const auto square = squares + hn::Reverse2(dd, squares);
          const auto product =
              xx * hn::DupEven(yy) + oddNegated(dd, hn::Reverse2(dd, xx) * dupOdd(yy));
          return hn::IfThenElse(hn::Eq(square, hn::Zero(dd)), xx, product) / square;
        },
        hn::BitCast(dp, y), hn::BitCast(dp, x));
    return hn::BitCast(d, oneNan(dp, parts));
  }

  HWY_INLINE Kel32fc quotient(Kel32fc y, Kel32fc x) const {
    const double a = x.re, b = x.im, c = y.re, d = y.im;
    const double square = c * c + d * d;
    const bool zero = square == 0;
    const double re = (zero ? a : a * c + b * d) / square;
    const double im = (zero ? b : b * c - a * d) / square;
    return {oneNan(static_cast<float>(re)), oneNan(static_cast<float>(im))};
  }
};

constexpr complex::DivImages kDiv = kDivImages<Kel32fc, Divide32fc>;
constexpr arith::ImageAndConstant kDivC = kDivConstant<Kel32fc, Divide32fc>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::complex {
template <>
KELI_SELECT_ROWS(DivImages, kDiv, divImages<Kel32fc>)
}  // namespace keli::complex
namespace keli::arith {
template <>
KELI_SELECT_ROWS(ImageAndConstant, kDivC, imageAndConstant<complex::Div, Kel32fc>)
}  // namespace keli::arith
#endif
