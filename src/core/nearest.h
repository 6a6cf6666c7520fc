// Rounding of numbers that no vector holds: of floats too, which a double holds exactly.
#pragma once

namespace keli {

// The nearest integer, ties to even, of a number of less than 2^31 in size. Every step is exact, so
// the rounding mode does not matter.
constexpr int nearestInteger(double v) {
  const int whole = static_cast<int>(v);
  const int below = v < whole ? whole - 1 : whole;
  const double rest = v - below;
  return below + (rest > 0.5 || (rest == 0.5 && below % 2 != 0) ? 1 : 0);
}

}  // namespace keli
