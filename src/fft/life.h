// The life of specification structures, whatever they hold: they begin with their kind, have their
// scratch's size in scratchBytes, and are taken apart by a function release(Spec*) beside them.
#pragma once

#include <cstring>
#include <limits>

#include "core/memory.h"
#include "fft/kinds.h"

namespace keli::fft {

// Of zeros but for its kind; null if there is no memory.
template <class Spec>
Spec* newSpec(Kind kind) {
  auto* const spec = static_cast<Spec*>(core::allocateAligned(sizeof(Spec)));
  if (spec == nullptr) return nullptr;
  std::memset(static_cast<void*>(spec), 0, sizeof *spec);
  spec->kind = kind;
  return spec;
}

// Releases the structure itself. Another call with its address then hardly finds one.
template <class Spec>
void forget(Spec* spec) {
  spec->kind = Kind{};
  core::freeImage(spec);
}

// False if the size does not fit.
template <class Spec>
bool setScratchBytes(Spec& spec, std::size_t bytes) {
  constexpr std::size_t kMost = std::numeric_limits<std::int32_t>::max();
  if (bytes > kMost) return false;
  spec.scratchBytes = static_cast<std::int32_t>(bytes);
  return true;
}

template <class Spec>
KelStatus getBufSize(Kind kind, const Spec* spec, int* size) {
  if (spec == nullptr || size == nullptr) return kelStatusNullPointer;
  if (spec->kind != kind) return kelStatusBadSpec;
  *size = spec->scratchBytes;
  return kelStatusOk;
}

template <class Spec>
KelStatus free(Kind kind, Spec* spec) {
  if (spec == nullptr) return kelStatusNullPointer;
  if (spec->kind != kind) return kelStatusBadSpec;
  release(spec);
  return kelStatusOk;
}

}  // namespace keli::fft
