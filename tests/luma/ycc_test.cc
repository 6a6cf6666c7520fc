// YCC against its definition: single precision, an operation at a time.
#include <cmath>

#include "reference/pixels.h"

namespace keli::test {
namespace {

using registry::Type;

// A scale of samples: full scale, what is added to reach 0, and the chroma of gray.
struct Scale {
  float full, offset, zero1, zero2;
};
constexpr Scale kBytes = {255, 0, 156, 137};
constexpr Scale kWords = {65535, 0, 156 * 257, 137 * 257};
constexpr Scale kSigned = {65535, 32768, 156 * 257, 137 * 257};
constexpr Scale kUnit = {1, 0, 0.6117647f, 0.5372549f};

// A result as a sample of T.
template <class T>
T sampleOf(const Scale& s, float v) {
  if constexpr (std::is_floating_point_v<T>) {
    return std::isnan(v) ? std::numeric_limits<T>::quiet_NaN() : v;
  } else {
    return static_cast<T>(std::clamp(std::nearbyint(v), 0.f, s.full) - s.offset);
  }
}

template <class T>
Pixel<T> toYcc(const Scale& s, const Pixel<T>& in) {
  const float r = static_cast<float>(in[0]) + s.offset, g = static_cast<float>(in[1]) + s.offset,
              b = static_cast<float>(in[2]) + s.offset;
  const float luma = 0.299f * r + 0.587f * g + 0.114f * b;
  const float c1 = 0.43686f * (b - luma), c2 = 0.53192f * (r - luma);
  return {sampleOf<T>(s, 0.7132668f * luma), sampleOf<T>(s, c1 + s.zero1),
          sampleOf<T>(s, c2 + s.zero2)};
}

template <class T>
Pixel<T> fromYcc(const Scale& s, const Pixel<T>& in) {
  const float luma = 1.3584f * (static_cast<float>(in[0]) + s.offset);
  const float c1 = 2.2179f * (static_cast<float>(in[1]) + s.offset - s.zero1);
  const float c2 = 1.8215f * (static_cast<float>(in[2]) + s.offset - s.zero2);
  const float green = luma - 0.194f * c1 - 0.509f * c2;
  const auto cut = [](float v) { return v > 1 ? 1.f : v < 0 ? 0.f : v; };
  Pixel<T> out;
  const float rgb[3] = {luma + c2, green, luma + c1};
  for (std::size_t k = 0; k < 3; ++k) out[k] = sampleOf<T>(s, s.full == 1 ? cut(rgb[k]) : rgb[k]);
  return out;
}

template <class T>
void checkYcc(Type type, const Scale& s) {
  checkConversion<T>("RGBToYCC", type, 2, [&](const Pixel<T>& p) { return toYcc(s, p); });
  checkConversion<T>("YCCToRGB", type, 2, [&](const Pixel<T>& p) { return fromYcc(s, p); });
}

TEST(Luma, YccIsItsFormulaInSinglePrecision) {
  checkYcc<Kel8u>(Type::k8u, kBytes);
  checkYcc<Kel16u>(Type::k16u, kWords);
  checkYcc<Kel16s>(Type::k16s, kSigned);
  checkYcc<Kel32f>(Type::k32f, kUnit);
}

TEST(Luma, YccOfAllColors) {
  checkAllColors("keliRGBToYCC_8u_C3R", [](const Pixel<Kel8u>& p) { return toYcc(kBytes, p); });
  checkAllColors("keliYCCToRGB_8u_C3R", [](const Pixel<Kel8u>& p) { return fromYcc(kBytes, p); });
}

}  // namespace
}  // namespace keli::test
