// Row kernels of RGBToHLS and HLSToRGB.
#include "hue/conversions.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "hue/hls_rows.cc"
#include <hwy/foreach_target.h>
//
#include "hue/hls-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Never stored around the caches: that would take vectors of 32 bytes, in which the formula is
// slower than memory.
template <Layout kLayout, std::size_t kMostBytes>
void ownFloatsToHls(const PlanesBand& b) {
  PlanesBand cached = b;
  cached.streams = false;
  mapPixels<kLayout, kLayout, Kel32f, Kel32f, kMostBytes>(cached, RgbToHls<Kel32f>());
}

constexpr color::Kernels floatsToHls() {
  color::Kernels kernels = {};
  kernels.c3 = ownFloatsToHls<Layout::C3, 64>;
  kernels.ac4 = ownFloatsToHls<Layout::AC4, 32>;
  return kernels;
}

const color::Kernels kToHls8u = interleavedKernels<Kel8u, RgbToHls<Kel8u>, 64>();
const color::Kernels kToHls16u = interleavedKernels<Kel16u, RgbToHls<Kel16u>, 64>();
const color::Kernels kToHls16s = interleavedKernels<Kel16s, RgbToHls<Kel16s>, 64>();
const color::Kernels kToHls32f = floatsToHls();
const color::Kernels kFromHls8u = interleavedKernels<Kel8u, HlsToRgb<Kel8u>, 64>();
const color::Kernels kFromHls16u = interleavedKernels<Kel16u, HlsToRgb<Kel16u>, 64>();
const color::Kernels kFromHls16s = interleavedKernels<Kel16s, HlsToRgb<Kel16s>, 64>();
const color::Kernels kFromHls32f = interleavedKernels<Kel32f, HlsToRgb<Kel32f>, 64>();

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::color {
template <>
KELI_SELECT_ROWS(Kernels, kToHls8u, kernelsOf<hue::RGBToHLS, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels, kToHls16u, kernelsOf<hue::RGBToHLS, Kel16u>)
template <>
KELI_SELECT_ROWS(Kernels, kToHls16s, kernelsOf<hue::RGBToHLS, Kel16s>)
template <>
KELI_SELECT_ROWS(Kernels, kToHls32f, kernelsOf<hue::RGBToHLS, Kel32f>)
template <>
KELI_SELECT_ROWS(Kernels, kFromHls8u, kernelsOf<hue::HLSToRGB, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels, kFromHls16u, kernelsOf<hue::HLSToRGB, Kel16u>)
template <>
KELI_SELECT_ROWS(Kernels, kFromHls16s, kernelsOf<hue::HLSToRGB, Kel16s>)
template <>
KELI_SELECT_ROWS(Kernels, kFromHls32f, kernelsOf<hue::HLSToRGB, Kel32f>)
}  // namespace keli::color
#endif
