// Kernels of transforms of 8 x 8 blocks. A block without a step is 64 contiguous samples; source
// and destination may be the same.
#pragma once

#include <cstddef>

#include "core/types.h"

namespace keli::dct {

struct DctRows {
  void (*forward)(const Kel16s* src, std::ptrdiff_t srcStep, Kel16s* dst);
  void (*forwardBytes)(const Kel8u* src, std::ptrdiff_t srcStep, Kel16s* dst, int levelShift);
  void (*forwardFloats)(const Kel32f* src, Kel32f* dst);
  void (*inverse)(const Kel16s* src, Kel16s* dst, std::ptrdiff_t dstStep);
  void (*inverseBytes)(const Kel16s* src, Kel8u* dst, std::ptrdiff_t dstStep, int levelShift,
                       int clipDown, int clipUp);
  void (*inverseFloats)(const Kel32f* src, Kel32f* dst);
};

const DctRows& dctRows();

// Inverse transforms of the first 4 x 4 or 2 x 2 coefficients.
struct CornerRows {
  void (*inverse4)(const Kel16s* src, Kel16s* dst);
  void (*inverse2)(const Kel16s* src, Kel16s* dst);
};

const CornerRows& cornerRows();

// Source and destination do not overlap.
struct ZigzagRows {
  void (*to)(const Kel16s* src, Kel16s* dst);
  void (*from)(const Kel16s* src, Kel16s* dst);
};

const ZigzagRows& zigzagRows();

}  // namespace keli::dct
