// Row kernels of Div and DivC of 16s: src2 / src1 * 2^-scaleFactor, the exact quotient rounded to
// nearest with ties to even, saturated. A divisor of 0 gives the bound of the dividend's sign.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "division/div_16s_rows.cc"
#include <hwy/foreach_target.h>
//
#include "division/quotient-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// The quotient in single precision, x = n / d with n = dividend * 2^-scaleFactor (exact), has an
// error of at most |x| * 2^-24. It rounds to the integer of the exact quotient unless a tie lies
// between the two: exact quotients that are ties are floats, others lie at least 1 / |2d| from one.
// So it is right while |x| * 2^-24 < 1 / |2d|, that is |n| < 2^23: for scale factors of -7 and more
// (for those above 0 multiply n and d by 2^scaleFactor first). Below, a result that does not
// saturate is one off at most, as |x| * 2^-24 < 2^-8 there, and the remainder tells.
template <bool kByRemainder>
struct DivideShorts {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 2;
  static constexpr float kBeyond = 40000;   // saturates, with or without 1 more
  static constexpr float kZero = 0x1p-90f;  // in place of 0: all quotients but 0 / 0 saturate

  int scaleFactor;
  float factor;

  // A quotient is at most 2^15 and, but for 0, at least 2^-15.
  explicit DivideShorts(int sf)
      : scaleFactor(std::clamp(sf, -31, 17)), factor(division::powerOfTwo(scaleFactor)) {}

  template <class D>
  HWY_INLINE Nothing at(D, std::size_t) const {
    return {};
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, Nothing, V a, V b) const {
    return mapAsInts(d, a, b, [&](auto divisor, auto dividend) KELI_LAMBDA {
      const hn::DFromV<decltype(divisor)> di;
      const hn::RebindToFloat<decltype(di)> df;
      const auto given = hn::ConvertTo(df, divisor);
      const auto k = hn::IfThenElse(hn::Eq(given, hn::Zero(df)), hn::Set(df, kZero), given);
      const auto x = hn::ConvertTo(df, dividend) * hn::Set(df, factor) / k;
      const auto q = roundToInt(di, hn::Clamp(x, hn::Set(df, -kBeyond), hn::Set(df, kBeyond)));
      if constexpr (kByRemainder) {
        return corrected(di, q, hn::ShiftLeftSame(dividend, -scaleFactor), divisor);
      } else {
        return q;
      }
    });
  }

  // Lanes wrap, and so does all but the remainder.
  template <class D, class V>
  static HWY_INLINE V corrected(D di, V q, V n, V divisor) {
    const V remainder = n - q * divisor;
    const V size = hn::Abs(remainder), one = hn::Set(di, 1);
    const auto off = hn::Gt(size + size + hn::And(q, one), hn::Abs(divisor));
    const V direction = hn::Or(hn::ShiftRight<31>(hn::Xor(remainder, divisor)), one);
    return q + hn::IfThenElseZero(off, direction);
  }

  HWY_INLINE Kel16s scalar(std::size_t, Kel16s a, Kel16s b) const {
    if (a == 0) return saturate<Kel16s>(std::int64_t{b} * 65536);
    return division::quotient<Kel16s>(b, a, scaleFactor);
  }
};

template <class Run>
HWY_INLINE auto forScaleFactor(int sf, const Run& run) {
  return sf < -7 ? run(DivideShorts<true>(sf)) : run(DivideShorts<false>(sf));
}

bool ownDiv16s(const Band<2>& b, int sf) {
  return forScaleFactor(
      sf, [&](const auto& op) KELI_LAMBDA { return divideImages<Kel16s, KeepNone>(b, op); });
}

template <std::size_t kCycle>
void ownDivC16s(const Band<1>& b, const void* constants, int sf) {
  forScaleFactor(sf, [&](const auto& op) KELI_LAMBDA {
    mapImageAndConstant<Kel16s, kCycle, KeepNone>(b, constants, op);
  });
}

constexpr division::TwoImages kDiv16s = {ownDiv16s, nullptr};
constexpr division::ImageByConstant kDivC16s = {ownDivC16s<4>, ownDivC16s<3>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::division {
template <>
KELI_SELECT_ROWS(TwoImages, kDiv16s, twoImages<Kel16s>)
template <>
KELI_SELECT_ROWS(ImageByConstant, kDivC16s, imageByConstant<Kel16s>)
}  // namespace keli::division
#endif
