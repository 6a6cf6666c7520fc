// Cube roots of positive floats within one unit in the last place, the same on every target.
//
// A third of the exponent comes from a third of the bits, a step with a quadratic brings the error
// from 4 % to 1.4e-4, and rounding to eight bits makes h, whose cube is exact in 24. So is
// y - h^3, and Halley's step
//   h + h (y - h^3) / (2 h^3 + y)
// which is below h / 400 then adds an error of no more than a few thousandths of a unit from its
// own roundings, and 2/3 of the cube of h's relative error: a third of a unit at most.
#if defined(KELI_CIE_CUBE_ROOT_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CIE_CUBE_ROOT_INL_H_
#undef KELI_CIE_CUBE_ROOT_INL_H_
#else
#define KELI_CIE_CUBE_ROOT_INL_H_
#endif

#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// y: normal and positive, or infinite, whose root is infinite; what others give is some float.
template <class D>
HWY_INLINE hn::Vec<D> cubeRoot(D d, hn::Vec<D> y) {
  const hn::RebindToSigned<D> di;
  const hn::RebindToUnsigned<D> du;
  const auto c = [&](float v) KELI_LAMBDA { return hn::Set(d, v); };
  const auto third = c(1.f / 3);
  // About y^(-1/3): the difference is below 2^31 for all bits of y.
  const auto bits = hn::ConvertTo(d, hn::BitCast(di, y));
  const auto inverse = hn::BitCast(d, truncateToInt(di, c(1419900000.f) - bits * third));
  // w (1 - e)^(-2/3), where w = y inverse^2 is the root but for e = 1 - w inverse, at most 0.103.
  const auto w = y * (inverse * inverse);
  const auto e = c(1) - w * inverse;
  const auto near = w * (c(0.9999997f) + e * (c(0.67054784f) + e * c(0.559223f)));
  const auto toEight = hn::Add(hn::BitCast(du, near), hn::Set(du, 0x8000u));
  const auto rounded = hn::BitCast(d, hn::And(toEight, hn::Set(du, 0xFFFF0000u)));
  // No h has a cube above all floats.
  const auto h = hn::Min(rounded, c(203 * 0x1p35f));
  const auto cube = h * h * h;
  const auto step = (y - cube) * third;
  const auto root = h + h * (step / (cube + step));
  return hn::IfThenElse(hn::Lt(y, c(std::numeric_limits<float>::infinity())), root, y);
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
