// Row kernels of Compare and CompareC of 32f.
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "compare/compare_32f_rows.cc"
#include <hwy/foreach_target.h>
//
#include "compare/relations-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

constexpr compare::CompareRows kCompare32f = kCompareRows<Kel32f>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::compare {
template <>
KELI_SELECT_ROWS(CompareRows, kCompare32f, compareRows<Kel32f>)
}  // namespace keli::compare
#endif
