// Row kernels of Div of 8u: R[src1] * src2 * 2^-scaleFactor in single precision, rounded to nearest
// with ties to even, at most 255. R[k] is 1/k to six decimal places.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "division/div_8u_rows.cc"
#include <hwy/foreach_target.h>
//
#include "division/quotient-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct DivideBytes {
  static constexpr std::size_t kPeriod = 1;
  static constexpr std::size_t kUnroll = 2;
  // R[k] is formed as a count of millionths, the nearest integer to 10^6 / k, times 10^-6. Of all
  // 10^6 / k that of k = 128 alone is a tie; the next float above 10^6 as the dividend takes it
  // upwards and moves no other across one. The product with the rounded 10^-6 is not R[k] to the
  // last bit for 12 of the k, but no pair of bytes has another result at any scale factor.
  static constexpr float kMillion = 1000000.0625f;
  static constexpr float kMillionth = 1e-6f;

  float factor;  // 2^-scaleFactor

  // The largest product, R[0] * 255, is below 2^40, and the smallest but 0 above 2^-8.
  explicit DivideBytes(int scaleFactor)
      : factor(division::powerOfTwo(std::clamp(scaleFactor, -17, 42))) {}

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

bool ownDiv8u(const Band<2>& b, int scaleFactor) {
  return divideImages<Kel8u, KeepNone>(b, DivideBytes(scaleFactor));
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
