// What a function gives beside images, as text and as pictures.
#pragma once

#include <string>
#include <vector>

#include "png_image.h"
#include "registry/registry.h"

namespace keli::tool {

// Number i of an array, with as many digits as tell it from its neighbours.
std::string numberText(registry::Type type, const void* array, std::size_t i);

// Of one channel: a count for each bin, and the levels around it as text.
struct Histogram {
  std::vector<int> counts;
  std::vector<std::string> levels;  // one more than counts
};

// "  0 <= v < 64: 12" for each bin, under a line with the name and the channel if there are
// several.
void printHistograms(const std::string& name, const std::vector<Histogram>& channels);

// Bars from the left, scaled to the greatest count: white on black of one channel, else red, green
// and blue, mixed where they overlap, with gray for a fourth behind them.
PngImage drawHistograms(const std::vector<Histogram>& channels);

}  // namespace keli::tool
