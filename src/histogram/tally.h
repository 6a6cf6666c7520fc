// Counting into tables. Several tables take turns, so that equal neighbours do not wait for each
// other's counter: an increment has to wait for the one before it of the same counter, some five
// cycles, while increments of others need one.
#pragma once

#include <utility>

#include "core/band.h"
#include "histogram/bins.h"

namespace keli::histogram {

// kTables tables of `size` counters, one after the other. Each counter holds a chunk's pixels; see
// countRows.
template <std::size_t kTables>
struct Tables {
  std::uint32_t* counters;
  std::size_t size;

  void clear() const { std::memset(counters, 0, kTables * size * sizeof(counters[0])); }

  // Of all tables, below 2^32 as a chunk's pixels are.
  std::uint32_t total(std::size_t id) const {
    std::uint32_t sum = 0;
    for (std::size_t t = 0; t < kTables; ++t) sum += counters[t * size + id];
    return sum;
  }
};

template <std::size_t kTables, class IdAt, std::size_t... I>
inline void tallyTurn(const Tables<kTables>& tables, std::size_t i, const IdAt& idAt,
                      std::index_sequence<I...>) {
  (++tables.counters[I * tables.size + idAt(i + I)], ...);
}

// Counts idAt(0) .. idAt(n - 1).
template <std::size_t kTables, class IdAt>
inline void tally(const Tables<kTables>& tables, std::size_t n, const IdAt& idAt) {
  std::size_t i = 0;
  for (; i + kTables <= n; i += kTables)
    tallyTurn(tables, i, idAt, std::make_index_sequence<kTables>());
  for (; i < n; ++i) ++tables.counters[idAt(i)];
}

// Counts id(v) of every kStride-th sample v of the band's rows.
template <std::size_t kStride, class T, std::size_t kTables, class Id>
inline void tallyRows(const Band<1>& b, const Tables<kTables>& tables, const Id& id) {
  for (std::size_t y = 0; y < b.rows; ++y) {
    const T* const row = b.srcRow<T>(0, y);
    tally(tables, b.n, [&](std::size_t i) { return id(valueAt(row, i * kStride)); });
  }
}

// Without tables or memory, for few pixels, many bins and levels that do not increase: looks each
// pixel's bin up, or compares it with every bin.
template <std::size_t kStride, class T, class Level>
void countBySearch(const Band<1>& b, const Bins<Level>& bins) {
  for (std::size_t y = 0; y < b.rows; ++y) {
    for (std::size_t x = 0; x < b.n; ++x) {
      const T v = valueAt(b.srcRow<T>(0, y), x * kStride);
      if (!(v >= bins.level(0) && v < bins.level(bins.size))) continue;
      std::size_t first = 0, count = bins.size;  // the bins that v may be in
      while (count > 1) {
        const std::size_t half = count / 2;
        first += v >= bins.level(first + half) ? half : 0;
        count -= half;
      }
      bins.add(first, 1);
    }
  }
}

template <std::size_t kStride, class T, class Level>
void countByTest(const Band<1>& b, const Bins<Level>& bins) {
  for (std::size_t y = 0; y < b.rows; ++y) {
    for (std::size_t x = 0; x < b.n; ++x) {
      const T v = valueAt(b.srcRow<T>(0, y), x * kStride);
      for (std::size_t k = 0; k < bins.size; ++k) {
        if (v >= bins.level(k) && v < bins.level(k + 1)) bins.add(k, 1);
      }
    }
  }
}

}  // namespace keli::histogram
