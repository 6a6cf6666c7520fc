// XYZ against its definitions: single precision, an operation at a time, and fixed point by
// columns.
#include "cie/scale.h"
#include "keli.h"

namespace keli::test {
namespace {

using registry::Type;

template <class T>
T sampleOf(float v) {
  if constexpr (std::is_floating_point_v<T>) {
    return std::isnan(v) ? std::numeric_limits<T>::quiet_NaN() : v;
  } else {
    const Scale s = scaleOf<T>();
    return static_cast<T>(std::clamp<double>(std::nearbyint(v), 0, s.full) - s.offset);
  }
}

template <class T>
Pixel<T> times(const double (&matrix)[3][3], bool cut, const Pixel<T>& in) {
  Pixel<T> out;
  for (std::size_t k = 0; k < 3; ++k) {
    float sum = 0;
    for (std::size_t c = 0; c < 3; ++c) {
      // Not plus 0 for floats: that would turn -0 into 0.
      const float sample =
          static_cast<float>(std::is_floating_point_v<T> ? in[c] : in[c] + scaleOf<T>().offset);
      const float product = static_cast<float>(matrix[k][c]) * sample;
      sum = c == 0 ? product : sum + product;
    }
    if (cut && std::is_floating_point_v<T>) sum = sum > 1 ? 1 : sum < 0 ? 0 : sum;
    out[k] = sampleOf<T>(sum);
  }
  return out;
}

// The inverse, and without bytes the forward conversion.
template <class T>
void checkXyz(Type type) {
  if (type != Type::k8u) {
    checkConversion<T>("RGBToXYZ", type, 2,
                       [](const Pixel<T>& p) { return times<T>(kToXyz, false, p); });
  }
  checkConversion<T>("XYZToRGB", type, 2,
                     [](const Pixel<T>& p) { return times<T>(kToRgb, true, p); });
}

TEST(Xyz, IsItsMatrixInSinglePrecision) {
  checkXyz<Kel8u>(Type::k8u);
  checkXyz<Kel16u>(Type::k16u);
  checkXyz<Kel16s>(Type::k16s);
  checkXyz<Kel32f>(Type::k32f);
}

TEST(Xyz, RgbOfAllBytes) {
  checkAllColors("keliXYZToRGB_8u_C3R",
                 [](const Pixel<Kel8u>& p) { return times<Kel8u>(kToRgb, true, p); });
}

// The coefficients with 16 bits of fraction; those with 15 are not their halves.
Pixel<Kel8u> bytesToXyz(const Pixel<Kel8u>& rgb, bool inGroup) {
  static constexpr int kGroup[3][3] = {
      {13515, 11717, 5912}, {6969, 23434, 2365}, {634, 3906, 31137}};
  static constexpr int kRest[3][3] = {
      {27030, 23434, 11824}, {13937, 46868, 4729}, {1267, 7811, 62274}};
  Pixel<Kel8u> xyz;
  for (std::size_t k = 0; k < 3; ++k) {
    const auto& of = inGroup ? kGroup[k] : kRest[k];
    const int sum = of[0] * rgb[0] + of[1] * rgb[1] + of[2] * rgb[2];
    xyz[k] = static_cast<Kel8u>(std::min(sum / (inGroup ? 32768 : 65536), 255));
  }
  return xyz;
}

TEST(Xyz, BytesDependOnTheirColumn) {
  checkConversion<Kel8u>("RGBToXYZ", Type::k8u, 2,
                         [](const Pixel<Kel8u>& p, int column, int width) {
                           return bytesToXyz(p, column < width / 8 * 8);
                         });
}

TEST(Xyz, OfAllBytes) {
  checkAllColors("keliRGBToXYZ_8u_C3R", [](const Pixel<Kel8u>& p) { return bytesToXyz(p, true); });
  forAllColors([](const std::vector<Kel8u>& row) {
    // The same colours in rows of four.
    const int pixels = static_cast<int>(row.size() / 3);
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      std::vector<Kel8u> found(row.size());
      ASSERT_EQ(keliRGBToXYZ_8u_C3R(row.data(), 12, found.data(), 12, {4, pixels / 4}),
                kelStatusOk);
      for (std::size_t i = 0; i < row.size(); i += 3) {
        const Pixel<Kel8u> expected = bytesToXyz({row[i], row[i + 1], row[i + 2]}, false);
        ASSERT_EQ((Pixel<Kel8u>{found[i], found[i + 1], found[i + 2]}), expected)
            << targetName(target) << " of " << int{row[i]} << ", " << int{row[i + 1]} << ", "
            << int{row[i + 2]};
      }
    }
  });
}

}  // namespace
}  // namespace keli::test
