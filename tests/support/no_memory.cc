#include "support/no_memory.h"

#include <cstddef>

namespace {
bool gNoMemory = false;
}

// The linker gives these names to malloc where the library asks for memory, and to the heap's own.
extern "C" void* __real_malloc(std::size_t count);
extern "C" void* __wrap_malloc(std::size_t count) {
  return gNoMemory ? nullptr : __real_malloc(count);
}

namespace keli::test {

NoMemory::NoMemory() { gNoMemory = true; }
NoMemory::~NoMemory() { gNoMemory = false; }

}  // namespace keli::test
