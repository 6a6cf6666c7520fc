// Makes, measures and frees specification structures.
#include "fft/spec.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "core/memory.h"
#include "fft/channels.h"
#include "fft/fft_rows.h"

namespace keli::fft {
namespace {

constexpr std::int64_t kMostBytes = std::numeric_limits<std::int32_t>::max();

void setScales(int flag, double n, float& forward, float& inverse) {
  forward = inverse = 1;
  if (flag == 1) forward = static_cast<float>(1 / n);
  if (flag == 2) inverse = static_cast<float>(1 / n);
  if (flag == 4) forward = inverse = static_cast<float>(1 / std::sqrt(n));
}

void release(Spec* spec) {
  if (spec == nullptr) return;
  release(spec->real);
  freePlan(spec->rows);
  if (spec->columns != spec->rows) freePlan(spec->columns);
  spec->kind = Kind{};  // a second call with the same address then finds no structure
  core::freeImage(spec);
}

Spec* newSpec(Kind kind, std::int32_t x, std::int32_t y, int hint) {
  auto* const spec = static_cast<Spec*>(core::allocateAligned(sizeof(Spec)));
  if (spec == nullptr) return nullptr;
  std::memset(static_cast<void*>(spec), 0, sizeof *spec);
  spec->kind = kind;
  spec->x = x;
  spec->y = y;
  spec->hint = hint;
  spec->width = isFft(kind) ? 1 << x : x;
  spec->height = isFft(kind) ? 1 << y : y;
  return spec;
}

// Of a real or a complex kind, all but the structure itself.
bool fill(Spec& spec, int flag) {
  setScales(flag, spec.width, spec.forwardScale[0], spec.inverseScale[0]);
  setScales(flag, spec.height, spec.forwardScale[1], spec.inverseScale[1]);
  spec.rows = makePlan(spec.width);
  spec.columns = spec.height == spec.width ? spec.rows : makePlan(spec.height);
  if (spec.rows == nullptr || spec.columns == nullptr) return false;
  const std::int64_t bytes = static_cast<std::int64_t>(
      kScratchAlignment + kernelBytes(spec) + (isComplex(spec.kind) ? 0 : planeBytes(spec)));
  spec.scratchBytes = static_cast<std::int32_t>(std::min(bytes, kMostBytes));
  return bytes <= kMostBytes;
}

bool make(Spec& spec, int flag) {
  if (!isInteger(spec.kind)) return fill(spec, flag);
  const Kind real = isFft(spec.kind) ? Kind::kRealFft : Kind::kRealDft;
  spec.real = newSpec(real, spec.x, spec.y, spec.hint);
  if (spec.real == nullptr || !fill(*spec.real, flag)) return false;
  spec.scratchBytes = spec.real->scratchBytes;
  return true;
}

}  // namespace

std::size_t kernelBytes(const Spec& spec) {
  const std::size_t width = static_cast<std::size_t>(spec.width);
  const std::size_t height = static_cast<std::size_t>(spec.height);
  const std::size_t floats = std::max(scratchFloats(*spec.rows, height, width),
                                      scratchFloats(*spec.columns, width, width));
  return (floats * sizeof(float) + kScratchAlignment - 1) / kScratchAlignment * kScratchAlignment;
}

std::size_t planeBytes(const Spec& spec) {
  return sizeof(float) * static_cast<std::size_t>(spec.width) *
         static_cast<std::size_t>(spec.height);
}

KelStatus initAlloc(Kind kind, Spec** out, std::int32_t x, std::int32_t y, int flag, int hint) {
  if (out == nullptr) return kelStatusNullPointer;
  if (isFft(kind)) {
    if (x < 0 || x > 30 || y < 0 || y > 30) return kelStatusBadOrder;
  } else if (x < 1 || y < 1) {
    return kelStatusBadSize;
  }
  Spec* const spec = newSpec(kind, x, y, hint);
  if (spec == nullptr) return kelStatusNoMemory;
  const bool known = flag == 1 || flag == 2 || flag == 4 || flag == 8;
  if (known && make(*spec, flag)) {
    *out = spec;
    return kelStatusOk;
  }
  release(spec);
  return known ? kelStatusNoMemory : kelStatusBadFlag;
}

KelStatus getBufSize(Kind kind, const Spec* spec, int* size) {
  if (spec == nullptr || size == nullptr) return kelStatusNullPointer;
  if (spec->kind != kind) return kelStatusBadSpec;
  *size = spec->scratchBytes;
  return kelStatusOk;
}

KelStatus free(Kind kind, Spec* spec) {
  if (spec == nullptr) return kelStatusNullPointer;
  if (spec->kind != kind) return kelStatusBadSpec;
  release(spec);
  return kelStatusOk;
}

}  // namespace keli::fft
