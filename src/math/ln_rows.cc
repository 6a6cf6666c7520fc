// Row kernels of Ln: the natural logarithm; of integers times 2^-scaleFactor, rounded to nearest
// with ties to even, saturated, and 0 where it is not a number.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "math/ln_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/byte_table-inl.h"
#include "core/scale.h"
#include "core/wide-inl.h"
#include "math/logarithm-inl.h"
#include "math/tables.h"
#include "math/unary-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct LnOf8u : LookUpBytes {
  bool& zero;

  HWY_INLINE LnOf8u(const std::uint8_t* t, bool& z) : LookUpBytes{t}, zero(z) {}
  template <class D, class V>
  HWY_INLINE V vector(D d, const Table256<D>& entries, V v) const {
    zero |= !hn::AllFalse(d, v == hn::Zero(d));
    return entries(v);
  }
  HWY_INLINE Kel8u scalar(std::size_t, Kel8u v) const {
    zero |= v == 0;
    return table[v];
  }
};

KelStatus ownLn8u(const Band<1>& b, int sf) {
  bool zero = false;
  mapRows<Kel8u, Kel8u>(b, LnOf8u(math::kLnTables(sf), zero));
  return zero ? kelStatusZeroLogWarning : kelStatusOk;
}

// No result of a scale factor of -1 and more is nearer to a tie than 10^-6 of itself, none of a
// smaller one nearer than 1.5 * 10^-11: single precision does for the former, and for the latter
// double precision with the artanh series up to s^13.
template <bool kDoubles>
struct LnOf16s : UnaryOp {
  static constexpr std::size_t kVectorBytes = 64;
  LnFlags& flags;
  float factor;

  // Beyond -17 all but 0 and 1 saturate, beyond 5 all give 0.
  HWY_INLINE LnOf16s(int sf, LnFlags& f)
      : flags(f),
        factor(static_cast<float>(powerOfTwo(sf < -17 ? 17
                                             : sf > 5 ? -5
                                                      : -sf))) {}

  template <class D, class V>
  HWY_INLINE V vector(D d, Nothing, V v) const {
    const V one = hn::Set(d, 1);
    if (HWY_UNLIKELY(!hn::AllFalse(d, v < one))) {
      flags.zero |= !hn::AllFalse(d, v == hn::Zero(d));
      flags.negative |= !hn::AllFalse(d, v < hn::Zero(d));
    }
    return narrow(d, mapWide(d, widen(d, hn::Max(v, one)), [&](auto wide) KELI_LAMBDA {
                    const hn::RebindToFloat<WideTag<D>> df;
                    return logarithm(df, hn::ConvertTo(df, wide));
                  }));
  }
  HWY_INLINE Kel16s scalar(std::size_t, Kel16s v) const {
    flags.zero |= v == 0;
    flags.negative |= v < 0;
    if (v <= 1) return 0;
    return saturate<Kel16s>(nearestInteger(math::logarithm(v) * static_cast<double>(factor)));
  }

 private:
  template <class DF, class V>
  HWY_INLINE auto logarithm(DF df, V v) const {
    const auto split = Logarithm<DF>::split(df, v);
    if constexpr (kDoubles) {
      return mapDoubles(
          hn::RebindToSigned<decltype(df)>(),
          [&](auto dd, auto f, auto e) KELI_LAMBDA {
            const auto s = f / (f + hn::Set(dd, 2.0)), z = s * s;
            auto sum = hn::Set(dd, 1.0 / 13);
            for (int k = 11; k >= 1; k -= 2) sum = hn::Set(dd, 1.0 / k) + z * sum;
            const auto ln = e * hn::Set(dd, math::kLn2High + math::kLn2Low) + (s + s) * sum;
            return hn::Round(ln * hn::Set(dd, static_cast<double>(factor)));
          },
          split.fraction, split.exponent);
    } else {
      return roundToInt(hn::RebindToSigned<decltype(df)>(), split.value(df) * hn::Set(df, factor));
    }
  }
};

KelStatus ownLn16s(const Band<1>& b, int sf) {
  return firstOfRows(b, [&](std::size_t y, LnFlags& flags) KELI_LAMBDA {
    if (sf < -1) {
      mapRow<Kel16s, Kel16s>(b, y, LnOf16s<true>(sf, flags));
    } else {
      mapRow<Kel16s, Kel16s>(b, y, LnOf16s<false>(sf, flags));
    }
  });
}

constexpr math::Unary kLn8u = {ownLn8u, nullptr};
constexpr math::Unary kLn16s = {ownLn16s, nullptr};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::math {
template <>
KELI_SELECT_ROWS(Unary, kLn8u, unaryRows<Ln, Kel8u>)
template <>
KELI_SELECT_ROWS(Unary, kLn16s, unaryRows<Ln, Kel16s>)
}  // namespace keli::math
#endif
