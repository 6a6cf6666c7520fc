// Row kernels of the transforms of images: batches of rows or columns through scratch memory.
#include "fft/fft_rows.h"

#include <algorithm>

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "fft/fft_rows.cc"
#include <hwy/foreach_target.h>
//
#include "fft/work-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// ---- Complex images
// ------------------------------------------------------------------------------

template <class D>
void complexRows(const fft::Job& job) {
  const D d;
  const Work<D> work(job);
  const float *src[Work<D>::kLanes], *first[Work<D>::kLanes];
  float* dst[Work<D>::kLanes];
  std::fill_n(first, Work<D>::kLanes, srcRow(job, 0));
  for (std::size_t y = 0; y < job.height; y += Work<D>::kLanes) {
    work.sources(y, 1, first, src);
    work.destinations(y, 1, dst);
    readRows(d, src, 2 * job.width, [&](std::size_t x) { return work.data + x * Work<D>::kLanes; });
    work.run();
    writeRows(d, dst, 2 * job.width, job.scale,
              [&](std::size_t x) { return work.result(x / 2) + x % 2 * Work<D>::kLanes; });
  }
}

template <class D>
void complexColumns(const fft::Job& job) {
  const D d;
  const Work<D> work(job);
  for (std::size_t x = 0; x < job.width; x += Work<D>::kLanes) {
    const std::size_t count = std::min(Work<D>::kLanes, job.width - x);
    for (std::size_t y = 0; y < job.height; ++y)
      readPairs(d, srcRow(job, y) + 2 * x, 2 * count, work.element(y));
    work.run();
    for (std::size_t y = 0; y < job.height; ++y)
      writePairs(d, work.result(y), job.scale, 2 * count, dstRow(job, y) + 2 * x);
  }
}

// ---- Real images
// ---------------------------------------------------------------------------------

// Where sample x of a packed spectrum of n stands: with element k of the first spectrum at(k), that
// of the second at(n - k), and their real values side by side.
template <class D, class At>
HWY_INLINE float* packedPlace(std::size_t x, std::size_t n, bool second, const At& at) {
  constexpr std::size_t kN = hn::MaxLanes(D());
  const std::size_t k = (x + 1) / 2;
  if (k == 0 || 2 * k == n) return at(k) + (second ? kN : 0);
  return at(second ? n - k : k) + (x % 2 == 0 ? kN : 0);
}

template <class D>
void realRows(const fft::Job& job) {
  const D d;
  constexpr std::size_t kLanes = Work<D>::kLanes;
  const Work<D> work(job);
  const std::size_t n = job.width;
  const auto element = [&](std::size_t k) KELI_LAMBDA { return work.element(k); };
  const auto result = [&](std::size_t k) KELI_LAMBDA { return work.result(k); };
  for (std::size_t y = 0; y < job.height; y += 2 * kLanes) {
    const float *src[2][kLanes], *first[kLanes];
    float* dst[2][kLanes];
    std::fill_n(first, kLanes, srcRow(job, 0));
    // The last row of an odd number is its own partner, whatever the number of lanes.
    work.sources(y, 2, first, src[0]);
    work.sources(y + 1, 2, src[0], src[1]);
    work.destinations(y, 2, dst[0]);
    work.destinations(y + 1, 2, dst[1]);
    for (std::size_t second = 0; second < 2; ++second) {
      readRows(d, src[second], n, [&](std::size_t x) KELI_LAMBDA {
        return job.inverse ? packedPlace<D>(x, n, second != 0, element)
                           : work.element(x) + second * kLanes;
      });
    }
    if (job.inverse) {
      for (std::size_t k = 1; 2 * k < n; ++k) join(d, work.element(k), work.element(n - k));
    }
    work.run();
    if (!job.inverse) {
      for (std::size_t k = 1; 2 * k < n; ++k) separate(d, work.result(k), work.result(n - k));
    }
    for (std::size_t second = 0; second < 2; ++second) {
      writeRows(d, dst[second], n, job.scale, [&](std::size_t x) KELI_LAMBDA {
        return job.inverse ? work.result(x) + second * kLanes
                           : packedPlace<D>(x, n, second != 0, result);
      });
    }
  }
}

// Columns 0 and, of an even width, the last hold the real spectra of two real columns. They are one
// more complex column, the last.
template <class D>
class RealColumns {
 public:
  explicit RealColumns(const fft::Job& job) : job_(job), work_(job) {}

  void run() const {
    const D d;
    const std::size_t columns = (job_.width - 1) / 2, height = job_.height;
    for (std::size_t first = 0; first <= columns; first += kLanes) {
      const std::size_t count = std::min(kLanes, columns - first);
      const bool last = count < kLanes;
      for (std::size_t y = 0; y < height; ++y) {
        readPairs(d, srcRow(job_, y) + 1 + 2 * first, 2 * count, work_.element(y));
      }
      if (last) readEnds(count);
      work_.run();
      for (std::size_t y = 0; y < height; ++y) {
        writePairs(d, work_.result(y), job_.scale, 2 * count, dstRow(job_, y) + 1 + 2 * first);
      }
      if (last) writeEnds(count);
    }
  }

 private:
  static constexpr std::size_t kLanes = Work<D>::kLanes;

  bool hasLast() const { return job_.width % 2 == 0; }

  void readEnds(std::size_t lane) const {
    const std::size_t n = job_.height, end = job_.width - 1;
    const auto first = [&](std::size_t y) { return load(srcRow(job_, y)); };
    const auto last = [&](std::size_t y) { return hasLast() ? load(srcRow(job_, y) + end) : 0.f; };
    const auto put = [&](std::size_t k, float re, float im) {
      work_.element(k)[lane] = re;
      work_.element(k)[kLanes + lane] = im;
    };
    if (!job_.inverse) {
      for (std::size_t y = 0; y < n; ++y) put(y, first(y), last(y));
      return;
    }
    put(0, first(0), last(0));
    if (n % 2 == 0) put(n / 2, first(n - 1), last(n - 1));
    for (std::size_t k = 1; 2 * k < n; ++k) {
      const float aRe = first(2 * k - 1), aIm = first(2 * k);
      const float bRe = last(2 * k - 1), bIm = last(2 * k);
      put(k, aRe - bIm, aIm + bRe);
      put(n - k, aRe + bIm, bRe - aIm);
    }
  }

  void writeEnds(std::size_t lane) const {
    const std::size_t n = job_.height, end = job_.width - 1;
    const auto put = [&](std::size_t y, float a, float b) {
      store(settled(a * job_.scale), dstRow(job_, y));
      if (hasLast()) store(settled(b * job_.scale), dstRow(job_, y) + end);
    };
    const auto re = [&](std::size_t k) { return work_.result(k)[lane]; };
    const auto im = [&](std::size_t k) { return work_.result(k)[kLanes + lane]; };
    if (job_.inverse) {
      for (std::size_t y = 0; y < n; ++y) put(y, re(y), im(y));
      return;
    }
    put(0, re(0), im(0));
    if (n % 2 == 0) put(n - 1, re(n / 2), im(n / 2));
    for (std::size_t k = 1; 2 * k < n; ++k) {
      const std::size_t m = n - k;
      put(2 * k - 1, (re(k) + re(m)) * 0.5f, (im(k) + im(m)) * 0.5f);
      put(2 * k, (im(k) - im(m)) * 0.5f, (re(m) - re(k)) * 0.5f);
    }
  }

  const fft::Job& job_;
  const Work<D> work_;
};

template <class D>
void realColumns(const fft::Job& job) {
  RealColumns<D>(job).run();
}

const fft::FftRows kFftRows = {
    ownAlongRows<complexRows<WideLanes>, complexRows<OneLane>>,
    ownAlongColumns<complexColumns<WideLanes>, complexColumns<OneLane>>,
    ownAlongRows<realRows<WideLanes>, realRows<OneLane>>,
    ownAlongColumns<realColumns<WideLanes>, realColumns<OneLane>>,
};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::fft {
KELI_SELECT_ROWS(FftRows, kFftRows, fftRows)

std::size_t scratchFloats(const Plan& plan, std::size_t sequences, std::size_t width) {
  std::size_t lanes = kMostLanes;
  while (lanes > 1 && !fillsLanes(sequences, lanes)) lanes /= 2;
  return 2 * lanes * static_cast<std::size_t>(plan.work) + 2 * width;
}
}  // namespace keli::fft
#endif
