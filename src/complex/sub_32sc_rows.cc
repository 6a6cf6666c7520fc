// Row kernels of Sub and SubC of 32sc.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "complex/sub_32sc_rows.cc"
#include <hwy/foreach_target.h>
//
#include "complex/sum_32sc-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {
constexpr arith::TwoImages kSub = kTwoImages<Kel32sc, Sums32<Sub>>;
constexpr arith::ImageAndConstant kSubC = kImageAndConstant<Kel32sc, Sums32<Sub>>;
}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::arith {
template <>
KELI_SELECT_ROWS(TwoImages, kSub, twoImages<Sub, Kel32sc>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kSubC, imageAndConstant<Sub, Kel32sc>)
}  // namespace keli::arith
#endif
