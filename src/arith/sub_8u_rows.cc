// Row kernels of Sub and SubC of 8u.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/sub_8u_rows.cc"
#include <hwy/foreach_target.h>
//
#include "arith/scaled-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {
constexpr arith::TwoImages kSub8uTwoImages = kScaledTwoImages<Sub, Kel8u>;
constexpr arith::ImageAndConstant kSub8uConstant = kScaledConstant<Sub, Kel8u>;
}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::arith {
template <>
KELI_SELECT_ROWS(TwoImages, kSub8uTwoImages, twoImages<Sub, Kel8u>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kSub8uConstant, imageAndConstant<Sub, Kel8u>)
}  // namespace keli::arith
#endif
