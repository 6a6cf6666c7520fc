// Row kernels of minimum and maximum filters of 16s.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "morphology/extent_16s_rows.cc"
#include <hwy/foreach_target.h>
//

#include "morphology/rectangle-inl.h"
#include "morphology/square-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class Operation>
constexpr morphology::ExtentRows kExtentRows = {
    ownExtentOfRectangle<Operation, Kel16s, WriteAll<Kel16s>>,
    ownExtentOfRectangle<Operation, Kel16s, WriteColours<Kel16s>>,
    ownExtentOfSquare<Operation, Kel16s, WriteAll<Kel16s>>,
    ownExtentOfSquare<Operation, Kel16s, WriteColours<Kel16s>>,
    nullptr,
    nullptr,
};
constexpr morphology::ExtentRows kMinima16s = kExtentRows<morphology::Min>;
constexpr morphology::ExtentRows kMaxima16s = kExtentRows<morphology::Max>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::morphology {
template <>
KELI_SELECT_ROWS(ExtentRows, kMinima16s, extentRows<Min, Kel16s>)
template <>
KELI_SELECT_ROWS(ExtentRows, kMaxima16s, extentRows<Max, Kel16s>)
}  // namespace keli::morphology
#endif
