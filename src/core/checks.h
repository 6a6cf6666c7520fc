// The argument checks. Each is true for bad arguments; the tables in api/ say which checks a
// function makes, in which order, and which status each returns.
#pragma once

#include <cstring>

#include "core/types.h"

namespace keli {

template <class... Pointers>
inline bool anyNull(const Pointers*... pointers) {
  return (... || (pointers == nullptr));
}

template <int kPlanes, class T>
inline bool anyPlaneNull(T* const* planes) {
  for (int k = 0; k < kPlanes; ++k) {
    if (planes[k] == nullptr) return true;
  }
  return false;
}

inline bool badSize(KeliSize size) { return size.width < 1 || size.height < 1; }

inline bool badWidth(KeliSize size) { return size.width < 1; }

template <class... Steps>
inline bool anyBadStep(Steps... steps) {
  return (... || (steps < 1));
}

template <class T>
inline bool isZero(T value) {
  return value == T{0};
}
inline bool isZero(Kel16sc value) { return value.re == 0 && value.im == 0; }
inline bool isZero(Kel32sc value) { return value.re == 0 && value.im == 0; }
inline bool isZero(Kel32fc value) { return value.re == 0 && value.im == 0; }

// Arrays stand at any address, as images do.
template <class T>
inline bool anyZero(const T* values, int count) {
  for (int k = 0; k < count; ++k) {
    T value;
    std::memcpy(&value, values + k, sizeof(T));
    if (isZero(value)) return true;
  }
  return false;
}

inline bool badChannelOrder(const int* order) {
  int o[3];
  std::memcpy(o, order, sizeof(o));
  return (o[0] | o[1] | o[2]) < 0 || o[0] > 2 || o[1] > 2 || o[2] > 2;
}

}  // namespace keli
