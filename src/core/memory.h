// Aligned image memory, and the scratch memory of the library's own calls.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/types.h"

namespace keli::core {

constexpr std::size_t kAlignment = 32;

// A block of count bytes whose address is a multiple of kAlignment, or null. The pointer-sized word
// before it holds the address of the heap's block.
void* allocateAligned(std::size_t count);

// Releases such a block; null is ignored.
void freeImage(void* ptr);

// step is what the rows need, rounded up to kAlignment. See keliMalloc_8u_C1 in keli.h for the
// rest.
void* mallocRows(int width, int height, std::int64_t bytesPerPixel, int planes, int* stepBytes);

template <class T, Layout kLayout>
T* mallocImage(int width, int height, int* stepBytes) {
  constexpr int kPlanes = isPlanar(kLayout) ? storedChannels(kLayout) : 1;
  return static_cast<T*>(mallocRows(width, height, std::int64_t{sizeof(T)} * pixelSamples(kLayout),
                                    kPlanes, stepBytes));
}

// Vectors of scratch memory that begin on a cache line never lie in two.
constexpr std::size_t kCacheLine = 64;
template <class Count>
constexpr Count wholeLines(Count count) {
  return (count + kCacheLine - 1) / kCacheLine * kCacheLine;
}
inline std::uint8_t* firstLine(void* p) {
  auto* const at = static_cast<std::uint8_t*>(p);
  return at + (0 - reinterpret_cast<std::uintptr_t>(p)) % kCacheLine;
}

// Scratch memory of one call from a cache line on, released when it leaves; null means that the
// call has to return kelStatusNoMemory.
class Scratch {
 public:
  explicit Scratch(std::size_t count) {
    if (count == 0 || count > SIZE_MAX - kCacheLine) return;
    block_ = allocateAligned(count + kCacheLine);
    if (block_ != nullptr) data_ = firstLine(block_);
  }
  ~Scratch() { freeImage(block_); }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  template <class T>
  T* as() const {
    return reinterpret_cast<T*>(data_);
  }

 private:
  void* block_ = nullptr;
  std::uint8_t* data_ = nullptr;
};

// Cuts a block into arrays, each from a cache line of the block on. Without a block it counts the
// bytes that they take.
class Parts {
 public:
  explicit Parts(void* block = nullptr) : block_(static_cast<std::uint8_t*>(block)) {}

  template <class T>
  T* take(std::size_t count) {
    const std::size_t begin = taken_;
    taken_ += wholeLines(count * sizeof(T));
    return block_ != nullptr ? reinterpret_cast<T*>(block_ + begin) : nullptr;
  }
  std::size_t taken() const { return taken_; }

 private:
  std::uint8_t* block_;
  std::size_t taken_ = 0;
};

}  // namespace keli::core
