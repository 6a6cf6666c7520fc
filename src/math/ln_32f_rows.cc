// Row kernels of Ln of 32f: within 1 ulp; zero gives -infinity, a negative number the NaN
// 0xFFC00000, each with a warning, a NaN the NaN 0x7FC00000.
#include <limits>

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "math/ln_32f_rows.cc"
#include <hwy/foreach_target.h>
//
#include "math/logarithm-inl.h"
#include "math/unary-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct LnOf32f : UnaryOp {
  static constexpr std::size_t kVectorBytes = 64;
  LnFlags& flags;
  HWY_INLINE explicit LnOf32f(LnFlags& f) : flags(f) {}

  template <class D, class V>
  HWY_INLINE V vector(D d, Nothing, V x) const {
    // Lanes that are not normal positive numbers: with an offset that takes the bits of those to
    // the least integers, they are the larger ones.
    const hn::RebindToSigned<D> di;
    const auto bits = hn::BitCast(di, x) + hn::Set(di, 0x7F800000);
    const V ln = Logarithm<D>::split(d, x).value(d);
    if (HWY_LIKELY(hn::AllFalse(di, bits > hn::Set(di, -0x01000001)))) return ln;
    return special(d, x, flags);
  }
  HWY_INLINE Kel32f scalar(std::size_t, Kel32f x) const {
    const hn::CappedTag<float, 1> d;
    return hn::GetLane(vector(d, Nothing(), hn::Set(d, x)));
  }

 private:
  // For all lanes.
  template <class D>
  static HWY_NOINLINE hn::Vec<D> special(D d, hn::Vec<D> x, LnFlags& flags) {
    using V = hn::Vec<D>;
    const V none = hn::Zero(d), infinity = hn::BitCast(d, bits(d, 0x7F800000));
    const auto small = x < hn::Set(d, std::numeric_limits<float>::min());
    const auto zero = x == none, negative = x < none, number = x == x;
    // Denormal numbers become normal ones.
    auto split = Logarithm<D>::split(d, hn::IfThenElse(small, x * hn::Set(d, 0x1p23f), x));
    split.exponent = split.exponent - hn::IfThenElseZero(small, hn::Set(d, 23.0f));
    V ln = hn::IfThenElse(x == infinity, infinity, split.value(d));
    ln = hn::IfThenElse(zero, hn::Neg(infinity), ln);
    ln = hn::IfThenElse(negative, hn::BitCast(d, bits(d, 0xFFC00000)), ln);
    flags.zero |= !hn::AllFalse(d, zero);
    flags.negative |= !hn::AllFalse(d, negative);
    return hn::IfThenElse(number, ln, hn::BitCast(d, bits(d, 0x7FC00000)));
  }

  template <class D>
  static HWY_INLINE auto bits(D, std::uint32_t b) {
    return hn::Set(hn::RebindToUnsigned<D>(), b);
  }
};

KelStatus ownLn32f(const Band<1>& b, int) {
  return firstOfRows(b, [&](std::size_t y, LnFlags& flags)
                            KELI_LAMBDA { mapRow<Kel32f, Kel32f>(b, y, LnOf32f(flags)); });
}

constexpr math::Unary kLn32f = {ownLn32f, nullptr};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::math {
template <>
KELI_SELECT_ROWS(Unary, kLn32f, unaryRows<Ln, Kel32f>)
}  // namespace keli::math
#endif
