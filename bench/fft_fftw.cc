// FFTW's equivalents of Fourier transforms, in single precision, planned by measurement before the
// clock starts. The spectra of real images are compared in the packed order, into which the first
// call alone brings them.
#include <fftw3.h>

#include <cmath>
#include <memory>

#include "samples.h"
#include "tables.h"

namespace keli::bench {
namespace {

const AddLibrary kFftw({"FFTW", fftwf_version, [](int) {}});

struct Free {
  void operator()(void* p) const { fftwf_free(p); }
  void operator()(fftwf_plan p) const { fftwf_destroy_plan(p); }
};
template <class T>
using Memory = std::unique_ptr<T, Free>;
using Plan = std::unique_ptr<std::remove_pointer_t<fftwf_plan>, Free>;

// Copies a region of pixels of so many bytes to or from one without padding.
void copyRows(const std::uint8_t* src, std::size_t srcStep, std::uint8_t* dst, std::size_t dstStep,
              std::size_t bytes, int rows) {
  for (int y = 0; y < rows; ++y) {
    std::copy_n(src + static_cast<std::size_t>(y) * srcStep, bytes,
                dst + static_cast<std::size_t>(y) * dstStep);
  }
}

// The memory and plan of a transform, and whether its result has been compared.
struct State {
  Memory<void> src, dst;
  Plan plan;
  bool compared = false;
};

template <int kSign>
Work complexTransform(const Frame& f) {
  const int width = f.source().width(), height = f.source().height();
  const std::size_t row = static_cast<std::size_t>(width) * sizeof(fftwf_complex);
  auto state = std::make_shared<State>();
  state->src.reset(fftwf_malloc(row * static_cast<std::size_t>(height)));
  state->dst.reset(fftwf_malloc(row * static_cast<std::size_t>(height)));
  auto* const src = static_cast<fftwf_complex*>(state->src.get());
  auto* const dst = static_cast<fftwf_complex*>(state->dst.get());
  state->plan.reset(fftwf_plan_dft_2d(height, width, src, dst, kSign, FFTW_MEASURE));
  copyRows(f.source().data(), static_cast<std::size_t>(f.source().step()),
           static_cast<std::uint8_t*>(state->src.get()), row, row, height);
  return [state, dst, width, height, row, &to = f.destination()] {
    fftwf_execute(state->plan.get());
    if (state->compared) return;
    state->compared = true;
    const float scale = kSign == FFTW_FORWARD ? 1.f : 1.f / (static_cast<float>(width) * height);
    for (std::size_t i = 0; i < static_cast<std::size_t>(width) * height; ++i) {
      dst[i][0] *= scale;
      dst[i][1] *= scale;
    }
    copyRows(reinterpret_cast<const std::uint8_t*>(dst), row, to.data(),
             static_cast<std::size_t>(to.step()), row, height);
  };
}

// Value (x, y) of the packed spectrum from columns 0 .. width / 2 of the whole one.
float packedValue(const fftwf_complex* f, int width, int height, int x, int y) {
  const int u = (x + 1) / 2, columns = width / 2 + 1;
  const bool real = u == 0 || 2 * u == width;
  const int v = real ? (y + 1) / 2 : y;
  const bool imaginary = real ? v != 0 && 2 * v != height && y % 2 == 0 : x % 2 == 0;
  return f[v * columns + u][imaginary ? 1 : 0];
}

Work realTransform(const Frame& f) {
  const int width = f.source().width(), height = f.source().height();
  const std::size_t row = static_cast<std::size_t>(width) * sizeof(float);
  auto state = std::make_shared<State>();
  state->src.reset(fftwf_malloc(row * static_cast<std::size_t>(height)));
  state->dst.reset(fftwf_malloc(sizeof(fftwf_complex) * static_cast<std::size_t>(width / 2 + 1) *
                                static_cast<std::size_t>(height)));
  auto* const dst = static_cast<fftwf_complex*>(state->dst.get());
  state->plan.reset(fftwf_plan_dft_r2c_2d(height, width, static_cast<float*>(state->src.get()), dst,
                                          FFTW_MEASURE));
  copyRows(f.source().data(), static_cast<std::size_t>(f.source().step()),
           static_cast<std::uint8_t*>(state->src.get()), row, row, height);
  return [state, dst, width, height, &to = f.destination()] {
    fftwf_execute(state->plan.get());
    if (state->compared) return;
    state->compared = true;
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        const float value = packedValue(dst, width, height, x, y);
        std::copy_n(reinterpret_cast<const std::uint8_t*>(&value), sizeof value,
                    to.data() + y * to.step() + x * static_cast<int>(sizeof value));
      }
    }
  };
}

// Sources hold samples of up to 256: sums are of up to 2^30.
const AddPeers kPeers({
    {"keli{FFT,DFT}Fwd_CToC_32fc_C1R", "FFTW dft_2d", complexTransform<FFTW_FORWARD>, 40},
    {"keli{FFT,DFT}Inv_CToC_32fc_C1R", "FFTW dft_2d", complexTransform<FFTW_BACKWARD>, 0.01},
    {"keli{FFT,DFT}Fwd_RToPack_32f_C1R", "FFTW dft_r2c_2d", realTransform, 40},
});

}  // namespace
}  // namespace keli::bench
