// Row kernels of Add and AddC of 16s.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arith/add_16s_rows.cc"
#include <hwy/foreach_target.h>
//
#include "arith/scaled-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {
constexpr arith::TwoImages kAdd16sTwoImages = kScaledTwoImages<Add, Kel16s>;
constexpr arith::ImageAndConstant kAdd16sConstant = kScaledConstant<Add, Kel16s>;
}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::arith {
template <>
KELI_SELECT_ROWS(TwoImages, kAdd16sTwoImages, twoImages<Add, Kel16s>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kAdd16sConstant, imageAndConstant<Add, Kel16s>)
}  // namespace keli::arith
#endif
