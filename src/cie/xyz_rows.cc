// Row kernels of RGBToXYZ and XYZToRGB: three weighted sums, in single precision and in the order
// written, of samples over their full scale. Integers are rounded to nearest, ties to even; RGB of
// floats is cut to [0, 1].
#include "cie/conversions.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "cie/xyz_rows.cc"
#include <hwy/foreach_target.h>
//
#include "cie/weighted-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class T>
struct RgbToXyz : Rounded {
  static constexpr bool kShort = true;

  template <class D>
  HWY_INLINE Channels<D> operator()(D d, const Channels<D>& rgb) const {
    Channels<D> xyz;
    unrolled<3>([&](auto k)
                    KELI_LAMBDA { xyz[k] = weighted(d, cie::rowOf(cie::kXyzOfRgb, k), rgb); });
    return xyz;
  }
};

template <class T>
struct XyzToRgb : Rounded {
  static constexpr bool kShort = true;

  template <class D>
  HWY_INLINE Channels<D> operator()(D d, const Channels<D>& xyz) const {
    Channels<D> rgb;
    unrolled<3>([&](auto k) KELI_LAMBDA {
      rgb[k] = weighted(d, cie::rowOf(cie::kRgbOfXyz, k), xyz);
      if constexpr (std::is_same_v<T, Kel32f>) rgb[k] = withinUnit(d, rgb[k]);
    });
    return rgb;
  }
};

template <template <class> class Formula, class T>
constexpr color::Kernels xyzKernels() {
  return interleavedKernels<T, RealPixels<T, Formula<T>>, 64>();
}

const color::Kernels kToXyz16u = xyzKernels<RgbToXyz, Kel16u>();
const color::Kernels kToXyz16s = xyzKernels<RgbToXyz, Kel16s>();
const color::Kernels kToXyz32f = xyzKernels<RgbToXyz, Kel32f>();
const color::Kernels kFromXyz8u = xyzKernels<XyzToRgb, Kel8u>();
const color::Kernels kFromXyz16u = xyzKernels<XyzToRgb, Kel16u>();
const color::Kernels kFromXyz16s = xyzKernels<XyzToRgb, Kel16s>();
const color::Kernels kFromXyz32f = xyzKernels<XyzToRgb, Kel32f>();

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::color {
template <>
KELI_SELECT_ROWS(Kernels, kToXyz16u, kernelsOf<cie::RGBToXYZ, Kel16u>)
template <>
KELI_SELECT_ROWS(Kernels, kToXyz16s, kernelsOf<cie::RGBToXYZ, Kel16s>)
template <>
KELI_SELECT_ROWS(Kernels, kToXyz32f, kernelsOf<cie::RGBToXYZ, Kel32f>)
template <>
KELI_SELECT_ROWS(Kernels, kFromXyz8u, kernelsOf<cie::XYZToRGB, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels, kFromXyz16u, kernelsOf<cie::XYZToRGB, Kel16u>)
template <>
KELI_SELECT_ROWS(Kernels, kFromXyz16s, kernelsOf<cie::XYZToRGB, Kel16s>)
template <>
KELI_SELECT_ROWS(Kernels, kFromXyz32f, kernelsOf<cie::XYZToRGB, Kel32f>)
}  // namespace keli::color
#endif
