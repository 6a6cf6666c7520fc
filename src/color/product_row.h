// Rows of the matrices of products-inl.h, which no target changes.
#pragma once

#include <array>
#include <cstddef>
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

  // The whole parts as signed bytes, that of the first channel lowest.
  constexpr std::int32_t wholeBytes() const {
    std::uint32_t bytes = 0;
    for (std::size_t k = 0; k < 3; ++k)
      bytes |= static_cast<std::uint32_t>(static_cast<std::uint8_t>(whole[k])) << 8 * k;
    return static_cast<std::int32_t>(bytes);
  }

  // Whether every step keeps in its lane: sums in 32 bits, and what the shift leaves in 16, with
  // the whole parts, which are signed bytes.
  constexpr bool fits(int shift) const {
    std::int64_t most = offset < 0 ? -std::int64_t{offset} : offset, wholes = 0;
    bool small = true;
    for (std::size_t k = 0; k < 3; ++k) {
      most += 255 * std::int64_t{rest[k] < 0 ? -rest[k] : rest[k]};
      wholes += 255 * (whole[k] < 0 ? -whole[k] : whole[k]);
      small = small && whole[k] == static_cast<std::int8_t>(whole[k]);
    }
    return small && most < INT32_MAX && (most >> shift) + 1 + wholes <= INT16_MAX;
  }
};

}  // namespace keli::color
