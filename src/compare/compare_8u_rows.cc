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

constexpr compare::CompareRows kCompare8u = kCompareRows<Kel8u>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::compare {
template <>
KELI_SELECT_ROWS(CompareRows, kCompare8u, compareRows<Kel8u>)
}  // namespace keli::compare
#endif
