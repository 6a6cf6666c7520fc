// Values of images and arrays, which stand at any address.
#pragma once

#include <cstddef>
#include <cstring>

namespace keli {

template <class T, class Index>
inline T valueAt(const T* values, Index i) {
  T value;
  std::memcpy(&value, values + static_cast<std::ptrdiff_t>(i), sizeof(T));
  return value;
}

}  // namespace keli
