// LUV against its definition in double precision.
#include "cie/cube_root_rows.h"
#include "cie/scale.h"
#include "keli.h"

namespace keli::test {
namespace {

using registry::Type;
using Color = std::array<double, 3>;

// RGB in [0, 1] to L, u' - un and v' - vn.
Color toLuv(const Color& rgb) {
  Color xyz;
  for (std::size_t k = 0; k < 3; ++k)
    xyz[k] = kToXyz[k][0] * rgb[0] + kToXyz[k][1] * rgb[1] + kToXyz[k][2] * rgb[2];
  const double y = xyz[1], sum = xyz[0] + 15 * y + 3 * xyz[2];
  const double level = y > 0.01 ? 116 * std::cbrt(y) - 16 : 903.3 * y;
  if (y == 0) return {0, 0, 0};
  return {level, 4 * xyz[0] / sum - 0.197839, 9 * y / sum - 0.468342};
}

Color fromLuv(const Color& luv) {
  if (luv[0] < 9.033) return {0, 0, 0};
  const double u = luv[1] + 0.197839, v = luv[2] + 0.468342;
  const double y = std::pow((luv[0] + 16) / 116, 3), x = 2.25 * y * u / v;
  const double z = 3 * y / v - 5 * y - x / 3;
  Color rgb;
  for (std::size_t k = 0; k < 3; ++k)
    rgb[k] = std::clamp(kToRgb[k][0] * x + kToRgb[k][1] * y + kToRgb[k][2] * z, 0., 1.);
  return rgb;
}

// How samples of T hold L, u and v.
template <class T>
struct Held {
  static constexpr double kBytes = sizeof(T) == 1 ? 1 : 257;
  static constexpr bool kFloats = std::is_floating_point_v<T>;
  static constexpr double kLevel = kFloats ? 1 : 2.55 * kBytes;
  static constexpr double kU = kFloats ? 13 : 3.6723163, kV = kFloats ? 13 : 4.961832;
  static constexpr double kZeroU = kFloats ? 0 : 96.90396 * kBytes;
  static constexpr double kZeroV = kFloats ? 0 : 136.7939 * kBytes;

  static Color from(const Color& luv) {
    const double level = kLevel * luv[0];
    return {level, kU * level * luv[1] + kZeroU, kV * level * luv[2] + kZeroV};
  }
  static Color to(const Color& held) {
    const double level = held[0];
    return {level / kLevel, (held[1] - kZeroU) / (kU * level), (held[2] - kZeroV) / (kV * level)};
  }
};

// The exact results, before rounding, of samples that have their offset.
template <class T>
Color exactly(bool forward, const Color& in) {
  const double full = scaleOf<T>().full;
  if (forward) return Held<T>::from(toLuv({in[0] / full, in[1] / full, in[2] / full}));
  const Color rgb = fromLuv(Held<T>::to(in));
  return {rgb[0] * full, rgb[1] * full, rgb[2] * full};
}

template <class T>
double cut(double v) {
  return std::is_floating_point_v<T> ? v : std::clamp(v, 0., scaleOf<T>().full);
}

// The samples of a random colour or of its LUV, darker than half a time out of four; away from the
// steps that L has, which single precision need not take at the same colour.
template <class T>
Color someColor(bool forward, Random& random) {
  const Scale s = scaleOf<T>();
  for (;;) {
    Color rgb;
    const double most = random() % 4 == 0 ? 0.5 / static_cast<double>(1 + random() % 100) : 1;
    for (double& v : rgb) {
      v = most * static_cast<double>(random() % 0x10000) / 0xFFFF * s.full;
      v = std::is_floating_point_v<T> ? static_cast<float>(v) : std::nearbyint(v);
    }
    const Color luv = toLuv({rgb[0] / s.full, rgb[1] / s.full, rgb[2] / s.full});
    if (std::abs(luv[0] - 9.033) < 1e-4 || std::abs(luv[0] - 8.9914) < 1e-4) continue;
    if (forward) return rgb;
    Color held = Held<T>::from(luv);
    for (double& v : held)
      v = std::is_floating_point_v<T> ? static_cast<float>(v) : std::nearbyint(cut<T>(v));
    return held;
  }
}

// Members on all targets and in all widths, with colours of RGB in [0, 1].
template <class T>
void checkNear(const std::string& operation, Type type, double tolerance) {
  const bool forward = operation == "RGBToLUV";
  const double offset = scaleOf<T>().offset;
  double worst = 0;
  const auto check = [&](const registry::Function& f, int width, int offsetBytes) {
    TestCall call(f, {width, 2, 3, Place::kMiddle, offsetBytes},
                  runSeed() + static_cast<std::uint64_t>(width));
    const ImageView src(call, call.find(registry::Role::kSource)), dst(call, call.written());
    Random random(runSeed());
    std::vector<Color> colors;
    for (int i = 0; i < 2 * width; ++i) {
      colors.push_back(someColor<T>(forward, random));
      for (int k = 0; k < 3; ++k)
        src.set(i % width, i / width, k,
                static_cast<T>(colors.back()[static_cast<std::size_t>(k)] - offset));
    }
    ASSERT_EQ(call.run().status, kelStatusOk);
    for (int i = 0; i < 2 * width; ++i) {
      const Color expected = exactly<T>(forward, colors[static_cast<std::size_t>(i)]);
      for (int k = 0; k < 3; ++k) {
        const double found = dst.template get<T>(i % width, i / width, k) + offset;
        const double error = std::abs(found - cut<T>(expected[static_cast<std::size_t>(k)]));
        ASSERT_LE(error, tolerance) << f.name << " width " << width << " pixel " << i << " channel "
                                    << k << " is " << found;
        worst = std::max(worst, error);
      }
    }
  };
  EXPECT_EQ(forMembers(operation, type,
                       [&](const registry::Function& f) {
                         for (const std::int64_t target : testedTargets()) {
                           SCOPED_TRACE(targetName(target));
                           const UseTarget use(target);
                           for (const int width : {1, 2, 3, 7, 8, 15, 17, 33, 64, 97, 2000})
                             ASSERT_NO_FATAL_FAILURE(check(f, width, width % 4));
                         }
                       }),
            2);
  std::printf("%s of %s: up to %.3g away\n", operation.c_str(), registry::nameOf(type), worst);
}

TEST(Luv, MembersAreNearTheirDefinition) {
  checkNear<Kel8u>("RGBToLUV", Type::k8u, 0.5002);
  checkNear<Kel16u>("RGBToLUV", Type::k16u, 0.55);
  checkNear<Kel16s>("RGBToLUV", Type::k16s, 0.55);
  checkNear<Kel32f>("RGBToLUV", Type::k32f, 1e-4);
  checkNear<Kel8u>("LUVToRGB", Type::k8u, 0.501);
  checkNear<Kel16u>("LUVToRGB", Type::k16u, 0.65);
  checkNear<Kel16s>("LUVToRGB", Type::k16s, 0.65);
  checkNear<Kel32f>("LUVToRGB", Type::k32f, 5e-6);
}

// All colours: what is not the integer nearest to the exact value lies within `tie` of the middle
// between two.
void checkAllBytes(const char* name, bool forward, double tie) {
  const ByteConversion convert(name);
  forAllColors([&](const std::vector<Kel8u>& row) {
    std::vector<double> expected;
    expected.reserve(row.size());
    for (std::size_t i = 0; i < row.size(); i += 3) {
      const Color in = {double(row[i]), double(row[i + 1]), double(row[i + 2])};
      const Color out = exactly<Kel8u>(forward, in);
      for (const double v : out) expected.push_back(cut<Kel8u>(v));
    }
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      const std::vector<Kel8u> found = convert(row);
      for (std::size_t i = 0; i < found.size(); ++i) {
        ASSERT_LE(std::abs(found[i] - expected[i]), 0.5 + tie)
            << name << " " << targetName(target) << " of " << int{row[0]} << ", " << i / 768 << ", "
            << i / 3 % 256 << ", channel " << i % 3;
      }
    }
  });
}

TEST(Luv, OfAllBytes) { checkAllBytes("keliRGBToLUV_8u_C3R", true, 2e-4); }
TEST(Luv, RgbOfAllBytes) { checkAllBytes("keliLUVToRGB_8u_C3R", false, 1e-3); }

using Floats = std::array<float, 3>;

Floats luvOf(const Floats& rgb) {
  Floats luv;
  EXPECT_EQ(keliRGBToLUV_32f_C3R(rgb.data(), 12, luv.data(), 12, {1, 1}), kelStatusOk);
  return luv;
}

Floats rgbOf(const Floats& luv) {
  Floats rgb;
  EXPECT_EQ(keliLUVToRGB_32f_C3R(luv.data(), 12, rgb.data(), 12, {1, 1}), kelStatusOk);
  return rgb;
}

TEST(Luv, SpecialFloats) {
  const float infinity = std::numeric_limits<float>::infinity(), none = std::nanf("");
  const Floats black = {0, 0, 0};
  for (const std::int64_t target : testedTargets()) {
    SCOPED_TRACE(targetName(target));
    const UseTarget use(target);
    EXPECT_EQ(luvOf(black), black);
    const Floats white = luvOf({1, 1, 1});
    EXPECT_NEAR(white[0], 100, 1e-5);
    EXPECT_NEAR(white[1], 0, 1e-3);
    EXPECT_NEAR(white[2], 0, 1e-3);
    // Too small for its reciprocal to be a float, and as large as they come.
    const Floats tiny = luvOf({1e-40f, 1e-40f, 1e-40f}), huge = luvOf({3e38f, 0, 0});
    EXPECT_NEAR(tiny[0] / 9.033e-38, 1, 1e-4);
    EXPECT_LT(std::abs(tiny[1]) + std::abs(tiny[2]), 1e-38f);
    EXPECT_NEAR(huge[0] / (116 * std::cbrt(0.212671 * 3e38)), 1, 1e-6);
    const Floats endless = luvOf({infinity, 0, 0}), nothing = luvOf({0, none, 0});
    EXPECT_EQ(endless[0], infinity);
    for (const float v : {endless[1], endless[2], nothing[0], nothing[1], nothing[2]})
      EXPECT_TRUE(std::isnan(v));

    EXPECT_EQ(rgbOf({9.0f, 175, -100}), black);
    EXPECT_EQ(rgbOf({9.0f, infinity, none}), black);
    EXPECT_EQ(rgbOf({-infinity, 1, 1}), black);
    EXPECT_NE(rgbOf({9.04f, 0, 0}), black);
    EXPECT_EQ(rgbOf({200, 0, 0}), (Floats{1, 1, 1}));
    for (const float v : rgbOf({none, 0, 0})) EXPECT_TRUE(std::isnan(v));
    for (const float v : rgbOf({50, none, 0})) EXPECT_TRUE(std::isnan(v));
    // Without v' there is no colour.
    EXPECT_EQ(rgbOf({50, 10, static_cast<float>(13 * 0.468342) * -50}), black);
  }
}

// The largest error, in units of the last place, of the roots of n floats whose bits are `spacing`
// apart.
double worstRoot(std::uint32_t firstBits, std::uint32_t spacing, std::size_t n) {
  std::vector<float> y(n), root(n);
  for (std::size_t i = 0; i < n; ++i) {
    const std::uint32_t bits = firstBits + static_cast<std::uint32_t>(i) * spacing;
    std::memcpy(&y[i], &bits, sizeof bits);
  }
  double worst = 0;
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    cubeRootRows().roots(y.data(), root.data(), n);
    for (std::size_t i = 0; i < n; ++i) {
      const double exact = std::cbrt(static_cast<double>(y[i]));
      const double error = std::ldexp(std::abs(root[i] - exact), 23 - std::ilogb(exact));
      if (!(error <= worst)) worst = error;
    }
  }
  return worst;
}

TEST(Luv, CubeRootsAreWithinOneUnit) {
  // Three octaves have all significands of the argument and of the root.
  for (std::uint32_t bits = 0x3F800000; bits < 0x41000000; bits += 0x40000)
    ASSERT_LT(worstRoot(bits, 1, 0x40000), 0.9) << "from bits " << bits;
  // From 0.01 to the largest float.
  EXPECT_LT(worstRoot(0x3C23D70A, 1009, (0x7F7FFFFF - 0x3C23D70A) / 1009 / 16 * 16), 1);
  EXPECT_LT(worstRoot(0x7F7FFFF0, 1, 16), 1);
}

}  // namespace
}  // namespace keli::test
