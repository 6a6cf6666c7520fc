// Frames of the comparisons. Arguments have been checked, but for the operation.
#pragma once

#include <limits>
#include <type_traits>

#include "compare/rows.h"
#include "core/walk.h"

namespace keli::compare {

inline bool isRelation(KelCmpOp op) { return op >= kelCmpLess && op <= kelCmpGreater; }

// The relation of exchanged operands.
inline KelCmpOp exchanged(KelCmpOp op) { return kelCmpGreater - op; }

template <class T, Layout kLayout, int kSources>
KelStatus run(Band<kSources> b, const Kernels<kSources>& kernels, Terms terms) {
  const auto kernel = kLayout == Layout::C1   ? kernels.c1
                      : kLayout == Layout::C3 ? kernels.c3
                                              : kernels.c4;
  if (kLayout == Layout::AC4) {
    const std::uint8_t fourth[4] = {0, 0, 0, 0xFF};
    std::memcpy(&terms.ignored, fourth, sizeof(fourth));
  }
  std::size_t units[kSources + 1];
  for (std::size_t& unit : units) unit = sizeof(T) * pixelSamples(kLayout);
  units[kSources] = 1;
  layOut(b, units);
  kernel(b, &terms);
  return kelStatusOk;
}

template <class T, Layout kLayout>
KelStatus twoImages(const T* src1, int src1Step, const T* src2, int src2Step, Kel8u* dst,
                    int dstStep, KeliSize size, KelCmpOp op) {
  if (!isRelation(op)) return kelStatusOk;
  if (op > kelCmpEq) {
    return twoImages<T, kLayout>(src2, src2Step, src1, src1Step, dst, dstStep, size, exchanged(op));
  }
  const std::size_t width = static_cast<std::size_t>(size.width);
  return run<T, kLayout>(makeBand(src1, src1Step, src2, src2Step, dst, dstStep, width, size.height),
                         twoImageRows<T>().relations[op], {});
}

// Every relation of integers with a constant is a range; where no sample satisfies it, the range is
// empty.
template <class T>
void setRange(T value, KelCmpOp op, T& lower, T& upper) {
  using Limits = std::numeric_limits<T>;
  const bool never = (op == kelCmpLess && value == Limits::min()) ||
                     (op == kelCmpGreater && value == Limits::max());
  const T below = static_cast<T>(value - (op == kelCmpLess ? 1 : 0));
  const T above = static_cast<T>(value + (op == kelCmpGreater ? 1 : 0));
  lower = never ? Limits::max() : op <= kelCmpLessEq ? Limits::min() : above;
  upper = never ? Limits::min() : op >= kelCmpGreaterEq ? Limits::max() : below;
}

// value: one value for C1, else a pointer to as many as there are channels compared.
template <class T, Layout kLayout, class Value>
KelStatus imageAndConstant(const T* src, int srcStep, Value value, Kel8u* dst, int dstStep,
                           KeliSize size, KelCmpOp op) {
  if (!isRelation(op)) return kelStatusOk;
  const Band<1> b =
      makeBand(src, srcStep, dst, dstStep, static_cast<std::size_t>(size.width), size.height);
  Terms terms;
  terms.lower = cycleOf<T, kLayout>(value);
  if constexpr (std::is_floating_point_v<T>) {
    // a > c is -a < -c, whatever a and c are.
    if (op > kelCmpEq) {
      terms.signs = std::uint32_t{1} << 31;
      for (int k = 0; k < 4; ++k) terms.lower.bytes[sizeof(T) * k + 3] ^= 0x80;
      op = exchanged(op);
    }
    return run<T, kLayout>(b, constantRows().relations[op], terms);
  } else {
    T lower[4], upper[4];
    std::memcpy(lower, terms.lower.bytes, sizeof(lower));
    for (int k = 0; k < 4; ++k) setRange<T>(lower[k], op, lower[k], upper[k]);
    std::memcpy(terms.lower.bytes, lower, sizeof(lower));
    std::memcpy(terms.upper.bytes, upper, sizeof(upper));
    return run<T, kLayout>(b, rangeRows<T>().within, terms);
  }
}

// Whether four channels are compared in double precision: a promise, not a matter of speed.
template <class... Numbers>
bool anyUnaligned(Numbers... numbers) {
  return (... || (static_cast<std::uintptr_t>(numbers) % 16 != 0));
}

inline std::uintptr_t addressOf(const void* p) { return reinterpret_cast<std::uintptr_t>(p); }

template <Layout kLayout>
KelStatus twoImagesWithin(const Kel32f* src1, int src1Step, const Kel32f* src2, int src2Step,
                          Kel8u* dst, int dstStep, KeliSize size, Kel32f eps) {
  Kernels<2> kernels = equalEpsRows().twoImages;
  if (kLayout == Layout::C4 &&
      anyUnaligned(addressOf(src1), src1Step, addressOf(src2), src2Step, addressOf(dst), dstStep)) {
    kernels.c4 = equalEpsRows().twoImagesDouble;
  }
  Terms terms;
  terms.eps = eps;
  const std::size_t width = static_cast<std::size_t>(size.width);
  return run<Kel32f, kLayout>(
      makeBand(src1, src1Step, src2, src2Step, dst, dstStep, width, size.height), kernels, terms);
}

template <Layout kLayout, class Value>
KelStatus imageAndConstantWithin(const Kel32f* src, int srcStep, Value value, Kel8u* dst,
                                 int dstStep, KeliSize size, Kel32f eps) {
  Kernels<1> kernels = equalEpsRows().imageAndConstant;
  if (kLayout == Layout::C4 && anyUnaligned(addressOf(src), srcStep, addressOf(dst), dstStep))
    kernels.c4 = equalEpsRows().imageAndConstantDouble;
  Terms terms;
  terms.lower = cycleOf<Kel32f, kLayout>(value);
  terms.eps = eps;
  const std::size_t width = static_cast<std::size_t>(size.width);
  return run<Kel32f, kLayout>(makeBand(src, srcStep, dst, dstStep, width, size.height), kernels,
                              terms);
}

}  // namespace keli::compare
