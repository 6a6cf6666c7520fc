// Makes, measures and frees specification structures.
#include "dct/spec.h"

#include <cmath>

#include "fft/channels.h"
#include "fft/spec.h"

namespace keli::dct {
namespace {

constexpr double kPi = 3.14159265358979323846;

void release(Cosine& cosine) {
  fft::freePlan(cosine.plan);
  core::freeImage(const_cast<float*>(cosine.turns));
}

bool make(Cosine& cosine, std::int32_t n, bool inverse) {
  const double length = n;
  cosine.firstScale = static_cast<float>(1 / std::sqrt(length));
  cosine.scale = n == 1    ? 1.f
                 : inverse ? static_cast<float>(1 / std::sqrt(2 * length))
                           : static_cast<float>(std::sqrt(2 / length));
  cosine.plan = fft::makePlan(n);
  const std::size_t count = static_cast<std::size_t>(n) / 2 + 1;
  auto* const turns = static_cast<float*>(core::allocateAligned(2 * count * sizeof(float)));
  cosine.turns = turns;
  if (cosine.plan == nullptr || turns == nullptr) return false;
  for (std::size_t k = 0; k < count; ++k) {
    const double angle = kPi * static_cast<double>(k) / (2 * length);
    turns[2 * k] = static_cast<float>(std::cos(angle));
    turns[2 * k + 1] = static_cast<float>(std::sin(angle));
  }
  return true;
}

bool fill(Spec& spec) {
  const bool inverse = spec.kind == fft::Kind::kInverseCosine;
  if (!spec.isBlock) {
    if (!make(spec.rows, spec.width, inverse)) return false;
    spec.columns = spec.rows;
    if (spec.height != spec.width) {
      spec.columns = {};
      if (!make(spec.columns, spec.height, inverse)) return false;
    }
  }
  return fft::setScratchBytes(spec,
                              core::kCacheLine + kernelBytes(spec) + fft::planeBytes(sizeOf(spec)));
}

}  // namespace

void release(Spec* spec) {
  if (spec == nullptr) return;
  if (spec->columns.plan != spec->rows.plan) release(spec->columns);
  release(spec->rows);
  fft::forget(spec);
}

std::size_t kernelBytes(const Spec& spec) {
  if (spec.isBlock) return 64 * sizeof(float);
  return fft::kernelBytes(*spec.rows.plan, *spec.columns.plan, sizeOf(spec));
}

KelStatus initAlloc(fft::Kind kind, Spec** out, KeliSize size, int hint) {
  if (out == nullptr) return kelStatusNullPointer;
  if (size.width < 1 || size.height < 1) return kelStatusBadSize;
  Spec* const spec = fft::newSpec<Spec>(kind);
  if (spec == nullptr) return kelStatusNoMemory;
  spec->width = size.width;
  spec->height = size.height;
  spec->hint = hint;
  spec->isBlock = size.width == 8 && size.height == 8;
  if (!fill(*spec)) {
    release(spec);
    return kelStatusNoMemory;
  }
  *out = spec;
  return kelStatusOk;
}

}  // namespace keli::dct
