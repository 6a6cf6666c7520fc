// Row kernels of Mul and MulC of 16sc: (a + bi)(c + di) = (ac - bd) + (ad + bc)i.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "complex/mul_16sc_rows.cc"
#include <hwy/foreach_target.h>
//
#include "complex/product-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {
constexpr arith::TwoImages kMul = kTwoImages<Kel16sc, Products<Kel16sc>>;
constexpr arith::ImageAndConstant kMulC = kImageAndConstant<Kel16sc, Products<Kel16sc>>;
}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::arith {
template <>
KELI_SELECT_ROWS(TwoImages, kMul, twoImages<Mul, Kel16sc>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kMulC, imageAndConstant<Mul, Kel16sc>)
}  // namespace keli::arith
#endif
