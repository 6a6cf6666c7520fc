// Makes, measures and frees specification structures.
#include "dct/spec.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "core/memory.h"
#include "fft/channels.h"
#include "fft/fft_rows.h"

namespace keli::dct {
namespace {

constexpr std::int64_t kMostBytes = std::numeric_limits<std::int32_t>::max();
constexpr double kPi = 3.14159265358979323846;

void release(Cosine& cosine) {
  fft::freePlan(cosine.plan);
  core::freeImage(const_cast<float*>(cosine.turns));
}

void release(Spec* spec) {
  if (spec == nullptr) return;
  if (spec->columns.plan != spec->rows.plan) release(spec->columns);
  release(spec->rows);
  spec->kind = fft::Kind{};  // a second call with the same address then finds no structure
  core::freeImage(spec);
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
  const std::int64_t bytes =
      static_cast<std::int64_t>(fft::kScratchAlignment + kernelBytes(spec) + planeBytes(spec));
  spec.scratchBytes = static_cast<std::int32_t>(std::min(bytes, kMostBytes));
  return bytes <= kMostBytes;
}

}  // namespace

std::size_t kernelBytes(const Spec& spec) {
  if (spec.isBlock) return 64 * sizeof(float);
  const std::size_t width = static_cast<std::size_t>(spec.width);
  const std::size_t height = static_cast<std::size_t>(spec.height);
  const std::size_t floats = std::max(fft::scratchFloats(*spec.rows.plan, height, width),
                                      fft::scratchFloats(*spec.columns.plan, width, width));
  const std::size_t unit = fft::kScratchAlignment;
  return (floats * sizeof(float) + unit - 1) / unit * unit;
}

std::size_t planeBytes(const Spec& spec) {
  return sizeof(float) * static_cast<std::size_t>(spec.width) *
         static_cast<std::size_t>(spec.height);
}

KelStatus initAlloc(fft::Kind kind, Spec** out, KeliSize size, int hint) {
  if (out == nullptr) return kelStatusNullPointer;
  if (size.width < 1 || size.height < 1) return kelStatusBadSize;
  auto* const spec = static_cast<Spec*>(core::allocateAligned(sizeof(Spec)));
  if (spec == nullptr) return kelStatusNoMemory;
  std::memset(static_cast<void*>(spec), 0, sizeof *spec);
  spec->kind = kind;
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

KelStatus getBufSize(fft::Kind kind, const Spec* spec, int* size) {
  if (spec == nullptr || size == nullptr) return kelStatusNullPointer;
  if (spec->kind != kind) return kelStatusBadSpec;
  *size = spec->scratchBytes;
  return kelStatusOk;
}

KelStatus free(fft::Kind kind, Spec* spec) {
  if (spec == nullptr) return kelStatusNullPointer;
  if (spec->kind != kind) return kelStatusBadSpec;
  release(spec);
  return kelStatusOk;
}

}  // namespace keli::dct
