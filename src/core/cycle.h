// The constants of a multi-channel operation as the kernels take them: those of one pixel, repeated
// to four samples for C1, so that C1 and C4 share kernels.
#pragma once

#include <cstring>

#include "core/types.h"

namespace keli {

struct Cycle {
  alignas(32) std::uint8_t bytes[32];
};

// value: one value for C1, else a pointer to as many as there are channels used. The place of AC4's
// fourth channel holds the first value, whose results are not stored.
template <class T, Layout kLayout, class Value>
Cycle cycleOf(const Value& value) {
  Cycle cycle;
  for (std::size_t k = 0; k < 4; ++k) {
    if constexpr (kLayout == Layout::C1) {
      std::memcpy(cycle.bytes + k * sizeof(T), &value, sizeof(T));
    } else {
      const std::size_t from = k < std::size_t{usedChannels(kLayout)} ? k : 0;
      std::memcpy(cycle.bytes + k * sizeof(T), value + from, sizeof(T));
    }
  }
  return cycle;
}

}  // namespace keli
