// Coordinates for functions that take pixels from elsewhere.
#pragma once

#include <string>
#include <vector>

#include "keli.h"

namespace keli::tool {

// Columns and rows in the source for each pixel of the destination, row after row.
struct Maps {
  std::vector<float> x, y;
};

// "rotate:DEGREES", counter-clockwise about the middle, or "wave:AMPLITUDE:LENGTH" in pixels.
// Throws UsageError.
Maps makeMaps(const std::string& text, KeliSize src, KeliSize dst);

}  // namespace keli::tool
