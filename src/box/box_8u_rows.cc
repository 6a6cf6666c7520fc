// Means of bytes. Where all sums fit 16 bits and masks are narrow, sums have 16 bits: those of even
// samples and those of odd ones stand in rows of their own, so that bytes become words and words
// bytes without a shuffle. Larger masks take 32 bits.
#define KELI_ENABLE_AVX512
#include "box/box_rows.h"

#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "box/box_8u_rows.cc"
#include <hwy/foreach_target.h>
//
#include "box/integer-inl.h"
#include "box/words-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <std::size_t kPixel, bool kKeepsFourth>
HWY_INLINE void boxOfBytes(const box::BoxRows& r) {
  if constexpr (!kScalarTarget) {
    if (fitsWords(r)) return boxOfWords<kPixel, kKeepsFourth>(r);
  }
  boxOf<Kel8u, kPixel, kKeepsFourth>(r);
}

void ownBox8u(const box::BoxRows& r) {
  withPixel(r.pixel, [&](auto pixel) KELI_LAMBDA { boxOfBytes<pixel(), false>(r); });
}

void ownBox8uAC4(const box::BoxRows& r) { boxOfBytes<4, true>(r); }

constexpr box::BoxKernels kBox8u = {ownBox8u, ownBox8uAC4};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::box {
template <>
KELI_SELECT_ROWS(BoxKernels, kBox8u, boxKernels<Kel8u>)
}  // namespace keli::box
#endif
