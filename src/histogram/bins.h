// The bins of one channel: bin k counts the values v with level(k) <= v < level(k + 1). Levels and
// counts stand in the caller's arrays, at any address. A count stops at the greatest int.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

#include "core/types.h"
#include "core/values.h"

namespace keli::histogram {

// 64 bits: a region may have more pixels than a count holds.
inline std::uint64_t pixelsOf(KeliSize size) {
  return static_cast<std::uint64_t>(size.width) * static_cast<std::uint64_t>(size.height);
}

template <class Level>
struct Bins {
  int* counts;
  const Level* levels;
  std::size_t size;

  Level level(std::size_t k) const { return valueAt(levels, k); }

  void clear() const { std::memset(counts, 0, size * sizeof(int)); }

  void add(std::size_t k, std::uint64_t pixels) const {
    constexpr std::uint64_t kMost = std::numeric_limits<int>::max();
    const std::uint64_t sum = static_cast<std::uint64_t>(valueAt(counts, k)) + pixels;
    const int count = static_cast<int>(sum < kMost ? sum : kMost);
    std::memcpy(counts + k, &count, sizeof(count));
  }

  // Strictly: false where a level is a NaN.
  bool increasing() const {
    for (std::size_t k = 0; k < size; ++k) {
      if (!(level(k) < level(k + 1))) return false;
    }
    return true;
  }
};

// Adds counts of single values to the bins: before[v - least] is how many pixels there are below v,
// modulo 2^32, for the values from least to `most`. Levels beyond them act as these ends.
template <class Level>
void addValues(const Bins<Level>& bins, const std::uint32_t* before, Level least, Level most) {
  const auto below = [&](Level level) {
    return before[(level < least ? least : level > most ? most : level) - least];
  };
  for (std::size_t k = 0; k < bins.size; ++k) {
    const Level lower = bins.level(k), upper = bins.level(k + 1);
    if (lower < upper) bins.add(k, below(upper) - below(lower));
  }
}

}  // namespace keli::histogram
