// Specification structures of the two-dimensional Fourier transforms: what a transform of one size
// needs to know. They are read-only once made.
#pragma once

#include <cstdint>

#include "fft/life.h"
#include "fft/plan.h"

namespace keli::fft {

struct Spec {
  Kind kind;
  std::int32_t x;  // binary order of the width (FFT), or the width (DFT)
  std::int32_t y;
  std::int32_t hint;
  std::int32_t scratchBytes;
  std::int32_t path;  // always 0
  // Of the integer kinds, the specification of the real transform; the rest is its own.
  Spec* real;
  std::int32_t width;
  std::int32_t height;
  float forwardScale[2];  // of the rows' and of the columns' transforms
  float inverseScale[2];
  const Plan* rows;
  const Plan* columns;  // rows, if the sides are equal
};

constexpr bool isFft(Kind kind) {
  return kind == Kind::kComplexFft || kind == Kind::kRealFft || kind == Kind::kIntegerFft;
}
constexpr bool isInteger(Kind kind) {
  return kind == Kind::kIntegerFft || kind == Kind::kIntegerDft;
}
constexpr bool isComplex(Kind kind) {
  return kind == Kind::kComplexFft || kind == Kind::kComplexDft;
}

// The callers' structures, of which nothing but the address is known.
template <class Opaque>
const Spec* specOf(const Opaque* opaque) {
  return reinterpret_cast<const Spec*>(opaque);
}

KelStatus initAlloc(Kind kind, Spec** out, std::int32_t x, std::int32_t y, int flag, int hint);
void release(Spec* spec);  // null is ignored

template <class Opaque>
KelStatus initAlloc(Opaque** out, int orderX, int orderY, int flag, KelHintAlgorithm hint) {
  return initAlloc(kKindOf<Opaque>, reinterpret_cast<Spec**>(out), orderX, orderY, flag, hint);
}
template <class Opaque>
KelStatus initAlloc(Opaque** out, KeliSize size, int flag, KelHintAlgorithm hint) {
  return initAlloc(kKindOf<Opaque>, reinterpret_cast<Spec**>(out), size.width, size.height, flag,
                   hint);
}
template <class Opaque>
KelStatus getBufSize(const Opaque* spec, int* size) {
  return getBufSize(kKindOf<Opaque>, specOf(spec), size);
}
template <class Opaque>
KelStatus free(Opaque* spec) {
  return free(kKindOf<Opaque>, reinterpret_cast<Spec*>(spec));
}

// Parts of a transform's scratch, in bytes from the first 64-byte boundary on: what the kernels
// work in, and behind it an image of floats for the types and layouts that need one.
std::size_t kernelBytes(const Plan& rows, const Plan& columns, KeliSize size);
std::size_t planeBytes(KeliSize size);

constexpr KeliSize sizeOf(const Spec& spec) { return {spec.width, spec.height}; }
inline std::size_t kernelBytes(const Spec& spec) {
  return kernelBytes(*spec.rows, *spec.columns, sizeOf(spec));
}

}  // namespace keli::fft
