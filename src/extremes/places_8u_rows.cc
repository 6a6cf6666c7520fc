// Row kernels of MinIndx and MaxIndx of 8u.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "extremes/places_8u_rows.cc"
#include <hwy/foreach_target.h>
//
#include "extremes/places-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

constexpr extremes::PlaceRows<Kel8u> kMin = kPlaceRows<Kel8u, extremes::Min>;
constexpr extremes::PlaceRows<Kel8u> kMax = kPlaceRows<Kel8u, extremes::Max>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::extremes {
template <>
KELI_SELECT_ROWS(PlaceRows<Kel8u>, kMin, placeRows<Min, Kel8u>)
template <>
KELI_SELECT_ROWS(PlaceRows<Kel8u>, kMax, placeRows<Max, Kel8u>)
}  // namespace keli::extremes
#endif
