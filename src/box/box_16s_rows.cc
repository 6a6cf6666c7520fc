// Means of words.
#define KELI_ENABLE_AVX512
#include "box/box_rows.h"

#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "box/box_16s_rows.cc"
#include <hwy/foreach_target.h>
//
#include "box/integer-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

void ownBox16s(const box::BoxRows& r) {
  withPixel(r.pixel, [&](auto pixel) KELI_LAMBDA { boxOf<Kel16s, pixel(), false>(r); });
}

void ownBox16sAC4(const box::BoxRows& r) { boxOf<Kel16s, 4, true>(r); }

constexpr box::BoxKernels kBox16s = {ownBox16s, ownBox16sAC4};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::box {
template <>
KELI_SELECT_ROWS(BoxKernels, kBox16s, boxKernels<Kel16s>)
}  // namespace keli::box
#endif
