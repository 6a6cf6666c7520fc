// Mirror against its definition, in place and not, about every axis.
#include <gtest/gtest.h>

#include "reference/pointwise.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Role;

// Into expected, from the image of a call with the same samples.
void define(const TestCall& original, const TestCall& expected, KeliSize size, KelAxis flip) {
  const ImageView src(original, original.lastSource()), dst(expected, expected.written());
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const int sx = flip == kelAxisHorizontal ? x : size.width - 1 - x;
      const int sy = flip == kelAxisVertical ? y : size.height - 1 - y;
      for (int k = 0; k < dst.channels(); ++k)
        std::memcpy(dst.at(x, y, k), src.at(sx, sy, k), dst.sampleBytes());
    }
  }
}

// About every axis.
void check(const Function& f, const Geometry& g) {
  const std::uint64_t seed = runSeed() + static_cast<std::uint64_t>(g.width);
  for (const KelAxis flip : {kelAxisHorizontal, kelAxisVertical, kelAxisBoth}) {
    TestCall call(f, g, seed), original(f, g, seed), expected(f, g, seed);
    call.values[call.find(Role::kAxis)].i = flip;
    define(original, expected, {g.width, g.height}, flip);
    ASSERT_EQ(call.run().status, kelStatusOk) << f.name;
    ASSERT_EQ(call.region(call.written()), expected.region(expected.written()))
        << f.name << " axis " << flip << ", " << g.width << "x" << g.height << ", padding "
        << g.padding << ", offset " << g.offset;
  }
}

void checkAll(const Function& f) {
  for (const std::int64_t target : testedTargets()) {
    SCOPED_TRACE(targetName(target));
    const UseTarget use(target);
    for (int width = 1; width <= 140; ++width) {
      for (int i = 0; i < 2 && !testing::Test::HasFatalFailure(); ++i)
        check(f, {width, 1 + (width + i) % 5, i * (width % 7), Place::kMiddle, width % 3});
    }
    for (const int width : {257, 300, 700, 1101, 4500})
      check(f, {width, 3, width % 4, Place::kMiddle, width % 5});
  }
}

TEST(Mirror, EveryPixelGoesToItsPlace) {
  int members = 0;
  for (const registry::Type type :
       {registry::Type::k8u, registry::Type::k16u, registry::Type::k32s})
    members += forMembers("Mirror", type, checkAll);
  EXPECT_EQ(members, 24);
}

TEST(Mirror, OrderOfChecks) {
  Kel8u src[9] = {}, dst[9] = {};
  EXPECT_EQ(keliMirror_8u_C1R(src, 0, dst, 3, {0, 3}, 7), kelStatusBadStep);
  EXPECT_EQ(keliMirror_8u_C1R(src, 3, dst, 3, {0, 3}, 7), kelStatusBadSize);
  EXPECT_EQ(keliMirror_8u_C1R(src, 3, dst, 3, {3, 3}, 3), kelStatusBadAxis);
  EXPECT_EQ(keliMirror_8u_C1IR(dst, 3, {3, 3}, -1), kelStatusBadAxis);
}

}  // namespace
}  // namespace keli::test
