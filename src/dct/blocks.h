// Frame of the transforms of 8 x 8 blocks. Arguments have been checked.
#pragma once

#include "core/rounding_mode.h"
#include "dct/dct_rows.h"

namespace keli::dct {

constexpr int kRowBytes = 8 * sizeof(Kel16s);  // of a contiguous block

inline KelStatus forward(const Kel16s* src, int srcStep, Kel16s* dst) {
  const core::RoundToNearest nearest;
  dctRows().forward(src, srcStep, dst);
  return kelStatusOk;
}

inline KelStatus forward(const Kel16s* src, Kel16s* dst) { return forward(src, kRowBytes, dst); }

inline KelStatus forward(const Kel8u* src, int srcStep, Kel16s* dst, Kel16s levelShift = 0) {
  const core::RoundToNearest nearest;
  dctRows().forwardBytes(src, srcStep, dst, levelShift);
  return kelStatusOk;
}

inline KelStatus forward(const Kel32f* src, Kel32f* dst) {
  const core::RoundToNearest nearest;
  dctRows().forwardFloats(src, dst);
  return kelStatusOk;
}

inline KelStatus inverse(const Kel16s* src, Kel16s* dst, int dstStep) {
  const core::RoundToNearest nearest;
  dctRows().inverse(src, dst, dstStep);
  return kelStatusOk;
}

inline KelStatus inverse(const Kel16s* src, Kel16s* dst) { return inverse(src, dst, kRowBytes); }

inline KelStatus inverse(const Kel16s* src, Kel8u* dst, int dstStep, Kel16s levelShift = 0,
                         Kel8u clipDown = 0, Kel8u clipUp = 255) {
  const core::RoundToNearest nearest;
  dctRows().inverseBytes(src, dst, dstStep, levelShift, clipDown, clipUp);
  return kelStatusOk;
}

inline KelStatus inverse(const Kel32f* src, Kel32f* dst) {
  const core::RoundToNearest nearest;
  dctRows().inverseFloats(src, dst);
  return kelStatusOk;
}

// Of the first kSide x kSide coefficients.
template <int kSide>
KelStatus inverseCorner(const Kel16s* src, Kel16s* dst) {
  static_assert(kSide == 4 || kSide == 2);
  const core::RoundToNearest nearest;
  (kSide == 4 ? cornerRows().inverse4 : cornerRows().inverse2)(src, dst);
  return kelStatusOk;
}

inline KelStatus toZigzag(const Kel16s* src, Kel16s* dst) {
  zigzagRows().to(src, dst);
  return kelStatusOk;
}

inline KelStatus fromZigzag(const Kel16s* src, Kel16s* dst) {
  zigzagRows().from(src, dst);
  return kelStatusOk;
}

}  // namespace keli::dct
