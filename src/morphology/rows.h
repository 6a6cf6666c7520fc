// The kernels of minimum and maximum filters, found by their order and type: keliErode_8u_C3R is
// extentRows<Min, Kel8u>(). A band counts samples, and its source begins at the top left pixel of
// the first pixel's window.
//
// All work is done by strips of columns, which keep the rows of scratch memory in the caches. The
// extremes of windows of a row come from those of shorter windows: Step has the places where the
// shorter ones begin, which together cover the longer one.
#pragma once

#include "core/band.h"
#include "core/types.h"

namespace keli::morphology {

struct Min {};
struct Max {};
using FilterMin = Min;
using FilterMax = Max;
using Erode = Min;
using Dilate = Max;
using Erode3x3 = Min;
using Dilate3x3 = Max;

constexpr std::size_t kMostStarts = 4;
constexpr std::size_t kMostSteps = 32;
// Heights up to which the rows of a window are gone through for every two rows of results.
constexpr std::size_t kLowHeight = 8;

struct Step {
  std::size_t starts;              // 1 .. kMostStarts
  std::size_t start[kMostStarts];  // in samples, the first 0
  std::size_t rest;  // samples of a row by which windows of this length outnumber full ones
};

struct Strips {
  std::size_t n;         // samples of a strip's results
  std::size_t margin;    // samples that windows reach beyond them
  std::size_t rowBytes;  // of a row of scratch memory
  std::uint8_t* scratch;
};

struct Rectangle {
  Strips strips;
  std::size_t height;
  std::size_t batch;  // rows that each part of the work is done for at once, an even number
  std::size_t steps;
  Step step[kMostSteps];
};

// A run of the element's row, or a part of one: the windows of step `step`, from `start` on.
struct Chord {
  std::size_t row;
  std::size_t start;
  std::size_t step;
};

struct Element {
  Strips strips;
  std::size_t height;
  std::size_t firstStep;  // 1 where no run is a single pixel, else 0: windows of one pixel
  std::size_t steps;
  Step step[kMostSteps];
  std::size_t chordCount;
  const Chord* chords;
  const void** rows;  // room for a pointer for each chord
};

struct ExtentRows {
  using Rectangles = void (*)(const Band<1>&, const Rectangle&);
  using Squares = void (*)(const Band<1>&, std::size_t channels);
  using Elements = void (*)(const Band<1>&, const Element&);
  Rectangles rectangle;  // C1, C3, C4
  Rectangles rectangleAC4;
  Squares square;  // 3 x 3, not in place
  Squares squareAC4;
  Elements element;
  Elements elementAC4;
};

// Defined in the rows files; 16s has no elements.
template <class Operation, class T>
const ExtentRows& extentRows();

}  // namespace keli::morphology
