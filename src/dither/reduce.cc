// Values of rows, and ordered dithering of them: the next level where the threshold of the place is
// below what the value exceeds its level by.
#include "dither/reduce.h"

#include <algorithm>

#include "core/parallel.h"
#include "dither/bayer.h"

namespace keli::dither {

Levels::Levels(int fullScale, int count)
    : full(static_cast<Kel32f>(fullScale)),
      last(static_cast<Kel32f>(count - 1)),
      step(full / last),
      factor(last / full * (1 + 0x1p-22f)),
      whole(static_cast<std::uint32_t>(fullScale / (count - 1))),
      parts(static_cast<std::uint32_t>(
          ((std::uint64_t(fullScale % (count - 1)) << 32) + static_cast<unsigned>(count) - 2) /
          static_cast<unsigned>(count - 1))) {}

void readValues(const Images& images, const Method& method, std::size_t x, std::size_t y,
                std::size_t n, Planes values) {
  const std::uint8_t* const row = images.src + static_cast<std::ptrdiff_t>(y) * images.srcStep;
  images.read(row + x * images.srcPixel, n, images.scale, values);
  for (std::size_t k = 0; method.noise != 0 && k < images.channels; ++k)
    valueRows().addNoise(values[k], n, x, method.noiseOf(y, k));
}

namespace {

void compareRow(const Images& images, const Method& method, std::size_t y) {
  constexpr std::size_t kPixels = 256;
  Kel32f samples[4][kPixels];
  Kel32f* const planes[4] = {samples[0], samples[1], samples[2], samples[3]};
  Kel32f thresholds[4];
  for (std::size_t i = 0; i < 4; ++i)
    thresholds[i] = static_cast<Kel32f>(kBayer[y % 4][i]) * method.levels.step / 15;
  std::uint8_t* const row = images.dst + static_cast<std::ptrdiff_t>(y) * images.dstStep;
  for (std::size_t x = 0; x < images.width; x += kPixels) {
    const std::size_t n = std::min(kPixels, images.width - x);
    readValues(images, method, x, y, n, planes);
    for (std::size_t k = 0; k < images.channels; ++k)
      valueRows().compare(planes[k], n, method.levels, thresholds);
    images.write(planes, n, method.levels, row + x * images.dstPixel);
  }
}

}  // namespace

KelStatus compareValues(const Images& images, const Method& method) {
  const int rows = static_cast<int>(images.height);
  const std::size_t moved = images.width * images.height * (images.srcPixel + images.dstPixel);
  return core::runRows(core::Split::kStatic, rows, core::teamSize(rows, moved), 0,
                       [&](const core::RowBlock& block) {
                         for (int i = 0; i < block.count; ++i)
                           compareRow(images, method, static_cast<std::size_t>(block.first + i));
                       });
}

}  // namespace keli::dither
