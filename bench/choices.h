// What the rows of the tables choose about the arguments of their calls.
#pragma once

#include <string>

#include "keli.h"

namespace keli::bench {

// In pixels. padding: pixels of each row beyond the region.
struct Size {
  int width;
  int height;
  int padding;
};

std::string nameOf(Size size);  // "640x480", "16x16+48"

// What sources hold where that decides the speed.
enum class Content {
  kNoise,       // any values of integers, evenly spread ones of floats
  kPhotograph,  // smooth, with a little noise
  kFlat,        // one value
};

// Which bytes of a structuring element are set.
enum class Element { kEllipse, kAll };

// Where the pixels of a remapped image come from.
enum class Map { kRotation, kRandom };

// What a row of the tables may choose about the arguments.
struct Choices {
  int scaleFactor = 0;
  double constant = 17;  // of the first channel; that of channel k is (k + 1) times as large
  bool odd = false;      // whether sources hold odd integers alone, for divisors
  double most = 256;     // what floating samples of sources stay below
  int compareOp = kelCmpLess;
  int hint = kelAlgHintFast;
  double upper = 64;  // how far the upper end of a range lies above the lower one, the constant
  int levels = 17;    // of histograms, from the least sample value to past the greatest
  Content content = Content::kNoise;
  KeliSize mask = {3, 3};  // of a neighbourhood, the anchor in its middle
  Element element = Element::kEllipse;
  int axis = kelAxisVertical;
  int interpolation = kelInterpolationLinear;
  int roundMode = kelRoundNearest;
  int bitOffset = 0;
  Map map = Map::kRotation;
  int border = 8;  // on each side
  int noise = 0;
  int dither = kelDitherFloydSteinberg;
  int grayLevels = 4;
};

}  // namespace keli::bench
