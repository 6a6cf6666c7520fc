// What a remapped pixel is: the value of the source at a pair of coordinates, by the nearest pixel,
// linearly between 2 x 2 or cubically between 4 x 4 pixels. These definitions are exact; the row
// kernels only compute them faster.
//
// Nothing here uses fused operations or the caller's rounding mode.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/nearest.h"
#include "core/settled.h"
#include "core/types.h"
#include "core/values.h"

namespace keli::remap {

// Coordinates between two ends, both included; of none where low > high.
struct Span {
  float low;
  float high;
};

// A region to fill, and the part of the source that it may be filled from.
struct Remapping {
  const std::uint8_t* src;
  std::ptrdiff_t srcStep;
  const std::uint8_t* xMap;
  std::ptrdiff_t xMapStep;
  const std::uint8_t* yMap;
  std::ptrdiff_t yMapStep;
  std::uint8_t* dst;
  std::ptrdiff_t dstStep;
  std::size_t width;
  std::size_t rows;
  int xMin, yMin, xMax, yMax;  // of the pixels that are used
  Span x, y;                   // coordinates elsewhere leave their pixel unwritten
  // Coordinates whose whole neighbourhood lies inside, with what vectors read beyond it, and at
  // offsets of 32 bits.
  Span xFree, yFree;
  int lastWord;  // the last column of bytes that four can be read from

  bool holds(float fx, float fy) const {
    return fx >= x.low && fx <= x.high && fy >= y.low && fy <= y.high;
  }
  template <class T>
  const T* pixel(int column, int row, std::size_t samples) const {
    return reinterpret_cast<const T*>(src + row * srcStep) +
           static_cast<std::size_t>(column) * samples;
  }
};

// Weights of 14 bits. What a row gives keeps 6 bits behind the point, at most 255 * 64, so the sum
// of both rows fits 28 bits. It is rounded to nearest, ties up.
constexpr int kWeightOne = 1 << 14;
inline Kel8u linearOf(Kel8u p00, Kel8u p01, Kel8u p10, Kel8u p11, float fx, float fy) {
  const int wx = nearestInteger(fx * kWeightOne), wy = nearestInteger(fy * kWeightOne);
  const int top = (p00 * (kWeightOne - wx) + p01 * wx) >> 8;
  const int bottom = (p10 * (kWeightOne - wx) + p11 * wx) >> 8;
  return static_cast<Kel8u>((top * (kWeightOne - wy) + bottom * wy + (1 << 19)) >> 20);
}

inline Kel32f linearOf(Kel32f p00, Kel32f p01, Kel32f p10, Kel32f p11, float fx, float fy) {
  const float top = p00 * (1 - fx) + p01 * fx;
  const float bottom = p10 * (1 - fx) + p11 * fx;
  return settled(top * (1 - fy) + bottom * fy);
}

// Catmull and Rom, A class of local interpolating splines, 1974: the cubic convolution kernel of
// Keys, Cubic convolution interpolation for digital image processing, 1981, with a = -1/2, in
// Horner's form. Exactly 0, 1, 0, 0 at fraction 0.
inline void cubicWeights(float f, float (&w)[4]) {
  w[0] = ((-0.5f * f + 1) * f - 0.5f) * f;
  w[1] = ((1.5f * f - 2.5f) * f) * f + 1;
  w[2] = ((-1.5f * f + 2) * f + 0.5f) * f;
  w[3] = ((0.5f * f - 0.5f) * f) * f;
}

inline float weighted(const float (&p)[4], const float (&w)[4]) {
  return ((p[0] * w[0] + p[1] * w[1]) + p[2] * w[2]) + p[3] * w[3];
}

inline void settle(float v, Kel32f* dst) {
  const Kel32f result = settled(v);
  std::memcpy(dst, &result, sizeof(result));
}
inline void settle(float v, Kel8u* dst) {
  *dst = static_cast<Kel8u>(v <= 0 ? 0 : v >= 255 ? 255 : nearestInteger(v));
}

// The modes. pixel() writes kSamples of the kStored samples of a destination pixel from coordinates
// that the region holds. kBefore and kAfter: how many columns and rows beside the one that is
// below the coordinate take part.
template <class T, int kStored, int kUsed>
struct Nearest {
  using Sample = T;
  static constexpr int kSamples = kUsed;
  static constexpr int kBefore = 0, kAfter = 0;

  static void pixel(const Remapping& r, float fx, float fy, T* dst) {
    std::memcpy(dst, r.pixel<T>(nearestInteger(fx), nearestInteger(fy), kStored),
                kUsed * sizeof(T));
  }
};

// At the last column and row the pixels are those before it, with a fraction of 1; of a region of
// one column or row, twice the same.
template <class T, int kStored, int kUsed>
struct Linear {
  using Sample = T;
  static constexpr int kSamples = kUsed;
  static constexpr int kBefore = 0, kAfter = 1;

  static int below(float at, int low, int high) {
    const int whole = static_cast<int>(at);
    return whole == high && high > low ? whole - 1 : whole;
  }

  static void pixel(const Remapping& r, float fx, float fy, T* dst) {
    const int x = below(fx, r.xMin, r.xMax), y = below(fy, r.yMin, r.yMax);
    const int x1 = x < r.xMax ? x + 1 : x, y1 = y < r.yMax ? y + 1 : y;
    const float u = fx - static_cast<float>(x), v = fy - static_cast<float>(y);
    const auto at = [&](int column, int row, int k) {
      return valueAt(r.pixel<T>(column, row, kStored), k);
    };
    for (int k = 0; k < kUsed; ++k) {
      const T result = linearOf(at(x, y, k), at(x1, y, k), at(x, y1, k), at(x1, y1, k), u, v);
      std::memcpy(dst + k, &result, sizeof(T));
    }
  }
};

// Columns first, then the row of what they give.
template <class T, int kStored, int kUsed>
struct Cubic {
  using Sample = T;
  static constexpr int kSamples = kUsed;
  static constexpr int kBefore = 1, kAfter = 2;

  static int clamped(int at, int low, int high) { return at < low ? low : at > high ? high : at; }

  static void pixel(const Remapping& r, float fx, float fy, T* dst) {
    const int x = static_cast<int>(fx), y = static_cast<int>(fy);
    float wx[4], wy[4];
    cubicWeights(fx - static_cast<float>(x), wx);
    cubicWeights(fy - static_cast<float>(y), wy);
    for (int k = 0; k < kUsed; ++k) {
      float columns[4];
      for (int i = 0; i < 4; ++i) {
        const int column = clamped(x + i - 1, r.xMin, r.xMax);
        float samples[4];
        for (int j = 0; j < 4; ++j) {
          const int row = clamped(y + j - 1, r.yMin, r.yMax);
          samples[j] = static_cast<float>(valueAt(r.pixel<T>(column, row, kStored), k));
        }
        columns[i] = weighted(samples, wy);
      }
      settle(weighted(columns, wx), dst + k);
    }
  }
};

// How many bytes vector kernels read from the pixel below a coordinate on.
template <class T, int kStored, int kAfter>
constexpr int readAhead() {
  constexpr int kPixel = kStored * static_cast<int>(sizeof(T));
  if (kStored == 1) return (kAfter + 1) * kPixel;
  if (kAfter == 0) return 4 * static_cast<int>(sizeof(T));
  if (sizeof(T) == 1 && kAfter == 1) return 8;
  // Four samples of the next pixel, or 16 from the one before on.
  return kAfter == 1 ? kPixel + 4 * static_cast<int>(sizeof(T))
                     : (16 - kStored) * static_cast<int>(sizeof(T));
}

}  // namespace keli::remap
