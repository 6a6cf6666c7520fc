#include "support/arena.h"

#include <sys/mman.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace keli::test {

Arena::Arena(std::size_t count) {
  const std::size_t page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  size_ = (count + page - 1) / page * page;
  void* m = mmap(nullptr, size_ + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE,
                 -1, 0);
  if (m == MAP_FAILED ||
      mprotect(static_cast<char*>(m) + page, size_, PROT_READ | PROT_WRITE) != 0) {
    std::perror("arena");
    std::abort();
  }
  mapping_ = static_cast<std::uint8_t*>(m);
  data_ = mapping_ + page;
}

Arena::~Arena() { munmap(mapping_, size_ + 2 * static_cast<std::size_t>(data_ - mapping_)); }

std::uint64_t runSeed() {
  static const std::uint64_t seed = [] {
    const char* given = std::getenv("KELI_TEST_SEED");
    const std::uint64_t s = given != nullptr
                                ? std::strtoull(given, nullptr, 0)
                                : static_cast<std::uint64_t>(
                                      std::chrono::system_clock::now().time_since_epoch().count());
    std::printf("KELI_TEST_SEED=%llu repeats this run's random data\n",
                static_cast<unsigned long long>(s));
    return s;
  }();
  return seed;
}

}  // namespace keli::test
