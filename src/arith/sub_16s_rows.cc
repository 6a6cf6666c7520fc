// Row kernels of Sub and SubC of 16s.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/sub_16s_rows.cc"
#include <hwy/foreach_target.h>
//
#include "arith/scaled-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {
constexpr arith::TwoImages kSub16sTwoImages = kScaledTwoImages<Sub, Kel16s>;
constexpr arith::ImageAndConstant kSub16sConstant = kScaledConstant<Sub, Kel16s>;
}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::arith {
template <>
KELI_SELECT_ROWS(TwoImages, kSub16sTwoImages, twoImages<Sub, Kel16s>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kSub16sConstant, imageAndConstant<Sub, Kel16s>)
}  // namespace keli::arith
#endif
