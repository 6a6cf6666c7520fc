// Row kernels of Copy between interleaved and planar layouts.
#include "data/copy_rows.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "data/copy_planes_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/pixels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct IdentityPixels {
  template <class D, class In>
  HWY_INLINE In vector(D, const In& in) const {
    return in;
  }
  template <class In>
  HWY_INLINE In scalar(const In& in) const {
    return in;
  }
};

template <class T, Layout kFrom, Layout kTo>
void ownCopyPlanes(const PlanesBand& b) {
  mapPixels<kFrom, kTo, T, T, sizeof(T) <= 2 ? 64 : 32>(b, IdentityPixels());
}

const data::CopyPlanesRows kCopyPlanesRows = {
    KELI_BY_SIZE(ownCopyPlanes, Layout::C3, Layout::P3),
    KELI_BY_SIZE(ownCopyPlanes, Layout::C4, Layout::P4),
    KELI_BY_SIZE(ownCopyPlanes, Layout::P3, Layout::C3),
    KELI_BY_SIZE(ownCopyPlanes, Layout::P4, Layout::C4),
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::data {
KELI_SELECT_ROWS(CopyPlanesRows, kCopyPlanesRows, copyPlanesRows)
}  // namespace keli::data
#endif
