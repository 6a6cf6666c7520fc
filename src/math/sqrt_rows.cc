// Row kernels of Sqrt of integers: sqrt(src) * 2^-scaleFactor, rounded to nearest with ties to
// even, saturated; negative values give 0.
#include <cmath>

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "math/sqrt_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/byte_table-inl.h"
#include "core/scale.h"
#include "core/wide-inl.h"
#include "math/tables.h"
#include "math/unary-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class Keep>
KelStatus ownSqrt8u(const Band<1>& b, int sf) {
  LookUpBytes op;
  op.table = math::kSqrtTables(sf);
  return quietly<Kel8u, Keep>(b, op);
}

// Why a root that is rounded twice is exact. Let x be the root times 2^s, s = -scaleFactor, and t a
// tie, k + 1/2. For s of 0 and more, x^2 is an integer and t^2 is not, so |x^2 - t^2| is at least
// 1/4 and |x - t| at least 1 / (8 k + 8). Single precision errs by less than x * 2^-24, which is
// less where x is below 2^10, that is up to s = 2; double precision errs by less than x * 2^-53.
// For s below 0 the root itself, below 256, is compared with t * 2^-s, an integer: where they
// differ it is by more than 1/513, and where they are equal the root is exact.
template <class T, bool kDoubles>
struct Root : UnaryOp {
  static constexpr std::size_t kVectorBytes = 64;
  float factor;

  // Beyond -17 every root but 0 saturates, beyond 9 they all give 0.
  HWY_INLINE explicit Root(int sf)
      : factor(static_cast<float>(powerOfTwo(sf < -17  ? 17
                                             : sf > 10 ? -10
                                                       : -sf))) {}

  template <class D, class V>
  HWY_INLINE V vector(D d, Nothing, V v) const {
    const V positive = hn::Max(v, hn::Zero(d));
    return narrow(d, mapWide(d, widen(d, positive), [&](auto wide) KELI_LAMBDA {
                    const hn::RebindToSigned<WideTag<D>> di;
                    const hn::RebindToFloat<decltype(di)> df;
                    const auto real = hn::ConvertTo(df, hn::BitCast(di, wide));
                    return hn::BitCast(WideTag<D>(), root(df, real));
                  }));
  }
  HWY_INLINE T scalar(std::size_t, T v) const {
    const double root = v > 0 ? std::sqrt(static_cast<double>(v)) * static_cast<double>(factor) : 0;
    return saturate<T>(nearestInteger(root));
  }

 private:
  template <class DF, class V>
  HWY_INLINE auto root(DF df, V v) const {
    if constexpr (kDoubles) {
      return mapDoubles(
          hn::RebindToSigned<decltype(df)>(),
          [&](auto dd, auto x) KELI_LAMBDA {
            return hn::Round(hn::Sqrt(x) * hn::Set(dd, static_cast<double>(factor)));
          },
          v);
    } else {
      return roundToInt(hn::RebindToSigned<decltype(df)>(), hn::Sqrt(v) * hn::Set(df, factor));
    }
  }
};

template <class T, class Keep>
KelStatus ownSqrt16(const Band<1>& b, int sf) {
  if (sf < -2) return quietly<T, Keep>(b, Root<T, true>(sf));
  return quietly<T, Keep>(b, Root<T, false>(sf));
}

constexpr math::Unary kSqrt8u = {ownSqrt8u<KeepNone>, ownSqrt8u<KeepOthers<4, 3>>};
constexpr math::Unary kSqrt16u = {ownSqrt16<Kel16u, KeepNone>, ownSqrt16<Kel16u, KeepOthers<4, 3>>};
constexpr math::Unary kSqrt16s = {ownSqrt16<Kel16s, KeepNone>, ownSqrt16<Kel16s, KeepOthers<4, 3>>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::math {
template <>
KELI_SELECT_ROWS(Unary, kSqrt8u, unaryRows<Sqrt, Kel8u>)
template <>
KELI_SELECT_ROWS(Unary, kSqrt16u, unaryRows<Sqrt, Kel16u>)
template <>
KELI_SELECT_ROWS(Unary, kSqrt16s, unaryRows<Sqrt, Kel16s>)
}  // namespace keli::math
#endif
