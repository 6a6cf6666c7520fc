// Row kernels of DivC of 8u: src / value * 2^-scaleFactor, the exact quotient rounded to nearest
// with ties to even, saturated.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "division/div_constant_8u_rows.cc"
#include <hwy/foreach_target.h>
//
#include "division/quotient-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Scale factors below 0. The quotient x = n / d in single precision, n = dividend * 2^-scaleFactor,
// has an error of at most x * 2^-24, exact quotients that are no ties lie at least 1 / (2d) from
// one: results below 256 are right, as their n is below 2^16.
struct DivideBytesUp {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 2;
  static constexpr std::size_t kVectorBytes = 64;
  int scaleFactor;
  float factor;

  explicit DivideBytesUp(int sf)
      : scaleFactor(std::max(sf, -17)), factor(division::scaleOf(scaleFactor)) {}

  template <class D>
  HWY_INLINE Nothing at(D, std::size_t) const {
    return {};
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, Nothing, V a, V b) const {
    return mapAsInts(d, a, b, [&](auto divisor, auto dividend) KELI_LAMBDA {
      const hn::DFromV<decltype(divisor)> di;
      const hn::RebindToFloat<decltype(di)> df;
      const auto n = hn::ConvertTo(df, dividend) * hn::Set(df, factor);
      return roundToInt(di, hn::Min(n / hn::ConvertTo(df, divisor), hn::Set(df, 255)));
    });
  }
  HWY_INLINE Kel8u scalar(std::size_t, Kel8u a, Kel8u b) const {
    return division::quotient<Kel8u>(b, a, scaleFactor);
  }
};

// Scale factors of 0 and more, by a product with a reciprocal in fixed point. With d = value *
// 2^scaleFactor, at most 512, and f the smallest for which 2^f is at least 2d, y = floor(src * m /
// 256), m = ceil(2^(f+8) / d), is floor(src * 2^f / d + e) with e below 1. A tie, whose src * 2^f /
// d is the odd multiple of 2^(f-1) exactly, gives just that; other quotients lie at least 2^f /
// (2d), so 1, from one, and y on the same side. So y rounds, by 2^f, to what the quotient rounds
// to.
template <std::size_t kCycle>
struct DivideBytesDown {
  static constexpr std::size_t kPeriod = kCycle;
  static constexpr std::size_t kUnroll = kCycle == 3 ? 3 : 2;
  static constexpr std::size_t kVectorBytes = 64;

  Kel8u divisors[kCycle];
  int scaleFactor;
  WideCycle<Kel8u, kCycle> m, shift, bias;  // m, 2^(16-f), 2^(f-1) - 1

  DivideBytesDown(const void* constants, int sf) : scaleFactor(sf) {
    for (std::size_t k = 0; k < kCycle; ++k) {
      divisors[k] = load(static_cast<const Kel8u*>(constants) + k);
      const std::uint32_t d = std::min(std::uint32_t{divisors[k]} << std::min(sf, 9), 512u);
      int f = 1;
      while ((1u << f) < 2 * d) ++f;
      m.set(k, ((256u << f) + d - 1) / d);
      shift.set(k, 1u << (16 - f));
      bias.set(k, (1u << (f - 1)) - 1);
    }
  }

  template <class D>
  struct Vectors {
    Wide<D> m, shift, bias;
  };

  template <class D>
  HWY_INLINE Vectors<D> at(D d, std::size_t phase) const {
    return {m.at(d, phase), shift.at(d, phase), bias.at(d, phase)};
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, const Vectors<D>& k, V v) const {
    // The dividend in the upper byte: the high product takes off 16 bits, of which 8 are its own.
    const Wide<D> n = pairUp(d, hn::Zero(d), v);
    const WideTag<D> dw;
    Wide<D> result;
    result.lo = rounded(dw, hn::MulHigh(n.lo, k.m.lo), k.shift.lo, k.bias.lo);
    if constexpr (kTwoHalves<D>)
      result.hi = rounded(dw, hn::MulHigh(n.hi, k.m.hi), k.shift.hi, k.bias.hi);
    return narrow(d, result);
  }
  template <class DW, class V>
  static HWY_INLINE V rounded(DW dw, V y, V shift, V bias) {
    const V odd = hn::And(hn::MulHigh(y, shift), hn::Set(dw, 1));
    return hn::MulHigh(y + bias + odd, shift);
  }
  HWY_INLINE Kel8u scalar(std::size_t phase, Kel8u v) const {
    return division::quotient<Kel8u>(v, divisors[phase], scaleFactor);
  }
};

template <std::size_t kCycle>
void ownDivC8u(const Band<1>& b, const void* constants, int sf) {
  if (sf < 0) {
    mapImageAndConstant<Kel8u, kCycle, KeepNone>(b, constants, DivideBytesUp(sf));
  } else {
    mapRows<Kel8u, Kel8u>(b, DivideBytesDown<kCycle>(constants, sf));
  }
}

constexpr division::ImageByConstant kDivC8u = {ownDivC8u<4>, ownDivC8u<3>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::division {
template <>
KELI_SELECT_ROWS(ImageByConstant, kDivC8u, imageByConstant<Kel8u>)
}  // namespace keli::division
#endif
