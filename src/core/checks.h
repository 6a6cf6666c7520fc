// The argument checks. Each is true for bad arguments; the tables in api/ say which checks a
// function makes, in which order, and which status each returns.
#pragma once

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

template <class... Steps>
inline bool anyBadStep(Steps... steps) {
  return (... || (steps < 1));
}

inline bool badChannelOrder(const int order[3]) {
  return (order[0] | order[1] | order[2]) < 0 || order[0] > 2 || order[1] > 2 || order[2] > 2;
}

}  // namespace keli
