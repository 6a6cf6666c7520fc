// Row kernels of Compare and CompareC of 16s.
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "compare/compare_16s_rows.cc"
#include <hwy/foreach_target.h>
//
#include "compare/relations-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

constexpr compare::TwoImageRows kCompare16s = kTwoImageRows<Kel16s>;
constexpr compare::RangeRows kRange16s = kRangeRows<Kel16s>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::compare {
template <>
KELI_SELECT_ROWS(TwoImageRows, kCompare16s, twoImageRows<Kel16s>)
template <>
KELI_SELECT_ROWS(RangeRows, kRange16s, rangeRows<Kel16s>)
}  // namespace keli::compare
#endif
