// PNG files as 8-bit pixels.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace keli::tool {

// Larger images are refused: a header of a few bytes must not exhaust the memory.
constexpr std::int64_t kMaxPixels = std::int64_t{1} << 27;

struct PngImage {
  int width = 0;
  int height = 0;
  int channels = 0;  // 1 gray, 2 gray and alpha, 3 RGB, 4 RGBA
  std::vector<std::uint8_t> samples;

  std::size_t rowBytes() const { return std::size_t(width) * channels; }
};

// The image with its outermost pixels repeated around it, and a part of an image.
PngImage extended(const PngImage& png, int left, int top, int right, int bottom);
PngImage part(const PngImage& png, int x, int y, int width, int height);

// Palettes and low bit depths are expanded, 16 bits reduced to 8; throws UsageError.
PngImage readPng(const std::string& path);
void writePng(const std::string& path, const PngImage& image);

}  // namespace keli::tool
