// Histogram of one channel of bytes: the 256 values are counted, then added up for each bin.
#pragma once

#include "histogram/tally.h"

namespace keli::histogram {

class ByteCounter {
 public:
  using Level = Kel32s;
  static constexpr bool kNeedsMemory = false;
  static constexpr bool kNeedsOrder = false;

  // Needs no memory but its own.
  static std::size_t memoryFor(std::size_t, std::uint64_t, bool) { return 0; }

  void prepare(const Bins<Level>& bins, std::uint64_t, bool, void*) { bins_ = bins; }
  void begin() { tables().clear(); }

  template <std::size_t kStride>
  void count(const Band<1>& b) {
    tallyRows<kStride, Kel8u>(b, tables(), [](Kel8u v) { return std::size_t{v}; });
  }

  void end() {
    std::uint32_t before[kValues + 1];
    before[0] = 0;
    for (std::size_t v = 0; v < kValues; ++v) before[v + 1] = before[v] + tables().total(v);
    addValues<Level>(bins_, before, 0, kValues);
  }

 private:
  static constexpr std::size_t kTables = 8;
  static constexpr std::size_t kValues = 256;

  // Apart by no power of two, lest the processor take a counter's address for that of another
  // table's, of which it compares the lower bits first.
  static constexpr std::size_t kSpacing = kValues + 16;

  Tables<kTables> tables() { return {counters_, kSpacing}; }

  Bins<Level> bins_;
  std::uint32_t counters_[kTables * kSpacing];
};

}  // namespace keli::histogram
