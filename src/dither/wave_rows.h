// Error diffusion as a wave over the rows of an image, for every SIMD target.
//
// Each lane of a vector works on a row of its own, kSkew columns behind the lane of the row above,
// so that the errors that it needs of that row have been made in earlier steps. Some vectors go on
// side by side, each a chain: channels, or rows below those of the vector before. A lane that has
// come to the end of its row goes on with a lower row that no lane has, after kGap idle steps. What
// the first lane of a chain needs of the row above it comes from memory, where the last lane of
// that row's chain has left it.
//
// A step of an idle lane has the value kIdle, of which neither a level nor an error comes.
#pragma once

#include "dither/levels.h"

namespace keli::dither {

constexpr Kel32f kIdle = -1e30f;
constexpr int kMostChains = 4;
// What is done at a time: of every lane a piece of its row.
constexpr std::size_t kTileSteps = 64;

// The rows above that a method reads: one for Floyd-Steinberg, two for the others.
constexpr int skewOf(int rowsAbove) { return rowsAbove + 1; }
// Columns beside a row whose errors are read.
constexpr int gapOf(int rowsAbove) { return rowsAbove; }

// Weights of the errors of the pixel before and the one before that, and of those of the row above
// and the one above that from x - 2 to x + 2. With two rows above these are symmetric; one row has
// no place further than one pixel.
struct Weights {
  Kel32f here[2];
  Kel32f above[2][5];
};

struct Tile {
  // Of each chain: values by step and lane, which become numbers of levels.
  Kel32f* values[kMostChains];
  // The errors of the row above the first lane's, and of the last lane's row; then of the rows
  // above these. By step.
  const Kel32f* above[2][kMostChains];
  Kel32f* below[2][kMostChains];
  // What a chain keeps from one tile to the next; zeros at first.
  Kel32f* memory[kMostChains];
};

// Vectors that a chain keeps.
constexpr std::size_t kMemoryVectors = 18;

struct WaveRows {
  std::size_t lanes;
  // By the number of rows above less one and the number of chains less one.
  void (*advance[2][kMostChains])(const Tile& tile, const Levels& levels, const Weights& weights);
  // Values of the lanes' rows, kTileSteps each, to steps of lanes, and back.
  void (*toSteps)(const Kel32f* rows, Kel32f* steps);
  void (*toRows)(const Kel32f* steps, Kel32f* rows);
};

const WaveRows& waveRows();

}  // namespace keli::dither
