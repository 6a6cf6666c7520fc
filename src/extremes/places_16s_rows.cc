// Row kernels of MinIndx and MaxIndx of 16s.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "extremes/places_16s_rows.cc"
#include <hwy/foreach_target.h>
//
#include "extremes/places-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

constexpr extremes::PlaceRows<Kel16s> kMin = kPlaceRows<Kel16s, extremes::Min>;
constexpr extremes::PlaceRows<Kel16s> kMax = kPlaceRows<Kel16s, extremes::Max>;

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::extremes {
template <>
KELI_SELECT_ROWS(PlaceRows<Kel16s>, kMin, placeRows<Min, Kel16s>)
template <>
KELI_SELECT_ROWS(PlaceRows<Kel16s>, kMax, placeRows<Max, Kel16s>)
}  // namespace keli::extremes
#endif
