// Finding the bins of floats between increasing levels.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/types.h"

namespace keli::histogram {

// A complete binary tree over the levels between the first and the last. Node j of depth t is
// nodes[2^t + j]; after it stands node 2 j of the next depth if v < node, else 2 j + 1. What is
// reached after `depth` nodes is the bin. Nodes without a level hold the last one, which no v in
// the range reaches.
struct Tree {
  const Kel32f* nodes;  // kTreePadding more than 2^depth
  int depth;
  Kel32f least;  // the range of all bins: least <= v < most
  Kel32f most;
  std::uint32_t outside;  // what other values get, NaN among them
};

// Floats that vectors may read after the tree.
constexpr std::size_t kTreePadding = 16;

// Of n values, each a stride of samples after the one before it.
using FindBins = void (*)(const Kel32f* values, std::size_t n, const Tree& tree,
                          std::uint32_t* bins);

struct FindRows {
  static constexpr int kDepths = 7;  // the last kernel is for all depths from its own on
  FindBins stride1[kDepths];
  FindBins stride3[kDepths];
  FindBins stride4[kDepths];

  FindBins find(int depth, int stride) const {
    const auto& kernels = stride == 1 ? stride1 : stride == 3 ? stride3 : stride4;
    return kernels[depth < kDepths ? depth : kDepths - 1];
  }
};

const FindRows& findRows();

}  // namespace keli::histogram
