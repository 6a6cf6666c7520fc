// The steps of cosine transforms of images: rows, then columns.
#include "dct/transform.h"

#include <cstring>

#include "core/band.h"
#include "dct/blocks.h"
#include "dct/cosine_rows.h"
#include "fft/channels.h"
#include "fft/spec.h"

namespace keli::dct {
namespace {

// 8 x 8 pixels as a block: in place, or by way of one where rows do not follow each other.
void runBlock(const Spec& spec, const fft::Image& image, float* scratch) {
  constexpr std::size_t kRow = 8 * sizeof(float);
  const bool joined = image.srcStep == kRow && image.dstStep == kRow;
  float* const block = joined ? static_cast<float*>(image.dst) : scratch;
  const auto* src = static_cast<const float*>(image.src);
  if (!joined) {
    for (int y = 0; y < 8; ++y)
      std::memcpy(block + 8 * y, bytes(image.src) + y * image.srcStep, kRow);
    src = block;
  }
  const bool inverts = spec.kind == fft::Kind::kInverseCosine;
  inverts ? inverse(src, block) : forward(src, block);
  if (joined) return;
  for (int y = 0; y < 8; ++y)
    std::memcpy(bytes(image.dst) + y * image.dstStep, block + 8 * y, kRow);
}

void run(const Spec& spec, const fft::Image& image, float* scratch) {
  if (spec.isBlock) return runBlock(spec, image, scratch);
  fft::Job job = {bytes(image.src),
                  image.srcStep,
                  bytes(image.dst),
                  image.dstStep,
                  static_cast<std::size_t>(spec.width),
                  static_cast<std::size_t>(spec.height),
                  spec.rows.plan,
                  scratch,
                  spec.rows.scale,
                  spec.kind == fft::Kind::kInverseCosine};
  cosineRows().rows(job, spec.rows.firstScale, spec.rows.turns);
  job.src = job.dst;
  job.srcStep = job.dstStep;
  job.plan = spec.columns.plan;
  job.scale = spec.columns.scale;
  cosineRows().columns(job, spec.columns.firstScale, spec.columns.turns);
}

}  // namespace

KelStatus transform(const Spec& spec, const void* src, int srcStep, void* dst, int dstStep,
                    int channels, int used, void* buffer) {
  const std::size_t plane = channels == 1 ? 0 : fft::planeBytes(sizeOf(spec));
  const fft::Buffer scratch(buffer, kernelBytes(spec) + plane);
  if (scratch.data() == nullptr) return kelStatusNoMemory;
  const core::RoundToNearest arithmetic;
  fft::forChannels({src, srcStep, dst, dstStep}, sizeOf(spec), channels, used,
                   scratch.data() + kernelBytes(spec), [&](const fft::Image& one) {
                     run(spec, one, reinterpret_cast<float*>(scratch.data()));
                   });
  return kelStatusOk;
}

}  // namespace keli::dct
