// Row kernels of Add and AddC of 8u.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/add_8u_rows.cc"
#include <hwy/foreach_target.h>
//
#include "arith/scaled-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {
constexpr arith::TwoImages kAdd8uTwoImages = kScaledTwoImages<Add, Kel8u>;
constexpr arith::ImageAndConstant kAdd8uConstant = kScaledConstant<Add, Kel8u>;
}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::arith {
template <>
KELI_SELECT_ROWS(TwoImages, kAdd8uTwoImages, twoImages<Add, Kel8u>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kAdd8uConstant, imageAndConstant<Add, Kel8u>)
}  // namespace keli::arith
#endif
