// Row kernels of Div of 8u: R[src1] * src2 * 2^-scaleFactor in single precision, rounded to nearest
// with ties to even, at most 255. R[k] is 1/k to six decimal places.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "division/div_8u_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/vector_tables-inl.h"
#include "division/quotient-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct DivideBytes {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 2;
  static constexpr std::size_t kVectorBytes = 64;
  // R[k] is formed as a count of millionths, the nearest integer to 10^6 / k, times 10^-6. Of all
  // 10^6 / k that of k = 128 alone is a tie; the next float above 10^6 as the dividend takes it
  // upwards and moves no other across one. The product with the rounded 10^-6 is not R[k] to the
  // last bit for 12 of the k, but no pair of bytes has another result at any scale factor.
  static constexpr float kMillion = 1000000.0625f;
  static constexpr float kMillionth = 1e-6f;

  float factor;  // 2^-scaleFactor

  // The largest product, R[0] * 255, is below 2^40, and the smallest but 0 above 2^-8.
  explicit DivideBytes(int scaleFactor)
      : factor(division::scaleOf(std::clamp(scaleFactor, -17, 42))) {}

  template <class D>
  HWY_INLINE Nothing at(D, std::size_t) const {
    return {};
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, Nothing, V a, V b) const {
    return mapAsInts(d, a, b, [&](auto divisor, auto dividend) KELI_LAMBDA {
      const hn::DFromV<decltype(divisor)> di;
      const hn::RebindToFloat<decltype(di)> df;
      const auto millionths = hn::Round(hn::Set(df, kMillion) / hn::ConvertTo(df, divisor));
      // A power of two as a factor loses nothing, wherever it stands. Infinity comes down to R[0].
      const auto reciprocal = hn::Min(millionths * hn::Set(df, kMillionth * factor),
                                      hn::Set(df, division::kReciprocals[0] * factor));
      const auto product = reciprocal * hn::ConvertTo(df, dividend);
      return roundToInt(di, hn::Min(product, hn::Set(df, 255)));
    });
  }
  HWY_INLINE Kel8u scalar(std::size_t, Kel8u a, Kel8u b) const {
    const float product = division::kReciprocals[a] * static_cast<float>(b) * factor;
    return static_cast<Kel8u>(division::nearestEven(product < 255 ? product : 255));
  }
};

// Without a scale factor, where bytes are looked up across a vector. With y = floor(257 * src2 * M
// / 2^16), M[k] about 2^25 / (257 k), the quotient is y / 512. Quotients that are not ties are 1 /
// (2k) from one or more, which y tells apart. Ties come to 255 modulo 512 for the k whose
// reciprocal has no error, and else to the side of its error: kMultipliers. y / 512 rounds with
// ties at 255.
struct LookUpReciprocals {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 1;

  template <class D>
  struct Tables {
    Table256<D> low, high;  // the bytes of M
  };

  template <class D>
  HWY_INLINE Tables<D> at(D, std::size_t) const {
    return {Table256<D>::make(division::kMultipliers.low),
            Table256<D>::make(division::kMultipliers.high)};
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, const Tables<D>& t, V a, V b) const {
    const hn::Repartition<std::uint16_t, D> dw;
    const auto upper = hn::Set(dw, 0xFF00);
    const auto low = hn::BitCast(dw, t.low(a));
    const auto high = hn::BitCast(dw, t.high(a));
    const auto wide = hn::BitCast(dw, b);
    // The bytes at even places, then those at odd ones.
    const auto even = rounded(dw, hn::Or(hn::AndNot(upper, low), hn::ShiftLeft<8>(high)),
                              hn::Or(hn::AndNot(upper, wide), hn::ShiftLeft<8>(wide)));
    const auto odd = rounded(dw, hn::Or(hn::ShiftRight<8>(low), hn::And(upper, high)),
                             hn::Or(hn::ShiftRight<8>(wide), hn::And(upper, wide)));
    const V q = hn::BitCast(d, hn::Or(hn::ShiftRight<8>(even), hn::And(upper, odd)));
    // M[0] is 0, and 2^16 is too small for M[1].
    const V zero = hn::Zero(d);
    const auto positive = hn::And(hn::Eq(a, zero), hn::Ne(b, zero));
    return hn::IfThenElse(positive, hn::Set(d, 255),
                          hn::IfThenElse(hn::Eq(a, hn::Set(d, 1)), b, q));
  }

  // 256 times the rounded y / 512, and a rest: the average is (y + 256 + odd) / 2 without overflow.
  template <class DW, class V>
  static HWY_INLINE V rounded(DW dw, V m, V dividend) {
    const V y = hn::MulHigh(dividend, m);
    const V odd = hn::And(hn::ShiftRight<9>(y), hn::Set(dw, 1));
    return hn::AverageRound(y, odd + hn::Set(dw, 255));
  }

  HWY_INLINE Kel8u scalar(std::size_t, Kel8u a, Kel8u b) const {
    return DivideBytes(0).scalar(0, a, b);
  }
};

template <class D>
bool lookUpRows(D d, const Band<2>& b) {
  using Op = NotingZeros<LookUpReciprocals>;
  bool zero = false;
  for (std::size_t y = 0; y < b.rows; ++y) {
    map::Row<Op, KeepNone, Kel8u, Kel8u, Kel8u>::vectors<false>(
        d, Op{LookUpReciprocals(), &zero}, 0, b.n, b.dstRow<Kel8u>(y), b.srcRow<Kel8u>(0, y),
        b.srcRow<Kel8u>(1, y));
  }
  return zero;
}

bool ownDiv8u(const Band<2>& b, int scaleFactor) {
  if constexpr (kPermutesBytes) {
    const hn::ScalableTag<Kel8u> d;
    if (scaleFactor == 0 && b.n >= hn::MaxLanes(decltype(d)())) return lookUpRows(d, b);
  }
  return divideImages<Kel8u>(b, DivideBytes(scaleFactor));
}

constexpr division::TwoImages kDiv8u = {ownDiv8u, nullptr};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::division {
template <>
KELI_SELECT_ROWS(TwoImages, kDiv8u, twoImages<Kel8u>)
}  // namespace keli::division
#endif
