// Copies with borders against their definition: each destination pixel from its coordinates.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>

#include "reference/pointwise.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Role;

// How the arguments of a call, drawn at random, are changed.
enum class Shape { kDrawn, kOnePixel, kPlainCopy, kNoLeftAndTop, kNoRightAndBottom, kCount };

struct Borders {
  KeliSize src, dst;
  int top, left;
};

Borders bordersOf(const TestCall& call) {
  const auto number = [&](Role role) { return static_cast<int>(call.values[call.find(role)].i); };
  return {call.values[call.find(Role::kSourceRegion)].size,
          call.values[call.find(Role::kRegion)].size, number(Role::kTopBorder),
          number(Role::kLeftBorder)};
}

void setBorders(TestCall& call, const Borders& b) {
  call.values[call.find(Role::kSourceRegion)].size = b.src;
  call.values[call.find(Role::kRegion)].size = b.dst;
  call.values[call.find(Role::kTopBorder)].i = b.top;
  call.values[call.find(Role::kLeftBorder)].i = b.left;
  const std::size_t within = call.find(Role::kInOutWithin);
  if (within != TestCall::npos)
    call.values[within].p = ImageView(call, within).at(b.left, b.top, 0);
}

void reshape(TestCall& call, Shape shape) {
  Borders b = bordersOf(call);
  if (shape == Shape::kOnePixel) b.src = {1, 1};
  if (shape == Shape::kPlainCopy) b.dst = b.src;
  if (shape == Shape::kPlainCopy || shape == Shape::kNoLeftAndTop) b.top = b.left = 0;
  if (shape == Shape::kNoRightAndBottom) {
    b.left = b.dst.width - b.src.width;
    b.top = b.dst.height - b.src.height;
  }
  setBorders(call, b);
}

// The source coordinate of a destination coordinate, or -1 where there is none.
int sourceOf(const std::string& operation, int at, int count) {
  if (operation == "CopyReplicateBorder") return std::clamp(at, 0, count - 1);
  if (operation == "CopyWrapBorder") return (at % count + count) % count;
  return at >= 0 && at < count ? at : -1;
}

template <class T>
void define(const TestCall& call) {
  const std::string operation = call.function.operation;
  const Borders b = bordersOf(call);
  const ImageView dst(call, call.written());
  const bool inPlace = call.function.inPlace;
  const ImageView src(call, inPlace ? call.written() : call.lastSource());
  for (int y = 0; y < b.dst.height; ++y) {
    for (int x = 0; x < b.dst.width; ++x) {
      const int sx = sourceOf(operation, x - b.left, b.src.width);
      const int sy = sourceOf(operation, y - b.top, b.src.height);
      for (int k = 0; k < dst.channels(); ++k) {
        if (sx < 0 || sy < 0) {
          dst.set<T>(x, y, k, constantOf<T>(call, call.find(Role::kConstant), k));
        } else {
          const int right = inPlace ? b.left : 0, down = inPlace ? b.top : 0;
          dst.set<T>(x, y, k, src.get<T>(sx + right, sy + down, k));
        }
      }
    }
  }
}

// Of one width, in all shapes.
template <class T>
void check(const Function& f, int width, std::uint64_t seed) {
  for (int shape = 0; shape < static_cast<int>(Shape::kCount); ++shape) {
    // As many rows as a source must have for margins that are wider to repeat it.
    const Geometry g = {width, 1 + width % 5, width % 3, Place::kMiddle, width % 2};
    TestCall call(f, g, seed), expected(f, g, seed);
    for (TestCall* c : {&call, &expected}) reshape(*c, static_cast<Shape>(shape));
    ASSERT_EQ(call.run().status, kelStatusOk) << f.name;
    define<T>(expected);
    const Borders b = bordersOf(call);
    ASSERT_EQ(call.region(call.written()), expected.region(expected.written()))
        << f.name << " shape " << shape << ": source " << b.src.width << "x" << b.src.height
        << " at " << b.left << ", " << b.top << " of " << b.dst.width << "x" << b.dst.height;
  }
}

template <class T>
void checkAll(const Function& f) {
  for (const std::int64_t target : testedTargets()) {
    SCOPED_TRACE(targetName(target));
    const UseTarget use(target);
    for (int width = 1; width <= 140; ++width) {
      for (std::uint64_t seed = 0; seed < 2 && !testing::Test::HasFatalFailure(); ++seed)
        check<T>(f, width, runSeed() + 8 * static_cast<std::uint64_t>(width) + seed);
    }
    for (const int width : {257, 300, 1030, 1100, 2111, 4500}) check<T>(f, width, runSeed());
  }
}

TEST(Border, EveryPixelComesFromItsPlace) {
  int members = 0;
  for (const char* operation : {"CopyConstBorder", "CopyReplicateBorder", "CopyWrapBorder"}) {
    members += forMembers(operation, registry::Type::k8u, checkAll<Kel8u>);
    members += forMembers(operation, registry::Type::k16s, checkAll<Kel16s>);
    members += forMembers(operation, registry::Type::k32s, checkAll<Kel32s>);
  }
  EXPECT_EQ(members, 26);
}

TEST(Border, WideWrappedMargins) {
  const int width = 3, left = 2 * width + 1;
  Kel32s src[2][3] = {{1, 2, 3}, {4, 5, 6}};
  Kel32s dst[20][40] = {};
  ASSERT_EQ(keliCopyWrapBorder_32s_C1R(src[0], sizeof(src[0]), {width, 2}, dst[0], sizeof(dst[0]),
                                       {40, 20}, 5, left),
            kelStatusOk);
  const Kel32s expected[] = {6, 4, 5, 6, 4, 5, 6, 4, 5, 6, 4};  // of the row before the source
  EXPECT_TRUE(std::equal(std::begin(expected), std::end(expected), dst[4]));
  EXPECT_EQ(dst[0][left], 4);
  EXPECT_EQ(dst[19][39], 3 * ((19 - 5) % 2) + (39 - left) % width + 1);
}

TEST(Border, SizesThatDoNotFit) {
  for (const Function& f : registry::functions()) {
    if (std::string(f.entry->group) != "border") continue;
    TestCall call(f, {16, 6, 0, Place::kMiddle, 0}, runSeed());
    const Borders drawn = bordersOf(call);
    const auto statusOf = [&](Borders b) {
      call.values[call.find(Role::kSourceRegion)].size = b.src;
      call.values[call.find(Role::kRegion)].size = b.dst;
      call.values[call.find(Role::kTopBorder)].i = b.top;
      call.values[call.find(Role::kLeftBorder)].i = b.left;
      return call.run().status;
    };
    Borders b = drawn;
    b.dst.width = b.left + b.src.width - 1;
    EXPECT_EQ(statusOf(b), kelStatusBadSize) << f.name;
    b = drawn;
    b.dst.height = b.top + b.src.height - 1;
    EXPECT_EQ(statusOf(b), kelStatusBadSize) << f.name;
    b = drawn;
    b.left = INT_MAX;  // wraps to less than the width in 32 bits
    EXPECT_EQ(statusOf(b), kelStatusBadSize) << f.name;
    b = drawn;
    b.top = INT_MAX - b.src.height + 1;
    EXPECT_EQ(statusOf(b), kelStatusBadSize) << f.name;
    EXPECT_EQ(call.anyWrites(), "");
  }
}

}  // namespace
}  // namespace keli::test
