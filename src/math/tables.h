// Tables of the integer square, root, logarithm and exponential: f(v) * 2^-scaleFactor rounded to
// nearest, ties to even, saturated. They are computed when compiling, squares and roots in
// integers, the others in double precision, whose error is far below the distance of any result
// from a tie.
#pragma once

#include <array>
#include <cstdint>
#include <limits>

#include "core/nearest.h"
#include "core/scale.h"

namespace keli::math {

constexpr double kLn2High = 0x1.62e42fep-1;  // of 28 bits: times an integer of 25 bits it is exact
constexpr double kLn2Low = 0x1.f473de6af278fp-30;
constexpr double kE = 0x1.5bf0a8b145769p+1;

// ln v of a positive integer: v = 2^e m with m near 1, and ln m = 2 artanh((m - 1) / (m + 1)) by
// its series, whose terms shrink by 25 and more.
constexpr double logarithm(int v) {
  double m = v;
  int e = 0;
  for (; m > 1.5; m /= 2) ++e;
  const double s = (m - 1) / (m + 1), z = s * s;
  double sum = 0;
  for (int k = 25; k >= 1; k -= 2) sum = sum * z + 1.0 / k;
  return e * kLn2High + (2 * s * sum + e * kLn2Low);
}

// e^t for |t| below 1, by its series.
constexpr double exponential(double t) {
  double sum = 1;
  for (int k = 22; k >= 1; --k) sum = 1 + sum * t / k;
  return sum;
}

// ---- Tables of 256 results for a range of scale factors; those beyond give what its ends give

template <int kLeastFactor, int kMostFactor>
struct ByteTables {
  std::array<std::array<std::uint8_t, 256>, kMostFactor - kLeastFactor + 1> all{};

  const std::uint8_t* operator()(int scaleFactor) const {
    const int sf = scaleFactor < kLeastFactor  ? kLeastFactor
                   : scaleFactor > kMostFactor ? kMostFactor
                                               : scaleFactor;
    return all[static_cast<std::size_t>(sf - kLeastFactor)].data();
  }
};

constexpr ByteTables<1, 16> makeSqrTables() {
  ByteTables<1, 16> tables;
  for (int sf = 1; sf <= 16; ++sf) {
    for (std::int64_t v = 0; v < 256; ++v) {
      tables.all[static_cast<std::size_t>(sf - 1)][static_cast<std::size_t>(v)] =
          scaled<std::uint8_t>(v * v, sf);
    }
  }
  return tables;
}
inline constexpr ByteTables<1, 16> kSqrTables = makeSqrTables();

// r + 1 where sqrt(v) * 2^-sf is above r + 1/2, or equal to it and r is odd: both sides squared,
// times 4.
constexpr ByteTables<-8, 5> makeSqrtTables() {
  ByteTables<-8, 5> tables;
  for (int sf = -8; sf <= 5; ++sf) {
    std::int64_t r = 0;
    for (std::int64_t v = 0; v < 256; ++v) {
      const std::int64_t root = 4 * v << (sf < 0 ? -2 * sf : 0);
      while (r < 255) {
        const std::int64_t half = (2 * r + 1) * (2 * r + 1) << (sf > 0 ? 2 * sf : 0);
        if (root < half || (root == half && r % 2 == 0)) break;
        ++r;
      }
      tables.all[static_cast<std::size_t>(sf + 8)][static_cast<std::size_t>(v)] =
          static_cast<std::uint8_t>(r);
    }
  }
  return tables;
}
inline constexpr ByteTables<-8, 5> kSqrtTables = makeSqrtTables();

// 0 for v = 0.
constexpr ByteTables<-9, 4> makeLnTables() {
  ByteTables<-9, 4> tables;
  for (int v = 1; v < 256; ++v) {
    const double ln = logarithm(v);
    for (int sf = -9; sf <= 4; ++sf) {
      const int result = nearestInteger(ln * powerOfTwo(-sf));
      tables.all[static_cast<std::size_t>(sf + 9)][static_cast<std::size_t>(v)] =
          static_cast<std::uint8_t>(result > 255 ? 255 : result);
    }
  }
  return tables;
}
inline constexpr ByteTables<-9, 4> kLnTables = makeLnTables();

// ---- The exponential

// The results between 0 and saturation are those of few inputs: of `start` and the 15 that follow.
// Inputs below start have the result of start, those above the range that of its end.
template <class T>
struct ExpTable {
  T start;
  T results[16];
};

// With b the first input whose exact result is above 1/2, e^v * 2^-sf = e^(v - b) * e^t, where t =
// b - sf ln 2 lies between -ln 2 and 1 - ln 2. Inputs below b give 0 (v = 0 at the scale factor 1
// is the one tie), and those from b + 12 on saturate: e^12 / 2 is above 65536.
template <class T>
constexpr ExpTable<T> makeExpTable(int scaleFactor) {
  using L = std::numeric_limits<T>;
  // Beyond these, every input of 16 bits and less gives 0, or saturates.
  const int sf = scaleFactor < -47320 ? -47320 : scaleFactor > 47320 ? 47320 : scaleFactor;
  const double half = (sf - 1) * kLn2High + (sf - 1) * kLn2Low;
  const int whole = static_cast<int>(half);
  const int b = (half < whole ? whole - 1 : whole) + 1;
  const double atB = exponential((b - sf * kLn2High) - sf * kLn2Low);
  const int least = L::min(), most = L::max();
  const int start = b - 1 < least ? least : b - 1 > most ? most : b - 1;
  ExpTable<T> table{};
  table.start = static_cast<T>(start);
  double result = atB;  // of b + k
  for (int k = 0; k < 16; ++k, result *= kE) {
    // k runs from b on; start is below b where saturation of the type does not move it.
    const int place = b + k - start;
    if (place < 0 || place > 15) continue;
    const int rounded = result < most ? nearestInteger(result) : most;
    table.results[place] = static_cast<T>(rounded > most ? most : rounded);
  }
  // Where the inputs start above b + 15, none of the sixteen is below saturation.
  for (int place = 0; place < 16; ++place) {
    if (start + place > b + 12) table.results[place] = static_cast<T>(most);
  }
  return table;
}

// Those of the usual scale factors are ready.
template <class T>
struct ExpTables {
  static constexpr int kLeast = -16;
  static constexpr int kMost = 31;
  ExpTable<T> all[kMost - kLeast + 1]{};
};

template <class T>
constexpr ExpTables<T> makeExpTables() {
  ExpTables<T> tables;
  for (int sf = ExpTables<T>::kLeast; sf <= ExpTables<T>::kMost; ++sf)
    tables.all[sf - ExpTables<T>::kLeast] = makeExpTable<T>(sf);
  return tables;
}
template <class T>
inline constexpr ExpTables<T> kExpTables = makeExpTables<T>();

template <class T>
ExpTable<T> expTable(int scaleFactor) {
  using Tables = ExpTables<T>;
  if (scaleFactor < Tables::kLeast || scaleFactor > Tables::kMost)
    return makeExpTable<T>(scaleFactor);
  return kExpTables<T>.all[scaleFactor - Tables::kLeast];
}

}  // namespace keli::math
