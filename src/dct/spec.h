// Specification structures of the cosine transforms of images. They are read-only once made.
#pragma once

#include "fft/life.h"
#include "fft/plan.h"

namespace keli::dct {

// What transforms of sequences of one length need.
struct Cosine {
  const fft::Plan* plan;
  const float* turns;       // see CosineRows
  float firstScale, scale;  // of coefficient 0 and of the others, or, inverse, of what they give
};

struct Spec {
  fft::Kind kind;
  std::int32_t width;
  std::int32_t height;
  std::int32_t hint;
  std::int32_t scratchBytes;
  std::int32_t isBlock;  // 1 for 8 x 8 pixels, which need no more than the transform of blocks
  Cosine rows;
  Cosine columns;  // those of the rows, if the sides are equal
};

KelStatus initAlloc(fft::Kind kind, Spec** out, KeliSize size, int hint);
void release(Spec* spec);  // null is ignored

template <class Opaque>
KelStatus initAlloc(Opaque** out, KeliSize size, KelHintAlgorithm hint) {
  return initAlloc(fft::kKindOf<Opaque>, reinterpret_cast<Spec**>(out), size, hint);
}
template <class Opaque>
KelStatus getBufSize(const Opaque* spec, int* size) {
  return fft::getBufSize(fft::kKindOf<Opaque>, reinterpret_cast<const Spec*>(spec), size);
}
template <class Opaque>
KelStatus free(Opaque* spec) {
  return fft::free(fft::kKindOf<Opaque>, reinterpret_cast<Spec*>(spec));
}

constexpr KeliSize sizeOf(const Spec& spec) { return {spec.width, spec.height}; }
// The part of the scratch that the kernels work in, as of fft::Spec.
std::size_t kernelBytes(const Spec& spec);

}  // namespace keli::dct
