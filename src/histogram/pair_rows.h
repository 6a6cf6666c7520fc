// Adding up the counts of pairs of bytes.
#pragma once

#include <cstddef>
#include <cstdint>

namespace keli::histogram {

constexpr std::size_t kByteValues = 256;

// pairs[kByteValues * b + a] is how often a stood before b; adds to counts[v] how often v was one
// of the two.
struct PairRows {
  void (*addPairs)(const std::uint32_t* pairs, std::uint32_t* counts);
};

const PairRows& pairRows();

}  // namespace keli::histogram
