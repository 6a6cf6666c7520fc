// Histogram of one channel of 16-bit samples. Increasing levels make a table that gives the bin of
// each value; with very many bins, or levels that do not increase, the 65536 values are counted and
// added up for each bin. A few pixels are looked up or tested one by one.
#pragma once

#include "histogram/tally.h"

namespace keli::histogram {

class WordCounter {
 public:
  using Level = Kel32s;
  static constexpr bool kNeedsMemory = true;
  static constexpr bool kNeedsOrder = true;

  template <std::size_t>
  static std::size_t memoryFor(std::size_t bins, std::uint64_t pixels, bool increasing) {
    switch (methodFor(bins, pixels, increasing)) {
      case Method::kBinOfValue:
        return tablesBytes(bins) + kValues * (bins < kByteIds ? 1 : 2) + kFillPadding;
      case Method::kValues:
        return (kValues + 1) * sizeof(std::uint32_t);
      default:
        return 0;
    }
  }

  template <std::size_t>
  void prepare(const Bins<Level>& bins, const Band<1>& b, bool increasing, void* memory) {
    bins_ = bins;
    method_ = methodFor(bins.size, std::uint64_t{b.n} * b.rows, increasing);
    counters_ = static_cast<std::uint32_t*>(memory);
    if (method_ != Method::kBinOfValue) return;
    binOfValue_ = static_cast<std::uint8_t*>(memory) + tablesBytes(bins.size);
    if (bins.size < kByteIds) {
      mapValues<std::uint8_t>();
    } else {
      mapValues<std::uint16_t>();
    }
  }

  void begin() {
    if (method_ == Method::kBinOfValue) tables().clear();
    if (method_ == Method::kValues) values().clear();
  }

  template <std::size_t kStride>
  void count(const Band<1>& b) {
    switch (method_) {
      case Method::kSearch:
        return countBySearch<kStride, Kel16s>(b, bins_);
      case Method::kTest:
        return countByTest<kStride, Kel16s>(b, bins_);
      case Method::kValues:
        return tallyRows<kStride, Kel16s>(
            b, values(), [](Kel16s v) { return static_cast<std::size_t>(v - kLeast); });
      case Method::kBinOfValue:
        return bins_.size < kByteIds ? countBinOfValue<kStride, std::uint8_t>(b)
                                     : countBinOfValue<kStride, std::uint16_t>(b);
    }
  }

  void end() {
    if (method_ == Method::kBinOfValue) {
      for (std::size_t k = 0; k < bins_.size; ++k) bins_.add(k, tables().total(k));
    } else if (method_ == Method::kValues) {
      std::uint32_t sum = 0;
      for (std::size_t v = 0; v <= kValues; ++v) {
        const std::uint32_t here = v < kValues ? counters_[v] : 0;
        counters_[v] = sum;
        sum += here;
      }
      addValues<Level>(bins_, counters_, kLeast, kLeast + static_cast<Level>(kValues));
    }
  }

 private:
  enum class Method { kSearch, kTest, kBinOfValue, kValues };

  static constexpr Level kLeast = -32768;
  static constexpr std::size_t kValues = 65536;
  static constexpr std::size_t kTables = 4;
  // Of bytes there are as many bins less one: pixels outside all bins are counted apart.
  static constexpr std::size_t kByteIds = 256;
  static constexpr std::size_t kFillPadding = 32;
  // Tables of more bins than this leave the first-level cache.
  static constexpr std::size_t kMostBins = 2048;
  // Fewer pixels are looked up sooner than a table is made.
  static constexpr std::uint64_t kFewPixels = 128;
  static constexpr std::uint64_t kFewTests = 8192;

  static Method methodFor(std::size_t bins, std::uint64_t pixels, bool increasing) {
    if (!increasing) return pixels <= kFewTests / bins ? Method::kTest : Method::kValues;
    if (pixels <= kFewPixels) return Method::kSearch;
    return bins <= kMostBins ? Method::kBinOfValue : Method::kValues;
  }

  static std::size_t tablesBytes(std::size_t bins) {
    return kTables * (bins + 1) * sizeof(std::uint32_t);
  }

  Tables<kTables> tables() const { return {counters_, bins_.size + 1}; }
  Tables<1> values() const { return {counters_, kValues}; }

  static std::size_t offsetOf(Level level) {
    constexpr Level kMost = kLeast + static_cast<Level>(kValues);
    return static_cast<std::size_t>((level < kLeast  ? kLeast
                                     : level > kMost ? kMost
                                                     : level) -
                                    kLeast);
  }

  // Writes whole blocks: up to kFillPadding bytes more.
  template <class Id>
  static void fillIds(Id* ids, std::size_t count, Id id) {
    constexpr std::size_t kBlock = kFillPadding / sizeof(Id);
    Id block[kBlock];
    for (Id& entry : block) entry = id;
    for (std::size_t i = 0; i < count; i += kBlock) std::memcpy(ids + i, block, sizeof(block));
  }

  // Bins of the values from least on, a range of so many entries.
  template <class Id>
  void mapRange(Id* ids, std::size_t least, std::size_t count) const {
    std::size_t first = 0;
    for (std::size_t k = 0; k <= bins_.size; ++k) {
      const std::size_t level = offsetOf(bins_.level(k)) >> shift_;
      const std::size_t last = level < least ? 0 : level < least + count ? level - least : count;
      fillIds(ids + first, last - first, static_cast<Id>(k == 0 ? bins_.size : k - 1));
      first = last;
    }
    fillIds(ids + first, count - first, static_cast<Id>(bins_.size));
  }

  // The table has one entry for every 2^shift_ values, as far as all levels are multiples of that.
  // Its index are the sample's bits as those of an unsigned number, whose upper half are the
  // negative values: they stand behind the others, and are written after them.
  template <class Id>
  void mapValues() {
    std::size_t bits = kValues / 2;
    for (std::size_t k = 0; k <= bins_.size; ++k) bits |= offsetOf(bins_.level(k));
    shift_ = __builtin_ctzll(bits);
    Id* const ids = reinterpret_cast<Id*>(binOfValue_);
    const std::size_t half = (kValues / 2) >> shift_;
    mapRange(ids, half, half);
    mapRange(ids + half, 0, half);
  }

  template <std::size_t kStride, class Id>
  void countBinOfValue(const Band<1>& b) const {
    const Id* const ids = reinterpret_cast<const Id*>(binOfValue_);
    if (shift_ == 0) {
      tallyRows<kStride, Kel16u>(b, tables(), [=](Kel16u v) { return std::size_t{ids[v]}; });
    } else {
      // As a product: shifts by a count that is no constant take three cycles.
      const std::uint32_t factor = std::uint32_t{65536} >> shift_;
      tallyRows<kStride, Kel16u>(b, tables(),
                                 [=](Kel16u v) { return std::size_t{ids[v * factor >> 16]}; });
    }
  }

  Bins<Level> bins_;
  Method method_;
  std::uint32_t* counters_;
  std::uint8_t* binOfValue_;
  int shift_;
};

}  // namespace keli::histogram
