// HSV and HLS against their definitions: exact integers where 8u has them, else single precision,
// an operation at a time; and the way back against the exact color.
#include <cmath>

#include "keli.h"
#include "reference/pixels.h"

namespace keli::test {
namespace {

using registry::Type;

// Integer samples: full scale, what is added to reach 0, and what turns hue into degrees and back.
struct Scale {
  int full, offset;
  float toDegrees, ofDegrees;
};
constexpr Scale kBytes = {255, 0, 1.4117647f, 0.7083333f};
constexpr Scale kWords = {65535, 0, 360.f / 65535, 182.0416717f};
constexpr Scale kSigned = {65535, 32768, 360.f / 65535, 182.0416717f};

// A pixel of integers from 0 on, and back.
template <class T>
std::array<int, 3> raised(const Scale& s, const Pixel<T>& in) {
  return {in[0] + s.offset, in[1] + s.offset, in[2] + s.offset};
}
template <class T>
Pixel<T> lowered(const Scale& s, double a, double b, double c) {
  Pixel<T> out;
  const double samples[3] = {a, b, c};
  for (std::size_t k = 0; k < 3; ++k) out[k] = static_cast<T>(samples[k] - s.offset);
  return out;
}

template <class T>
Pixel<T> toHsv(const Scale& s, const Pixel<T>& in) {
  const auto [r, g, b] = raised(s, in);
  const int value = std::max({r, g, b}), delta = value - std::min({r, g, b});
  if (delta == 0) return lowered<T>(s, 0, 0, value);
  const auto quotient = [&](int difference) {
    return static_cast<float>(difference) / static_cast<float>(delta);
  };
  const float sixths = value == b   ? quotient(r - g) + 4
                       : value == g ? quotient(b - r) + 2
                                    : quotient(g - b);
  const float hue = static_cast<float>(s.full) / 6 * sixths;
  const auto full = static_cast<float>(s.full);
  const float saturation = full * static_cast<float>(delta) / static_cast<float>(value);
  return lowered<T>(s, std::nearbyint(hue < 0 ? hue + full : hue), std::nearbyint(saturation),
                    value);
}

template <class T>
Pixel<T> fromHsv(const Scale& s, const Pixel<T>& in) {
  const auto [hue, saturation, v] = raised(s, in);
  const float sixths = hue == s.full ? 0 : static_cast<float>(hue) * s.toDegrees * (1 / 60.f);
  const int sector = static_cast<int>(sixths);
  const float f = sixths - static_cast<float>(sector);
  const float part = static_cast<float>(saturation) * (1 / static_cast<float>(s.full));
  const auto value = static_cast<float>(v);
  const float p = value * (1 - part), q = value * (1 - part * f), t = value * (1 - part * (1 - f));
  const float sectors[6][3] = {{value, t, p}, {q, value, p}, {p, value, t},
                               {p, q, value}, {t, p, value}, {value, p, q}};
  const float(&rgb)[3] = sectors[sector];
  return lowered<T>(s, std::nearbyint(rgb[0]), std::nearbyint(rgb[1]), std::nearbyint(rgb[2]));
}

// In degrees, of samples of any type. Red's third has its middle at 0, which turns -0 into 0.
template <class T>
float hueOf(T r, T g, T b, T most, float delta) {
  const float h = r == most   ? 60 * static_cast<float>(g - b) / delta + 0
                  : g == most ? 60 * static_cast<float>(b - r) / delta + 120
                              : 60 * static_cast<float>(r - g) / delta + 240;
  return h < 0 ? h + 360 : h;
}

template <class T>
Pixel<T> toHls(const Scale& s, const Pixel<T>& in) {
  const auto [r, g, b] = raised(s, in);
  const int most = std::max({r, g, b}), sum = most + std::min({r, g, b}), delta = 2 * most - sum;
  if (delta == 0) return lowered<T>(s, 0, sum / 2, 0);
  const int divisor = sum <= s.full ? sum : 2 * s.full - sum;
  // The product of 8u is exact in either, and that of 16u in integers alone.
  const int saturation =
      s.full == 255 ? 255 * delta / divisor
                    : static_cast<int>(static_cast<float>(s.full) * static_cast<float>(delta) /
                                       static_cast<float>(divisor));
  const float hue = hueOf(r, g, b, most, static_cast<float>(delta)) * s.ofDegrees;
  return lowered<T>(s, static_cast<int>(hue), sum / 2, saturation);
}

template <class T>
Pixel<T> fromHls(const Scale& s, const Pixel<T>& in) {
  const auto [hue, l, saturation] = raised(s, in);
  const auto lightness = static_cast<float>(l), sample = static_cast<float>(saturation);
  const float part = sample * (1 / static_cast<float>(s.full));
  const float high =
      2 * l <= s.full ? lightness * (1 + part) : lightness + sample - lightness * part;
  const float low = 2 * lightness - high;
  const float sixths = static_cast<float>(hue) * s.toDegrees * (1 / 60.f);
  const auto mixed = [&](float weight) {
    return std::nearbyint(low + (high - low) * std::clamp(weight, 0.f, 1.f));
  };
  return lowered<T>(s, mixed(std::abs(sixths - 3) - 1), mixed(2 - std::abs(sixths - 2)),
                    mixed(2 - std::abs(sixths - 4)));
}

// One form for all that are not numbers.
Pixel<Kel32f> settled(float a, float b, float c) {
  Pixel<Kel32f> out = {a, b, c};
  for (float& v : out) v = std::isnan(v) ? std::numeric_limits<float>::quiet_NaN() : v;
  return out;
}

Pixel<Kel32f> toHlsReal(const Pixel<Kel32f>& in) {
  const auto [r, g, b] = in;
  const float higher = r > g ? r : g, lower = r < g ? r : g;
  const float most = higher > b ? higher : b, least = lower < b ? lower : b;
  const float delta = most - least, lightness = (most + least) / 2;
  if (!(delta > 1.1920929e-07f)) return settled(0, lightness, 0);
  const float saturation = delta / (lightness <= 0.5f ? most + least : 2 - (most + least));
  return settled(hueOf(r, g, b, most, delta) / 360, lightness, saturation);
}

Pixel<Kel32f> fromHlsReal(const Pixel<Kel32f>& in) {
  const auto [hue, lightness, saturation] = in;
  if (saturation == 0) return settled(lightness, lightness, lightness);
  const float high = lightness <= 0.5f ? lightness * (1 + saturation)
                                       : lightness + saturation - lightness * saturation;
  const float low = 2 * lightness - high, h = 360 * hue;
  const auto at = [&](float x) {
    if (x < 60) return low + (high - low) * x / 60;
    if (x < 180) return high;
    return x < 240 ? low + (high - low) * (240 - x) / 60 : low;
  };
  return settled(at(h + 120 > 360 ? h + 120 - 360 : h + 120), at(h),
                 at(h - 120 < 0 ? h - 120 + 360 : h - 120));
}

template <class T>
Pixel<T> reversed(const Pixel<T>& p) {
  return {p[2], p[1], p[0]};
}

template <class T>
void checkHls(Type type, const Scale& s) {
  checkConversion<T>("RGBToHLS", type, 2, [&](const Pixel<T>& p) { return toHls(s, p); });
  checkConversion<T>("HLSToRGB", type, 2, [&](const Pixel<T>& p) { return fromHls(s, p); });
}

template <class T>
void checkHsv(Type type, const Scale& s) {
  checkConversion<T>("RGBToHSV", type, 2, [&](const Pixel<T>& p) { return toHsv(s, p); });
  checkConversion<T>("HSVToRGB", type, 2, [&](const Pixel<T>& p) { return fromHsv(s, p); });
}

TEST(Hue, OfIntegersIsItsFormula) {
  checkHsv<Kel8u>(Type::k8u, kBytes);
  checkHsv<Kel16u>(Type::k16u, kWords);
  checkHls<Kel8u>(Type::k8u, kBytes);
  checkHls<Kel16u>(Type::k16u, kWords);
  checkHls<Kel16s>(Type::k16s, kSigned);
}

TEST(Hue, OfBgrIsThatOfRgbInEveryLayout) {
  checkConversion<Kel8u>("BGRToHLS", Type::k8u, 7,
                         [](const Pixel<Kel8u>& p) { return toHls(kBytes, reversed(p)); });
  checkConversion<Kel8u>("HLSToBGR", Type::k8u, 6,
                         [](const Pixel<Kel8u>& p) { return reversed(fromHls(kBytes, p)); });
}

// Multiples of 1/64 up to 1, so that components are often the same; half of them a little off, and
// among them the places where the formulas change.
void prepareUnit(TestCall& call, std::size_t) {
  const std::size_t src = call.find(registry::Role::kSource);
  std::vector<std::uint8_t> bytes = call.region(src);
  std::uint64_t bits = runSeed();
  for (std::size_t i = 0; i < bytes.size(); i += sizeof(float)) {
    bits = bits * 6364136223846793005u + 1442695040888963407u;
    const std::uint64_t r = bits >> 32;
    float v = static_cast<float>(r % 65) / 64;
    if (r & 256) v = std::nextafter(v, r & 512 ? 2.f : -1.f);
    if (r & 1024) v *= 0.9998f;
    if ((r >> 11) % 8 == 0) v = static_cast<float>((r >> 14) % 7) / 6;
    std::memcpy(&bytes[i], &v, sizeof v);
  }
  call.setRegion(src, bytes);
}

TEST(Hue, HlsOfFloatsIsItsFormulaInSinglePrecision) {
  using Conversion = Pixel<Kel32f> (*)(const Pixel<Kel32f>&);
  const std::pair<const char*, Conversion> conversions[] = {{"RGBToHLS", toHlsReal},
                                                            {"HLSToRGB", fromHlsReal}};
  for (const auto& [name, definition] : conversions) {
    checkConversion<Kel32f>(name, Type::k32f, 2, definition);
    forMembers(name, Type::k32f, [&, &formula = definition](const registry::Function& f) {
      checkPixels<Kel32f>(f, formula, prepareUnit);
    });
  }
}

TEST(Hue, HsvOfAllColors) {
  checkAllColors("keliRGBToHSV_8u_C3R", [](const Pixel<Kel8u>& p) { return toHsv(kBytes, p); });
  checkAllColors("keliHSVToRGB_8u_C3R", [](const Pixel<Kel8u>& p) { return fromHsv(kBytes, p); });
}

TEST(Hue, HlsOfAllColors) {
  checkAllColors("keliRGBToHLS_8u_C3R", [](const Pixel<Kel8u>& p) { return toHls(kBytes, p); });
  checkAllColors("keliHLSToRGB_8u_C3R", [](const Pixel<Kel8u>& p) { return fromHls(kBytes, p); });
}

// The component of HLS that is this angle (in sixths) ahead of red, in doubles, and so of HSV.
double component(double low, double high, double sixths) {
  const double x = std::fmod(sixths + 6, 6);
  const double weight = x < 1 ? x : x < 3 ? 1 : x < 4 ? 4 - x : 0;
  return low + (high - low) * weight;
}

// Largest difference of a conversion's results from the exact color between ends(pixel).
template <class Ends>
double farthest(const char* name, const Ends& ends) {
  const ByteConversion convert(name);
  double most = 0;
  forAllColors([&](const std::vector<Kel8u>& row) {
    const std::vector<Kel8u> found = convert(row);
    for (std::size_t i = 0; i < row.size(); i += 3) {
      const auto [low, high] = ends(&row[i]);
      const double hue = row[i] * 6 / 255.;
      for (std::size_t k = 0; k < 3; ++k) {
        const double exact = component(low, high, hue + 2 - 2. * static_cast<double>(k));
        most = std::max(most, std::abs(found[i + k] - exact));
      }
    }
  });
  return most;
}

TEST(Hue, RgbIsTheNearestToTheExactColor) {
  constexpr double kHalf = 0.5002;  // single precision leaves ties open
  EXPECT_LT(farthest("keliHSVToRGB_8u_C3R",
                     [](const Kel8u* hsv) {
                       return std::pair<double, double>(hsv[2] * (1 - hsv[1] / 255.), hsv[2]);
                     }),
            kHalf);
  EXPECT_LT(farthest("keliHLSToRGB_8u_C3R",
                     [](const Kel8u* hls) {
                       const double room = hls[1] <= 127.5 ? hls[1] : 255. - hls[1];
                       const double reach = room * hls[2] / 255;
                       return std::pair<double, double>(hls[1] - reach, hls[1] + reach);
                     }),
            kHalf);
}

TEST(Hue, OfKnownColors) {
  struct Known {
    const char* function;
    Pixel<Kel8u> from, to;
  };
  const Known all[] = {
      {"keliRGBToHSV_8u_C3R", {255, 0, 0}, {0, 255, 255}},
      {"keliRGBToHSV_8u_C3R", {0, 0, 0}, {0, 0, 0}},
      {"keliRGBToHSV_8u_C3R", {9, 9, 9}, {0, 0, 9}},
      {"keliRGBToHSV_8u_C3R", {255, 255, 0}, {42, 255, 255}},   // 42.5, by the formula of G
      {"keliRGBToHSV_8u_C3R", {255, 0, 255}, {212, 255, 255}},  // 212.5, by that of B
      {"keliRGBToHSV_8u_C3R", {255, 0, 1}, {255, 255, 255}},
      {"keliHSVToRGB_8u_C3R", {255, 255, 255}, {255, 0, 0}},
      {"keliHSVToRGB_8u_C3R", {85, 255, 200}, {0, 200, 0}},
      {"keliHSVToRGB_8u_C3R", {77, 0, 200}, {200, 200, 200}},
      {"keliRGBToHLS_8u_C3R", {255, 0, 0}, {0, 127, 255}},
      {"keliRGBToHLS_8u_C3R", {255, 255, 255}, {0, 255, 0}},
      {"keliRGBToHLS_8u_C3R", {0, 0, 255}, {170, 127, 255}},
      {"keliHLSToRGB_8u_C3R", {77, 200, 0}, {200, 200, 200}},
      {"keliHLSToRGB_8u_C3R", {255, 128, 255}, {255, 1, 1}},
  };
  for (const Known& k : all) {
    const std::vector<Kel8u> found = ByteConversion(k.function)({k.from.begin(), k.from.end()});
    EXPECT_EQ(found, std::vector<Kel8u>(k.to.begin(), k.to.end()))
        << k.function << " " << int{k.from[0]} << " " << int{k.from[1]} << " " << int{k.from[2]};
  }
  // Red and green are the greatest alike, and red comes first.
  const Kel32f yellow[3] = {1, 1, 0};
  Kel32f hls[3];
  ASSERT_EQ(keliRGBToHLS_32f_C3R(yellow, 12, hls, 12, KeliSize{1, 1}), kelStatusOk);
  EXPECT_EQ(hls[0], 60.f / 360);
  EXPECT_EQ(hls[1], 0.5f);
  EXPECT_EQ(hls[2], 1);
}

}  // namespace
}  // namespace keli::test
