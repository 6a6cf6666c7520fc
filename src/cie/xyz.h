// Frame of RGBToXYZ for bytes, whose pixels depend on their column: of every row the first
// floor(width / 8) * 8 are computed with 15 bits of fraction, the others with 16. Arguments have
// been checked.
#pragma once

#include "core/planes.h"

namespace keli::cie {

// width: of a row of the image, of which the band may have several joined to one.
struct BytesToXyzRows {
  using Kernel = void (*)(const PlanesBand&, std::size_t width);
  Kernel c3, ac4;
};

// Defined in xyz_8u_rows.cc.
const BytesToXyzRows& bytesToXyzRows();

template <Layout kLayout, Team kTeam>
KelStatus bytesToXyz(const Kel8u* src, int srcStep, Kel8u* dst, int dstStep, KeliSize size) {
  const BytesToXyzRows& rows = bytesToXyzRows();
  walkPlanes<kTeam, kLayout, kLayout, Kel8u, Kel8u>(
      makePlanesBand<kLayout, kLayout, Kel8u, Kel8u>(src, srcStep, dst, dstStep, size),
      kLayout == Layout::C3 ? rows.c3 : rows.ac4, static_cast<std::size_t>(size.width));
  return kelStatusOk;
}

}  // namespace keli::cie
