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

// Scratch memory of one call, released when it leaves; null data means that the call has to return
// kelStatusNoMemory.
class Scratch {
 public:
  explicit Scratch(std::size_t count) : data_(count != 0 ? allocateAligned(count) : nullptr) {}
  ~Scratch() { freeImage(data_); }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  template <class T>
  T* as() const {
    return static_cast<T*>(data_);
  }

 private:
  void* data_;
};

}  // namespace keli::core
