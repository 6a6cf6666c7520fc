// The steps of two-dimensional transforms, and the ways of other types and layouts through images
// of floats.
#include "fft/transform.h"

#include "core/rounding_mode.h"
#include "fft/integers_rows.h"

namespace keli::fft {
namespace {

struct Kernels {
  Kernel rows;
  Kernel columns;
};

// Both directions of one channel. Sides of one pixel have nothing to transform; a single pixel goes
// through the rows.
void run(const Spec& spec, Direction direction, const Image& image, const Kernels& kernels,
         float* scratch) {
  const bool inverse = direction == Direction::kInverse;
  const float* const scale = inverse ? spec.inverseScale : spec.forwardScale;
  Job job = {bytes(image.src),
             image.srcStep,
             bytes(image.dst),
             image.dstStep,
             static_cast<std::size_t>(spec.width),
             static_cast<std::size_t>(spec.height),
             nullptr,
             scratch,
             1,
             inverse};
  const auto along = [&](bool columns) {
    if (columns ? spec.height == 1 : spec.width == 1 && spec.height != 1) return;
    job.plan = columns ? spec.columns : spec.rows;
    job.scale = scale[columns ? 1 : 0];
    (columns ? kernels.columns : kernels.rows)(job);
    job.src = job.dst;
    job.srcStep = job.dstStep;
  };
  along(inverse);
  along(!inverse);
}

Kernels realKernels() { return {fftRows().realRows, fftRows().realColumns}; }

}  // namespace

KelStatus transformComplex(const Spec& spec, Direction direction, const Image& image,
                           void* buffer) {
  const Buffer scratch(buffer, kernelBytes(spec));
  if (scratch.data() == nullptr) return kelStatusNoMemory;
  const core::RoundToNearest arithmetic;
  run(spec, direction, image, {fftRows().complexRows, fftRows().complexColumns},
      reinterpret_cast<float*>(scratch.data()));
  return kelStatusOk;
}

KelStatus transformReal(const Spec& spec, Direction direction, const Image& image, int channels,
                        int used, void* buffer) {
  const std::size_t plane = channels == 1 ? 0 : planeBytes(sizeOf(spec));
  const Buffer scratch(buffer, kernelBytes(spec) + plane);
  if (scratch.data() == nullptr) return kelStatusNoMemory;
  const core::RoundToNearest arithmetic;
  forChannels(image, sizeOf(spec), channels, used, scratch.data() + kernelBytes(spec),
              [&](const Image& one) {
                run(spec, direction, one, realKernels(), reinterpret_cast<float*>(scratch.data()));
              });
  return kelStatusOk;
}

KelStatus transformIntegers(const Spec& integer, Direction direction, const Image& image,
                            int channels, int used, int scaleFactor, void* buffer) {
  const Spec& spec = *integer.real;
  const Buffer scratch(buffer, kernelBytes(spec) + planeBytes(sizeOf(spec)));
  if (scratch.data() == nullptr) return kelStatusNoMemory;
  const core::RoundToNearest arithmetic;
  auto* const work = reinterpret_cast<float*>(scratch.data());
  std::uint8_t* const one = scratch.data() + kernelBytes(spec);
  const int step = spec.width * static_cast<int>(sizeof(float));
  const IntegersRows& kernels = integersRows();
  const bool forward = direction == Direction::kForward;
  const std::size_t width = static_cast<std::size_t>(spec.width);
  const std::size_t from = forward ? sizeof(Kel8u) : sizeof(Kel32s);
  const std::size_t to = forward ? sizeof(Kel32s) : sizeof(Kel8u);
  for (std::size_t k = 0; k < static_cast<std::size_t>(used); ++k) {
    const Band<1> in =
        makeBand(bytes(image.src) + k * from, image.srcStep, one, step, width, spec.height);
    (forward ? kernels.fromBytes : kernels.fromIntegers)(in, channels);
    run(spec, direction, {one, step, one, step}, realKernels(), work);
    const Band<1> out =
        makeBand(one, step, bytes(image.dst) + k * to, image.dstStep, width, spec.height);
    (forward ? kernels.toIntegers : kernels.toBytes)(out, channels, scaleFactor);
  }
  return kelStatusOk;
}

}  // namespace keli::fft
