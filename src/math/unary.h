// Frame of the operations on one image. Arguments have been checked.
#pragma once

#include <limits>
#include <type_traits>

#include "arith/zero.h"
#include "core/memory.h"
#include "data/copy_rows.h"
#include "math/operations.h"

namespace keli::math {

// Kernels that give one of two warnings must see where a row ends, and work on rows without padding
// one by one too.
template <class Operation, class T>
constexpr bool kRowByRow = std::is_same_v<Operation, Ln> && !std::is_same_v<T, Kel8u>;

template <class Operation, class T, Layout kLayout>
KelStatus unary(const T* src, int srcStep, T* dst, int dstStep, KeliSize size,
                int scaleFactor = 0) {
  if constexpr (std::is_same_v<Operation, Sqr> && std::is_integral_v<T>) {
    if (scaleFactor > kBits<T>) return arith::setZero<T, kLayout>(dst, dstStep, size);
  }
  const Unary& rows = unaryRows<Operation, T>();
  const Band<1> b = makeBand(src, srcStep, dst, dstStep, rowSamples<kLayout>(size), size.height);
  Band<1> walked = b;
  layOut(walked, {sizeof(T), sizeof(T)});
  if constexpr (kRowByRow<Operation, T>) {
    walked.n = b.n;
    walked.rows = b.rows;
  }
  return (kLayout == Layout::AC4 ? rows.ac4 : rows.flat)(walked, scaleFactor);
}

// Abs of AC4: each row is computed whole in a temporary one, of which the three channels are
// copied.
template <class T>
KelStatus absAC4(const T* src, int srcStep, T* dst, int dstStep, KeliSize size) {
  const std::size_t samples = rowSamples<Layout::AC4>(size);
  if (samples > std::numeric_limits<std::size_t>::max() / sizeof(T)) return kelStatusNoMemory;
  const core::Scratch scratch(samples * sizeof(T));
  T* const row = scratch.as<T>();
  if (row == nullptr) return kelStatusNoMemory;
  const Unary::Kernel compute = unaryRows<Abs, T>().flat;
  const data::CopyBand copy = data::copyRows().ac4.get<T>();
  Band<1> from = makeBand(src, srcStep, row, 0, samples, 1);
  Band<1> to = makeBand(row, 0, dst, dstStep, samples, 1);
  for (int y = 0; y < size.height; ++y) {
    compute(from, 0);
    copy(to);
    from.src[0] += srcStep;
    to.dst += dstStep;
  }
  return kelStatusOk;
}

// The square root whose rows advance by whole samples.
inline KelStatus sqrtOfWholeSteps(const Kel32f* src, int srcStep, Kel32f* dst, int dstStep,
                                  KeliSize size) {
  constexpr int kSample = sizeof(Kel32f);
  return unary<Sqrt, Kel32f, Layout::C1>(src, srcStep / kSample * kSample, dst,
                                         dstStep / kSample * kSample, size);
}

}  // namespace keli::math
