// Row kernels of what reduction of bits does to samples, for every SIMD target: from an image to
// planes of values, values to numbers of levels, and numbers to an image again. n counts pixels.
#pragma once

#include "dither/levels.h"

namespace keli::dither {

// A plane for each channel that takes part.
using Planes = Kel32f* const (&)[4];

template <class Kernel>
struct ByLayout {
  Kernel c1, c3, c4, ac4;

  template <Layout kLayout>
  Kernel of() const {
    return kLayout == Layout::C1   ? c1
           : kLayout == Layout::C3 ? c3
           : kLayout == Layout::C4 ? c4
                                   : ac4;
  }
};

using Read = void (*)(const void* src, std::size_t n, const Scale& scale, Planes values);
using Write = void (*)(Planes numbers, std::size_t n, const Levels& levels, void* dst);

// Noise of pixel x of a row, from a hash of the place; seed is of the row and the channel.
struct Noise {
  std::uint32_t seed;
  Kel32f amplitude;  // the values that the greatest and the least differ by
  Kel32f full;
};

struct ValueRows {
  // Adds noise to n values from pixel x on, and clamps them to 0..full.
  void (*addNoise)(Kel32f* values, std::size_t n, std::size_t x, const Noise& noise);
  // Makes of values numbers of levels, with the four thresholds of the row; the first is that of
  // the first value.
  void (*compare)(Kel32f* values, std::size_t n, const Levels& levels,
                  const Kel32f (&thresholds)[4]);
};

// Defined in the rows files.
template <class TS>
const ByLayout<Read>& readRows();
template <class TD>
const ByLayout<Write>& writeRows();
const ValueRows& valueRows();

}  // namespace keli::dither
