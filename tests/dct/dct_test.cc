// Transforms of 8 x 8 blocks against their definition, summed up in double precision, and zigzag
// order against the table of ITU-T T.81, on every target.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cfenv>
#include <cmath>
#include <cstring>
#include <functional>
#include <numeric>

#include "keli.h"
#include "support/arena.h"
#include "support/targets.h"

namespace keli::test {
namespace {

using Block = std::array<Kel16s, 64>;
using Bytes = std::array<Kel8u, 64>;
using Floats = std::array<Kel32f, 64>;
using Exact = std::array<double, 64>;

double basis(std::size_t k, std::size_t x) {
  const double angle = static_cast<double>((2 * x + 1) * k) * M_PI / 16;
  return k == 0 ? std::sqrt(0.125) : 0.5 * std::cos(angle);
}

// Along the rows and then the columns. entry(k, i): of the matrix, by output and input.
template <class Samples, class Entry>
Exact product(const Samples& in, const Entry& entry) {
  Exact rows{}, all{};
  for (std::size_t y = 0; y < 8; ++y) {
    for (std::size_t k = 0; k < 8; ++k) {
      for (std::size_t i = 0; i < 8; ++i) rows[8 * y + k] += entry(k, i) * in[8 * y + i];
    }
  }
  for (std::size_t k = 0; k < 8; ++k) {
    for (std::size_t x = 0; x < 8; ++x) {
      for (std::size_t i = 0; i < 8; ++i) all[8 * k + x] += entry(k, i) * rows[8 * i + x];
    }
  }
  return all;
}

template <class Samples>
Exact forward(const Samples& in) {
  static const auto kTable = [] {
    Exact table;
    for (std::size_t i = 0; i < 64; ++i) table[i] = basis(i / 8, i % 8);
    return table;
  }();
  return product(in, [](std::size_t k, std::size_t i) { return kTable[8 * k + i]; });
}

template <class Samples>
Exact inverse(const Samples& in) {
  static const auto kTable = [] {
    Exact table;
    for (std::size_t i = 0; i < 64; ++i) table[i] = basis(i % 8, i / 8);
    return table;
  }();
  return product(in, [](std::size_t k, std::size_t i) { return kTable[8 * k + i]; });
}

int within(Random& random, int low, int high) {
  return low + static_cast<int>(pick(random, static_cast<std::size_t>(high - low) + 1));
}

// Random blocks from low to high; blocks of a few numbers; signs of a basis function, which make
// the largest results; extremes alone.
Block blockOf(Random& random, int low, int high) {
  Block block{};
  const std::size_t kind = pick(random, 4), u = pick(random, 8), v = pick(random, 8);
  for (std::size_t i = 0; i < 64; ++i) {
    int value = within(random, low, high);
    if (kind == 1 && pick(random, 8) != 0) value = 0;
    if (kind == 2) value = basis(u, i % 8) * basis(v, i / 8) > 0 ? high : low;
    if (kind == 3) value = pick(random, 2) == 0 ? low : high;
    block[i] = static_cast<Kel16s>(std::clamp(value, low, high));
  }
  return block;
}

constexpr int kStep = 37;  // bytes: rows of images stand at odd addresses

template <class T>
struct Image {
  std::array<std::uint8_t, kStep * 8> bytes{};
  T* data() { return reinterpret_cast<T*>(bytes.data() + 1); }
  void set(std::size_t i, T value) {
    std::memcpy(bytes.data() + 1 + i / 8 * kStep + i % 8 * sizeof(T), &value, sizeof(T));
  }
  T at(std::size_t i) const {
    T value;
    std::memcpy(&value, bytes.data() + 1 + i / 8 * kStep + i % 8 * sizeof(T), sizeof(T));
    return value;
  }
};

using Run = std::function<void(const Block& in, Block& out)>;

template <class F>
Run separate(F f) {
  return [f](const Block& in, Block& out) { ASSERT_EQ(f(in.data(), out.data()), kelStatusOk); };
}
template <class F>
Run inPlace(F f) {
  return [f](const Block& in, Block& out) {
    out = in;
    ASSERT_EQ(f(out.data()), kelStatusOk);
  };
}
template <class T, class F>
Run fromImage(F f) {
  return [f](const Block& in, Block& out) {
    Image<T> image;
    for (std::size_t i = 0; i < 64; ++i) image.set(i, static_cast<T>(in[i]));
    ASSERT_EQ(f(image.data(), kStep, out.data()), kelStatusOk);
  };
}
template <class T, class F>
Run toImage(F f) {
  return [f](const Block& in, Block& out) {
    Image<T> image;
    ASSERT_EQ(f(in.data(), image.data(), kStep), kelStatusOk);
    for (std::size_t i = 0; i < 64; ++i) out[i] = image.at(i);
  };
}

struct Member {
  const char* name;
  Run run;
  int low, high;        // of samples
  int lowest, highest;  // of results
  bool inverse = false;
  std::size_t corner = 8;  // the coefficients that count
};

const std::vector<Member>& members() {
  constexpr int kLow = -32768, kHigh = 32767;
  static const std::vector<Member> all = {
      {"Fwd_16s_C1", separate(keliDCT8x8Fwd_16s_C1), kLow, kHigh, kLow, kHigh},
      {"Fwd_16s_C1I", inPlace(keliDCT8x8Fwd_16s_C1I), kLow, kHigh, kLow, kHigh},
      {"Fwd_16s_C1R", fromImage<Kel16s>(keliDCT8x8Fwd_16s_C1R), kLow, kHigh, kLow, kHigh},
      {"Fwd_8u16s_C1R", fromImage<Kel8u>(keliDCT8x8Fwd_8u16s_C1R), 0, 255, kLow, kHigh},
      {"Inv_16s_C1", separate(keliDCT8x8Inv_16s_C1), kLow, kHigh, kLow, kHigh, true},
      {"Inv_16s_C1I", inPlace(keliDCT8x8Inv_16s_C1I), kLow, kHigh, kLow, kHigh, true},
      {"Inv_16s_C1R", toImage<Kel16s>(keliDCT8x8Inv_16s_C1R), kLow, kHigh, kLow, kHigh, true},
      {"Inv_16s8u_C1R", toImage<Kel8u>(keliDCT8x8Inv_16s8u_C1R), kLow, kHigh, 0, 255, true},
      {"Inv_4x4_16s_C1", separate(keliDCT8x8Inv_4x4_16s_C1), kLow, kHigh, kLow, kHigh, true, 4},
      {"Inv_4x4_16s_C1I", inPlace(keliDCT8x8Inv_4x4_16s_C1I), kLow, kHigh, kLow, kHigh, true, 4},
      {"Inv_2x2_16s_C1", separate(keliDCT8x8Inv_2x2_16s_C1), kLow, kHigh, kLow, kHigh, true, 2},
      {"Inv_2x2_16s_C1I", inPlace(keliDCT8x8Inv_2x2_16s_C1I), kLow, kHigh, kLow, kHigh, true, 2},
  };
  return all;
}

// Runs f on every target.
template <class F>
void onTargets(const F& f) {
  for (const std::int64_t target : testedTargets()) {
    SCOPED_TRACE(targetName(target));
    const UseTarget use(target);
    f();
    if (testing::Test::HasFatalFailure()) return;
  }
}

// The block with zeros where coefficients do not count.
Block cornerOf(Block block, std::size_t side) {
  for (std::size_t i = 0; i < 64; ++i) {
    if (i / 8 >= side || i % 8 >= side) block[i] = 0;
  }
  return block;
}

// Results are the exact ones, saturated and rounded, up to what single precision leaves open: as
// many digits of the largest sample.
TEST(Dct8x8, IntegersAreTheDefinitionRounded) {
  onTargets([] {
    Random random(runSeed());
    for (const Member& m : members()) {
      for (int n = 0; n < 2000; ++n) {
        const int limit = 1 << within(random, 1, 15);
        const Block in = blockOf(random, std::max(m.low, -limit), std::min(m.high, limit - 1));
        const Block counted = cornerOf(in, m.corner);
        const Exact exact = m.inverse ? inverse(counted) : forward(counted);
        Block out;
        m.run(in, out);
        for (std::size_t i = 0; i < 64; ++i) {
          const double expected = std::clamp<double>(exact[i], m.lowest, m.highest);
          ASSERT_LE(std::abs(out[i] - expected), 0.5 + 2e-6 * limit)
              << m.name << " place " << i << " of samples below " << limit;
        }
      }
    }
  });
}

TEST(Dct8x8, CornersEqualTheFullInverse) {
  onTargets([] {
    Random random(runSeed());
    for (const Member& m : members()) {
      for (int n = 0; m.corner < 8 && n < 5000; ++n) {
        const Block in = blockOf(random, -(1 << within(random, 1, 15)), 32767);
        Block full, out;
        ASSERT_EQ(keliDCT8x8Inv_16s_C1(cornerOf(in, m.corner).data(), full.data()), kelStatusOk);
        m.run(in, out);
        ASSERT_EQ(out, full) << m.name;
      }
    }
  });
}

// A constant block has one coefficient and comes back from it; eighths of sums are exact, and
// halves go to the even neighbour.
TEST(Dct8x8, ConstantsAndHalves) {
  onTargets([] {
    for (const int value : {0, 1, -1, 127, 255, -4096, 4095}) {
      Block in, out, expected{};
      in.fill(static_cast<Kel16s>(value));
      expected[0] = static_cast<Kel16s>(8 * value);
      ASSERT_EQ(keliDCT8x8Fwd_16s_C1(in.data(), out.data()), kelStatusOk);
      ASSERT_EQ(out, expected) << value;
      ASSERT_EQ(keliDCT8x8Inv_16s_C1I(out.data()), kelStatusOk);
      ASSERT_EQ(out, in) << value;
    }
    for (const auto& [sum, rounded] : {std::pair{4, 0}, {12, 2}, {20, 2}, {-4, 0}, {-12, -2}}) {
      Block in{}, out;
      in[27] = static_cast<Kel16s>(sum);
      ASSERT_EQ(keliDCT8x8Fwd_16s_C1(in.data(), out.data()), kelStatusOk);
      ASSERT_EQ(out[0], rounded) << sum;
    }
  });
}

// What IEEE 1180-1990 asks of inverse transforms, of forward ones rounded and cut to 12 bits.
TEST(Dct8x8, AccuracyOfTheInverse) {
  constexpr int kBlocks = 10000;
  onTargets([] {
    for (const auto& [low, high] : {std::pair{-256, 255}, {-5, 5}, {-300, 300}}) {
      for (const int sign : {1, -1}) {
        Random random(runSeed() + static_cast<std::uint64_t>(high));
        Exact mean{}, square{};
        for (int n = 0; n < kBlocks; ++n) {
          Exact pixels;
          for (double& p : pixels) p = sign * within(random, low, high);
          const Exact transformed = forward(pixels);
          Block coefficients, out;
          for (std::size_t i = 0; i < 64; ++i) {
            coefficients[i] =
                static_cast<Kel16s>(std::clamp(std::nearbyint(transformed[i]), -2048.0, 2047.0));
          }
          const Exact exact = inverse(coefficients);
          ASSERT_EQ(keliDCT8x8Inv_16s_C1(coefficients.data(), out.data()), kelStatusOk);
          for (std::size_t i = 0; i < 64; ++i) {
            const double expected = std::clamp(std::nearbyint(exact[i]), -256.0, 255.0);
            const double error = std::clamp<double>(out[i], -256, 255) - expected;
            ASSERT_LE(std::abs(error), 1);
            mean[i] += error / kBlocks;
            square[i] += error * error / kBlocks;
          }
        }
        for (std::size_t i = 0; i < 64; ++i) {
          ASSERT_LE(std::abs(mean[i]), 0.015) << i;
          ASSERT_LE(square[i], 0.06) << i;
        }
        ASSERT_LE(std::abs(std::accumulate(mean.begin(), mean.end(), 0.0)) / 64, 0.0015);
        ASSERT_LE(std::accumulate(square.begin(), square.end(), 0.0) / 64, 0.02);
      }
    }
    Block zero{};
    ASSERT_EQ(keliDCT8x8Inv_16s_C1I(zero.data()), kelStatusOk);
    ASSERT_EQ(zero, Block{});
  });
}

// Sums with a level shift neither wrap nor lose anything; bounds hold, the upper one last.
TEST(Dct8x8, LevelShiftAndBounds) {
  onTargets([] {
    Random random(runSeed());
    for (const Kel16s shift : {0, -128, 128, 1, 32767, -32768}) {
      for (int n = 0; n < 300; ++n) {
        Image<Kel8u> image, clipped;
        Exact shifted;
        for (std::size_t i = 0; i < 64; ++i) {
          image.set(i, static_cast<Kel8u>(within(random, 0, 255)));
          shifted[i] = image.at(i) + shift;
        }
        Block out;
        ASSERT_EQ(keliDCT8x8FwdLS_8u16s_C1R(image.data(), kStep, out.data(), shift), kelStatusOk);
        const Exact expected = forward(shifted);
        for (std::size_t i = 0; i < 64; ++i) {
          ASSERT_LE(std::abs(out[i] - std::clamp(expected[i], -32768.0, 32767.0)), 0.57)
              << "shift " << shift << " place " << i;
        }

        const Block in = blockOf(random, -(1 << within(random, 1, 15)), 32767);
        const Kel8u down = static_cast<Kel8u>(within(random, 0, 255));
        const Kel8u up = static_cast<Kel8u>(n % 8 == 0 ? down : within(random, 0, 255));
        ASSERT_EQ(keliDCT8x8InvLSClip_16s8u_C1R(in.data(), clipped.data(), kStep, shift, down, up),
                  kelStatusOk);
        ASSERT_EQ(keliDCT8x8Inv_16s_C1(in.data(), out.data()), kelStatusOk);
        for (std::size_t i = 0; i < 64; ++i) {
          const int value = std::max(out[i] + shift, int{down});
          ASSERT_EQ(clipped.at(i), std::min(value, int{up})) << "shift " << shift << " place " << i;
        }
      }
    }
  });
}

TEST(Dct8x8, FloatsAreWithinSinglePrecision) {
  onTargets([] {
    Random random(runSeed());
    for (int n = 0; n < 2000; ++n) {
      const double size = std::ldexp(1.0, within(random, -60, 60));
      Floats in, out, back;
      for (Kel32f& x : in) x = static_cast<Kel32f>(size * within(random, -1000000, 1000000) / 1e6);
      ASSERT_EQ(keliDCT8x8Fwd_32f_C1(in.data(), out.data()), kelStatusOk);
      ASSERT_EQ(keliDCT8x8Inv_32f_C1(in.data(), back.data()), kelStatusOk);
      const Exact coefficients = forward(in), samples = inverse(in);
      for (std::size_t i = 0; i < 64; ++i) {
        ASSERT_LE(std::abs(out[i] - coefficients[i]), 2e-6 * size) << "forward, place " << i;
        ASSERT_LE(std::abs(back[i] - samples[i]), 2e-6 * size) << "inverse, place " << i;
      }
      ASSERT_EQ(keliDCT8x8Inv_32f_C1I(out.data()), kelStatusOk);
      for (std::size_t i = 0; i < 64; ++i) ASSERT_NEAR(out[i], in[i], 4e-6 * size) << i;
    }
  });
}

TEST(Dct8x8, ResultsThatAreNoNumbersHaveOneForm) {
  onTargets([] {
    for (const float special : {std::nanf("7"), -std::nanf("1"), HUGE_VALF}) {
      Floats in{};
      in[13] = special;
      in[50] = -special;
      for (const auto transform : {keliDCT8x8Fwd_32f_C1, keliDCT8x8Inv_32f_C1}) {
        Floats out;
        ASSERT_EQ(transform(in.data(), out.data()), kelStatusOk);
        int found = 0;
        for (const Kel32f& x : out) {
          std::uint32_t bits;
          std::memcpy(&bits, &x, sizeof(bits));
          if (!std::isnan(x)) continue;
          ++found;
          ASSERT_EQ(bits, 0x7FC00000u);
        }
        ASSERT_GT(found, 0);
      }
    }
  });
}

TEST(Dct8x8, CallersRoundingModeChangesNothing) {
  onTargets([] {
    Random random(runSeed());
    for (int n = 0; n < 100; ++n) {
      const Block in = blockOf(random, -2048, 2047);
      Floats floats;
      std::transform(in.begin(), in.end(), floats.begin(), [](Kel16s x) { return x / 7.f; });
      for (const Member& m : members()) {
        if (m.low == 0) continue;
        Block expected, out;
        m.run(in, expected);
        for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
          std::fesetround(mode);
          m.run(in, out);
          std::fesetround(FE_TONEAREST);
          ASSERT_EQ(out, expected) << m.name;
        }
      }
      for (const auto transform : {keliDCT8x8Fwd_32f_C1, keliDCT8x8Inv_32f_C1}) {
        Floats expected, out;
        transform(floats.data(), expected.data());
        std::fesetround(FE_UPWARD);
        transform(floats.data(), out.data());
        std::fesetround(FE_TONEAREST);
        ASSERT_EQ(out, expected);
      }
    }
  });
}

TEST(Zigzag8x8, OrderOfT81AndBack) {
  constexpr Block kZigzag = {0,  1,  8,  16, 9,  2,  3,  10, 17, 24, 32, 25, 18, 11, 4,  5,
                             12, 19, 26, 33, 40, 48, 41, 34, 27, 20, 13, 6,  7,  14, 21, 28,
                             35, 42, 49, 56, 57, 50, 43, 36, 29, 22, 15, 23, 30, 37, 44, 51,
                             58, 59, 52, 45, 38, 31, 39, 46, 53, 60, 61, 54, 47, 55, 62, 63};
  onTargets([&] {
    // Words whose bytes both tell where they came from.
    Block natural, zigzag, out;
    for (std::size_t i = 0; i < 64; ++i) {
      const auto word = [](std::size_t at) { return static_cast<Kel16s>(0xA040 + 0x101 * at); };
      natural[i] = word(i);
      zigzag[i] = word(static_cast<std::size_t>(kZigzag[i]));
    }
    ASSERT_EQ(keliZigzagFwd8x8_16s_C1(natural.data(), out.data()), kelStatusOk);
    ASSERT_EQ(out, zigzag);
    ASSERT_EQ(keliZigzagInv8x8_16s_C1(zigzag.data(), out.data()), kelStatusOk);
    ASSERT_EQ(out, natural);
  });
}

}  // namespace
}  // namespace keli::test
