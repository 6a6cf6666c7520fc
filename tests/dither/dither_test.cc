// Bit-depth reduction against its definitions, pixel by pixel.
#include <omp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cfenv>
#include <cmath>
#include <numeric>
#include <vector>

#include "keli.h"
#include "reference/pointwise.h"
#include "support/no_memory.h"

namespace keli::test {
namespace {

using registry::Role;
using registry::Type;

struct Setting {
  int dither, levels, noise;
};

// What the types of a member make of it.
struct Kind {
  int sourceFull;  // 0: floats, in the range of the result
  int full;
  int sourceOffset, offset;
};

Kind kindOf(Type from, Type to) {
  Kind kind = {0, to == Type::k8u ? 255 : 65535, 0, to == Type::k16s ? 32768 : 0};
  if (from != Type::k32f) kind.sourceFull = from == Type::k8u ? 255 : 65535;
  kind.sourceOffset = from == Type::k32f ? kind.offset : from == Type::k16s ? 32768 : 0;
  return kind;
}

float noiseAt(int x, int y, int channel, float step, int percent) {
  const std::uint32_t g = 0x9E3779B1u;
  std::uint32_t h =
      static_cast<std::uint32_t>(x) * g + static_cast<std::uint32_t>(4 * y + channel) * 0x85EBCA77u;
  h = (h ^ (h >> 15)) * g;
  h = (h ^ (h >> 13)) * g;
  h ^= h >> 16;
  const float amplitude = step * static_cast<float>(percent) / 100;
  return static_cast<float>(static_cast<int>(h >> 8) - 8388608) * (amplitude / 16777216);
}

// A channel of an image.
struct Plane {
  int width, height;
  std::vector<float> v;

  float at(int x, int y) const {
    const bool inside = x >= 0 && x < width && y >= 0;
    return inside ? v[static_cast<std::size_t>(y * width + x)] : 0;
  }
};

// Numbers of levels by error diffusion.
std::vector<int> diffused(const Plane& values, const Setting& s, float full) {
  struct Term {
    int dx, dy, weight;
  };
  static const std::vector<Term> kTerms[] = {{{-1, -1, 1}, {0, -1, 5}, {1, -1, 3}, {-1, 0, 7}},
                                             {{-2, -2, 1},
                                              {-1, -2, 3},
                                              {0, -2, 5},
                                              {1, -2, 3},
                                              {2, -2, 1},
                                              {-2, -1, 3},
                                              {-1, -1, 5},
                                              {0, -1, 7},
                                              {1, -1, 5},
                                              {2, -1, 3},
                                              {-2, 0, 5},
                                              {-1, 0, 7}},
                                             {{-2, -2, 1},
                                              {-1, -2, 2},
                                              {0, -2, 4},
                                              {1, -2, 2},
                                              {2, -2, 1},
                                              {-2, -1, 2},
                                              {-1, -1, 4},
                                              {0, -1, 8},
                                              {1, -1, 4},
                                              {2, -1, 2},
                                              {-2, 0, 4},
                                              {-1, 0, 8}}};
  const std::vector<Term>& terms = kTerms[s.dither - 1];
  const float divisor = s.dither == 1 ? 16 : s.dither == 2 ? 48 : 42;
  const float last = static_cast<float>(s.levels - 1), step = full / last;
  const float perUnit = last / full * (1 + 0x1p-22f);
  Plane errors = {values.width, values.height, std::vector<float>(values.v.size())};
  std::vector<int> numbers;
  for (int y = 0; y < values.height; ++y) {
    for (int x = 0; x < values.width; ++x) {
      const float value = values.at(x, y);
      float v = s.dither == 1 ? 0 : value;
      for (const Term& t : terms) {
        if (t.dy == 0 && s.dither == 1) v = value + v;
        v += static_cast<float>(t.weight) / divisor * errors.at(x + t.dx, y + t.dy);
      }
      int k = 0;
      float error = 0;
      if (v >= full) {
        k = s.levels - 1;
      } else if (v >= 0x1p-100f) {
        k = static_cast<int>(v * perUnit);
        const float below = static_cast<float>(k) * step;
        const bool up = v - below > step * 0.5f;
        error = up ? v - (below + step) : v - below;
        k += up;
      }
      errors.v[static_cast<std::size_t>(y * values.width + x)] = error;
      numbers.push_back(k);
    }
  }
  return numbers;
}

constexpr int kMatrix[4][4] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};

int ordered(int x, int y, float v, const Setting& s, float full) {
  const float last = static_cast<float>(s.levels - 1), step = full / last;
  v = v > full ? full : v < 0 ? 0 : v;
  const int k = static_cast<int>(v * (last / full * (1 + 0x1p-22f)));
  const float threshold = static_cast<float>(kMatrix[y & 3][x & 3]) * step / 15;
  return threshold < v - static_cast<float>(k) * step ? std::min(k + 1, s.levels - 1) : k;
}

int orderedExactly(int x, int y, std::int64_t v, const Setting& s, std::int64_t full) {
  const std::int64_t k = v * (s.levels - 1) / full, rest = v * (s.levels - 1) % full;
  return static_cast<int>(k) + (kMatrix[y & 3][x & 3] * full < 15 * rest ? 1 : 0);
}

// What is expected, from the sources of a call, in its written image.
template <class TS, class TD>
void define(const TestCall& call, KeliSize size, const Setting& s, const Kind& kind) {
  const ImageView src(call, call.find(Role::kSource)), dst(call, call.written());
  const float full = static_cast<float>(kind.full), step = full / static_cast<float>(s.levels - 1);
  const float scale = kind.sourceFull > kind.full ? 255.f / 65535.f : 1.f;
  for (int channel = 0; channel < dst.channels(); ++channel) {
    Plane values = {size.width, size.height, {}};
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        float v = static_cast<float>(src.get<TS>(x, y, channel));
        if (std::isnan(v)) v = std::numeric_limits<float>::max();
        v = (v + static_cast<float>(kind.sourceOffset)) * scale;
        if (s.noise != 0) {
          v += noiseAt(x, y, channel, step, s.noise);
          v = v > full ? full : v < 0 ? 0 : v;
        }
        values.v.push_back(v);
      }
    }
    std::vector<int> numbers;
    if (s.dither != kelDitherBayer) numbers = diffused(values, s, full);
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        std::int64_t k;
        if (s.dither != kelDitherBayer) {
          k = numbers[static_cast<std::size_t>(y * size.width + x)];
        } else if (kind.sourceFull != 0 && s.noise == 0) {
          const int v = static_cast<int>(src.get<TS>(x, y, channel)) + kind.sourceOffset;
          k = orderedExactly(x, y, v, s, kind.sourceFull);
        } else {
          k = ordered(x, y, values.at(x, y), s, full);
        }
        dst.set(x, y, channel, static_cast<TD>(k * kind.full / (s.levels - 1) - kind.offset));
      }
    }
  }
}

// Half of the floats that a call has are far out of range; the others are brought into it, and the
// right part of all samples made dark.
template <class TS>
void makeSource(const TestCall& call, KeliSize size, const Kind& kind) {
  const ImageView src(call, call.find(Role::kSource));
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      for (int k = 0; k < src.channels(); ++k) {
        TS v = src.get<TS>(x, y, k);
        if constexpr (std::is_floating_point_v<TS>) {
          if (std::abs(v) < 1e8f)
            v = std::abs(std::fmod(v, static_cast<TS>(kind.full))) - static_cast<TS>(kind.offset);
        }
        if (size.width > 40 && 3 * x > 2 * size.width) v = static_cast<TS>(-kind.sourceOffset);
        src.set(x, y, k, v);
      }
    }
  }
}

template <class TS, class TD>
void checkOne(const registry::Function& f, KeliSize size, const Setting& s, std::uint64_t seed) {
  const Kind kind = kindOf(f.arguments[0].type, f.arguments[2].type);
  const Geometry g = {size.width, size.height, static_cast<int>(seed % 3), Place::kMiddle,
                      static_cast<int>(seed % 4)};
  TestCall call(f, g, seed), expected(f, g, seed);
  for (TestCall* c : {&call, &expected}) {
    c->values[c->find(Role::kDither)].i = s.dither;
    c->values[c->find(Role::kGrayLevels)].i = s.levels;
    c->values[c->find(Role::kNoise)].i = s.noise;
    makeSource<TS>(*c, size, kind);
  }
  define<TS, TD>(expected, size, s, kind);
  const std::vector<std::uint8_t> before = call.region(call.written());
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    call.setRegion(call.written(), before);
    ASSERT_EQ(call.run().status, kelStatusOk) << f.name;
    ASSERT_TRUE(call.region(call.written()) == expected.region(expected.written()))
        << f.name << " " << targetName(target) << " " << size.width << "x" << size.height
        << " method " << s.dither << ", " << s.levels << " levels, " << s.noise << " % noise";
  }
}

void check(const registry::Function& f, KeliSize size, const Setting& s, std::uint64_t seed) {
  const auto is = [&](Type from, Type to) {
    return f.arguments[0].type == from && f.arguments[2].type == to;
  };
  if (is(Type::k8u, Type::k8u)) return checkOne<Kel8u, Kel8u>(f, size, s, seed);
  if (is(Type::k16u, Type::k16u)) return checkOne<Kel16u, Kel16u>(f, size, s, seed);
  if (is(Type::k16u, Type::k8u)) return checkOne<Kel16u, Kel8u>(f, size, s, seed);
  if (is(Type::k16s, Type::k8u)) return checkOne<Kel16s, Kel8u>(f, size, s, seed);
  if (is(Type::k16s, Type::k16s)) return checkOne<Kel16s, Kel16s>(f, size, s, seed);
  if (is(Type::k32f, Type::k8u)) return checkOne<Kel32f, Kel8u>(f, size, s, seed);
  if (is(Type::k32f, Type::k16u)) return checkOne<Kel32f, Kel16u>(f, size, s, seed);
  if (is(Type::k32f, Type::k16s)) return checkOne<Kel32f, Kel16s>(f, size, s, seed);
  FAIL() << f.name << " has no definition";
}

template <class F>
void forAllMembers(const F& f) {
  int members = 0;
  for (const Type type : {Type::k8u, Type::k16u, Type::k16s})
    members += forMembers("ReduceBits", type, f);
  EXPECT_EQ(members, 32);
}

class Dither : public testing::TestWithParam<int> {};

// Widths and heights around those of vectors, chains and tiles.
TEST_P(Dither, MembersAreTheirDefinition) {
  static constexpr int kWidths[] = {1, 2, 3, 5, 17, 33, 63, 64, 65, 70, 141, 300};
  static constexpr int kHeights[] = {1, 2, 3, 4, 9, 16, 17, 33, 40, 67};
  static constexpr int kLevels[] = {2, 3, 4, 8, 15, 100, 256};
  static constexpr int kWideLevels[] = {2, 15, 257, 1000, 32768, 65535, 65536};
  std::uint64_t i = runSeed() % 1000;
  forAllMembers([&](const registry::Function& f) {
    for (const int width : kWidths) {
      for (int n = 0; n < 2; ++n) {
        ++i;
        const int height = kHeights[i % std::size(kHeights)];
        const int* const levels = f.arguments[2].type == Type::k8u ? kLevels : kWideLevels;
        const Setting s = {GetParam(), levels[i / 3 % 7],
                           i % 3 == 0 ? static_cast<int>(i % 101) : 0};
        check(f, {width, height}, s, i);
        if (testing::Test::HasFatalFailure()) return;
      }
    }
  });
}

TEST_P(Dither, EverySizeOfOneChannel) {
  const registry::Function* const f = registry::find("keliReduceBits_8u_C1R");
  for (int width = 1; width <= 70; ++width) {
    for (int height = 1; height <= 40; height += width % 3 + 1)
      check(*f, {width, height}, {GetParam(), 4, 0}, static_cast<std::uint64_t>(width + height));
  }
  for (const KeliSize size : {KeliSize{137, 130}, {138, 131}, {139, 64}, {205, 193}, {1100, 200}})
    check(*f, size, {GetParam(), 3, 0}, 7);
}

INSTANTIATE_TEST_SUITE_P(Methods, Dither, testing::Values(1, 2, 3, 4));

// Every 8u sample with every number of levels at every place of the matrix.
TEST(DitherBayer, EveryByteAndEveryNumberOfLevels) {
  std::vector<Kel8u> src(4 * 1024), dst(src.size());
  for (std::size_t i = 0; i < src.size(); ++i) src[i] = static_cast<Kel8u>(i % 1024 / 4);
  const std::vector<std::int64_t> targets = testedTargets();
  for (std::size_t n = 0; n < 255 * targets.size(); ++n) {
    const UseTarget use(targets[n % targets.size()]);
    const int levels = 2 + static_cast<int>(n / targets.size());
    keliReduceBits_8u_C1R(src.data(), 1024, dst.data(), 1024, {1024, 4}, 0, kelDitherBayer, levels);
    for (int i = 0; i < 4096; ++i) {
      const int k = orderedExactly(i % 4, i / 1024, i % 1024 / 4, {4, levels, 0}, 255);
      ASSERT_EQ(dst[static_cast<std::size_t>(i)], k * 255 / (levels - 1)) << i << ", " << levels;
    }
  }
}

TEST(DitherBayer, FlatGrayShowsTheMatrix) {
  const std::vector<Kel8u> src(64, 128);
  std::vector<Kel8u> dst(64);
  ASSERT_EQ(keliReduceBits_8u_C1R(src.data(), 8, dst.data(), 8, {8, 8}, 0, kelDitherBayer, 2),
            kelStatusOk);
  for (std::size_t i = 0; i < 64; ++i)
    EXPECT_EQ(dst[i], 255 * kMatrix[i / 8 % 4][i % 4] < 128 * 15 ? 255 : 0) << i;
}

TEST(DitherNone, CopiesOrConvertsAndLooksAtNothingElse) {
  forAllMembers([](const registry::Function& f) {
    for (const int dither : {0, 7, -1, 5}) {
      TestCall call(f, {37, 5, 2, Place::kMiddle, 1}, 5);
      call.values[call.find(Role::kDither)].i = dither;
      call.values[call.find(Role::kGrayLevels)].i = 0;
      call.values[call.find(Role::kNoise)].i = 500;
      ASSERT_EQ(call.run().status, kelStatusOk) << f.name;
      if (dither != 0) {
        EXPECT_EQ(call.anyWrites(), "") << f.name << " method " << dither;
        continue;
      }
      const ImageView src(call, 0), dst(call, 2);
      const Type from = f.arguments[0].type;
      const Kind kind = kindOf(from, f.arguments[2].type);
      const auto get = [](const ImageView& image, Type type, int i, int k) {
        const int x = i % 37, y = i / 37;
        return type == Type::k8u    ? image.get<Kel8u>(x, y, k)
               : type == Type::k16u ? image.get<Kel16u>(x, y, k)
               : type == Type::k16s ? image.get<Kel16s>(x, y, k)
                                    : static_cast<double>(image.get<Kel32f>(x, y, k));
      };
      for (int i = 0; i < 37 * 5 * dst.channels(); ++i) {
        const int k = i % dst.channels(), pixel = i / dst.channels();
        double v = get(src, from, pixel, k) + kind.sourceOffset;
        if (std::isnan(v)) v = kind.full;
        if (kind.sourceFull > kind.full) v /= 257;
        v = std::nearbyint(std::min(std::max(v, 0.0), 1.0 * kind.full));
        ASSERT_EQ(get(dst, f.arguments[2].type, pixel, k), v - kind.offset) << f.name << " " << i;
      }
    }
  });
}

TEST(DitherDiffusion, AllLevelsReproduceTheSource) {
  for (const char* name : {"keliReduceBits_8u_C3R", "keliReduceBits_16u_C1R"}) {
    for (const int dither : {1, 2, 3, 4}) {
      TestCall call(*registry::find(name), {200, 40, 0, Place::kMiddle, 0}, 11);
      call.values[call.find(Role::kDither)].i = dither;
      call.values[call.find(Role::kGrayLevels)].i =
          call.function.arguments[2].type == Type::k8u ? 256 : 65536;
      call.values[call.find(Role::kNoise)].i = 0;
      ASSERT_EQ(call.run().status, kelStatusOk);
      EXPECT_EQ(call.region(2), call.region(0)) << name << " method " << dither;
    }
  }
}

// 255 with an error on it passes nothing on: then 120 would have become 255.
TEST(DitherDiffusion, SaturatedSamplesPassNoErrorOn) {
  const Kel8u src[3] = {100, 255, 120};
  Kel8u dst[3] = {1, 1, 1};
  keliReduceBits_8u_C1R(src, 3, dst, 3, {3, 1}, 0, kelDitherFloydSteinberg, 2);
  EXPECT_EQ(std::vector<int>(dst, dst + 3), (std::vector<int>{0, 255, 0}));
}

TEST(DitherMean, KeepsTheMeanOfFlatImages) {
  for (const int gray : {20, 100, 128, 200}) {
    for (const int dither : {1, 2, 3, 4}) {
      const std::vector<Kel8u> src(128 * 128, static_cast<Kel8u>(gray));
      std::vector<Kel8u> dst(src.size());
      keliReduceBits_8u_C1R(src.data(), 128, dst.data(), 128, {128, 128}, 0, dither, 4);
      const double mean = std::accumulate(dst.begin(), dst.end(), 0.0) / (128 * 128);
      // The matrix of sixteen thresholds has fifteenths of a step.
      EXPECT_NEAR(mean, gray, dither == kelDitherBayer ? 5.5 : 1) << "method " << dither;
    }
  }
}

// Two levels and the threshold 7 / 15 * 255 = 119 show where values and noise lie together.
TEST(DitherNoise, IsEvenlySpreadByThePercentage) {
  const int size = 512;
  std::vector<Kel8u> src(size * size), dst(src.size());
  for (const int percent : {10, 40, 100}) {
    for (const double part : {-0.4, -0.2, 0.0, 0.3, 0.45}) {
      const int gray = 119 + static_cast<int>(part * percent / 100 * 255);
      std::fill(src.begin(), src.end(), static_cast<Kel8u>(gray));
      keliReduceBits_8u_C1R(src.data(), size, dst.data(), size, {size, size}, percent,
                            kelDitherBayer, 2);
      double above = 0, pairs = 0;
      const int count = size / 4 * (size / 4);
      for (int y = 3; y < size; y += 4) {
        for (int x = 1; x < size; x += 4) {
          const bool set = dst[static_cast<std::size_t>(y * size + x)] != 0;
          const int next = (x + 4) % size;
          above += set;
          pairs += set && dst[static_cast<std::size_t>(y * size + next)] != 0;
        }
      }
      const double expected = 0.5 + (gray - 119) / (percent / 100.0 * 255);
      EXPECT_NEAR(above / count, expected, 0.02) << percent << " %, gray " << gray;
      EXPECT_NEAR(pairs / count, expected * expected, 0.03) << percent << " %, gray " << gray;
    }
  }
}

// Large enough for several threads. A forked child does the streams of all of them on one.
TEST(DitherDiffusion, SameResultOnAnyNumberOfThreadsAndInPlace) {
  const int threads = omp_get_max_threads();
  const KeliSize size = {1000, 700};
  const int step = size.width * 3;
  std::vector<Kel8u> src(static_cast<std::size_t>(step * size.height));
  std::uint32_t state = 1;
  for (Kel8u& v : src) v = static_cast<Kel8u>((state = state * 1664525 + 1013904223) >> 24);
  for (const int dither : {1, 3}) {
    const auto run = [&](int team, bool inPlace) {
      omp_set_num_threads(team);
      std::vector<Kel8u> dst = inPlace ? src : std::vector<Kel8u>(src.size());
      EXPECT_EQ(keliReduceBits_8u_C3R(inPlace ? dst.data() : src.data(), step, dst.data(), step,
                                      size, 0, dither, 3),
                kelStatusOk);
      return dst;
    };
    const std::vector<Kel8u> expected = run(1, false);
    for (const int team : {2, 3, 4}) EXPECT_TRUE(run(team, team == 3) == expected) << team;
    const pid_t child = fork();
    if (child == 0) {
      alarm(60);
      _exit(run(4, false) == expected ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "status " << status;
  }
  omp_set_num_threads(threads);
}

TEST(DitherRounding, TheCallersModeDoesNotMatter) {
  for (const int dither : {1, 2, 4}) {
    const auto run = [&](int mode) {
      TestCall call(*registry::find("keliReduceBits_16u8u_C1R"), {300, 40, 0, Place::kMiddle, 0},
                    3);
      call.values[call.find(Role::kDither)].i = dither;
      call.values[call.find(Role::kGrayLevels)].i = 15;
      call.values[call.find(Role::kNoise)].i = 10;
      std::fesetround(mode);
      EXPECT_EQ(call.run().status, kelStatusOk);
      EXPECT_EQ(std::fegetround(), mode);
      std::fesetround(FE_TONEAREST);
      return call.region(call.written());
    };
    const std::vector<std::uint8_t> expected = run(FE_TONEAREST);
    for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO})
      EXPECT_TRUE(run(mode) == expected) << "method " << dither << ", mode " << mode;
  }
}

TEST(DitherMemory, DiffusionWithoutMemoryWritesNothing) {
  const std::vector<Kel8u> src(300, 100), untouched(300, 9);
  std::vector<Kel8u> dst = untouched;
  for (const int dither : {1, 2, 3}) {
    const KelStatus status = withoutMemory([&] {
      return keliReduceBits_8u_C3R(src.data(), 30, dst.data(), 30, {10, 10}, 0, dither, 2);
    });
    EXPECT_EQ(status, kelStatusNoMemory);
    EXPECT_EQ(dst, untouched);
  }
}

}  // namespace
}  // namespace keli::test
