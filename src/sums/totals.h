// Sums and maxima over regions: what the row kernels of all reductions of this kind add to.
//
// A kernel adds the samples of a band to what its totals hold already, so that callers may feed a
// region in parts. Integer totals are exact modulo 2^64. Totals are of stored channels: four for
// AC4, of which the frames use three.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/band.h"
#include "core/types.h"

namespace keli::sums {

struct Totals {
  std::uint64_t value[4] = {};
};

// Partial sums of 32f in single precision for images of so many stored channels: whole cycles of
// them, and whole vectors. Rows of a multiple of that can follow each other as one long row; widths
// are multiples of 64 more often than of 96.
constexpr std::size_t floatLanes(std::size_t channels) { return channels == 3 ? 96 : 64; }

// Lanes of single-precision sums, emptied into double precision now and then.
template <std::size_t kLanes>
struct LaneSums {
  alignas(64) float lanes[kLanes] = {};
  double sums[kLanes] = {};

  void empty() {
    for (std::size_t i = 0; i < kLanes; ++i) {
      sums[i] += static_cast<double>(lanes[i]);
      lanes[i] = 0;
    }
  }
};

// Sample i of a row is added to lane i % floatLanes, whatever the vectors, and lanes are emptied
// into double precision every kRounds additions. So results depend on nothing but the samples, and
// lose little in large regions.
struct FloatTotals : LaneSums<96> {
  static constexpr unsigned kRounds = 256;

  unsigned rounds = 0;

  void empty() {
    LaneSums::empty();
    rounds = 0;
  }
};

// Kernels that reduce to two numbers a channel take two totals.
template <int kSources, class Total>
using Kernel = void (*)(const Band<kSources>& b, Total* totals);

// A kernel for each number of stored channels that it tells apart.
template <int kSources, class Total = Totals>
struct ByChannels {
  Kernel<kSources, Total> c1, c3, c4;

  template <Layout kLayout>
  Kernel<kSources, Total> of() const {
    return kLayout == Layout::C1 ? c1 : kLayout == Layout::C3 ? c3 : c4;
  }
};

// Of one image (src) or of the difference of two (src1 - src2). largest: of magnitudes; those of
// 32f as the bits of a float, of which a NaN's are the largest. Of one image of 8u or 16s there is
// none: its extremes tell.
template <int kSources>
struct Integers {
  ByChannels<kSources> magnitudes, squares, largest;
};

template <class T>
const Integers<1>& integersOfOne();
template <class T>
const Integers<2>& integersOfTwo();
// Of the difference, and of src2.
template <class T>
const Integers<2>& integersOfBoth();
// Of signed samples; those of unsigned ones are their magnitudes.
const ByChannels<1>& signedSums();

template <int kSources>
struct Floats {
  ByChannels<kSources, FloatTotals> sums, magnitudes, squares;  // sums: of one image alone
  ByChannels<kSources> largest;
};

const Floats<1>& floatsOfOne();
const Floats<2>& floatsOfTwo();
const ByChannels<1>& largest32s();

}  // namespace keli::sums
