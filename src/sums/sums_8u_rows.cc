// Row kernels of exact sums of 8u: of magnitudes, squares, differences, and the largest of them.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "sums/sums_8u_rows.cc"
#include <hwy/foreach_target.h>
//
#include "sums/sums-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

constexpr sums::Integers<1> kOfOne = {
    kReduction<Added, Magnitude, Kel8u>, kReduction<Squared, Magnitude, Kel8u>, {}};
constexpr sums::Integers<2> kOfTwo = {kReduction<Added, Difference, Kel8u, Kel8u>,
                                      kReduction<Squared, Difference, Kel8u, Kel8u>,
                                      kReduction<Largest, Difference, Kel8u, Kel8u>};
constexpr sums::Integers<2> kOfBoth = {kRelative<Added, Magnitude, Kel8u>,
                                       kRelative<Squared, Magnitude, Kel8u>,
                                       kRelative<Largest, Magnitude, Kel8u>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::sums {
template <>
KELI_SELECT_ROWS(Integers<1>, kOfOne, integersOfOne<Kel8u>)
template <>
KELI_SELECT_ROWS(Integers<2>, kOfTwo, integersOfTwo<Kel8u>)
template <>
KELI_SELECT_ROWS(Integers<2>, kOfBoth, integersOfBoth<Kel8u>)
}  // namespace keli::sums
#endif
