// Row kernels of the thresholds of 8u.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "threshold/threshold_8u_rows.cc"
#include <hwy/foreach_target.h>
//
#include "threshold/threshold-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

constexpr threshold::ThresholdRows kThresholds8u = kThresholdRows<Kel8u>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::threshold {
template <>
KELI_SELECT_ROWS(ThresholdRows, kThresholds8u, thresholdRows<Kel8u>)
}  // namespace keli::threshold
#endif
