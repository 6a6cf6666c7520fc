// Rows of the matrices of products-inl.h, which no target changes.
#pragma once

#include <array>
#include <cstdint>

namespace keli::color {

struct ProductRow {
  std::array<std::int32_t, 3> factors;
  std::int32_t offset;
};

// factors = whole * 2^shift + rest, with rests of 16 bits. Only factors that do not fit 16 bits,
// and those that leave no rest, have a whole part.
struct SplitRow {
  std::array<std::int16_t, 3> whole{};
  std::array<std::int16_t, 3> rest{};
  std::int32_t offset;

  constexpr SplitRow(const ProductRow& row, int shift) : offset(row.offset) {
    const std::int32_t unit = std::int32_t{1} << shift;
    for (std::size_t k = 0; k < 3; ++k) {
      const std::int32_t f = row.factors[k];
      const bool fits = f == static_cast<std::int16_t>(f);
      const std::int32_t w = fits && f % unit != 0 ? 0 : (f + unit / 2) >> shift;
      whole[k] = static_cast<std::int16_t>(w);
      rest[k] = static_cast<std::int16_t>(f - w * unit);
    }
  }
};

}  // namespace keli::color
