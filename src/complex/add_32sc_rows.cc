// Row kernels of Add and AddC of 32sc.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "complex/add_32sc_rows.cc"
#include <hwy/foreach_target.h>
//
#include "complex/sum_32sc-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {
constexpr arith::TwoImages kAdd = kTwoImages<Kel32sc, Sums32<Add>>;
constexpr arith::ImageAndConstant kAddC = kImageAndConstant<Kel32sc, Sums32<Add>>;
}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::arith {
template <>
KELI_SELECT_ROWS(TwoImages, kAdd, twoImages<Add, Kel32sc>)
template <>
KELI_SELECT_ROWS(ImageAndConstant, kAddC, imageAndConstant<Add, Kel32sc>)
}  // namespace keli::arith
#endif
