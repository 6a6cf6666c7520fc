// Row kernels of Remap, for every SIMD target.
#pragma once

#include "remap/sampling.h"

namespace keli::remap {

using Kernel = void (*)(const Remapping& r);

template <class T>
struct ByLayout {
  Kernel c1, c3, c4, ac4;

  template <Layout kLayout>
  Kernel of() const {
    return kLayout == Layout::C3    ? c3
           : kLayout == Layout::C4  ? c4
           : kLayout == Layout::AC4 ? ac4
                                    : c1;
  }
};

struct RemapRows {
  ByLayout<Kel8u> bytes;
  ByLayout<Kel32f> floats;

  template <class T>
  const auto& get() const {
    if constexpr (sizeof(T) == 1) {
      return bytes;
    } else {
      return floats;
    }
  }
};

const RemapRows& nearestRows();
const RemapRows& linearRows();
const RemapRows& cubicRows();

}  // namespace keli::remap
