// Which warning Sqrt and Ln return, what raises none, and the steps of keliSqrt_32f_C1R.
#include <gtest/gtest.h>

#include "math/functions.h"
#include "support/arena.h"
#include "support/targets.h"

namespace keli::test {
namespace {

// Rows are written as letters: '.' ordinary, 'z' with a zero, 'n' with a negative sample, 'b' with
// both.
struct Case {
  const char* rows;
  KelStatus status;
};

constexpr Case kCases[] = {
    {"...", 0}, {".z.", 7}, {"..n", 8}, {"b..", 8}, {".zn", 7}, {".nz", 8}, {"zb.", 7}, {"z", 7},
};

template <class T, class Call>
void checkFirstRow(const Call& call) {
  Random random(runSeed());
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    for (const Case& c : kCases) {
      const std::string rows = c.rows;
      for (const int width : {2, 3, 17, 70, 301}) {
        for (const int padding : {0, 3}) {
          const std::size_t step = static_cast<std::size_t>(width + padding);
          // What lies between the rows raises nothing.
          std::vector<T> src(step * rows.size(), T{-1}), dst(src.size(), T{77});
          for (std::size_t y = 0; y < rows.size(); ++y) {
            T* const row = src.data() + y * step;
            std::fill(row, row + width, T{5});
            const std::size_t at = pick(random, static_cast<std::size_t>(width));
            const std::size_t other = (at + 1) % static_cast<std::size_t>(width);
            if (rows[y] == 'z' || rows[y] == 'b') row[at] = T{0};
            if (rows[y] == 'n' || rows[y] == 'b') row[other] = T{-3};
          }
          const int bytes = static_cast<int>(step * sizeof(T));
          const KeliSize size = {width, static_cast<int>(rows.size())};
          ASSERT_EQ(call(src.data(), bytes, dst.data(), bytes, size), c.status)
              << rows << " width " << width << " " << targetName(target);
          ASSERT_NE(dst[step * (rows.size() - 1)], T{77}) << "the last row is written too";
        }
      }
    }
  }
}

TEST(MathWarnings, LnReportsTheFirstRow) {
  checkFirstRow<Kel32f>(keliLn_32f_C1R);
  checkFirstRow<Kel16s>(
      [](const Kel16s* src, int srcStep, Kel16s* dst, int dstStep, KeliSize size) {
        return keliLn_16s_C1RSfs(src, srcStep, dst, dstStep, size, -3);
      });
}

// One sample below zero or a NaN at each place of a row of AC4, C3 and C1.
TEST(MathWarnings, SqrtOfNegativeSamples) {
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    for (const int pixels : {1, 2, 5, 37}) {
      const std::size_t n = 4 * static_cast<std::size_t>(pixels);
      const int step = static_cast<int>(n * sizeof(Kel32f));
      for (std::size_t at = 0; at < n; ++at) {
        std::vector<Kel32f> src(n, 4.0f), dst(n, 0.0f);
        src[at] = -1;
        const KelStatus raised = kelStatusNegativeSqrtWarning;
        ASSERT_EQ(keliSqrt_32f_C1R(src.data(), step, dst.data(), step, {4 * pixels, 1}), raised);
        ASSERT_EQ(bitsOf(dst[at]), kNegativeNan);
        dst.assign(n, -7.0f);
        ASSERT_EQ(keliSqrt_32f_AC4R(src.data(), step, dst.data(), step, {pixels, 1}),
                  at % 4 == 3 ? KelStatus{kelStatusOk} : raised)
            << "sample " << at << " of " << n << " " << targetName(target);
        for (std::size_t i = 0; i < n; ++i) {
          ASSERT_EQ(bitsOf(dst[i]), i % 4 == 3 ? bitsOf(-7.0f)
                                    : i == at  ? kNegativeNan
                                               : bitsOf(2));
        }
        for (const Kel32f quiet : {-0.0f, std::numeric_limits<Kel32f>::quiet_NaN()}) {
          src[at] = quiet;
          ASSERT_EQ(keliSqrt_32f_C1IR(src.data(), step, {4 * pixels, 1}), kelStatusOk);
          src.assign(n, 4.0f);
        }
      }
    }
  }
}

TEST(MathWarnings, OneSquareRootStepsByWholeSamples) {
  const Kel32f src[6] = {1, 4, 9, 16, 25, 36};
  for (int rest = 0; rest < 4; ++rest) {
    Kel32f dst[6] = {};
    ASSERT_EQ(keliSqrt_32f_C1R(src, 8 + rest, dst, 12 + rest, {1, 2}), kelStatusOk);
    EXPECT_EQ(dst[0], 1);
    EXPECT_EQ(dst[3], 3);
    if (rest == 0) continue;
    // A step below 4 is 0: both rows are the first one.
    Kel32f one[2] = {};
    ASSERT_EQ(keliSqrt_32f_C1R(src + 1, rest, one, rest, {1, 2}), kelStatusOk);
    EXPECT_EQ(one[0], 2);
    EXPECT_EQ(one[1], 0);
  }
}

}  // namespace
}  // namespace keli::test
