// The size of the second-level cache.
#include "core/cache.h"

#include <unistd.h>

namespace keli {

std::atomic<std::size_t> gStreamAbove{0};

std::size_t findStreamAbove() {
  std::size_t size = std::size_t{1} << 20;
#ifdef _SC_LEVEL2_CACHE_SIZE
  const long reported = sysconf(_SC_LEVEL2_CACHE_SIZE);
  if (reported > 0) size = static_cast<std::size_t>(reported);
#endif
  gStreamAbove.store(size, std::memory_order_relaxed);
  return size;
}

}  // namespace keli
