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

struct SquareHalf : Square<Kel16u> {  // 1
  HWY_INLINE SquareHalf() : Square<Kel16u>(1) {}

  template <class D, class V>
  HWY_INLINE V vector(D d, Nothing, V v) const {
    const auto one = hn::Set(WideTag<D>(), 1);
    return narrow(d, mapWide(d, products(d, v, v), [&](auto square) KELI_LAMBDA {
                    const auto half = hn::ShiftRight<1>(square);
                    return half + hn::And(hn::And(half, square), one);
                  }));
  }
};

// 2 and more. A square takes all 32 bits, so it is halved first; the last bit of the half is set
// where it lost one: below the bit that decides a tie it only tells that there is something.
struct SquareDown : Square<Kel16u> {
  HWY_INLINE explicit SquareDown(int sf) : Square<Kel16u>(sf) {}

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
  if (sf == 1) return quietly<Kel16u, Keep>(b, SquareHalf());
  return quietly<Kel16u, Keep>(b, SquareDown(sf));
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
