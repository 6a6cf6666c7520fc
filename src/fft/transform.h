// Frame of the two-dimensional Fourier transforms: rows, then columns, or, inverse, columns, then
// rows; scratch memory; one channel after another. Arguments have been checked.
#pragma once

#include <type_traits>

#include "fft/channels.h"
#include "fft/fft_rows.h"
#include "fft/spec.h"

namespace keli::fft {

enum class Direction { kForward, kInverse };

// buffer: of the specification's scratch size, or null; null makes the call allocate.
KelStatus transformComplex(const Spec& spec, Direction direction, const Image& image, void* buffer);
// Channel k of `channels` interleaved ones, for all k < used.
KelStatus transformReal(const Spec& spec, Direction direction, const Image& image, int channels,
                        int used, void* buffer);
// The same from bytes to spectra of integers (forward), or back.
KelStatus transformIntegers(const Spec& spec, Direction direction, const Image& image, int channels,
                            int used, int scaleFactor, void* buffer);

template <Layout kLayout, Direction kDirection, class S, class D, class Opaque>
KelStatus transform(const S* src, int srcStep, D* dst, int dstStep, const Opaque* spec,
                    void* buffer) {
  const Image image = {src, srcStep, dst, dstStep};
  if constexpr (std::is_same_v<S, Kel32fc>) {
    return transformComplex(*specOf(spec), kDirection, image, buffer);
  } else {
    return transformReal(*specOf(spec), kDirection, image, storedChannels(kLayout),
                         usedChannels(kLayout), buffer);
  }
}

template <Layout kLayout, Direction kDirection, class S, class D, class Opaque>
KelStatus transform(const S* src, int srcStep, D* dst, int dstStep, const Opaque* spec,
                    int scaleFactor, void* buffer) {
  return transformIntegers(*specOf(spec), kDirection, {src, srcStep, dst, dstStep},
                           storedChannels(kLayout), usedChannels(kLayout), scaleFactor, buffer);
}

}  // namespace keli::fft
