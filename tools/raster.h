// An image in memory as a function expects it: any sample type, any layout.
#pragma once

#include <array>
#include <vector>

#include "png_image.h"
#include "registry/registry.h"

namespace keli::tool {

class Raster {
 public:
  // All samples 0.
  Raster(registry::Type type, Layout layout, int width, int height);
  // Converted: gray from colour by luminance weights, opaque where the file has no alpha.
  Raster(registry::Type type, Layout layout, const PngImage& png);

  int width() const { return width_; }
  int height() const { return height_; }
  int step() const { return step_; }

  // The argument for a region that starts at (x, y): the address of its first sample in a channel,
  // or the array of its planes.
  const void* argument(int x, int y, int channel);

  // Saturated to 8 bits.
  PngImage toPng() const;

 private:
  std::size_t offset(int x, int y, int channel) const;

  registry::Type type_;
  Layout layout_;
  int width_, height_, step_;
  std::vector<unsigned char> bytes_;
  std::array<unsigned char*, 4> planes_{};
};

// A mask from a picture: 255 where its gray value is 128 or more.
Raster makeMask(const PngImage& png);

}  // namespace keli::tool
