// Histograms without memory for their tables: those of 16 bits fail and write nothing, the others
// count without.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "keli.h"
#include "support/no_memory.h"

namespace keli::test {
namespace {

constexpr int kWidth = 300, kStep = 3 * 2 * kWidth, kBins = 4;
constexpr KeliSize kSize = {kWidth, 40};

struct Outputs {
  int counts[3][kBins], levels[3][kBins + 1];
  Outputs() { std::memset(this, 0x5A, sizeof(*this)); }
  bool untouched() const {
    const Outputs fresh;
    return std::memcmp(this, &fresh, sizeof(fresh)) == 0;
  }
};

// With the heap's memory and without.
template <class Call>
void expectNoMemory(const Call& call) {
  Outputs o;
  const KelStatus status = withoutMemory([&] { return call(o); });
  EXPECT_EQ(status, kelStatusNoMemory);
  EXPECT_TRUE(o.untouched());
  EXPECT_EQ(call(o), kelStatusOk);
  EXPECT_EQ(o.counts[0][0], 0);
  EXPECT_EQ(o.counts[0][1] + o.counts[0][2] + o.counts[0][3], kSize.width * kSize.height);
}

TEST(HistogramMemory, WordsNeedTables) {
  const std::vector<Kel16s> image(static_cast<std::size_t>(kStep / 2 * kSize.height), 12);
  const Kel16s* const src = image.data();
  static constexpr int kLevels[] = {0, 10, 11, 12, 20}, kFalling[] = {9, 5, 30, 20, 10};
  expectNoMemory([&](Outputs& o) {
    return keliHistogramRange_16s_C1R(src, kStep, kSize, o.counts[0], kLevels, 5);
  });
  expectNoMemory([&](Outputs& o) {
    return keliHistogramRange_16s_C1R(src, kStep, kSize, o.counts[0], kFalling, 5);
  });
  expectNoMemory([&](Outputs& o) {
    return keliHistogramEven_16s_C1R(src, kStep, kSize, o.counts[0], o.levels[0], 5, 0, 20);
  });
  expectNoMemory([&](Outputs& o) {
    int* const counts[3] = {o.counts[0], o.counts[1], o.counts[2]};
    int* const levels[3] = {o.levels[0], o.levels[1], o.levels[2]};
    const int n[3] = {5, 4, 3}, lower[3] = {0, 0, 0}, upper[3] = {20, 3, 2};
    return keliHistogramEven_16s_C3R(src, kStep, kSize, counts, levels, n, lower, upper);
  });
}

TEST(HistogramMemory, OthersCountWithout) {
  std::vector<Kel32f> image;
  for (int i = 0; i < kWidth; ++i) image.push_back(static_cast<Kel32f>(i));
  const Kel32f levels[] = {0, 10, 50, 51, 1000};
  constexpr KeliSize kLarge = {512, 512};
  std::vector<Kel8u> bytes;
  for (int i = 0; i < kLarge.width * kLarge.height; ++i)
    bytes.push_back(static_cast<Kel8u>(i / 2048));
  const int byteLevels[] = {0, 100, 101, 128, 200};
  int counts[kBins], byteCounts[kBins];
  const KelStatus status = withoutMemory([&] {
    return keliHistogramRange_32f_C1R(image.data(), 4 * kWidth, {kWidth, 1}, counts, levels, 5);
  });
  const KelStatus byteStatus = withoutMemory([&] {
    return keliHistogramRange_8u_C1R(bytes.data(), 512, kLarge, byteCounts, byteLevels, 5);
  });
  EXPECT_EQ(status, kelStatusOk);
  EXPECT_EQ(byteStatus, kelStatusOk);
  const int expected[kBins] = {10, 40, 1, kWidth - 51};
  const int expectedOfBytes[kBins] = {100 * 2048, 2048, 27 * 2048, 0};
  for (int k = 0; k < kBins; ++k) {
    EXPECT_EQ(counts[k], expected[k]);
    EXPECT_EQ(byteCounts[k], expectedOfBytes[k]);
  }
}

}  // namespace
}  // namespace keli::test
