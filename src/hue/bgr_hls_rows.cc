// Row kernels of BGRToHLS and HLSToBGR: those of HLS with red and blue exchanged, in interleaved
// and planar layouts.
#include "hue/conversions.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "hue/bgr_hls_rows.cc"
#include <hwy/foreach_target.h>
//
#include "hue/hls-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct BgrToHls : RgbToHls<Kel8u> {
  template <class D>
  HWY_INLINE Channels<D> vector(D d, const Channels<D>& bgr) const {
    return RgbToHls<Kel8u>::vector(d, Channels<D>{bgr[2], bgr[1], bgr[0]});
  }
  HWY_INLINE std::array<Kel8u, 3> scalar(const std::array<Kel8u, 3>& in) const {
    return onOneLane(*this, in);
  }
};

struct HlsToBgr : HlsToRgb<Kel8u> {
  template <class D>
  HWY_INLINE Channels<D> vector(D d, const Channels<D>& hls) const {
    const Channels<D> rgb = HlsToRgb<Kel8u>::vector(d, hls);
    return {rgb[2], rgb[1], rgb[0]};
  }
  HWY_INLINE std::array<Kel8u, 3> scalar(const std::array<Kel8u, 3>& in) const {
    return onOneLane(*this, in);
  }
};

template <class Op>
constexpr color::Kernels planarKernels() {
  constexpr std::size_t kMostBytes = 64;
  color::Kernels kernels = {};
  kernels.p3 = ownConvertPixels<Kel8u, Layout::P3, Layout::P3, kMostBytes, Op>;
  kernels.c3p3 = ownConvertPixels<Kel8u, Layout::C3, Layout::P3, kMostBytes, Op>;
  kernels.p3c3 = ownConvertPixels<Kel8u, Layout::P3, Layout::C3, kMostBytes, Op>;
  // A fourth plane is not touched, so three are all there is.
  kernels.ap4 = kernels.p3;
  kernels.ac4ap4 = ownConvertPixels<Kel8u, Layout::AC4, Layout::AP4, kMostBytes, Op>;
  kernels.ap4ac4 = ownConvertPixels<Kel8u, Layout::AP4, Layout::AC4, kMostBytes, Op>;
  return kernels;
}

constexpr color::Kernels toHlsKernels() {
  color::Kernels kernels = planarKernels<BgrToHls>();
  kernels.ac4 = ownConvertPixels<Kel8u, Layout::AC4, Layout::AC4, 64, BgrToHls>;
  return kernels;
}

const color::Kernels kBgrToHls = toHlsKernels();
const color::Kernels kHlsToBgr = planarKernels<HlsToBgr>();

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::color {
template <>
KELI_SELECT_ROWS(Kernels, kBgrToHls, kernelsOf<hue::BGRToHLS, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels, kHlsToBgr, kernelsOf<hue::HLSToBGR, Kel8u>)
}  // namespace keli::color
#endif
