// Row kernels of Mul and MulC of 16s.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/mul_16s_rows.cc"
#include <hwy/foreach_target.h>
//
#include "arith/scaled-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {
constexpr arith::TwoImages kMul16sTwoImages = kScaledTwoImages<Mul, Kel16s>;
constexpr arith::ImageAndConstant kMul16sConstant = kScaledConstant<Mul, Kel16s>;
}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::arith {
template <>
KELI_SELECT_ROWS(TwoImages, kMul16sTwoImages, twoImages<Mul, Kel16s>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kMul16sConstant, imageAndConstant<Mul, Kel16s>)
}  // namespace keli::arith
#endif
