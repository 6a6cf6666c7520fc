// Makes, measures and frees specification structures.
#include "fft/spec.h"

#include <algorithm>
#include <cmath>

#include "fft/channels.h"
#include "fft/fft_rows.h"

namespace keli::fft {
namespace {

void setScales(int flag, double n, float& forward, float& inverse) {
  forward = inverse = 1;
  if (flag == 1) forward = static_cast<float>(1 / n);
  if (flag == 2) inverse = static_cast<float>(1 / n);
  if (flag == 4) forward = inverse = static_cast<float>(1 / std::sqrt(n));
}

Spec* specOfSize(Kind kind, std::int32_t x, std::int32_t y, int hint) {
  Spec* const spec = newSpec<Spec>(kind);
  if (spec == nullptr) return nullptr;
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
  const std::size_t plane = isComplex(spec.kind) ? 0 : planeBytes(sizeOf(spec));
  return setScratchBytes(spec, core::kCacheLine + kernelBytes(spec) + plane);
}

bool make(Spec& spec, int flag) {
  if (!isInteger(spec.kind)) return fill(spec, flag);
  const Kind real = isFft(spec.kind) ? Kind::kRealFft : Kind::kRealDft;
  spec.real = specOfSize(real, spec.x, spec.y, spec.hint);
  if (spec.real == nullptr || !fill(*spec.real, flag)) return false;
  spec.scratchBytes = spec.real->scratchBytes;
  return true;
}

}  // namespace

void release(Spec* spec) {
  if (spec == nullptr) return;
  release(spec->real);
  freePlan(spec->rows);
  if (spec->columns != spec->rows) freePlan(spec->columns);
  forget(spec);
}

std::size_t kernelBytes(const Plan& rows, const Plan& columns, KeliSize size) {
  const std::size_t width = static_cast<std::size_t>(size.width);
  const std::size_t height = static_cast<std::size_t>(size.height);
  const std::size_t floats =
      std::max(scratchFloats(rows, height, width), scratchFloats(columns, width, width));
  return core::wholeLines(floats * sizeof(float));
}

std::size_t planeBytes(KeliSize size) {
  return sizeof(float) * static_cast<std::size_t>(size.width) *
         static_cast<std::size_t>(size.height);
}

KelStatus initAlloc(Kind kind, Spec** out, std::int32_t x, std::int32_t y, int flag, int hint) {
  if (out == nullptr) return kelStatusNullPointer;
  if (isFft(kind)) {
    if (x < 0 || x > 30 || y < 0 || y > 30) return kelStatusBadOrder;
  } else if (x < 1 || y < 1) {
    return kelStatusBadSize;
  }
  Spec* const spec = specOfSize(kind, x, y, hint);
  if (spec == nullptr) return kelStatusNoMemory;
  const bool known = flag == 1 || flag == 2 || flag == 4 || flag == 8;
  if (known && make(*spec, flag)) {
    *out = spec;
    return kelStatusOk;
  }
  release(spec);
  return known ? kelStatusNoMemory : kelStatusBadFlag;
}

}  // namespace keli::fft
