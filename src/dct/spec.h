// Specification structures of the cosine transforms of images. They are read-only once made.
#pragma once

#include "fft/kinds.h"
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
KelStatus getBufSize(fft::Kind kind, const Spec* spec, int* size);
KelStatus free(fft::Kind kind, Spec* spec);

template <class Opaque>
KelStatus initAlloc(Opaque** out, KeliSize size, KelHintAlgorithm hint) {
  return initAlloc(fft::kKindOf<Opaque>, reinterpret_cast<Spec**>(out), size, hint);
}
template <class Opaque>
KelStatus getBufSize(const Opaque* spec, int* size) {
  return getBufSize(fft::kKindOf<Opaque>, reinterpret_cast<const Spec*>(spec), size);
}
template <class Opaque>
KelStatus free(Opaque* spec) {
  return free(fft::kKindOf<Opaque>, reinterpret_cast<Spec*>(spec));
}

// Parts of a transform's scratch, as of fft::Spec.
std::size_t kernelBytes(const Spec& spec);
std::size_t planeBytes(const Spec& spec);

}  // namespace keli::dct
