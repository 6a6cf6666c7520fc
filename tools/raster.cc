// Conversions between 8-bit pixels and the sample types and layouts of the library.
#include "raster.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "sample_type.h"

namespace keli::tool {
namespace {

using Rgba = std::array<int, 4>;

Rgba rgbaAt(const PngImage& png, int x, int y) {
  const std::uint8_t* p = png.samples.data() + y * png.rowBytes() + std::size_t(x) * png.channels;
  switch (png.channels) {
    case 1:
      return {p[0], p[0], p[0], 255};
    case 2:
      return {p[0], p[0], p[0], p[1]};
    case 3:
      return {p[0], p[1], p[2], 255};
    default:
      return {p[0], p[1], p[2], p[3]};
  }
}

int grayOf(const Rgba& c) { return (299 * c[0] + 587 * c[1] + 114 * c[2] + 500) / 1000; }

// The samples of a pixel in a layout of so many channels.
Rgba channelsOf(const Rgba& c, int channels) { return channels <= 2 ? Rgba{grayOf(c), c[3]} : c; }

template <class T>
T fromByte(int byte) {
  if constexpr (std::is_same_v<T, Kel8s>) byte = std::min(byte, 127);
  return static_cast<T>(byte);
}

template <class T>
std::uint8_t toByte(T sample) {
  if constexpr (std::is_floating_point_v<T>) {
    if (std::isnan(sample)) return 255;
    sample = std::nearbyint(sample);
  }
  using Wide = std::conditional_t<std::is_floating_point_v<T>, T, std::int64_t>;
  return static_cast<std::uint8_t>(std::clamp<Wide>(sample, 0, 255));
}

}  // namespace

Raster::Raster(registry::Type type, Layout layout, int width, int height)
    : type_(type), layout_(layout), width_(width), height_(height) {
  std::int64_t row = std::int64_t{width} * pixelSamples(layout) *
                     static_cast<std::int64_t>(registry::bytesOf(type));
  std::int64_t step = (row + 31) / 32 * 32;
  if (step > std::numeric_limits<int>::max()) throw std::bad_alloc();
  step_ = static_cast<int>(step);
  int planes = isPlanar(layout) ? storedChannels(layout) : 1;
  bytes_.resize(static_cast<std::size_t>(step) * height * planes);
}

Raster::Raster(registry::Type type, Layout layout, const PngImage& png)
    : Raster(type, layout, png.width, png.height) {
  withSampleType(type, [&](auto zero) {
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) {
        Rgba samples = channelsOf(rgbaAt(png, x, y), storedChannels(layout));
        for (int k = 0; k < storedChannels(layout); ++k) {
          auto sample = fromByte<decltype(zero)>(samples[k]);
          std::memcpy(bytes_.data() + offset(x, y, k), &sample, sizeof sample);
        }
      }
    }
  });
}

std::size_t Raster::offset(int x, int y, int channel) const {
  std::size_t row = y, sample = std::size_t(x) * pixelSamples(layout_);
  if (isPlanar(layout_)) {
    row += std::size_t(channel) * height_;
  } else {
    sample += channel;
  }
  return row * step_ + sample * registry::bytesOf(type_);
}

const void* Raster::argument(int x, int y, int channel) {
  if (!isPlanar(layout_)) return bytes_.data() + offset(x, y, channel);
  for (int k = 0; k < storedChannels(layout_); ++k) planes_[k] = bytes_.data() + offset(x, y, k);
  return planes_.data();
}

PngImage Raster::toPng() const {
  PngImage png{width_, height_, storedChannels(layout_), {}};
  png.samples.reserve(png.rowBytes() * height_);
  withSampleType(type_, [&](auto sample) {
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) {
        for (int k = 0; k < png.channels; ++k) {
          std::memcpy(&sample, bytes_.data() + offset(x, y, k), sizeof sample);
          png.samples.push_back(toByte(sample));
        }
      }
    }
  });
  return png;
}

Raster makeMask(const PngImage& png) {
  PngImage mask{png.width, png.height, 1, {}};
  mask.samples.reserve(mask.rowBytes() * mask.height);
  for (int y = 0; y < png.height; ++y) {
    for (int x = 0; x < png.width; ++x) {
      mask.samples.push_back(grayOf(rgbaAt(png, x, y)) >= 128 ? 255 : 0);
    }
  }
  return Raster(registry::Type::k8u, Layout::C1, mask);
}

}  // namespace keli::tool
