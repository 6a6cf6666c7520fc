// Histogram of one channel of floats. Increasing levels are searched as a tree, in vectors; few
// pixels with many levels are looked up one by one, and levels that do not increase are tested.
#pragma once

#include "histogram/find_rows.h"
#include "histogram/tally.h"

namespace keli::histogram {

class FloatCounter {
 public:
  using Level = Kel32f;
  static constexpr bool kNeedsMemory = false;
  static constexpr bool kNeedsOrder = true;

  template <std::size_t>
  static std::size_t memoryFor(std::size_t bins, std::uint64_t pixels, bool increasing) {
    if (!increasing || bins > kMostBins || pixels < bins) return 0;
    return treeBytes(bins) + kTables * (bins + 1) * sizeof(std::uint32_t);
  }

  // Without memory it counts all the same, more slowly.
  template <std::size_t>
  void prepare(const Bins<Level>& bins, const Band<1>&, bool increasing, void* memory) {
    bins_ = bins;
    increasing_ = increasing;
    nodes_ = static_cast<Kel32f*>(memory);
    if (nodes_ == nullptr) return;
    counters_ =
        reinterpret_cast<std::uint32_t*>(static_cast<std::uint8_t*>(memory) + treeBytes(bins.size));
    plant();
  }

  void begin() {
    if (nodes_ != nullptr) tables().clear();
  }

  template <std::size_t kStride>
  void count(const Band<1>& b) {
    if (nodes_ != nullptr) return countInTree<kStride>(b);
    return increasing_ ? countBySearch<kStride, Kel32f>(b, bins_)
                       : countByTest<kStride, Kel32f>(b, bins_);
  }

  void end() {
    if (nodes_ == nullptr) return;
    for (std::size_t k = 0; k < bins_.size; ++k) bins_.add(k, tables().total(k));
  }

 private:
  static constexpr std::size_t kTables = 4;
  static constexpr std::size_t kMostBins = 4096;
  static constexpr std::size_t kBlock = 256;

  static int depthFor(std::size_t bins) {
    return bins == 1 ? 0 : 64 - __builtin_clzll(static_cast<unsigned long long>(bins - 1));
  }
  static std::size_t treeBytes(std::size_t bins) {
    return ((std::size_t{1} << depthFor(bins)) + kTreePadding) * sizeof(Kel32f);
  }

  Tables<kTables> tables() const { return {counters_, bins_.size + 1}; }

  // Node j of depth t parts the bins of its subtree in halves.
  void plant() {
    tree_.nodes = nodes_;
    tree_.depth = depthFor(bins_.size);
    tree_.least = bins_.level(0);
    tree_.most = bins_.level(bins_.size);
    tree_.outside = static_cast<std::uint32_t>(bins_.size);
    const std::size_t leaves = std::size_t{1} << tree_.depth;
    for (std::size_t i = 0; i < leaves + kTreePadding; ++i) nodes_[i] = tree_.most;
    for (int t = 0; t < tree_.depth; ++t) {
      const std::size_t nodes = std::size_t{1} << t;
      for (std::size_t j = 0; j < nodes; ++j) {
        const std::size_t bin = (2 * j + 1) * (leaves >> (t + 1));
        if (bin < bins_.size) nodes_[nodes + j] = bins_.level(bin);
      }
    }
  }

  template <std::size_t kStride>
  void countInTree(const Band<1>& b) const {
    const FindBins find = findRows().find(tree_.depth, kStride);
    std::uint32_t ids[kBlock];
    for (std::size_t y = 0; y < b.rows; ++y) {
      const Kel32f* const row = b.srcRow<Kel32f>(0, y);
      for (std::size_t x = 0; x < b.n; x += kBlock) {
        const std::size_t n = b.n - x < kBlock ? b.n - x : kBlock;
        find(row + x * kStride, n, tree_, ids);
        tally(tables(), n, [&](std::size_t i) { return std::size_t{ids[i]}; });
      }
    }
  }

  Bins<Level> bins_;
  bool increasing_;
  Kel32f* nodes_;
  std::uint32_t* counters_;
  Tree tree_;
};

}  // namespace keli::histogram
