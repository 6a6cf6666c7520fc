// Row kernels of exact sums of 16s: of samples, magnitudes, squares, differences, and the largest
// of them.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "sums/sums_16s_rows.cc"
#include <hwy/foreach_target.h>
//
#include "sums/sums-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

constexpr sums::ByChannels<1> kSigned = kReduction<Added, Itself, Kel16s>;
constexpr sums::Integers<1> kOfOne = {
    kReduction<Added, Magnitude, Kel16s>, kReduction<Squared, Itself, Kel16s>, {}};
constexpr sums::Integers<2> kOfTwo = {kReduction<Added, Difference, Kel16s, Kel16s>,
                                      kReduction<Squared, Difference, Kel16s, Kel16s>,
                                      kReduction<Largest, Difference, Kel16s, Kel16s>};
constexpr sums::Integers<2> kOfBoth = {kRelative<Added, Magnitude, Kel16s>,
                                       kRelative<Squared, Itself, Kel16s>,
                                       kRelative<Largest, Magnitude, Kel16s>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::sums {
KELI_SELECT_ROWS(ByChannels<1>, kSigned, signedSums)
template <>
KELI_SELECT_ROWS(Integers<1>, kOfOne, integersOfOne<Kel16s>)
template <>
KELI_SELECT_ROWS(Integers<2>, kOfTwo, integersOfTwo<Kel16s>)
template <>
KELI_SELECT_ROWS(Integers<2>, kOfBoth, integersOfBoth<Kel16s>)
}  // namespace keli::sums
#endif
