// Images of one bit for each pixel, at every offset, against their definition bit by bit. The rows
// of bits stand at the end of their memory or at its beginning, so that no byte beside them is
// touched, and the bits around them are compared too.
#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "keli.h"
#include "support/arena.h"
#include "support/targets.h"

namespace keli::test {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr int kHeight = 2;

bool bitOf(const std::uint8_t* row, int place) {
  return (row[place / 8] >> (7 - place % 8) & 1) != 0;
}

std::vector<int> widths() {
  std::vector<int> all;
  for (int w = 1; w <= 70; ++w) all.push_back(w);
  for (const int w : {95, 128, 129, 200, 255, 256, 1023, 1100, 1101}) all.push_back(w);
  return all;
}

// An image of bytes with a step, random at first.
struct Rows {
  std::shared_ptr<Arena> arena;
  std::uint8_t* data;
  int step;
  std::size_t size;

  Rows(int rowBytes, int padding, bool atEnd, Random& random)
      : step(rowBytes + padding), size(static_cast<std::size_t>(step + rowBytes)) {
    arena = borrowArena(size);
    data = atEnd ? arena->end() - size : arena->begin();
    for (std::size_t i = 0; i < size; ++i) data[i] = static_cast<std::uint8_t>(random());
  }
  std::uint8_t* row(int y) const { return data + y * step; }
  Bytes all() const { return Bytes(data, data + size); }
};

// run(width, offset, bits, bytes, random) for every width and offset, with images of both kinds.
template <class Run>
void forAll(const Run& run) {
  Random random(runSeed());
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    for (const int width : widths()) {
      for (int offset = 0; offset < 8; ++offset) {
        const bool atEnd = random() % 2 == 0;
        const int padding = static_cast<int>(random() % 3) * 2;
        const Rows bits((offset + width + 7) / 8, padding, atEnd, random);
        const Rows bytes(width, padding, atEnd, random);
        run(width, offset, bits, bytes, random);
        ASSERT_FALSE(testing::Test::HasFailure())
            << targetName(target) << " width " << width << " offset " << offset;
      }
    }
  }
}

TEST(ConvertBits, ToBytes) {
  forAll([](int width, int offset, const Rows& bits, const Rows& bytes, Random&) {
    Bytes expected = bytes.all();
    for (int y = 0; y < kHeight; ++y) {
      for (int x = 0; x < width; ++x) {
        expected[static_cast<std::size_t>(y * bytes.step + x)] =
            bitOf(bits.row(y), offset + x) ? 255 : 0;
      }
    }
    EXPECT_EQ(keliConvert_1u8u_C1R(bits.data, bits.step, offset, bytes.data, bytes.step,
                                   {width, kHeight}),
              kelStatusOk);
    EXPECT_EQ(bytes.all(), expected);
  });
}

TEST(ConvertBits, FromBytes) {
  forAll([](int width, int offset, const Rows& bits, const Rows& bytes, Random& random) {
    const Kel8u thresholds[] = {0, 127, 128, 254, 255, static_cast<Kel8u>(random())};
    const Kel8u threshold = thresholds[random() % 6];
    for (int y = 0; y < kHeight; ++y) {
      for (int x = 0; x < width; ++x) {
        // Some that just do and just do not pass.
        if (random() % 2 == 0)
          bytes.row(y)[x] = static_cast<Kel8u>(threshold + static_cast<int>(random() % 3) - 1);
      }
    }
    Bytes expected = bits.all();
    for (int y = 0; y < kHeight; ++y) {
      for (int x = 0; x < width; ++x) {
        const int place = offset + x;
        std::uint8_t& byte = expected[static_cast<std::size_t>(y * bits.step + place / 8)];
        const int bit = 0x80 >> place % 8;
        byte = static_cast<std::uint8_t>(bytes.row(y)[x] > threshold ? byte | bit : byte & ~bit);
      }
    }
    EXPECT_EQ(keliConvert_8u1u_C1R(bytes.data, bytes.step, bits.data, bits.step, offset,
                                   {width, kHeight}, threshold),
              kelStatusOk);
    EXPECT_EQ(bits.all(), expected);
  });
}

// The offset is checked last.
TEST(ConvertBits, Offsets) {
  Kel8u v[2] = {1, 2};
  for (const int offset : {-1, 8, std::numeric_limits<int>::min(), 1 << 30}) {
    EXPECT_EQ(keliConvert_1u8u_C1R(v, 1, offset, v, 1, {1, 1}), kelStatusBadRange);
    EXPECT_EQ(keliConvert_8u1u_C1R(v, 1, v, 1, offset, {1, 1}, 0), kelStatusBadRange);
    EXPECT_EQ(keliConvert_1u8u_C1R(v, 0, offset, v, 1, {1, 1}), kelStatusBadStep);
    EXPECT_EQ(keliConvert_8u1u_C1R(v, 1, v, 1, offset, {1, 0}, 0), kelStatusBadSize);
  }
  EXPECT_EQ(v[0], 1);
}

}  // namespace
}  // namespace keli::test
