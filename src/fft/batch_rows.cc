// Transforms of batches, for every SIMD target.
#include "fft/fft_rows.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "fft/batch_rows.cc"
#include <hwy/foreach_target.h>
//
#include "fft/batch-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

template <class D>
void ownTransform(float* re, float* im, const fft::Plan& plan) {
  transform(Batch<D>{re, im}, plan);
}

const fft::BatchRows kBatchRows = {ownTransform<hn::CappedTag<float, fft::kMostLanes>>,
                                   ownTransform<hn::CappedTag<float, 1>>};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::fft {
KELI_SELECT_ROWS(BatchRows, kBatchRows, batchRows)
}  // namespace keli::fft
#endif
