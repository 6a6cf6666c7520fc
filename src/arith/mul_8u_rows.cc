// Row kernels of Mul and MulC of 8u.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/mul_8u_rows.cc"
#include <hwy/foreach_target.h>
//
#include "arith/scaled-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {
constexpr arith::TwoImages kMul8uTwoImages = kScaledTwoImages<Mul, Kel8u>;
constexpr arith::ImageAndConstant kMul8uConstant = kScaledConstant<Mul, Kel8u>;
}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::arith {
template <>
KELI_SELECT_ROWS(TwoImages, kMul8uTwoImages, twoImages<Mul, Kel8u>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kMul8uConstant, imageAndConstant<Mul, Kel8u>)
}  // namespace keli::arith
#endif
