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

constexpr compare::TwoImageRows kCompare32f = kTwoImageRows<Kel32f>;
constexpr compare::ConstantRows kConstant32f = {
    {kWithFloat<Less>, kWithFloat<LessEq>, kWithFloat<Equal>}};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::compare {
template <>
KELI_SELECT_ROWS(TwoImageRows, kCompare32f, twoImageRows<Kel32f>)
KELI_SELECT_ROWS(ConstantRows, kConstant32f, constantRows)
}  // namespace keli::compare
#endif
