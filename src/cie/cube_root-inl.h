// Cube roots of positive floats, the same on every target.
//
// A third of the bits gives about y^(-1/3), and with it w = y^(1/3) (1 - e)^(2/3), where e is at
// most 0.103 in size and known: (1 - e)^(-2/3) is then a polynomial. One of degree four leaves an
// error of 5e-7. For the last unit one of degree two, whose error is 1.4e-4, is enough: rounded to
// eight bits its root h has a cube that is exact in 24. So is y - h^3, and Halley's step
//   h + h (y - h^3) / (2 h^3 + y),
// below h / 240, adds a hundredth of a unit from its own roundings, and 2/3 of the cube of h's
// relative error, which is up to 1 / 247: with the last rounding less than 0.9 of a unit.
#if defined(KELI_CIE_CUBE_ROOT_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_CIE_CUBE_ROOT_INL_H_
#undef KELI_CIE_CUBE_ROOT_INL_H_
#else
#define KELI_CIE_CUBE_ROOT_INL_H_
#endif

#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// y^(1/3) = w (1 - e)^(-2/3)
template <class D>
struct RootParts {
  hn::Vec<D> w, e;
};

template <class D>
HWY_INLINE RootParts<D> rootParts(D d, hn::Vec<D> y) {
  const hn::RebindToSigned<D> di;
  const auto c = [&](float v) KELI_LAMBDA { return hn::Set(d, v); };
  // The difference fits 31 bits whatever those of y are.
  const auto third = hn::ConvertTo(d, hn::BitCast(di, y)) * c(1.f / 3);
  const auto inverse = hn::BitCast(d, truncateToInt(di, c(1419900000.f) - third));
  const auto w = y * (inverse * inverse);
  return {w, c(1) - w * inverse};
}

// Within 5e-7 of the value, for normal y above 0; what others give is some float.
template <class D>
HWY_INLINE hn::Vec<D> nearCubeRoot(D d, hn::Vec<D> y) {
  const auto c = [&](float v) KELI_LAMBDA { return hn::Set(d, v); };
  const auto [w, e] = rootParts(d, y);
  return w * (c(1) + e * (c(0.66665218f) +
                          e * (c(0.55553415f) + e * (c(0.49937873f) + e * c(0.45870015f)))));
}

// Within one unit in the last place, for normal y above 0; infinite y and those that are no numbers
// stay. What others give is some float.
template <class D>
HWY_INLINE hn::Vec<D> cubeRoot(D d, hn::Vec<D> y) {
  const hn::RebindToUnsigned<D> du;
  const auto c = [&](float v) KELI_LAMBDA { return hn::Set(d, v); };
  const auto [w, e] = rootParts(d, y);
  const auto near = w * (c(0.9999963f) + e * (c(0.6705501f) + e * c(0.5598777f)));
  const auto toEight = hn::Add(hn::BitCast(du, near), hn::Set(du, 0x8000u));
  const auto rounded = hn::BitCast(d, hn::And(toEight, hn::Set(du, 0xFFFF0000u)));
  // No h has a cube above all floats.
  const auto h = hn::Min(rounded, c(203 * 0x1p35f));
  const auto cube = h * h * h;
  const auto step = (y - cube) * c(1.f / 3);
  const auto root = h + h * (step / (cube + step));
  return hn::IfThenElse(hn::Lt(y, c(std::numeric_limits<float>::infinity())), root, y);
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
