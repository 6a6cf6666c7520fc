// Row kernels of RGBToLUV and LUVToRGB. L, u and v are formed without X, Y and Z:
//   u' - un = ((4 - un) X - 15 un Y - 3 un Z) / D,  v' - vn = (9 Y - vn D) / D
// have weighted sums of R, G and B above and below, D = X + 15 Y + 3 Z. Back, with u' and v' from
// samples as P / (f s L) and Q / (g s L),
//   X = 2.25 Y u' / v' = 2.25 (g / f) P (Y / Q),  Z + X / 3 + 5 Y = 3 Y / v' = 3 g s L (Y / Q)
// so that one division is enough.
#include "cie/conversions.h"
#include "cie/luv_scale.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "cie/luv_rows.cc"
#include <hwy/foreach_target.h>
//
#include "cie/cube_root-inl.h"
#include "cie/weighted-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class T>
struct RgbToLuv : Rounded {
  template <class D>
  static HWY_INLINE hn::Vec<D> rootOf(D d, hn::Vec<D> y) {
    if constexpr (std::is_same_v<T, Kel32f>) return cubeRoot(d, y);
    return nearCubeRoot(d, y);
  }

  template <class D>
  HWY_INLINE Channels<D> operator()(D d, const Channels<D>& rgb) const {
    using namespace cie;
    constexpr LuvScale kScale = luvScale<T>();
    constexpr double kU = kScale.u, kV = kScale.v;
    constexpr Weights kY = combined(0, 1 / double{kFullScale<T>}, 0), kD = combined(1, 15, 3);
    constexpr Weights kOfU = combined(kU * (4 - kWhiteU), -15 * kU * kWhiteU, -3 * kU * kWhiteU);
    constexpr Weights kOfV = combined(-kV * kWhiteV, kV * (9 - 15 * kWhiteV), -3 * kV * kWhiteV);
    const auto c = [&](double v) KELI_LAMBDA { return hn::Set(d, static_cast<float>(v)); };

    const auto y = weighted(d, kY, rgb);
    const auto curve = c(116 * kScale.level) * rootOf(d, y) - c(16 * kScale.level);
    const auto level =
        hn::IfThenElse(hn::Gt(y, c(kLeastRootY)), curve, c(903.3 * kScale.level) * y);
    // Where Y is 0 so are u and v, whatever D is.
    const auto black = hn::Eq(y, hn::Zero(d));
    const auto perD = hn::IfThenZeroElse(black, level / weighted(d, kD, rgb));
    return {level, perD * weighted(d, kOfU, rgb) + c(kScale.zeroU),
            perD * weighted(d, kOfV, rgb) + c(kScale.zeroV)};
  }
};

template <class T>
struct LuvToRgb : Rounded {
  // R, G or B over full scale, of P Y / Q, Y, and s L Y / Q.
  static constexpr cie::Weights weightsOf(int channel) {
    constexpr cie::LuvScale kScale = cie::luvScale<T>();
    constexpr double kX = 2.25 * kScale.v / kScale.u, kZ = 3 * kScale.v;
    const double full = kFullScale<T>;
    const double(&ofXyz)[3] = cie::kRgbOfXyz[channel];
    return {{static_cast<float>(full * kX * (ofXyz[0] - ofXyz[2] / 3)),
             static_cast<float>(full * (ofXyz[1] - 5 * ofXyz[2])),
             static_cast<float>(full * kZ * ofXyz[2])}};
  }

  template <class D>
  HWY_INLINE Channels<D> operator()(D d, const Channels<D>& luv) const {
    using namespace cie;
    constexpr LuvScale kScale = luvScale<T>();
    const auto c = [&](double v) KELI_LAMBDA { return hn::Set(d, static_cast<float>(v)); };

    const auto level = luv[0];
    const auto p = (luv[1] - c(kScale.zeroU)) + c(kScale.u * kWhiteU) * level;
    const auto q = (luv[2] - c(kScale.zeroV)) + c(kScale.v * kWhiteV) * level;
    const auto root = level * c(1 / (116 * kScale.level)) + c(16 / 116.);
    const auto y = root * root * root;
    const auto perQ = y / q;
    // No colour has v' = 0.
    const auto black = hn::Or(hn::Lt(level, c(kLeastL * kScale.level)), hn::Eq(q, hn::Zero(d)));
    Channels<D> rgb;
    unrolled<3>([&](auto k) KELI_LAMBDA {
      constexpr Weights kOf = weightsOf(k);
      const auto v = weighted(d, kOf, Channels<D>{p * perQ, y, level * perQ});
      // What is no number stays, of floats; no integers give any.
      const auto cut = greaterElse(hn::Zero(d), lessElse(c(kFullScale<T>), v));
      rgb[k] = hn::IfThenZeroElse(black, cut);
    });
    return rgb;
  }
};

template <template <class> class Formula, class T>
constexpr color::Kernels luvKernels() {
  return interleavedKernels<T, RealPixels<T, Formula<T>>, 64>();
}

const color::Kernels kToLuv8u = luvKernels<RgbToLuv, Kel8u>();
const color::Kernels kToLuv16u = luvKernels<RgbToLuv, Kel16u>();
const color::Kernels kToLuv16s = luvKernels<RgbToLuv, Kel16s>();
const color::Kernels kToLuv32f = luvKernels<RgbToLuv, Kel32f>();
const color::Kernels kFromLuv8u = luvKernels<LuvToRgb, Kel8u>();
const color::Kernels kFromLuv16u = luvKernels<LuvToRgb, Kel16u>();
const color::Kernels kFromLuv16s = luvKernels<LuvToRgb, Kel16s>();
const color::Kernels kFromLuv32f = luvKernels<LuvToRgb, Kel32f>();

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::color {
template <>
KELI_SELECT_ROWS(Kernels, kToLuv8u, kernelsOf<cie::RGBToLUV, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels, kToLuv16u, kernelsOf<cie::RGBToLUV, Kel16u>)
template <>
KELI_SELECT_ROWS(Kernels, kToLuv16s, kernelsOf<cie::RGBToLUV, Kel16s>)
template <>
KELI_SELECT_ROWS(Kernels, kToLuv32f, kernelsOf<cie::RGBToLUV, Kel32f>)
template <>
KELI_SELECT_ROWS(Kernels, kFromLuv8u, kernelsOf<cie::LUVToRGB, Kel8u>)
template <>
KELI_SELECT_ROWS(Kernels, kFromLuv16u, kernelsOf<cie::LUVToRGB, Kel16u>)
template <>
KELI_SELECT_ROWS(Kernels, kFromLuv16s, kernelsOf<cie::LUVToRGB, Kel16s>)
template <>
KELI_SELECT_ROWS(Kernels, kFromLuv32f, kernelsOf<cie::LUVToRGB, Kel32f>)
}  // namespace keli::color
#endif
