// Frame of the operations on two images. Arguments have been checked.
#pragma once

#include <type_traits>

#include "arith/operations.h"
#include "arith/zero.h"
#include "core/walk.h"

namespace keli::arith {

// Whether a member that can share its rows out among threads does so, beyond the frame's own
// threshold: products of bytes are shared from these sizes on, and only where they are scaled down.
template <class Operation, class T>
bool sharesRows(KeliSize size, int scaleFactor) {
  if constexpr (std::is_same_v<Operation, Mul> && std::is_same_v<T, Kel8u>) {
    const std::int64_t sides = std::int64_t{size.width} + size.height;
    return scaleFactor > 0 && sides >= (scaleFactor == 1 ? 128 : 256);
  }
  return true;
}

template <class Operation, class T, Layout kLayout, Team kTeam>
KelStatus binary(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                 KeliSize size, int scaleFactor = 0) {
  if (scaleFactor > kBits<Operation, T>) return setZero<T, kLayout>(dst, dstStep, size);
  const TwoImages& kernels = twoImages<Operation, T>();
  const TwoImages::Kernel kernel = kLayout == Layout::AC4 ? kernels.ac4 : kernels.flat;
  const Band<2> b = makeBand(src1, src1Step, src2, src2Step, dst, dstStep,
                             rowSamples<kLayout>(size), size.height);
  if (kTeam == Team::kThreads && sharesRows<Operation, T>(size, scaleFactor)) {
    walk<kTeam>(b, sizeof(T), kernel, scaleFactor);
  } else {
    walk<Team::kCaller>(b, sizeof(T), kernel, scaleFactor);
  }
  return kelStatusOk;
}

}  // namespace keli::arith
