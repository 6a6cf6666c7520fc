#include "support/no_memory.h"

#include <cstddef>

namespace {
constexpr int kUnlimited = -1;
int gCallsLeft = kUnlimited;
}  // namespace

// The linker gives these names to malloc where the library asks for memory, and to the heap's own.
extern "C" void* __real_malloc(std::size_t count);
extern "C" void* __wrap_malloc(std::size_t count) {
  if (gCallsLeft == 0) return nullptr;
  if (gCallsLeft > 0) --gCallsLeft;
  return __real_malloc(count);
}

namespace keli::test {

NoMemory::NoMemory(int calls) { gCallsLeft = calls; }
NoMemory::~NoMemory() { gCallsLeft = kUnlimited; }

}  // namespace keli::test
