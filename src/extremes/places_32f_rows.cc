// Row kernels of MinIndx and MaxIndx of 32f.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "extremes/places_32f_rows.cc"
#include <hwy/foreach_target.h>
//
#include "extremes/places-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

constexpr extremes::PlaceRows<Kel32f> kMin = kPlaceRows<Kel32f, extremes::Min>;
constexpr extremes::PlaceRows<Kel32f> kMax = kPlaceRows<Kel32f, extremes::Max>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::extremes {
template <>
KELI_SELECT_ROWS(PlaceRows<Kel32f>, kMin, placeRows<Min, Kel32f>)
template <>
KELI_SELECT_ROWS(PlaceRows<Kel32f>, kMax, placeRows<Max, Kel32f>)
}  // namespace keli::extremes
#endif
