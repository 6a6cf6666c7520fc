// Cube roots of rows of floats, nothing else, compiled for every target as a rows file is.
#include "cie/cube_root_rows.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "cie/cube_root_rows.cc"
#include <hwy/foreach_target.h>
//
#include "cie/cube_root-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

void ownCubeRoots(const float* y, float* root, std::size_t n) {
  const hn::CappedTag<float, 16> d;
  for (std::size_t i = 0; i < n; i += hn::Lanes(d)) {
    hn::StoreU(cubeRoot(d, hn::LoadU(d, y + i)), d, root + i);
  }
}

const test::CubeRootRows kCubeRoots = {ownCubeRoots};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::test {
KELI_SELECT_ROWS(CubeRootRows, kCubeRoots, cubeRootRows)
}  // namespace keli::test
#endif
