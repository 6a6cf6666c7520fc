// Row kernels of RGBToXYZ for bytes, in integers: (a R + b G + c B) >> 15 for the columns that make
// whole groups of eight, and the same with 16 bits for the up to seven after them. Only Z saturates:
// a row's coefficients sum to at most 2^15 or 2^16 for X and Y, so these stay below 256.
#include "cie/xyz.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "cie/xyz_8u_rows.cc"
#include <hwy/foreach_target.h>
//
#include "color/lanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Coefficients below 2^15, so that pairs of products are one instruction.
struct XyzOfGroups {
  template <class DW>
  HWY_INLINE Channels<DW> operator()(DW dw, const Channels<DW>& rgb) const {
    constexpr int kOf[3][3] = {{13515, 11717, 5912}, {6969, 23434, 2365}, {634, 3906, 31137}};
    Channels<DW> xyz;
    if constexpr (kScalarTarget) {
      for (int k = 0; k < 3; ++k) {
        xyz[k] = hn::ShiftRight<15>(hn::Set(dw, kOf[k][0]) * rgb[0] +
                                    hn::Set(dw, kOf[k][1]) * rgb[1] +
                                    hn::Set(dw, kOf[k][2]) * rgb[2]);
      }
    } else {
      const hn::Repartition<std::int16_t, DW> pairs;
      const auto redGreen = hn::BitCast(pairs, hn::Or(rgb[0], hn::ShiftLeft<16>(rgb[1])));
      const auto blue = hn::BitCast(pairs, rgb[2]);
      unrolled<3>([&](auto k) KELI_LAMBDA {
        const auto two = hn::BitCast(pairs, hn::Set(dw, kOf[k][1] << 16 | kOf[k][0]));
        const auto one = hn::BitCast(pairs, hn::Set(dw, kOf[k][2]));
        xyz[k] = hn::ShiftRight<15>(
            addProductsOfPairs(dw, multiplyAddPairs(dw, blue, one), redGreen, two));
      });
    }
    return xyz;
  }
};

struct XyzOfRest {
  template <class DW>
  HWY_INLINE Channels<DW> operator()(DW dw, const Channels<DW>& rgb) const {
    constexpr int kOf[3][3] = {{27030, 23434, 11824}, {13937, 46868, 4729}, {1267, 7811, 62274}};
    Channels<DW> xyz;
    for (int k = 0; k < 3; ++k) {
      xyz[k] = hn::ShiftRight<16>(hn::Set(dw, kOf[k][0]) * rgb[0] +
                                  hn::Set(dw, kOf[k][1]) * rgb[1] +
                                  hn::Set(dw, kOf[k][2]) * rgb[2]);
    }
    return xyz;
  }
};

template <Layout kLayout>
void ownBytesToXyz(const PlanesBand& b, std::size_t width) {
  const std::size_t grouped = width / 8 * 8;
  PlanesBand part = b;
  if (grouped != width) {
    part.rows *= part.n / width;
    part.n = grouped;
  }
  if (grouped != 0) {
    mapPixels<kLayout, kLayout, Kel8u, Kel8u, 64>(part, WordPixels<Kel8u, XyzOfGroups>());
  }
  if (grouped != width) {
    part.src[0] += grouped * pixelSamples(kLayout);
    part.dst[0] += grouped * pixelSamples(kLayout);
    part.n = width - grouped;
    mapPixels<kLayout, kLayout, Kel8u, Kel8u, 8>(part, WordPixels<Kel8u, XyzOfRest>());
  }
}

const cie::BytesToXyzRows kBytesToXyz = {ownBytesToXyz<Layout::C3>, ownBytesToXyz<Layout::AC4>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::cie {
KELI_SELECT_ROWS(BytesToXyzRows, kBytesToXyz, bytesToXyzRows)
}  // namespace keli::cie
#endif
