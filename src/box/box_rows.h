// Row kernels of the box filter, for every SIMD target: means of the rectangle of pixels around
// each one.
//
// A kernel is called for rows that follow one another. What it keeps from one row to the next
// stands in scratch memory, so that the rows of one block may be computed by several calls.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/band.h"
#include "core/types.h"

namespace keli::box {

// (sum * multiplier) >> shift, in 64 bits: the quotient of bytes.
struct ByteQuotient {
  std::uint32_t multiplier;
  int shift;
};

// Rows of a region, and the mask.
struct BoxRows {
  Band<1> b;              // src: the first pixel of the first row's mask; n: samples of dst
  std::size_t pixel;      // samples from one pixel to the next
  std::size_t maskWidth;  // in pixels
  std::size_t maskHeight;
  float reciprocal;  // of the number of the mask's pixels
  ByteQuotient quotient;
  std::size_t row;  // number of the first row in the region
  bool resumes;     // whether scratch comes from a call for the row before
  void* scratch;    // of scratchBytes, from a cache line on
};

// Samples of a row that masks meet.
inline std::uint64_t meetSamples(const BoxRows& r) {
  return std::uint64_t{r.b.n} + (std::uint64_t{r.maskWidth} - 1) * r.pixel;
}

struct BoxKernels {
  void (*flat)(const BoxRows& r);
  void (*ac4)(const BoxRows& r);
};

template <class T>
const BoxKernels& boxKernels();

// Of scratch memory are made rows of cells of two or four bytes, each as long as a row that masks
// meet, and longer by what vectors and shifted reads go beyond it; all begin with a cache line.
inline std::uint64_t cellsOfRow(const BoxRows& r) { return (meetSamples(r) + 64 + 31) / 32 * 32; }

// Heights up to which sums of floats are formed anew for each row, row by row; taller masks are cut
// into chunks of rows, of at most so many.
constexpr std::size_t kDirectRows = 6;
constexpr std::size_t kChunkRows = 32;

// How many digits a number has to base 4.
inline std::size_t digitsOf(std::size_t number) {
  std::size_t digits = 1;
  for (; number >= 4; number /= 4) ++digits;
  return digits;
}

// Rows of cells that a kernel needs.
template <class T>
std::uint64_t scratchRows(const BoxRows& r) {
  const std::uint64_t levels = digitsOf(r.maskWidth);
  if (sizeof(T) < 4) return 2;
  if (r.maskHeight <= kDirectRows) return levels;
  const std::uint64_t chunk = r.maskHeight < kChunkRows ? r.maskHeight : kChunkRows;
  const std::uint64_t totals = r.maskHeight > kChunkRows ? r.maskHeight / kChunkRows + 2 : 0;
  return levels + 2 + chunk + totals;
}

template <class T>
std::uint64_t scratchBytes(const BoxRows& r) {
  return scratchRows<T>(r) * cellsOfRow(r) * 4;
}

}  // namespace keli::box
