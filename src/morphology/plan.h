// How the windows of a filter are put together, and the scratch memory that takes.
#pragma once

#include <algorithm>
#include <cstdint>

#include "core/memory.h"
#include "morphology/rows.h"

namespace keli::morphology {

// Scratch memory from a cache line on: small blocks are part of the object, others come from the
// heap.
class Workspace {
 public:
  static constexpr std::size_t kWithin = 24576;

  explicit Workspace(std::size_t count) : within_(count <= kWithin), heap_(within_ ? 0 : count) {}

  // Null if there is no memory.
  std::uint8_t* data() { return within_ ? block_ : heap_.as<std::uint8_t>(); }

 private:
  alignas(core::kCacheLine) std::uint8_t block_[kWithin];
  bool within_;
  core::Scratch heap_;
};

// SIZE_MAX, of which no block is made, where the product does not fit.
inline std::size_t bytesOfRows(std::size_t rows, std::size_t rowBytes) {
  std::size_t count;
  return __builtin_mul_overflow(rows, rowBytes, &count) ? SIZE_MAX : count;
}

// The least number of windows of `had` pixels that cover one of `wanted`, and where they begin.
inline Step makeStep(std::size_t had, std::size_t wanted, std::size_t channels) {
  Step step = {(wanted + had - 1) / had, {}, 0};
  for (std::size_t k = 0; k < step.starts; ++k)
    step.start[k] = std::min(k * had, wanted - had) * channels;
  return step;
}

// Steps from single pixels to windows of `width`, as few as there can be, of about the same number
// of starts each.
inline std::size_t makeSteps(std::size_t width, std::size_t channels, Step (&steps)[kMostSteps]) {
  std::size_t left = 0;
  for (std::size_t reached = 1; reached < width; reached *= kMostStarts) ++left;
  if (left == 0) {
    steps[0] = makeStep(1, 1, channels);
    return 1;
  }
  std::size_t count = 0;
  for (std::size_t had = 1; had < width; --left) {
    std::size_t starts = 2;
    const auto suffices = [&](std::size_t s) {
      std::size_t reached = had;
      for (std::size_t i = 0; i < left && reached < width; ++i) reached *= s;
      return reached >= width;
    };
    while (!suffices(starts)) ++starts;
    const std::size_t wanted = std::min(had * starts, width);
    steps[count] = makeStep(had, wanted, channels);
    steps[count++].rest = (width - wanted) * channels;
    had = wanted;
  }
  return count;
}

// Strips as wide as the region, or such that a row takes about rowBytes bytes, but not so narrow
// that their margins are most of it. Rows end with room for four vectors
// beyond, and a line for one that stands apart.
inline Strips makeStrips(std::size_t n, std::size_t margin, std::size_t sampleBytes,
                         std::size_t rowBytes) {
  const std::size_t most = std::max(rowBytes, 4 * margin * sampleBytes) / sampleBytes / 64 * 64;
  Strips strips = {std::min(n, most), margin, 0, nullptr};
  strips.rowBytes = core::wholeLines((strips.n + margin) * sampleBytes + 256 + core::kCacheLine);
  return strips;
}

// Rows of scratch memory that stay in the first-level cache beside those of the images.
inline std::size_t batchOf(const Strips& strips) {
  constexpr std::size_t kBatchBytes = 6144, kMostRows = 16;
  return std::clamp<std::size_t>(kBatchBytes / strips.rowBytes / 2 * 2, 2, kMostRows);
}

// Bytes of a row of scratch memory, of which so many are used by turns: half of a second-level
// cache. Narrower strips of images beyond the caches took up to twice as long.
inline std::size_t fittingRow(std::size_t rows) {
  constexpr std::size_t kAll = 1048576, kLeast = 1024, kMost = 16384;
  return std::clamp(kAll / rows, kLeast, kMost);
}

}  // namespace keli::morphology
