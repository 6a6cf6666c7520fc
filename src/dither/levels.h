// The evenly spaced levels of a result: level k of `count` is floor(k * full / (count - 1)), where
// full is the result's full scale, 255 or 65535; 0 and full are the first and the last.
//
// Values v in 0..full are floats. v * factor, its fraction cut off, is the number of the level at v
// or below. The factor is larger than (count - 1) / full by 2^-22 of itself, more than the rounding
// of both can take away: a value on a level is never taken to lie below it.
#pragma once

#include <cstdint>
#include <type_traits>

#include "core/types.h"

namespace keli::dither {

struct Levels {
  Kel32f full;
  Kel32f last;    // count - 1
  Kel32f step;    // full / last
  Kel32f factor;  // levels for one unit of value
  // k * full / last, fraction cut off, is k * whole + ((k * parts) >> 32): parts is the rest of the
  // division as a fraction of 2^32, rounded up, and what k < 2^16 times the rounding adds is less
  // than 1 / last, by which the quotient lies below the next integer.
  std::uint32_t whole;
  std::uint32_t parts;

  // Not inline, so that no caller's rounding mode reaches the arithmetic: see rounding_mode.h.
  Levels(int fullScale, int count);

  // parts as a fraction of 2^16, for numbers below 2^8 and a full scale of 255.
  std::uint16_t shortParts() const { return static_cast<std::uint16_t>((parts + 0xFFFF) >> 16); }
};

// How samples of a source become values: (sample + offset) * scale.
struct Scale {
  Kel32f offset;
  Kel32f scale;
};

template <class T>
constexpr int kFullScale = sizeof(T) == 1 ? 255 : 65535;

// Floats are taken in the range of the result's type.
template <class TS, class TD>
Scale scaleOf() {
  const bool fromZero =
      std::is_same_v<TS, Kel32f> ? std::is_unsigned_v<TD> : std::is_unsigned_v<TS>;
  const bool shrinks = sizeof(TS) == 2 && sizeof(TD) == 1;
  return {fromZero ? 0.f : 32768.f, shrinks ? 255.f / 65535.f : 1.f};
}

}  // namespace keli::dither
