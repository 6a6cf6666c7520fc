// Row kernels of Mirror, for every SIMD target.
#pragma once

#include "core/band.h"
#include "core/by_size.h"

namespace keli::mirror {

// n counts pixels: every row of the source, its pixels in reverse order.
using ReverseBand = void (*)(const Band<1>&);

// Pairs of runs of n pixels each that are exchanged: pixel i of one with pixel i, or with the one i
// before the last, of the other. The runs of one pair do not overlap.
struct ExchangeBand {
  std::uint8_t* one;
  std::ptrdiff_t oneStep;  // from one pair to the next
  std::uint8_t* other;
  std::ptrdiff_t otherStep;
  std::size_t n;
  std::size_t pairs;
};
using Exchange = void (*)(const ExchangeBand&);

struct ReverseRows {
  ReverseBand whole[17];  // by the bytes of a pixel
  BySize<ReverseBand> ac4;
};

struct ExchangeRows {
  Exchange reversed[17];
  BySize<Exchange> reversedAC4;
  Exchange bytes;  // of pixels of one byte, in their order
  BySize<Exchange> ac4;
};

const ReverseRows& reverseRows();
const ExchangeRows& exchangeRows();

}  // namespace keli::mirror
