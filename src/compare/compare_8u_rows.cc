// Row kernels of Compare and CompareC of 8u.
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "compare/compare_8u_rows.cc"
#include <hwy/foreach_target.h>
//
#include "compare/relations-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

constexpr compare::TwoImageRows kCompare8u = kTwoImageRows<Kel8u>;
constexpr compare::RangeRows kRange8u = kRangeRows<Kel8u>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::compare {
template <>
KELI_SELECT_ROWS(TwoImageRows, kCompare8u, twoImageRows<Kel8u>)
template <>
KELI_SELECT_ROWS(RangeRows, kRange8u, rangeRows<Kel8u>)
}  // namespace keli::compare
#endif
