// The parallel frame: each row once, scratch in slices, failure of the scratch, forked children.
#include <gtest/gtest.h>
#include <omp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstring>
#include <vector>

#include "core/parallel.h"

namespace keli::test {
namespace {

using core::RowBlock;
using core::Split;

class Parallel : public testing::TestWithParam<Split> {
 protected:
  void SetUp() override { omp_set_dynamic(0); }
};

TEST_P(Parallel, EveryRowOnceInContiguousBlocks) {
  for (const int team : {1, 2, 3, 7}) {
    for (const int rows : {1, 2, 3, 6, 7, 8, 100, 101}) {
      std::vector<std::atomic<int>> seen(static_cast<std::size_t>(rows));
      std::atomic<int> blocks{0};
      const KelStatus status = core::runRows(GetParam(), rows, team, 0, [&](const RowBlock& block) {
        ++blocks;
        EXPECT_EQ(block.scratch, nullptr);
        for (int y = block.first; y < block.first + block.count; ++y)
          ++seen[static_cast<std::size_t>(y)];
      });
      EXPECT_EQ(status, kelStatusOk);
      EXPECT_LE(blocks, team);
      for (const auto& count : seen) EXPECT_EQ(count, 1) << rows << " rows, team of " << team;
    }
  }
}

TEST_P(Parallel, SlicesOfScratchAreSeparate) {
  const std::size_t slice = 1000;
  std::atomic<int> spoiled{0};
  const KelStatus status = core::runRows(GetParam(), 64, 7, slice, [&](const RowBlock& block) {
    std::memset(block.scratch, block.first, slice);
    for (int i = 0; i < 1000; ++i) {
      const volatile unsigned char* const p = static_cast<unsigned char*>(block.scratch);
      if (p[i] != static_cast<unsigned char>(block.first)) ++spoiled;
    }
  });
  EXPECT_EQ(status, kelStatusOk);
  EXPECT_EQ(spoiled, 0);
}

TEST_P(Parallel, NothingRunsWithoutScratch) {
  int runs = 0;
  EXPECT_EQ(core::runRows(GetParam(), 8, 1, SIZE_MAX / 2, [&](const RowBlock&) { ++runs; }),
            kelStatusNoMemory);
  EXPECT_EQ(runs, 0);
}

TEST_P(Parallel, RunsInAForkedChild) {
  const auto countRows = [&] {
    std::atomic<int> rows{0};
    core::runRows(GetParam(), 100, 4, 16, [&](const RowBlock& block) { rows += block.count; });
    return rows.load();
  };
  ASSERT_EQ(countRows(), 100);
  const pid_t child = fork();
  if (child == 0) {
    alarm(20);  // a runtime that waits for threads that were not forked waits for ever
    _exit(countRows() == 100 ? 0 : 1);
  }
  int status = -1;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "status " << status;
}

INSTANTIATE_TEST_SUITE_P(Splits, Parallel, testing::Values(Split::kStatic, Split::kBands));

TEST(ParallelFrame, LastBandTakesTheRemainder) {
  std::vector<std::pair<int, int>> blocks(3, {-1, -1});
  core::runRows(Split::kBands, 11, 3, 0, [&](const RowBlock& block) {
    blocks[static_cast<std::size_t>(omp_get_thread_num())] = {block.first, block.count};
  });
  const std::vector<std::pair<int, int>> expected = {{0, 3}, {3, 3}, {6, 5}};
  EXPECT_EQ(blocks, expected);
}

TEST(ParallelFrame, TeamSizeFollowsTheWork) {
  const int threads = omp_get_max_threads();
  omp_set_num_threads(4);
  EXPECT_EQ(core::teamSize(1000, 1000), 1);
  EXPECT_EQ(core::teamSize(1, std::size_t{1} << 30), 1);
  EXPECT_EQ(core::teamSize(1000, std::size_t{1} << 30), 4);
  int inside = 0;
#pragma omp parallel num_threads(2)
  {
#pragma omp single
    inside = core::teamSize(1000, std::size_t{1} << 30);
  }
  EXPECT_EQ(inside, 1);
  omp_set_num_threads(threads);
}

}  // namespace
}  // namespace keli::test
