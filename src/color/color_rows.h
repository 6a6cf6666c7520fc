// Row kernels of the conversions between colour spaces, for every SIMD target. A member's are found
// by its conversion and type: keliRGBToHLS_16u_AC4R is kernelsOf<RGBToHLS, Kel16u>().ac4.
#pragma once

#include "core/planes.h"

namespace keli::color {

// By the layouts of source and destination; null where no member has them.
struct Kernels {
  using Kernel = void (*)(const PlanesBand&);
  Kernel c3, ac4;
  Kernel p3 = nullptr, c3p3 = nullptr, p3c3 = nullptr;
  Kernel ap4 = nullptr, ac4ap4 = nullptr, ap4ac4 = nullptr;

  template <Layout kFrom, Layout kTo>
  Kernel of() const {
    if constexpr (storedChannels(kFrom) == 3) {
      if constexpr (isPlanar(kFrom)) return isPlanar(kTo) ? p3 : p3c3;
      return isPlanar(kTo) ? c3p3 : c3;
    } else {
      if constexpr (isPlanar(kFrom)) return isPlanar(kTo) ? ap4 : ap4ac4;
      return isPlanar(kTo) ? ac4ap4 : ac4;
    }
  }
};

// Defined in the rows files, by KELI_SELECT_ROWS.
template <class Conversion, class T>
const Kernels& kernelsOf();

}  // namespace keli::color
