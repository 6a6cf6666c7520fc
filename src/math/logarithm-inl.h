// The natural logarithm of normal positive numbers in single precision, within 1 ulp.
//
// x = 2^e m with m in [sqrt(1/2), sqrt 2); with f = m - 1 and s = f / (2 + f), ln m = 2 artanh s =
// 2 s + s R(s^2) = f - f^2/2 + s (f^2/2 + R). The first two terms of ln x = e ln 2 + f + ... are
// added exactly, so that what is rounded is small beside the result but for the last sum.
#if defined(KELI_MATH_LOGARITHM_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_MATH_LOGARITHM_INL_H_
#undef KELI_MATH_LOGARITHM_INL_H_
#else
#define KELI_MATH_LOGARITHM_INL_H_
#endif

#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class D>
struct Logarithm {
  using V = hn::Vec<D>;
  V exponent;  // e
  V fraction;  // f

  static HWY_INLINE Logarithm split(D d, V x) {
    const hn::RebindToSigned<D> di;
    const auto rootOfHalf = hn::Set(di, 0x3F3504F3);  // the bits of sqrt(1/2)
    const auto above = hn::BitCast(di, x) - rootOfHalf;
    const auto m = hn::And(above, hn::Set(di, 0x7FFFFF)) + rootOfHalf;
    return {hn::ConvertTo(d, hn::ShiftRight<23>(above)), hn::BitCast(d, m) - hn::Set(d, 1.0f)};
  }

  // R(z) = 2 artanh(sqrt z) / sqrt z - 2 by its best approximation of the form z (a + b z + c z^2)
  // on z below 0.02944, from the exchange algorithm: the error of 2 + R is below 2^-29. The high
  // part of ln 2 has 12 bits, so that its product with e is exact.
  HWY_INLINE V value(D d) const {
    const V f = fraction, one = hn::Set(d, 1.0f);
    const V s = f / (f + (one + one)), z = s * s;
    const V a = hn::Set(d, 0x1.55557ap-1f), b = hn::Set(d, 0x1.995eb4p-2f),
            c = hn::Set(d, 0x1.31e3a6p-2f);
    const V rest = z * (a + z * (b + z * c));
    const V half = hn::Set(d, 0.5f) * f * f;
    const V high = exponent * hn::Set(d, 0x1.62ep-1f);
    const V low = exponent * hn::Set(d, 0x1.0bfbe8p-15f);
    const V sum = high + f, lost = f - (sum - high);
    return sum + (lost + ((s * (half + rest) - half) + low));
  }
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
