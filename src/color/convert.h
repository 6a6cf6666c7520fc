// Frame of the conversions between colour spaces: pixels of three channels to pixels of three or
// one, in any layout. Results do not depend on the caller's rounding mode. Arguments have been
// checked.
#pragma once

#include "color/color_rows.h"
#include "core/rounding_mode.h"

namespace keli::color {

// The destination's layout with its fourth channel left alone, if the source has one.
constexpr Layout keepingAlpha(Layout from, Layout to) {
  if (storedChannels(from) != 4 || storedChannels(to) != 4) return to;
  return isPlanar(to) ? Layout::AP4 : Layout::AC4;
}

// src and dst: pointers to images, or arrays of pointers to planes.
template <class Conversion, class T, Layout kFrom, Layout kTo, Team kTeam, class Source,
          class Destination>
KelStatus convert(Source src, int srcStep, Destination dst, int dstStep, KeliSize size) {
  constexpr Layout kWritten = keepingAlpha(kFrom, kTo);
  const core::RoundToNearest arithmetic;
  walkPlanes<kTeam, kFrom, kWritten, T, T>(
      makePlanesBand<kFrom, kWritten, T, T>(src, srcStep, dst, dstStep, size),
      kernelsOf<Conversion, T>().template of<kFrom, kWritten>());
  return kelStatusOk;
}

}  // namespace keli::color
