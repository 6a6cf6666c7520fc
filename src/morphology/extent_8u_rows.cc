// Row kernels of minimum and maximum filters of 8u.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "morphology/extent_8u_rows.cc"
#include <hwy/foreach_target.h>
//
#include "morphology/element-inl.h"
#include "morphology/rectangle-inl.h"
#include "morphology/square-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class Operation>
constexpr morphology::ExtentRows kExtentRows = {
    ownExtentOfRectangle<Operation, Kel8u, WriteAll<Kel8u>>,
    ownExtentOfRectangle<Operation, Kel8u, WriteColours<Kel8u>>,
    ownExtentOfSquare<Operation, Kel8u, WriteAll<Kel8u>>,
    ownExtentOfSquare<Operation, Kel8u, WriteColours<Kel8u>>,
    ownExtentOfElement<Operation, Kel8u, WriteAll<Kel8u>>,
    ownExtentOfElement<Operation, Kel8u, WriteColours<Kel8u>>,
};
constexpr morphology::ExtentRows kMinima8u = kExtentRows<morphology::Min>;
constexpr morphology::ExtentRows kMaxima8u = kExtentRows<morphology::Max>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::morphology {
template <>
KELI_SELECT_ROWS(ExtentRows, kMinima8u, extentRows<Min, Kel8u>)
template <>
KELI_SELECT_ROWS(ExtentRows, kMaxima8u, extentRows<Max, Kel8u>)
}  // namespace keli::morphology
#endif
