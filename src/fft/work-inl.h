// What kernels along rows and columns have in common: a batch in scratch memory, the rows of images
// that it is filled from and emptied to, pairs of real sequences as complex ones.
#if defined(KELI_FFT_WORK_INL_H_) == defined(HWY_TARGET_TOGGLE)
#ifdef KELI_FFT_WORK_INL_H_
#undef KELI_FFT_WORK_INL_H_
#else
#define KELI_FFT_WORK_INL_H_
#endif

#include <algorithm>

#include "core/simd-inl.h"
#include "fft/fft_rows.h"
#include "fft/tiles-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using WideLanes = hn::CappedTag<float, fft::kMostLanes>;
using OneLane = hn::CappedTag<float, 1>;

HWY_INLINE const float* srcRow(const fft::Job& job, std::size_t y) {
  return reinterpret_cast<const float*>(job.src + static_cast<std::ptrdiff_t>(y) * job.srcStep);
}
HWY_INLINE float* dstRow(const fft::Job& job, std::size_t y) {
  return reinterpret_cast<float*>(job.dst + static_cast<std::ptrdiff_t>(y) * job.dstStep);
}

// The batch in a job's scratch, for its direction, and its elements by number or by place.
template <class D>
struct Work {
  static constexpr std::size_t kLanes = hn::MaxLanes(D());
  static constexpr std::size_t kElement = 2 * kLanes;
  using V = hn::Vec<D>;

  explicit Work(const fft::Job& j) : job(j), data(j.scratch) {}

  const fft::Job& job;
  float* const data;

  // Behind the batch: a row for lanes that no row of the image uses.
  float* spare() const { return data + static_cast<std::size_t>(job.plan->work) * kElement; }
  HWY_INLINE float* element(std::size_t e) const { return data + e * kElement; }
  HWY_INLINE float* result(std::size_t k) const { return element(job.plan->place[k]); }
  HWY_INLINE void run() const {
    const fft::BatchRows& batch = fft::batchRows();
    const auto transform = kLanes == 1 ? batch.one : batch.wide;
    transform(data + (job.inverse ? kLanes : 0), data + (job.inverse ? 0 : kLanes), *job.plan);
  }

  // Rows first, first + stride, ...: one for each lane; beyond the image, those of others.
  void sources(std::size_t first, std::size_t stride, const float* const (&others)[kLanes],
               const float* (&rows)[kLanes]) const {
    for (std::size_t i = 0; i < kLanes; ++i) {
      const std::size_t y = first + i * stride;
      rows[i] = y < job.height ? srcRow(job, y) : others[i];
    }
  }
  void destinations(std::size_t first, std::size_t stride, float* (&rows)[kLanes]) const {
    for (std::size_t i = 0; i < kLanes; ++i) {
      const std::size_t y = first + i * stride;
      rows[i] = y < job.height ? dstRow(job, y) : spare();
    }
  }
};

// Pairs of floats of a row to the two vectors of an element, one pair for each lane; of fewer
// floats, with zeros for those that are missing.
template <class D>
HWY_INLINE void readPairs(D d, const float* row, std::size_t floats, float* element) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  if constexpr (kN == 1) {
    for (std::size_t k = 0; k < 2; ++k) element[k] = k < floats ? load(row + k) : 0;
  } else {
    float whole[2 * kN] = {};
    if (floats < 2 * kN) std::memcpy(whole, row, floats * sizeof(float));
    hn::Vec<D> re, im;
    hn::LoadInterleaved2(d, floats < 2 * kN ? whole : row, re, im);
    hn::Store(re, d, element);
    hn::Store(im, d, element + kN);
  }
}

// The way back, each sample multiplied.
template <class D>
HWY_INLINE void writePairs(D d, const float* element, float scale, std::size_t floats, float* row) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  if constexpr (kN == 1) {
    for (std::size_t k = 0; k < std::min<std::size_t>(floats, 2); ++k)
      store(settled(element[k] * scale), row + k);
  } else {
    const auto factor = hn::Set(d, scale);
    const auto re = settledLanes(d, hn::Load(d, element) * factor);
    const auto im = settledLanes(d, hn::Load(d, element + kN) * factor);
    if (floats < 2 * kN) {
      float whole[2 * kN];
      hn::StoreInterleaved2(re, im, d, whole);
      std::memcpy(row, whole, floats * sizeof(float));
    } else {
      hn::StoreInterleaved2(re, im, d, row);
    }
  }
}

// Two real sequences a and b are one complex one, a + i b, and the spectra follow from its spectrum
// Z by A(k) = (Z(k) + conj Z(n - k)) / 2 and B(k) = (Z(k) - conj Z(n - k)) / 2i.

// Element k of both spectra in place of Z(k) and Z(n - k).
template <class D>
HWY_INLINE void separate(D d, float* zk, float* zn) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  const auto half = hn::Set(d, 0.5f);
  const auto re = hn::Load(d, zk), im = hn::Load(d, zk + kN);
  const auto mirrorRe = hn::Load(d, zn), mirrorIm = hn::Load(d, zn + kN);
  hn::Store((re + mirrorRe) * half, d, zk);
  hn::Store((im - mirrorIm) * half, d, zk + kN);
  hn::Store((im + mirrorIm) * half, d, zn);
  hn::Store((mirrorRe - re) * half, d, zn + kN);
}

// The way back.
template <class D>
HWY_INLINE void join(D d, float* a, float* b) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  const auto aRe = hn::Load(d, a), aIm = hn::Load(d, a + kN);
  const auto bRe = hn::Load(d, b), bIm = hn::Load(d, b + kN);
  hn::Store(aRe - bIm, d, a);
  hn::Store(aIm + bRe, d, a + kN);
  hn::Store(aRe + bIm, d, b);
  hn::Store(bRe - aIm, d, b + kN);
}

// By the number of sequences: one for each row, or for each column.
template <fft::Kernel kWide, fft::Kernel kOne>
void ownAlongRows(const fft::Job& job) {
  (fft::fillsLanes(job.height, hn::MaxLanes(WideLanes())) ? kWide : kOne)(job);
}
template <fft::Kernel kWide, fft::Kernel kOne>
void ownAlongColumns(const fft::Job& job) {
  (fft::fillsLanes(job.width, hn::MaxLanes(WideLanes())) ? kWide : kOne)(job);
}

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#endif  // per-target include guard
