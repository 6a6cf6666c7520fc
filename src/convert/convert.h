// Frames of conversion and scaling. Arguments have been checked.
#pragma once

#include "convert/rows.h"
#include "core/rounding_mode.h"

namespace keli::convert {

template <Layout kLayout, class TS, class TD, class... Terms>
KelStatus run(const Kernels<Terms...>& kernels, const TS* src, int srcStep, TD* dst, int dstStep,
              KeliSize size, Terms... terms) {
  Band<1> b = makeBand(src, srcStep, dst, dstStep, rowSamples<kLayout>(size), size.height);
  layOut(b, {sizeof(TS), sizeof(TD)});
  (kLayout == Layout::AC4 ? kernels.ac4 : kernels.flat)(b, terms...);
  return kelStatusOk;
}

template <class TS, class TD, Layout kLayout>
KelStatus convert(const TS* src, int srcStep, TD* dst, int dstStep, KeliSize size) {
  return run<kLayout>(convertRows<TS, TD>(), src, srcStep, dst, dstStep, size);
}

template <class TD, Layout kLayout>
KelStatus convertRounded(const Kel32f* src, int srcStep, TD* dst, int dstStep, KeliSize size,
                         KelRoundMode mode) {
  const RoundedRows& rows = roundedRows<TD>();
  return run<kLayout>(mode == kelRoundNearest ? rows.nearest : rows.truncated, src, srcStep, dst,
                      dstStep, size);
}

template <class TS, class TD, Layout kLayout>
KelStatus scale(const TS* src, int srcStep, TD* dst, int dstStep, KeliSize size) {
  return run<kLayout>(scaleRows<TS, TD>(), src, srcStep, dst, dstStep, size);
}

// The one way of computing is exact and the fastest.
template <class TS, Layout kLayout>
KelStatus scaleDown(const TS* src, int srcStep, Kel8u* dst, int dstStep, KeliSize size,
                    KelHintAlgorithm) {
  return scale<TS, Kel8u, kLayout>(src, srcStep, dst, dstStep, size);
}

template <Layout kLayout>
KelStatus scaleToRange(const Kel8u* src, int srcStep, Kel32f* dst, int dstStep, KeliSize size,
                       Kel32f vMin, Kel32f vMax) {
  const core::RoundToNearest nearest;
  return run<kLayout>(toRangeRows(), src, srcStep, dst, dstStep, size, vMin, vMax);
}

template <Layout kLayout>
KelStatus scaleFromRange(const Kel32f* src, int srcStep, Kel8u* dst, int dstStep, KeliSize size,
                         Kel32f vMin, Kel32f vMax) {
  const core::RoundToNearest nearest;
  return run<kLayout>(fromRangeRows(), src, srcStep, dst, dstStep, size, vMin, vMax);
}

}  // namespace keli::convert
