// Row kernels of RGBToXYZ for bytes, in integers: (a R + b G + c B) >> 15 for the columns that make
// whole groups of eight, and the same with 16 bits for the up to seven after them. Only Z
// saturates: a row's coefficients sum to at most 2^15 or 2^16 for X and Y, so these stay below 256.
#include "cie/xyz.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "cie/xyz_8u_rows.cc"
#include <hwy/foreach_target.h>
//
#include "color/products-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

struct XyzOfGroups {
  static constexpr int kShift = 15;
  static constexpr color::ProductRow kRows[] = {
      {{13515, 11717, 5912}, 0}, {{6969, 23434, 2365}, 0}, {{634, 3906, 31137}, 0}};
};

struct XyzOfRest {
  static constexpr int kShift = 16;
  static constexpr color::ProductRow kRows[] = {
      {{27030, 23434, 11824}, 0}, {{13937, 46868, 4729}, 0}, {{1267, 7811, 62274}, 0}};
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
    mapPixels<kLayout, kLayout, Kel8u, Kel8u, 64>(part, ProductPixels<XyzOfGroups>());
  }
  if (grouped != width) {
    part.src[0] += grouped * pixelSamples(kLayout);
    part.dst[0] += grouped * pixelSamples(kLayout);
    part.n = width - grouped;
    mapPixels<kLayout, kLayout, Kel8u, Kel8u, 16>(part, ProductPixels<XyzOfRest>());
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
