// Abs of AC4 without memory for its row.
#include <gtest/gtest.h>

#include <cstring>

#include "keli.h"
#include "support/no_memory.h"

namespace keli::test {
namespace {

template <class T>
using Function = KelStatus (*)(const T*, int, T*, int, KeliSize);
template <class T>
using InPlace = KelStatus (*)(T*, int, KeliSize);

template <class T>
void checkWithoutMemory(Function<T> function, InPlace<T> inPlace) {
  const T src[8] = {-1, -2, -3, -4, -5, -6, -7, -8};
  T dst[8];
  std::memcpy(dst, src, sizeof(dst));
  const int step = sizeof(src) / 2;
  const KelStatus status = withoutMemory([&] { return function(src, step, dst, step, {1, 2}); });
  const KelStatus statusInPlace = withoutMemory([&] { return inPlace(dst, step, {1, 2}); });
  EXPECT_EQ(status, kelStatusNoMemory);
  EXPECT_EQ(statusInPlace, kelStatusNoMemory);
  EXPECT_EQ(std::memcmp(dst, src, sizeof(dst)), 0);
  EXPECT_EQ(function(src, step, dst, step, {1, 2}), kelStatusOk);
  EXPECT_EQ(dst[6], 7);
  EXPECT_EQ(dst[7], -8);
}

TEST(MathMemory, AbsOfAC4NeedsARow) {
  checkWithoutMemory<Kel16s>(keliAbs_16s_AC4R, keliAbs_16s_AC4IR);
  checkWithoutMemory<Kel32f>(keliAbs_32f_AC4R, keliAbs_32f_AC4IR);
}

}  // namespace
}  // namespace keli::test
