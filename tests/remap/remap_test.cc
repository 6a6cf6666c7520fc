// Remap against its definition, computed in double precision where that is exact and otherwise with
// a bound: every member and mode, sources and regions of any size, on every target.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>

#include "reference/pointwise.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Role;

struct Sampler {
  const TestCall& call;
  ImageView src;
  KeliRect part;  // cut to the source image
  int mode;

  explicit Sampler(const TestCall& c) : call(c), src(c, c.find(Role::kSource)) {
    const KeliSize size = call.values[call.find(Role::kSourceRegion)].size;
    part = call.values[call.find(Role::kSourceRect)].rect;
    part.width = std::min(part.width, size.width - part.x);
    part.height = std::min(part.height, size.height - part.y);
    mode = static_cast<int>(call.values[call.find(Role::kInterpolation)].i);
    if (mode == 4 && std::min(size.width, size.height) < 4) mode = 2;
    if (std::min(size.width, size.height) == 1) mode = 1;
  }

  bool holds(double x, double y) const {
    return x >= part.x && y >= part.y && x <= part.x + part.width - 1 &&
           y <= part.y + part.height - 1;
  }

  // A sample, of the nearest pixel of the part.
  template <class T>
  double at(int x, int y, int k) const {
    const int column = std::clamp(x, part.x, part.x + part.width - 1);
    const int row = std::clamp(y, part.y, part.y + part.height - 1);
    return static_cast<double>(src.get<T>(column, row, k));
  }
};

// Ties to even, whatever the state of the floating-point unit.
double nearestEven(double v) {
  const double low = std::floor(v), rest = v - low;
  return rest > 0.5 || (rest == 0.5 && std::fmod(low, 2) != 0) ? low + 1 : low;
}

// A value and how far single precision may be from it; NaN where any neighbour is not finite.
struct Value {
  double exact;
  double error;
};

// Neighbours from first on, with their weights in each direction.
template <class T>
Value weighted(const Sampler& s, int x, int y, int k, int first, const std::vector<double>& wx,
               const std::vector<double>& wy) {
  Value v = {0, 0};
  for (int j = 0; j < static_cast<int>(wy.size()); ++j) {
    for (int i = 0; i < static_cast<int>(wx.size()); ++i) {
      const double p = s.at<T>(x + first + i, y + first + j, k);
      const double weight = wx[static_cast<std::size_t>(i)] * wy[static_cast<std::size_t>(j)];
      v.exact += weight * p;
      v.error += 4e-7 * std::fabs(p);
      if (!std::isfinite(p)) return {std::nan(""), 0};
    }
  }
  return v;
}

// The cubic convolution kernel with a = -1/2 at a distance.
double cubicKernel(double d) {
  d = std::fabs(d);
  return d < 1   ? 1.5 * d * d * d - 2.5 * d * d + 1
         : d < 2 ? -0.5 * d * d * d + 2.5 * d * d - 4 * d + 2
                 : 0;
}

template <class T>
Value cubic(const Sampler& s, double fx, double fy, int k) {
  const int x = static_cast<int>(fx), y = static_cast<int>(fy);
  std::vector<double> wx, wy;
  for (int i = -1; i <= 2; ++i) {
    wx.push_back(cubicKernel(fx - x - i));
    wy.push_back(cubicKernel(fy - y - i));
  }
  return weighted<T>(s, x, y, k, -1, wx, wy);
}

// 8u: weights of 1/16384, rows cut to 1/64, the result rounded with ties up.
double linearByte(const Sampler& s, double fx, double fy, int k) {
  const int x = static_cast<int>(fx), y = static_cast<int>(fy);
  const double wx = nearestEven((fx - x) * 16384), wy = nearestEven((fy - y) * 16384);
  const auto row = [&](int at) {
    const double sum = s.at<Kel8u>(x, at, k) * (16384 - wx) + s.at<Kel8u>(x + 1, at, k) * wx;
    return std::floor(sum / 256);
  };
  const double sum = row(y) * (16384 - wy) + row(y + 1) * wy;
  return std::floor(sum / (1 << 20) + 0.5);
}

// The pixel before a coordinate, which is not the last if there is another.
int before(double at, int first, int count) {
  const int whole = static_cast<int>(at);
  return whole == first + count - 1 && count > 1 ? whole - 1 : whole;
}

template <class T>
Value linear(const Sampler& s, double fx, double fy, int k) {
  const int x = before(fx, s.part.x, s.part.width), y = before(fy, s.part.y, s.part.height);
  if constexpr (sizeof(T) == 1) return {linearByte(s, fx, fy, k), 0};
  return weighted<T>(s, x, y, k, 0, {1 - (fx - x), fx - x}, {1 - (fy - y), fy - y});
}

template <class T>
Value valueAt(const Sampler& s, double fx, double fy, int k) {
  if (s.mode == 1) {
    const int x = static_cast<int>(nearestEven(fx)), y = static_cast<int>(nearestEven(fy));
    return {s.at<T>(x, y, k), 0};
  }
  return s.mode == 2 ? linear<T>(s, fx, fy, k) : cubic<T>(s, fx, fy, k);
}

// Whether a sample may be what the value asks for. Bytes: rounded from anything within the error.
template <class T>
bool agrees(T found, Value v) {
  if constexpr (sizeof(T) == 1) {
    const auto byte = [](double x) { return std::clamp(nearestEven(x), 0.0, 255.0); };
    return found >= byte(v.exact - v.error) && found <= byte(v.exact + v.error);
  } else {
    if (static_cast<double>(found) == v.exact) return true;  // infinities too
    if (std::isnan(v.exact)) return !std::isfinite(found);
    if (v.error > 1e30) return true;  // of the largest floats, sums may overflow on the way
    return std::fabs(static_cast<double>(found) - v.exact) <= v.error + 1e-44;
  }
}

struct Counts {
  std::size_t written = 0, kept = 0;
};

template <class T>
void checkCall(const Function& f, std::uint64_t seed, KeliSize size, int mode, Counts& counts) {
  TestCall call(f, {size.width, size.height, static_cast<int>(seed % 3), Place::kMiddle, 1}, seed);
  const TestCall before(f, {size.width, size.height, 0, Place::kMiddle, 0}, seed);
  call.values[call.find(Role::kInterpolation)].i = mode;
  ASSERT_EQ(call.run().status, kelStatusOk);
  ASSERT_EQ(call.strayWrites(), "");
  const Sampler s(call);
  const std::size_t xMap = call.find(Role::kMap);
  const ImageView xs(call, xMap), ys(call, argumentNamed(call, "pyMap"));
  const ImageView dst(call, call.written()), old(before, before.written());
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const double fx = xs.get<Kel32f>(x, y, 0), fy = ys.get<Kel32f>(x, y, 0);
      const bool held = s.holds(fx, fy);
      ++(held ? counts.written : counts.kept);
      for (int k = 0; k < dst.channels(); ++k) {
        const T found = dst.get<T>(x, y, k), was = old.get<T>(x, y, k);
        if (held) {
          ASSERT_TRUE(agrees(found, valueAt<T>(s, fx, fy, k)))
              << f.name << " mode " << s.mode << " at " << fx << ", " << fy << " channel " << k
              << ": " << +found << " for " << valueAt<T>(s, fx, fy, k).exact;
        } else {
          ASSERT_EQ(std::memcmp(&found, &was, sizeof(T)), 0) << f.name << " " << fx << ", " << fy;
        }
      }
    }
  }
}

template <class T>
void checkMembers(registry::Type type) {
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    Counts counts;
    const int members = forMembers("Remap", type, [&](const Function& f) {
      for (std::uint64_t i = 0; i < 120; ++i) {
        const KeliSize size = {1 + static_cast<int>(i % 40), 1 + static_cast<int>(i % 3)};
        checkCall<T>(f, runSeed() + i, size, 1 << i % 3, counts);
        if (testing::Test::HasFatalFailure()) FAIL() << targetName(target);
      }
    });
    EXPECT_EQ(members, 6);
    EXPECT_GT(counts.written, 1000u);
    EXPECT_GT(counts.kept, 1000u);
  }
}

TEST(Remap, MembersAreTheirDefinitions) {
  checkMembers<Kel8u>(registry::Type::k8u);
  checkMembers<Kel32f>(registry::Type::k32f);
}

// One call on a source of bytes that holds 16 * y + x, the rest given.
struct Grid {
  Kel8u src[12 * 16];
  KeliSize size = {12, 12};
  KeliRect part = {0, 0, 12, 12};

  Grid() {
    for (int i = 0; i < 12 * 16; ++i) src[i] = static_cast<Kel8u>(i);
  }
  // What becomes of a pixel of 99.
  int at(float x, float y, int mode) const {
    Kel8u dst[40];
    std::memset(dst, 99, sizeof(dst));
    std::vector<float> xs(40, x), ys(40, y);
    EXPECT_EQ(keliRemap_8u_C1R(src, size, 16, part, xs.data(), 160, ys.data(), 160, dst, 40,
                               {40, 1}, mode),
              kelStatusOk);
    for (const Kel8u v : dst) EXPECT_EQ(v, dst[0]);
    return dst[0];
  }
};

TEST(Remap, CoordinatesAtTheEnds) {
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    Grid grid;
    const float beyond = std::nextafter(11.f, 12.f), nan = std::nanf("");
    for (const int mode : {1, 2, 4}) {
      EXPECT_EQ(grid.at(11, 11, mode), 11 * 16 + 11);
      EXPECT_EQ(grid.at(0, 11, mode), 11 * 16);
      EXPECT_EQ(grid.at(5, 7, mode), 7 * 16 + 5);
      for (const auto& [x, y] : {std::pair(beyond, 0.f),
                                 {0.f, beyond},
                                 {-1e-30f, 0.f},
                                 {0.f, -1e-30f},
                                 {nan, 0.f},
                                 {0.f, nan},
                                 {1e30f, 0.f}}) {
        EXPECT_EQ(grid.at(x, y, mode), 99) << "mode " << mode << " at " << x << ", " << y;
      }
    }
    EXPECT_EQ(grid.at(2.5f, 0, 1), 2);
    EXPECT_EQ(grid.at(3.5f, 0, 1), 4);
    EXPECT_EQ(grid.at(3, 2.5f, 1), 2 * 16 + 3);
    EXPECT_EQ(grid.at(3.5f, 0, 2), 4);  // ties up
    EXPECT_EQ(grid.at(3.5f, 2, 4), 2 * 16 + 4);
    // A region that leaves the image, and one that is a single pixel.
    grid.part = {3, 4, 1 << 30, 1 << 30};
    EXPECT_EQ(grid.at(11, 11, 2), 11 * 16 + 11);
    EXPECT_EQ(grid.at(2.999f, 11, 2), 99);
    grid.part = {20, 4, 5, 5};
    EXPECT_EQ(grid.at(11, 11, 2), 99);
    grid.part = {3, 4, 1, 1};
    for (const int mode : {1, 2, 4}) EXPECT_EQ(grid.at(3, 4, mode), 4 * 16 + 3);
    EXPECT_EQ(grid.at(3.25f, 4, 2), 99);
    // Too small for the mode: the nearest pixel, and linear.
    grid.part = {0, 0, 12, 12};
    grid.size = {1, 12};
    EXPECT_EQ(grid.at(0, 3.75f, 4), 4 * 16);
    grid.size = {12, 3};
    EXPECT_EQ(grid.at(3.75f, 0, 4), 4);
    EXPECT_EQ(grid.at(3.75f, 1.25f, 4), grid.at(3.75f, 1.25f, 2));
  }
}

TEST(Remap, SameInEveryRoundingMode) {
  const Function& f = *registry::find("keliRemap_8u_C1R");
  for (const std::int64_t mode : {2, 4}) {
    std::vector<std::uint8_t> expected;
    for (const int rounding : {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
      TestCall call(f, {5000, 2, 0, Place::kMiddle, 0}, 5);
      call.values[call.find(Role::kInterpolation)].i = mode;
      std::fesetround(rounding);
      call.run();
      EXPECT_EQ(std::fegetround(), rounding);
      std::fesetround(FE_TONEAREST);
      if (expected.empty()) expected = call.outcome();
      ASSERT_EQ(call.outcome(), expected) << "mode " << mode << " rounding " << rounding;
    }
  }
}

TEST(Remap, ModeIsCheckedBeforeSteps) {
  const Grid grid;
  Kel8u dst = 0;
  const float map = 0;
  const auto run = [&](KeliSize size, int mode, int step) {
    return keliRemap_8u_C1R(grid.src, size, step, grid.part, &map, 4, &map, 4, &dst, 1, {1, 1},
                            mode);
  };
  EXPECT_EQ(run({12, 12}, 8, 0), kelStatusBadInterpolation);
  EXPECT_EQ(run({0, 12}, 8, 0), kelStatusBadSize);
  EXPECT_EQ(run({12, 12}, 2, 0), kelStatusBadStep);
}

}  // namespace
}  // namespace keli::test
