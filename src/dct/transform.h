// Frame of the cosine transforms of images. Arguments have been checked.
#pragma once

#include "dct/spec.h"

namespace keli::dct {

// Channel k of `channels` interleaved ones, for all k < used. buffer: of the specification's
// scratch size, or null, which makes the call allocate.
KelStatus transform(const Spec& spec, const void* src, int srcStep, void* dst, int dstStep,
                    int channels, int used, void* buffer);

template <Layout kLayout, class Opaque>
KelStatus transform(const Kel32f* src, int srcStep, Kel32f* dst, int dstStep, const Opaque* spec,
                    void* buffer) {
  return transform(*reinterpret_cast<const Spec*>(spec), src, srcStep, dst, dstStep,
                   storedChannels(kLayout), usedChannels(kLayout), buffer);
}

}  // namespace keli::dct
