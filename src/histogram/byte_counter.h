// Histogram of one channel of bytes: the 256 values are counted, then added up for each bin. Large
// images of one channel are looked at first. Where they are smooth, pairs of neighbours are
// counted, which takes half the increments; most pairs are of like values then, and their counters
// stay in the first-level cache. Where they are flat, eight equal bytes are counted at once.
#pragma once

#include <cstdlib>

#include "histogram/pair_rows.h"
#include "histogram/tally.h"

namespace keli::histogram {

class ByteCounter {
 public:
  using Level = Kel32s;
  static constexpr bool kNeedsMemory = false;
  static constexpr bool kNeedsOrder = false;

  template <std::size_t kStride>
  static std::size_t memoryFor(std::size_t, std::uint64_t pixels, bool) {
    const bool pairs = kStride == 1 && pixels >= kManyPixels;
    return pairs ? kByteValues * kByteValues * sizeof(std::uint32_t) : 0;
  }

  template <std::size_t kStride>
  void prepare(const Bins<Level>& bins, const Band<1>& b, bool, void* memory) {
    bins_ = bins;
    pairs_ = static_cast<std::uint32_t*>(memory);
    way_ = memory != nullptr && kStride == 1 ? wayFor(b) : Way::kSingly;
  }

  void begin() {
    tables().clear();
    if (way_ == Way::kPairs) pairTable().clear();
  }

  template <std::size_t kStride>
  void count(const Band<1>& b) {
    if (way_ == Way::kPairs) return countPairs(b);
    if (way_ == Way::kRuns) return countRuns(b);
    tallyRows<kStride, Kel8u>(b, tables(), [](Kel8u v) { return std::size_t{v}; });
  }

  void end() {
    if (way_ == Way::kPairs) pairRows().addPairs(pairs_, counters_);
    std::uint32_t before[kByteValues + 1];
    before[0] = 0;
    for (std::size_t v = 0; v < kByteValues; ++v) before[v + 1] = before[v] + tables().total(v);
    addValues<Level>(bins_, before, 0, static_cast<Level>(kByteValues));
  }

 private:
  enum class Way { kSingly, kPairs, kRuns };

  static constexpr std::size_t kTables = 8;
  // Apart by no power of two, lest the processor take a counter's address for that of another
  // table's, of which it compares the lower bits first.
  static constexpr std::size_t kSpacing = kByteValues + 16;
  // Fewer pixels are counted sooner than the table of pairs is cleared and added up.
  static constexpr std::uint64_t kManyPixels = 1 << 17;

  Tables<kTables> tables() { return {counters_, kSpacing}; }
  Tables<1> pairTable() { return {pairs_, kByteValues * kByteValues}; }

  // Looks at four neighbours in some places. Pairs pay if most are alike, lest they meet counters
  // all over the table, and few equal the next pair, lest increments wait for each other.
  static Way wayFor(const Band<1>& b) {
    constexpr std::size_t kPlaces = 64;
    constexpr int kAlike = 16;
    if (b.n < 4) return Way::kSingly;
    std::size_t smooth = 0, repeated = 0;
    for (std::size_t i = 0; i < kPlaces; ++i) {
      const std::size_t y = i * b.rows / kPlaces;
      const std::size_t x = (b.n - 4) * (i * 29 % kPlaces) / kPlaces;
      const Kel8u* const p = b.srcRow<Kel8u>(0, y) + x;
      const int first = p[0] - p[1], second = p[2] - p[3];
      smooth += std::abs(first) <= kAlike && std::abs(second) <= kAlike;
      repeated += p[0] == p[2] && p[1] == p[3];
    }
    if (repeated >= kPlaces / 2) return Way::kRuns;
    return smooth >= kPlaces * 3 / 4 && repeated <= kPlaces / 8 ? Way::kPairs : Way::kSingly;
  }

  void countRuns(const Band<1>& b) {
    constexpr std::size_t kRun = sizeof(std::uint64_t);
    for (std::size_t y = 0; y < b.rows; ++y) {
      const Kel8u* const row = b.srcRow<Kel8u>(0, y);
      std::size_t i = 0;
      for (; i + kRun <= b.n; i += kRun) {
        std::uint64_t word;
        std::memcpy(&word, row + i, kRun);
        if (word == (word << 8 | word >> 56)) {
          counters_[i / kRun % kTables * kSpacing + row[i]] += kRun;
        } else {
          tally(tables(), kRun, [=](std::size_t j) { return std::size_t{row[i + j]}; });
        }
      }
      tally(tables(), b.n - i, [=](std::size_t j) { return std::size_t{row[i + j]}; });
    }
  }

  // Which of a pair is the first does not matter.
  void countPairs(const Band<1>& b) {
    for (std::size_t y = 0; y < b.rows; ++y) {
      const Kel16u* const row = b.srcRow<Kel16u>(0, y);
      tally(pairTable(), b.n / 2, [=](std::size_t i) { return std::size_t{valueAt(row, i)}; });
      if (b.n % 2 != 0) ++counters_[b.srcRow<Kel8u>(0, y)[b.n - 1]];
    }
  }

  Bins<Level> bins_;
  Way way_;
  std::uint32_t* pairs_;
  std::uint32_t counters_[kTables * kSpacing];
};

}  // namespace keli::histogram
