// Frames of the comparisons. Arguments have been checked, but for the operation.
#pragma once

#include <type_traits>

#include "compare/rows.h"
#include "core/walk.h"

namespace keli::compare {

inline bool isRelation(KelCmpOp op) { return op >= kelCmpLess && op <= kelCmpGreater; }

// The relation of exchanged operands.
inline KelCmpOp exchanged(KelCmpOp op) { return kelCmpGreater - op; }

template <class T, Layout kLayout, int kSources>
KelStatus run(Band<kSources> b, const Kernels<kSources>& kernels, const Terms& given) {
  Terms terms = given;
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
                         compareRows<T>().twoImages[op], {});
}

// The bits that reverse the order of samples: a > c is ~a < ~c for integers and -a < -c for floats.
template <class T>
constexpr std::uint32_t kReversing =
    std::is_floating_point_v<T> ? std::uint32_t{1} << 31 : ~std::uint32_t{0};

// value: one value for C1, else a pointer to as many as there are channels compared.
template <class T, Layout kLayout, class Value>
KelStatus imageAndConstant(const T* src, int srcStep, Value value, Kel8u* dst, int dstStep,
                           KeliSize size, KelCmpOp op) {
  if (!isRelation(op)) return kelStatusOk;
  Terms terms;
  terms.constants = cycleOf<T, kLayout>(value);
  if (op > kelCmpEq) {
    terms.flips = kReversing<T>;
    for (std::size_t i = 0; i < 4 * sizeof(T); i += sizeof(T)) {
      std::uint32_t bits = 0;
      std::memcpy(&bits, terms.constants.bytes + i, sizeof(T));
      bits ^= terms.flips;
      std::memcpy(terms.constants.bytes + i, &bits, sizeof(T));
    }
    op = exchanged(op);
  }
  const std::size_t width = static_cast<std::size_t>(size.width);
  return run<T, kLayout>(makeBand(src, srcStep, dst, dstStep, width, size.height),
                         compareRows<T>().imageAndConstant[op], terms);
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
  terms.constants = cycleOf<Kel32f, kLayout>(value);
  terms.eps = eps;
  const std::size_t width = static_cast<std::size_t>(size.width);
  return run<Kel32f, kLayout>(makeBand(src, srcStep, dst, dstStep, width, size.height), kernels,
                              terms);
}

}  // namespace keli::compare
