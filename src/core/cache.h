// From which size on a region is stored around the caches.
#pragma once

#include <atomic>
#include <cstddef>

namespace keli {

// Bytes moved above which stores stream; 0 until the processor has been asked. Tests set it.
extern std::atomic<std::size_t> gStreamAbove;

// Asks the processor, stores the result and returns it.
std::size_t findStreamAbove();

inline bool exceedsCache(std::size_t rowBytes, std::size_t rows) {
  std::size_t above = gStreamAbove.load(std::memory_order_relaxed);
  if (__builtin_expect(above == 0, 0)) above = findStreamAbove();
  std::size_t moved;
  return __builtin_mul_overflow(rowBytes, rows, &moved) || moved > above;
}

}  // namespace keli
