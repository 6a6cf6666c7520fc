// A band: the rows that one call of a row kernel works on. Kernels loop over the band's rows
// themselves, so that constants are set up and the kernel is entered once for a region and not once
// for a row: at 64 pixels a row an indirect call for each would cost as much as its work.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/cache.h"
#include "core/types.h"

namespace keli {

template <int kSources>
struct Band {
  const std::uint8_t* src[kSources > 0 ? kSources : 1];
  std::ptrdiff_t srcStep[kSources > 0 ? kSources : 1];
  std::uint8_t* dst;
  std::ptrdiff_t dstStep;
  std::size_t n;  // samples of a row, or pixels: the kernel says which
  std::size_t rows;
  bool streams;  // stores may bypass the caches; see layOut

  template <class T>
  const T* srcRow(int i, std::size_t y) const {
    return reinterpret_cast<const T*>(src[i] + static_cast<std::ptrdiff_t>(y) * srcStep[i]);
  }

  template <class T>
  T* dstRow(std::size_t y) const {
    return reinterpret_cast<T*>(dst + static_cast<std::ptrdiff_t>(y) * dstStep);
  }
};

// How many units of so many bytes lie before the first that starts a cache line, or n if none does.
// unitBytes: less than 64.
inline std::size_t unitsToLine(const void* p, std::size_t unitBytes, std::size_t n) {
  constexpr std::size_t kLine = 64;
  // unitBytes = power * odd; an odd number is its own inverse modulo 8, and one step of Newton's
  // method doubles the bits.
  const std::size_t power = unitBytes & (0 - unitBytes);
  const std::size_t odd = unitBytes / power;
  const std::size_t inverse = odd * (2 - odd * odd);
  const std::size_t missing = (0 - reinterpret_cast<std::uintptr_t>(p)) % kLine;
  if (missing % power != 0) return n;
  return missing / power * inverse % (kLine / power);
}

inline const std::uint8_t* bytes(const void* p) { return static_cast<const std::uint8_t*>(p); }
inline std::uint8_t* bytes(void* p) { return static_cast<std::uint8_t*>(p); }

inline Band<0> makeBand(void* dst, int dstStep, std::size_t n, int height) {
  return {{nullptr}, {0}, bytes(dst), dstStep, n, static_cast<std::size_t>(height), false};
}

inline Band<1> makeBand(const void* src, int srcStep, void* dst, int dstStep, std::size_t n,
                        int height) {
  return {{bytes(src)}, {srcStep}, bytes(dst), dstStep, n, static_cast<std::size_t>(height), false};
}

inline Band<2> makeBand(const void* src1, int src1Step, const void* src2, int src2Step, void* dst,
                        int dstStep, std::size_t n, int height) {
  return {{bytes(src1), bytes(src2)},
          {src1Step, src2Step},
          bytes(dst),
          dstStep,
          n,
          static_cast<std::size_t>(height),
          false};
}

// Bands that are only read, for reductions whose result does not depend on the order of samples: a
// region without padding is one long row. unitBytes: of one of the n of a row.
inline Band<1> readBand(const void* src, int srcStep, std::size_t n, int height,
                        std::size_t unitBytes) {
  Band<1> b = makeBand(src, srcStep, nullptr, 0, n, height);
  if (static_cast<std::size_t>(srcStep) == n * unitBytes) {
    b.n *= b.rows;
    b.rows = 1;
  }
  return b;
}

inline Band<2> readBand(const void* src1, int src1Step, const void* src2, int src2Step,
                        std::size_t n, int height, std::size_t unitBytes) {
  Band<2> b = makeBand(src1, src1Step, src2, src2Step, nullptr, 0, n, height);
  if (src1Step == src2Step && static_cast<std::size_t>(src1Step) == n * unitBytes) {
    b.n *= b.rows;
    b.rows = 1;
  }
  return b;
}

// Settles how a region is walked. One without padding becomes one long row. One that moves more
// bytes than the caches hold well (cache.h) is stored around them, which spares reading the
// destination before it is overwritten; not in place, where it has just been read. unit: bytes of
// one of the n in each source, then in the destination.
template <int kSources>
inline void layOut(Band<kSources>& b, const std::size_t (&unit)[kSources + 1]) {
  bool contiguous = static_cast<std::size_t>(b.dstStep) == b.n * unit[kSources];
  bool separate = true;
  std::size_t bytesPerUnit = unit[kSources];
  for (int i = 0; i < kSources; ++i) {
    contiguous = contiguous && static_cast<std::size_t>(b.srcStep[i]) == b.n * unit[i];
    separate = separate && b.src[i] != b.dst;
    bytesPerUnit += unit[i];
  }
  // Where nothing is read, the caches serve twice as long.
  if (kSources == 0) bytesPerUnit = (bytesPerUnit + 1) / 2;
  b.streams = separate && exceedsCache(b.n * bytesPerUnit, b.rows);
  if (contiguous) {
    b.n *= b.rows;
    b.rows = 1;
  }
}

}  // namespace keli
