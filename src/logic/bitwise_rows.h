// Row kernels of And, Or, Xor and of the operations with a constant, for every SIMD target. Bits
// know no types: without a channel to leave alone a row is so many bytes.
#pragma once

#include "core/band.h"
#include "core/by_size.h"

namespace keli::logic {

struct TwoImages {
  using Kernel = void (*)(const Band<2>&);
  Kernel bytes;        // n bytes: C1, C3, C4
  BySize<Kernel> ac4;  // n samples
};

struct BitwiseRows {
  TwoImages conjunction;
  TwoImages disjunction;
  TwoImages difference;
};

// dst = (src & kept) ^ flipped, over and over for every 16 bytes, or for every 12 of C3.
struct BitConstant {
  alignas(16) std::uint8_t kept[16];
  alignas(16) std::uint8_t flipped[16];
};

struct BitConstantRows {
  using Kernel = void (*)(const Band<1>&, const BitConstant*);
  Kernel bytes;        // n bytes: C1, C4
  Kernel c3;           // n bytes
  BySize<Kernel> ac4;  // n samples
};

const BitwiseRows& bitwiseRows();
const BitConstantRows& bitConstantRows();

}  // namespace keli::logic
