// Row kernels of cosine transforms of any length n, by a complex transform of that length for two
// real sequences at a time (J. Makhoul, 1980): with v[j] = x[2j] and v[n - 1 - j] = x[2j + 1], and
// V the transform of v,
//
//   sum over j of x[j] cos(pi (2j + 1) k / 2n) = Re(exp(-pi i k / 2n) V(k))
//
// whose negative imaginary part is that of n - k. The inverse makes V from the coefficients.
#include "dct/cosine_rows.h"

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "dct/cosine_rows.cc"
#include <hwy/foreach_target.h>
//
#include "fft/work-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Which element sample j of a sequence is.
HWY_INLINE std::size_t elementOf(std::size_t j, std::size_t n) {
  return j % 2 == 0 ? j / 2 : n - 1 - j / 2;
}

// Of one job: its coefficients, two sequences in the two vectors of an element.
template <class D>
class Cosines {
 public:
  using V = hn::Vec<D>;
  static constexpr std::size_t kLanes = Work<D>::kLanes;

  Cosines(const fft::Job& job, float firstScale, const float* turns)
      : work(job),
        n_(static_cast<std::size_t>(job.plan->n)),
        turns_(turns),
        first_(firstScale / job.scale) {}

  const Work<D> work;

  // Where sample or coefficient j is put before run(), and found after it.
  float* input(std::size_t j) const {
    return work.element(work.job.inverse ? j : elementOf(j, n_));
  }
  float* output(std::size_t j) const {
    return work.result(work.job.inverse ? elementOf(j, n_) : j);
  }

  void run() const {
    if (work.job.inverse) {
      fromCoefficients();
      work.run();
    } else {
      work.run();
      toCoefficients();
    }
  }

 private:
  // Both sequences' V(k), times the turn: their coefficients k and, negative, n - k.
  void toCoefficients() const {
    const D d;
    scaleFirst(work.result(0));
    for (std::size_t k = 1; 2 * k < n_; ++k) {
      float* const low = work.result(k);
      float* const high = work.result(n_ - k);
      separate(d, low, high);
      const V c = hn::Set(d, turns_[2 * k]), s = hn::Set(d, turns_[2 * k + 1]);
      const V aRe = hn::Load(d, low), aIm = hn::Load(d, low + kLanes);
      const V bRe = hn::Load(d, high), bIm = hn::Load(d, high + kLanes);
      hn::Store(aRe * c + aIm * s, d, low);
      hn::Store(bRe * c + bIm * s, d, low + kLanes);
      hn::Store(aRe * s - aIm * c, d, high);
      hn::Store(bRe * s - bIm * c, d, high + kLanes);
    }
    if (n_ % 2 == 0) scale(work.result(n_ / 2), turns_[n_]);
  }

  void fromCoefficients() const {
    const D d;
    scaleFirst(work.element(0));
    for (std::size_t k = 1; 2 * k < n_; ++k) {
      float* const low = work.element(k);
      float* const high = work.element(n_ - k);
      const V c = hn::Set(d, turns_[2 * k]), s = hn::Set(d, turns_[2 * k + 1]);
      const V aRe = hn::Load(d, low), bRe = hn::Load(d, low + kLanes);
      const V aIm = hn::Load(d, high), bIm = hn::Load(d, high + kLanes);
      hn::Store(aRe * c + aIm * s, d, low);
      hn::Store(aRe * s - aIm * c, d, low + kLanes);
      hn::Store(bRe * c + bIm * s, d, high);
      hn::Store(bRe * s - bIm * c, d, high + kLanes);
      join(d, low, high);
    }
    // Of k = n / 2, the coefficient is the real part of V times the turn, which is its own mirror.
    if (n_ % 2 == 0) scale(work.element(n_ / 2), 2 * turns_[n_]);
  }

  void scaleFirst(float* element) const { scale(element, first_); }
  static void scale(float* element, float factor) {
    const D d;
    const V f = hn::Set(d, factor);
    hn::Store(hn::Load(d, element) * f, d, element);
    hn::Store(hn::Load(d, element + kLanes) * f, d, element + kLanes);
  }

  std::size_t n_;
  const float* turns_;
  float first_;
};

template <class D>
void cosineRows(const fft::Job& job, float firstScale, const float* turns) {
  const D d;
  const Cosines<D> cosines(job, firstScale, turns);
  constexpr std::size_t kLanes = Work<D>::kLanes;
  const float *src[2][kLanes], *first[kLanes];
  float* dst[2][kLanes];
  std::fill_n(first, kLanes, srcRow(job, 0));
  for (std::size_t y = 0; y < job.height; y += 2 * kLanes) {
    // The last row of an odd number is its own partner, whatever the number of lanes.
    cosines.work.sources(y, 2, first, src[0]);
    cosines.work.sources(y + 1, 2, src[0], src[1]);
    cosines.work.destinations(y, 2, dst[0]);
    cosines.work.destinations(y + 1, 2, dst[1]);
    for (std::size_t k = 0; k < 2; ++k) {
      readRows(d, src[k], job.width,
               [&](std::size_t x) KELI_LAMBDA { return cosines.input(x) + k * kLanes; });
    }
    cosines.run();
    for (std::size_t k = 0; k < 2; ++k) {
      writeRows(d, dst[k], job.width, job.scale,
                [&](std::size_t x) KELI_LAMBDA { return cosines.output(x) + k * kLanes; });
    }
  }
}

template <class D>
void cosineColumns(const fft::Job& job, float firstScale, const float* turns) {
  const D d;
  const Cosines<D> cosines(job, firstScale, turns);
  constexpr std::size_t kFloats = 2 * Work<D>::kLanes;
  for (std::size_t x = 0; x < job.width; x += kFloats) {
    const std::size_t count = std::min(kFloats, job.width - x);
    for (std::size_t y = 0; y < job.height; ++y)
      readPairs(d, srcRow(job, y) + x, count, cosines.input(y));
    cosines.run();
    for (std::size_t y = 0; y < job.height; ++y)
      writePairs(d, cosines.output(y), job.scale, count, dstRow(job, y) + x);
  }
}

void ownCosineRows(const fft::Job& job, float firstScale, const float* turns) {
  const bool wide = fft::fillsLanes(job.height, hn::MaxLanes(WideLanes()));
  (wide ? cosineRows<WideLanes> : cosineRows<OneLane>)(job, firstScale, turns);
}
void ownCosineColumns(const fft::Job& job, float firstScale, const float* turns) {
  const bool wide = fft::fillsLanes(job.width, hn::MaxLanes(WideLanes()));
  (wide ? cosineColumns<WideLanes> : cosineColumns<OneLane>)(job, firstScale, turns);
}

const dct::CosineRows kCosineRows = {ownCosineRows, ownCosineColumns};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::dct {
KELI_SELECT_ROWS(CosineRows, kCosineRows, cosineRows)
}  // namespace keli::dct
#endif
