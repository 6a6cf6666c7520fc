// Aligned blocks over the C heap.
//
// A block of n bytes takes n + 32 + sizeof(void*) bytes of the heap; the address handed out is the
// first multiple of 32 that leaves room for a pointer before it, and that pointer is the heap's
// block.
#include "core/memory.h"

#include <cstdlib>
#include <cstring>
#include <limits>

namespace keli::core {

void* allocateAligned(std::size_t count) {
  constexpr std::size_t kExtra = kAlignment + sizeof(void*);
  if (count > std::numeric_limits<std::size_t>::max() - kExtra) return nullptr;
  void* raw = std::malloc(count + kExtra);
  if (raw == nullptr) return nullptr;
  const std::uintptr_t first = reinterpret_cast<std::uintptr_t>(raw) + sizeof(void*);
  const std::uintptr_t aligned = (first + kAlignment - 1) / kAlignment * kAlignment;
  unsigned char* block =
      static_cast<unsigned char*>(raw) + (aligned - reinterpret_cast<std::uintptr_t>(raw));
  std::memcpy(block - sizeof(void*), &raw, sizeof(void*));
  return block;
}

void freeImage(void* ptr) {
  if (ptr == nullptr) return;
  void* raw;
  std::memcpy(&raw, static_cast<unsigned char*>(ptr) - sizeof(void*), sizeof(void*));
  std::free(raw);
}

void* mallocRows(int width, int height, std::int64_t bytesPerPixel, int planes, int* stepBytes) {
  if (stepBytes == nullptr) return nullptr;
  *stepBytes = 0;
  if (width < 1 || height < 1) return nullptr;
  const std::int64_t step = (width * bytesPerPixel + 31) / 32 * 32;
  *stepBytes = static_cast<int>(static_cast<std::uint32_t>(step));
  // step is below 2^37 and rows below 2^33, so compare before multiplying.
  constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
  const std::int64_t rows = std::int64_t{height} * planes;
  if (step > kMost / rows) return nullptr;
  return allocateAligned(static_cast<std::size_t>(step * rows));
}

}  // namespace keli::core
