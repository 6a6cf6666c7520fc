// Frame of the quality index. Arguments have been checked.
//
// Every pass runs over blocks of rows on a team of threads, and adds up what the blocks give in
// their order. The blocks follow from the height alone, so the result does not depend on the team.
#pragma once

#include "core/parallel.h"
#include "sums/quality_rows.h"
#include "sums/reduce.h"

namespace keli::sums {

class RowBlocks {
 public:
  static constexpr int kMost = 32;

  explicit RowBlocks(int height)
      : height_(height), rows_(std::max(8, (height + kMost - 1) / kMost)) {}

  // body(block, first row, rows), which threads call at once.
  template <class Body>
  void run(std::size_t bytes, const Body& body) const {
    const int count = (height_ + rows_ - 1) / rows_;
    core::runRows(core::Split::kStatic, count, core::teamSize(count, bytes), 0,
                  [&](const core::RowBlock& blocks) {
                    for (int i = blocks.first; i < blocks.first + blocks.count; ++i)
                      body(i, i * rows_, std::min(rows_, height_ - i * rows_));
                  });
  }

 private:
  int height_;
  int rows_;
};

// Exact for 8u, in double precision for 32f.
template <class T, Layout kLayout>
Results blockSums(const Band<1>& b) {
  if constexpr (std::is_same_v<T, Kel8u>) {
    Totals totals;
    kernelOf<What::kSum, T, kLayout, 1>()(b, &totals);
    return resultsOf<What::kSum, T, kLayout>(totals);
  } else {
    DoubleLanes lanes;
    qualityKernels<T>().sums(b, lanes);
    Results results;
    for (std::size_t i = 0; i < kQualityLanes; ++i)
      results.value[i % pixelSamples(kLayout)] += lanes.sums[i];
    return results;
  }
}

struct Moments {
  double both = 0, first = 0, second = 0;
};

template <Layout kLayout>
void addMoments(const Deviations& totals, Moments (&moments)[4]) {
  for (std::size_t i = 0; i < kQualityLanes; ++i) {
    Moments& m = moments[i % pixelSamples(kLayout)];
    m.both += totals.ofBoth.sums[i];
    m.first += totals.ofFirst.sums[i];
    m.second += totals.ofSecond.sums[i];
  }
}

template <class T, Layout kLayout>
KelStatus qualityIndex(const T* src1, int src1Step, const T* src2, int src2Step, KeliSize size,
                       Kel32f* result) {
  const std::size_t n = rowSamples<kLayout>(size);
  const Band<1> images[2] = {makeBand(src1, src1Step, nullptr, 0, n, size.height),
                             makeBand(src2, src2Step, nullptr, 0, n, size.height)};
  const Band<2> both = makeBand(src1, src1Step, src2, src2Step, nullptr, 0, n, size.height);
  const std::size_t read = 2 * sizeof(T) * n * static_cast<std::size_t>(size.height);
  const RowBlocks blocks(size.height);

  Results sums[RowBlocks::kMost][2];
  blocks.run(read, [&](int block, int first, int rows) {
    for (int i = 0; i < 2; ++i)
      sums[block][i] = blockSums<T, kLayout>(rowsOf(images[i], {first, rows, nullptr}));
  });
  double means[2][4] = {};
  const double pixels = static_cast<double>(std::int64_t{size.width} * size.height);
  for (int i = 0; i < 2; ++i) {
    for (int k = 0; k < 4; ++k) {
      for (const auto& block : sums) means[i][k] += block[i].value[k];
      means[i][k] /= pixels;
    }
  }

  Moments moments[RowBlocks::kMost][4];
  blocks.run(read, [&](int block, int first, int rows) {
    Deviations totals;
    for (std::size_t i = 0; i < kQualityLanes; ++i) {
      totals.mean1[i] = static_cast<float>(means[0][i % pixelSamples(kLayout)]);
      totals.mean2[i] = static_cast<float>(means[1][i % pixelSamples(kLayout)]);
    }
    qualityKernels<T>().deviations(rowsOf(both, {first, rows, nullptr}), totals);
    totals.empty();
    addMoments<kLayout>(totals, moments[block]);
  });
  Results index;
  for (int k = 0; k < usedChannels(kLayout); ++k) {
    Moments m;
    for (const auto& block : moments) {
      m.both += block[k].both;
      m.first += block[k].first;
      m.second += block[k].second;
    }
    const double x = means[0][k], y = means[1][k];
    index.value[k] = settled(4 * m.both * x * y / ((m.first + m.second) * (x * x + y * y)));
  }
  storeResults<kLayout>(index, result);
  return kelStatusOk;
}

}  // namespace keli::sums
