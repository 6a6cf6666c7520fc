#include "support/arena.h"

#include <sys/mman.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <vector>

namespace keli::test {
namespace {

class ArenaPool {
 public:
  std::shared_ptr<Arena> get(std::size_t count) {
    const std::lock_guard<std::mutex> lock(mutex_);
    for (std::size_t i = 0; i < free_.size(); ++i) {
      if (free_[i]->size() >= count && free_[i]->size() <= 4 * count + 16384) {
        Arena* found = free_[i].release();
        free_.erase(free_.begin() + static_cast<std::ptrdiff_t>(i));
        return wrap(found);
      }
    }
    return wrap(new Arena(count));
  }

 private:
  std::shared_ptr<Arena> wrap(Arena* arena) {
    return {arena, [this](Arena* a) {
              const std::lock_guard<std::mutex> lock(mutex_);
              free_.emplace_back(a);
              if (free_.size() > 32) free_.erase(free_.begin());
            }};
  }

  std::mutex mutex_;
  std::vector<std::unique_ptr<Arena>> free_;
};

std::size_t pageBytes() { return static_cast<std::size_t>(sysconf(_SC_PAGESIZE)); }

// Inaccessible memory.
std::uint8_t* reserve(std::size_t count) {
  void* m = mmap(nullptr, count, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  if (m == MAP_FAILED) {
    std::perror("arena");
    std::abort();
  }
  return static_cast<std::uint8_t*>(m);
}

void open(std::uint8_t* p, std::size_t count) {
  if (mprotect(p, count, PROT_READ | PROT_WRITE) == 0) return;
  std::perror("arena");
  std::abort();
}

}  // namespace

Arena::Arena(std::size_t count) {
  const std::size_t page = pageBytes();
  size_ = (count + page - 1) / page * page;
  mapping_ = reserve(size_ + 2 * page);
  data_ = mapping_ + page;
  open(data_, size_);
}

Arena::~Arena() { munmap(mapping_, size_ + 2 * static_cast<std::size_t>(data_ - mapping_)); }

FencedRows::FencedRows(std::size_t rows, std::size_t rowBytes, bool atEnd) {
  const std::size_t page = pageBytes();
  const std::size_t open = (rowBytes + page - 1) / page * page;
  step_ = open + page;
  size_ = rows * step_ + page;
  mapping_ = reserve(size_);
  first_ = mapping_ + page + (atEnd ? open - rowBytes : 0);
  for (std::size_t y = 0; y < rows; ++y) test::open(mapping_ + page + y * step_, open);
}

FencedRows::~FencedRows() { munmap(mapping_, size_); }

std::shared_ptr<Arena> borrowArena(std::size_t count) {
  static ArenaPool* const arenas = new ArenaPool;
  return arenas->get(count);
}

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
