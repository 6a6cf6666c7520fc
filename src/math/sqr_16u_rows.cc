// Row kernels of Sqr of 16u: src * src * 2^-scaleFactor, rounded to nearest with ties to even,
// saturated.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "math/sqr_16u_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/scale-inl.h"
#include "math/square-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// 2 to 15. Inputs from 256 * 2^(sf/2) on saturate, and have one result: none has a square of more
// than 2^31 + 2^17, so that rounding does not leave the unsigned lanes.
struct SquareDown : Square<Kel16u> {
  Kel16u most;

  HWY_INLINE explicit SquareDown(int sf)
      : Square<Kel16u>(sf),
        most(static_cast<Kel16u>(std::sqrt(static_cast<double>(0x10000u << sf)) + 1)) {}

  template <class D>
  HWY_INLINE RoundSigned<WideTag<D>> at(D, std::size_t) const {
    return RoundSigned<WideTag<D>>::make(WideTag<D>(), scaleFactor);
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, const RoundSigned<WideTag<D>>& round, V v) const {
    const V least = hn::Min(v, hn::Set(d, most));
    return narrow(d, mapWide(d, products(d, least, least), round));
  }
};

// 16 and more. A square takes all 32 bits, so it is halved first; the last bit of the half is set
// where it lost one: below the bit that decides a tie it only tells that there is something.
struct SquareFarDown : Square<Kel16u> {
  HWY_INLINE explicit SquareFarDown(int sf) : Square<Kel16u>(sf) {}

  template <class D>
  HWY_INLINE RoundSigned<WideTag<D>> at(D, std::size_t) const {
    return RoundSigned<WideTag<D>>::make(WideTag<D>(), scaleFactor - 1);
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, const RoundSigned<WideTag<D>>& round, V v) const {
    return narrow(d, mapWide(d, products(d, v, v), [&](auto square) KELI_LAMBDA {
                    return round(hn::Or(hn::ShiftRight<1>(square), hn::And(square, round.one)));
                  }));
  }
};

template <class Keep>
KelStatus ownSqr16u(const Band<1>& b, int sf) {
  if (sf <= 0) return quietly<Kel16u, Keep>(b, SquareUp<Kel16u>(sf));
  if (sf == 1) return quietly<Kel16u, Keep>(b, SquareHalf<Kel16u>());
  if (sf < 16) return quietly<Kel16u, Keep>(b, SquareDown(sf));
  return quietly<Kel16u, Keep>(b, SquareFarDown(sf));
}

constexpr math::Unary kSqr16u = {ownSqr16u<KeepNone>, ownSqr16u<KeepOthers<4, 3>>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::math {
template <>
KELI_SELECT_ROWS(Unary, kSqr16u, unaryRows<Sqr, Kel16u>)
}  // namespace keli::math
#endif
