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
  static constexpr std::size_t kVectorBytes = 64;
  static constexpr float kBeyond = 40000;  // saturates, with or without 1 more

  int scaleFactor;
  float factor;

  // A quotient is at most 2^15 and, but for 0, at least 2^-15.
  explicit DivideShorts(int sf)
      : scaleFactor(std::clamp(sf, -31, 17)), factor(division::scaleOf(scaleFactor)) {}

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
      // In place of 0: the quotient is dividend * 2^15.
      const auto k =
          hn::IfThenElse(hn::Eq(given, hn::Zero(df)), hn::Set(df, factor * 0x1p-15f), given);
      const auto x = hn::ConvertTo(df, dividend) * hn::Set(df, factor) / k;
      if constexpr (kByRemainder) {
        const auto q = roundToInt(di, hn::Clamp(x, hn::Set(df, -kBeyond), hn::Set(df, kBeyond)));
        return corrected(di, q, hn::ShiftLeftSame(dividend, -scaleFactor), divisor);
      } else {
        return roundToInt(di, x);
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

// By constants, scale factors of 0 and more: with d = |value| * 2^scaleFactor and 2^t, of at least
// 2d and below 4d, the product src * (2^t / d) is below 2^17 and has an error of at most 2^-6, both
// roundings together. Where the quotient is a tie, its multiple by 2^t is an integer, to which the
// product rounds. Other quotients lie at least 2^t / (2d), so 1, from that integer, and the rounded
// product lies on the same side. So it rounds, by 2^t, to what the quotient rounds to.
template <std::size_t kCycle>
struct DivideByShorts {
  static constexpr std::size_t kPeriod = kCycle;
  static constexpr std::size_t kUnroll = kCycle == 3 ? 3 : 2;
  static constexpr std::size_t kVectorBytes = 64;

  Kel16s divisors[kCycle];
  int scaleFactor;
  WideCycle<std::uint16_t, kCycle> reciprocal, unit;  // 2^t / d with the sign of value, 2^-t

  DivideByShorts(const void* constants, int sf) : scaleFactor(std::min(sf, 17)) {
    for (std::size_t k = 0; k < kCycle; ++k) {
      divisors[k] = load(static_cast<const Kel16s*>(constants) + k);
      const float d = static_cast<float>(divisors[k]) / division::scaleOf(scaleFactor);
      float power = 2;
      while (power < 2 * std::abs(d)) power *= 2;
      reciprocal.set(k, bits(power / d));
      unit.set(k, bits(1 / power));
    }
  }

  static std::uint32_t bits(float v) {
    std::uint32_t result;
    std::memcpy(&result, &v, sizeof(v));
    return result;
  }

  template <class D>
  struct Vectors {
    Wide<hn::RebindToUnsigned<D>> reciprocal, unit;
  };

  template <class D>
  HWY_INLINE Vectors<D> at(D d, std::size_t phase) const {
    return {reciprocal.at(d, phase), unit.at(d, phase)};
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, const Vectors<D>& k, V v) const {
    const Wide<D> n = widen(d, v);
    Wide<D> result;
    result.lo = rounded(n.lo, k.reciprocal.lo, k.unit.lo);
    if constexpr (kTwoHalves<D>) result.hi = rounded(n.hi, k.reciprocal.hi, k.unit.hi);
    return narrow(d, result);
  }
  template <class V, class VU>
  static HWY_INLINE V rounded(V n, VU reciprocal, VU unit) {
    const hn::DFromV<V> di;
    const hn::RebindToFloat<decltype(di)> df;
    const auto multiple = hn::Round(hn::ConvertTo(df, n) * hn::BitCast(df, reciprocal));
    return roundToInt(di, multiple * hn::BitCast(df, unit));
  }
  HWY_INLINE Kel16s scalar(std::size_t phase, Kel16s v) const {
    return division::quotient<Kel16s>(v, divisors[phase], scaleFactor);
  }
};

bool ownDiv16s(const Band<2>& b, int sf) {
  if (sf < -7) return divideImages<Kel16s>(b, DivideShorts<true>(sf));
  return divideImages<Kel16s>(b, DivideShorts<false>(sf));
}

template <std::size_t kCycle>
void ownDivC16s(const Band<1>& b, const void* constants, int sf) {
  if (sf < 0) {
    mapImageAndConstant<Kel16s, kCycle, KeepNone>(b, constants, DivideShorts<true>(sf));
  } else {
    mapRows<Kel16s, Kel16s>(b, DivideByShorts<kCycle>(constants, sf));
  }
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
