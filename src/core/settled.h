// Floats and doubles that are no numbers in one form: which of two such operands an operation
// passes on depends on the order in which a compiler gives them. Of vectors: settledLanes in
// simd-inl.h.
#pragma once

#include <limits>

namespace keli {

template <class T>
constexpr T settled(T v) {
  return v == v ? v : std::numeric_limits<T>::quiet_NaN();
}

}  // namespace keli
