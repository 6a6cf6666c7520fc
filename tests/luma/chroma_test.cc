// YCbCr and YUV against their definitions in integers, and those against the formulas in real
// numbers that they approximate.
#include <cmath>

#include "reference/pixels.h"

namespace keli::test {
namespace {

using registry::Type;

// The largest integer that is not above v / 2^bits, as a byte.
Kel8u byteOf(std::int64_t v, int bits) {
  return static_cast<Kel8u>(
      std::clamp(std::floor(std::ldexp(static_cast<double>(v), -bits)), 0., 255.));
}

Pixel<Kel8u> toYCbCr(const Pixel<Kel8u>& p) {
  const std::int64_t r = p[0], g = p[1], b = p[2];
  return {byteOf(16843 * r + 33030 * g + 6423 * b + 0x108000, 16),
          byteOf(-9699 * r - 19071 * g + 28770 * b + 0x808000, 16),
          byteOf(28770 * r - 24117 * g - 4653 * b + 0x808000, 16)};
}

Pixel<Kel8u> fromYCbCr(const Pixel<Kel8u>& p) {
  const std::int64_t luma = 76284 * (p[0] - 16), cb = p[1] - 128, cr = p[2] - 128;
  return {byteOf(luma + 104595 * cr, 16), byteOf(luma - 25690 * cb - 53281 * cr, 16),
          byteOf(luma + 132186 * cb, 16)};
}

Pixel<Kel8u> toYuv(const Pixel<Kel8u>& p) {
  const std::int64_t r = p[0], g = p[1], b = p[2];
  const std::int64_t y = byteOf(19595 * r + 38469 * g + 7471 * b + 32768, 16);
  return {static_cast<Kel8u>(y), byteOf(16121 * (b - y) + 128 * 32768 + 16384, 15),
          byteOf(28737 * (r - y) + 128 * 32768 + 16384, 15)};
}

Pixel<Kel8u> fromYuv(const Pixel<Kel8u>& p) {
  const std::int64_t y = 8192 * p[0] + 4096, u = p[1] - 128, v = p[2] - 128;
  return {byteOf(y + 9339 * v, 13), byteOf(y - 3228 * u - 4760 * v, 13), byteOf(y + 16646 * u, 13)};
}

struct Conversion {
  const char* operation;
  int members;
  Pixel<Kel8u> (*definition)(const Pixel<Kel8u>&);
};
constexpr Conversion kConversions[] = {{"RGBToYCbCr", 3, toYCbCr},
                                       {"YCbCrToRGB", 4, fromYCbCr},
                                       {"RGBToYUV", 4, toYuv},
                                       {"YUVToRGB", 4, fromYuv}};

TEST(Luma, ChromaInAllLayouts) {
  for (const Conversion& c : kConversions)
    checkConversion<Kel8u>(c.operation, Type::k8u, c.members, c.definition);
}

TEST(Luma, ChromaOfAllColors) {
  for (const Conversion& c : kConversions) {
    checkAllColors(("keli" + std::string(c.operation) + "_8u_C3R").c_str(), c.definition);
    if (HasFatalFailure()) return;
  }
}

TEST(Luma, DestinationMayBeTheSource) {
  for (const char* operation : {"RGBToYCC", "YCCToRGB"}) EXPECT_EQ(checkSameImages(operation), 8);
  for (const Conversion& c : kConversions) EXPECT_EQ(checkSameImages(c.operation), 3);
}

struct Space {
  const char* name;
  double black, luma;  // of black, and from there to white
  double blue, red;    // what blue less luma, and red less luma, are times
};

// BT.601: luma has 219 steps, either chroma 224 from one primary colour to its complement. YUV has
// the factors of composite video.
TEST(Luma, ChromaIsNearTheFormulaInRealNumbers) {
  constexpr double kBlue = 0.114, kRed = 0.299, kGreen = 1 - kRed - kBlue;
  const Space spaces[] = {
      {"keliRGBToYCbCr_8u_C3R", 16, 219. / 255, 112. / 255 / (1 - kBlue), 112. / 255 / (1 - kRed)},
      {"keliRGBToYUV_8u_C3R", 0, 1, 0.492, 0.877}};
  std::vector<Kel8u> row;
  for (int i = 0; i < 18 * 18 * 18; ++i) {
    for (const int step : {1, 18, 18 * 18}) row.push_back(static_cast<Kel8u>(i / step % 18 * 15));
  }
  for (const Space& s : spaces) {
    const std::vector<Kel8u> found = ByteConversion(s.name)(row);
    for (std::size_t i = 0; i < row.size(); i += 3) {
      const double luma = kRed * row[i] + kGreen * row[i + 1] + kBlue * row[i + 2];
      const double exact[3] = {s.black + s.luma * luma, 128 + s.blue * (row[i + 2] - luma),
                               std::clamp(128 + s.red * (row[i] - luma), 0., 255.)};
      for (std::size_t k = 0; k < 3; ++k)
        ASSERT_NEAR(found[i + k], exact[k], 1) << s.name << " pixel " << i / 3 << " channel " << k;
    }
  }
}

}  // namespace
}  // namespace keli::test
