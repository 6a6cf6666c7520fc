// Row kernels of minimum and maximum filters of 32f.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "morphology/extent_32f_rows.cc"
#include <hwy/foreach_target.h>
//
#include "morphology/element-inl.h"
#include "morphology/rectangle-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class Operation>
constexpr morphology::ExtentRows kExtentRows = {
    ownExtentOfRectangle<Operation, Kel32f, WriteAll<Kel32f>>,
    ownExtentOfRectangle<Operation, Kel32f, WriteColours<Kel32f>>,
    nullptr,
    nullptr,
    ownExtentOfElement<Operation, Kel32f, WriteAll<Kel32f>>,
    ownExtentOfElement<Operation, Kel32f, WriteColours<Kel32f>>,
};
constexpr morphology::ExtentRows kMinima32f = kExtentRows<morphology::Min>;
constexpr morphology::ExtentRows kMaxima32f = kExtentRows<morphology::Max>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::morphology {
template <>
KELI_SELECT_ROWS(ExtentRows, kMinima32f, extentRows<Min, Kel32f>)
template <>
KELI_SELECT_ROWS(ExtentRows, kMaxima32f, extentRows<Max, Kel32f>)
}  // namespace keli::morphology
#endif
