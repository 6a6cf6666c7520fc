// The numbers of CIE XYZ (1931) for the primaries of ITU-R BT.709 and the white D65, and what
// follows from them.
#pragma once

namespace keli::cie {

// Rows give X, Y and Z of R, G, B with white's Y = 1, and R, G, B of X, Y, Z.
constexpr double kXyzOfRgb[3][3] = {
    {0.412453, 0.35758, 0.180423}, {0.212671, 0.71516, 0.072169}, {0.019334, 0.119193, 0.950227}};
constexpr double kRgbOfXyz[3][3] = {{3.240479, -1.53715, -0.498535},
                                    {-0.969256, 1.875991, 0.041556},
                                    {0.055648, -0.204043, 1.057311}};

// Weights of three channels.
struct Weights {
  float of[3];
};

// x X + y Y + z Z, as weights of R, G and B.
constexpr Weights combined(double x, double y, double z) {
  Weights w = {};
  for (int k = 0; k < 3; ++k) {
    w.of[k] = static_cast<float>(x * kXyzOfRgb[0][k] + y * kXyzOfRgb[1][k] + z * kXyzOfRgb[2][k]);
  }
  return w;
}

// A row of either matrix.
constexpr Weights rowOf(const double (&matrix)[3][3], int row) {
  Weights w = {};
  for (int k = 0; k < 3; ++k) w.of[k] = static_cast<float>(matrix[row][k]);
  return w;
}

}  // namespace keli::cie
