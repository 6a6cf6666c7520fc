// Filters without memory for their rows: small windows need none of the heap, others fail and write
// nothing.
#include <gtest/gtest.h>

#include <vector>

#include "keli.h"
#include "support/no_memory.h"

namespace keli::test {
namespace {

constexpr int kWidth = 20000, kMargin = 70, kStep = kWidth + 2 * kMargin, kHeight = 12;
constexpr KeliSize kRoi = {kWidth, kHeight};

struct Images {
  std::vector<Kel8u> src, dst;
  Images() : src(std::size_t{kStep} * (kHeight + 2 * kMargin)), dst(std::size_t{kWidth} * kHeight) {
    for (std::size_t i = 0; i < src.size(); ++i) src[i] = static_cast<Kel8u>(i * 7 + i / 5 + 1);
  }
  Kel8u* from() { return src.data() + kMargin * kStep + kMargin; }
};

// The statuses of a call without memory and with it; what a failing one writes is a failure.
template <class Call>
void expectStatus(KelStatus without, const Call& call) {
  Images images;
  const Images before = images;
  const KelStatus status = withoutMemory([&] { return call(images); });
  EXPECT_EQ(status, without);
  if (status == kelStatusNoMemory) {
    EXPECT_EQ(images.src, before.src);
    EXPECT_EQ(images.dst, before.dst);
  }
  images = before;
  EXPECT_EQ(call(images), kelStatusOk);
  EXPECT_TRUE(images.src != before.src || images.dst != before.dst);
}

TEST(MorphologyMemory, LargeWindowsNeedRows) {
  const auto max = [](KeliSize mask) {
    return [=](Images& i) {
      return keliFilterMax_8u_C1R(i.from(), kStep, i.dst.data(), kWidth, kRoi, mask, {0, 0});
    };
  };
  expectStatus(kelStatusOk, max({3, 3}));
  expectStatus(kelStatusNoMemory, max({31, 8}));
  expectStatus(kelStatusNoMemory, max({3, 64}));
  expectStatus(kelStatusOk, [&](Images& i) {
    return keliErode3x3_8u_C1R(i.from(), kStep, i.dst.data(), kWidth, kRoi);
  });
  expectStatus(kelStatusNoMemory,
               [&](Images& i) { return keliErode3x3_8u_C1IR(i.from(), kStep, kRoi); });
  expectStatus(kelStatusOk, [&](Images& i) {
    return keliErode3x3_8u_C1IR(i.from(), kStep, {1000, 1});
  });
  std::vector<Kel8u> element(64 * 64);
  for (std::size_t i = 0; i < element.size(); ++i) element[i] = i % 3 == 0;
  expectStatus(kelStatusNoMemory, [&](Images& i) {
    return keliDilate_8u_C1R(i.from(), kStep, i.dst.data(), kWidth, kRoi, element.data(), {64, 64},
                             {5, 6});
  });
}

}  // namespace
}  // namespace keli::test
