// Layouts of an image's channels, as the names of the functions give them, and the types of the
// interface without its functions: a new one, or its documentation, compiles no kernel anew.
#pragma once

#include <cstddef>
#include <cstdint>

#include "keli_status.h"
#include "keli_types.h"

namespace keli {

// AC4 and AP4: four channels of which the first three are processed and the fourth is left alone.
enum class Layout : std::uint8_t { C1, C2, C3, C4, AC4, P2, P3, P4, AP4 };

constexpr bool isPlanar(Layout l) {
  return l == Layout::P2 || l == Layout::P3 || l == Layout::P4 || l == Layout::AP4;
}

// Channels that have storage: samples from one pixel to the next, or planes.
constexpr int storedChannels(Layout l) {
  switch (l) {
    case Layout::C1:
      return 1;
    case Layout::C2:
    case Layout::P2:
      return 2;
    case Layout::C3:
    case Layout::P3:
      return 3;
    default:
      return 4;
  }
}

// Channels that take part.
constexpr int usedChannels(Layout l) {
  return l == Layout::AC4 || l == Layout::AP4 ? 3 : storedChannels(l);
}

// Samples from one pixel of a row to the next.
constexpr int pixelSamples(Layout l) { return isPlanar(l) ? 1 : storedChannels(l); }

template <Layout kLayout>
constexpr std::size_t rowSamples(KeliSize size) {
  return static_cast<std::size_t>(pixelSamples(kLayout)) * static_cast<std::size_t>(size.width);
}

}  // namespace keli
