// Numbers and histograms as text; histograms as pictures.
#include "results.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "sample_type.h"

namespace keli::tool {
namespace {

constexpr int kHeight = 256;
constexpr std::size_t kLeastWidth = 256, kMostWidth = 1024;

template <class T>
std::string shortestText(T number) {
  constexpr int kDigits = std::is_same_v<T, float> ? 9 : 17;
  char text[64];
  if (std::trunc(number) == number && std::fabs(number) < T{1e15f}) {
    std::snprintf(text, sizeof text, "%.0f", static_cast<double>(number));
    return text;
  }
  for (int digits = 6; digits <= kDigits; ++digits) {
    std::snprintf(text, sizeof text, "%.*g", digits, static_cast<double>(number));
    if (static_cast<T>(std::strtod(text, nullptr)) == number) break;
  }
  return text;
}

std::size_t widthFor(const std::vector<Histogram>& channels) {
  std::size_t bins = 1;
  for (const Histogram& h : channels) bins = std::max(bins, h.counts.size());
  if (bins > kMostWidth) return kMostWidth;
  return bins * ((kLeastWidth + bins - 1) / bins);
}

// The greatest count of the bins that column x of so many shows.
int countAt(const Histogram& h, std::size_t x, std::size_t width) {
  std::size_t first = x * h.counts.size() / width;
  std::size_t last = std::max(first + 1, (x + 1) * h.counts.size() / width);
  return *std::max_element(h.counts.begin() + static_cast<std::ptrdiff_t>(first),
                           h.counts.begin() + static_cast<std::ptrdiff_t>(last));
}

int barHeight(int count, int most) {
  if (count <= 0) return 0;
  return std::max(1, static_cast<int>(std::lround(static_cast<double>(count) * kHeight / most)));
}

// Raises one sample of the lowest pixels of a column to a value.
void drawBar(PngImage& png, std::size_t x, int channel, int height, std::uint8_t value) {
  for (int y = png.height - height; y < png.height; ++y) {
    std::uint8_t& sample = png.samples[y * png.rowBytes() + x * png.channels + channel];
    sample = std::max(sample, value);
  }
}

}  // namespace

std::string numberText(registry::Type type, const void* array, std::size_t i) {
  return withSampleType(type, [&](auto number) -> std::string {
    std::memcpy(&number, static_cast<const unsigned char*>(array) + i * sizeof number,
                sizeof number);
    if constexpr (std::is_floating_point_v<decltype(number)>) return shortestText(number);
    return std::to_string(number);
  });
}

void printHistograms(const std::string& name, const std::vector<Histogram>& channels) {
  for (std::size_t k = 0; k < channels.size(); ++k) {
    std::string title = channels.size() > 1 ? name + ", channel " + std::to_string(k) : name;
    std::printf("%s:\n", title.c_str());
    const Histogram& h = channels[k];
    for (std::size_t i = 0; i < h.counts.size(); ++i) {
      std::printf("  %s <= v < %s: %d\n", h.levels[i].c_str(), h.levels[i + 1].c_str(),
                  h.counts[i]);
    }
  }
}

PngImage drawHistograms(const std::vector<Histogram>& channels) {
  std::size_t width = widthFor(channels);
  PngImage png{static_cast<int>(width), kHeight, channels.size() == 1 ? 1 : 3, {}};
  png.samples.resize(png.rowBytes() * png.height);
  int most = 1;
  for (const Histogram& h : channels)
    most = std::max(most, *std::max_element(h.counts.begin(), h.counts.end()));
  for (std::size_t k = 0; k < channels.size(); ++k) {
    for (std::size_t x = 0; x < width; ++x) {
      int height = barHeight(countAt(channels[k], x, width), most);
      if (k < 3) {
        drawBar(png, x, static_cast<int>(k), height, 255);
      } else {
        for (int c = 0; c < 3; ++c) drawBar(png, x, c, height, 96);
      }
    }
  }
  return png;
}

}  // namespace keli::tool
