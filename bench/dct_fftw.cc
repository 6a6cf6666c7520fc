// FFTW's equivalents of cosine transforms, in single precision, planned by measurement before
// the clock starts. Its sums lack the factors of the orthonormal transform, which are not timed:
// the first forward call, which is compared, brings them in, and inverse ones find them done.
#include <fftw3.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

#include "samples.h"
#include "tables.h"

namespace keli::bench {
namespace {

// Of coefficient k after FFTW's sums, which are twice the plain ones, or, inverse, before them: its
// sums have coefficient 0 once and the others twice.
double factorOf(int k, bool inverse) {
  const double first = k == 0 ? std::sqrt(0.5) : 1;
  return inverse ? 1 / (4 * first) : first / 4;
}

template <fftw_r2r_kind kKind>
Work transform(const Frame& f) {
  auto* const src = reinterpret_cast<float*>(f.source().data());
  auto* const dst = reinterpret_cast<float*>(f.destination().data());
  constexpr bool kInverse = kKind == FFTW_REDFT01;
  const auto scaled = std::make_shared<std::array<float, 64>>();
  const std::shared_ptr<std::remove_pointer_t<fftwf_plan>> plan(
      fftwf_plan_r2r_2d(8, 8, scaled->data(), dst, kKind, kKind, FFTW_MEASURE), fftwf_destroy_plan);
  for (int i = 0; i < 64; ++i) {
    const double factor = factorOf(i / 8, true) * factorOf(i % 8, true);
    (*scaled)[static_cast<std::size_t>(i)] = static_cast<float>(src[i] * (kInverse ? factor : 1));
  }
  return [plan, scaled, dst, compared = false]() mutable {
    fftwf_execute(plan.get());
    if (compared || kInverse) return;
    compared = true;
    for (int i = 0; i < 64; ++i)
      dst[i] *= static_cast<float>(factorOf(i / 8, false) * factorOf(i % 8, false));
  };
}

// Of an image: the first call alone brings in the factors, and is compared.
Work imageTransform(const Frame& f) {
  const int width = f.source().width(), height = f.source().height();
  const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  const std::shared_ptr<float> src(fftwf_alloc_real(count), fftwf_free);
  const std::shared_ptr<float> dst(fftwf_alloc_real(count), fftwf_free);
  const std::shared_ptr<std::remove_pointer_t<fftwf_plan>> plan(
      fftwf_plan_r2r_2d(height, width, src.get(), dst.get(), FFTW_REDFT10, FFTW_REDFT10,
                        FFTW_MEASURE),
      fftwf_destroy_plan);
  const auto row = [width](const Image& image, int y) {
    return reinterpret_cast<float*>(image.data() + y * image.step());
  };
  for (int y = 0; y < height; ++y)
    std::copy_n(row(f.source(), y), width, src.get() + std::ptrdiff_t{y} * width);
  return [=, kept = src, &to = f.destination(), compared = false]() mutable {
    fftwf_execute(plan.get());
    if (compared) return;
    compared = true;
    const auto factor = [](int k, int n) { return std::sqrt((k == 0 ? 0.25 : 0.5) / n); };
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        const double sum = dst.get()[std::ptrdiff_t{y} * width + x];
        row(to, y)[x] = static_cast<float>(sum * factor(x, width) * factor(y, height));
      }
    }
  };
}

// Sources hold samples of up to 256: coefficients are of up to 2048.
const AddPeers kPeers({
    {"keliDCTFwd_32f_C1R", "FFTW r2r_2d", imageTransform, 0.1},
    {"keliDCT8x8Fwd_32f_C1", "FFTW r2r_2d", transform<FFTW_REDFT10>, 2e-3},
    {"keliDCT8x8Inv_32f_C1", "FFTW r2r_2d", transform<FFTW_REDFT01>, 2e-3},
});

}  // namespace
}  // namespace keli::bench
