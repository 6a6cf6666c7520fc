// Frame of DivC, on an image and a constant. Arguments have been checked: no constant is 0.
//
// Floats are multiplied by the rounded reciprocal of the constant, by the kernels of MulC.
#pragma once

#include <type_traits>

#include "arith/operations.h"
#include "arith/zero.h"
#include "core/cycle.h"
#include "core/walk.h"
#include "data/copy.h"
#include "division/rows.h"

namespace keli::division {

inline Cycle reciprocals(const Cycle& divisors) {
  Cycle cycle;
  for (std::size_t k = 0; k < 4; ++k) {
    float divisor;
    std::memcpy(&divisor, divisors.bytes + k * sizeof(float), sizeof(float));
    const float reciprocal = 1 / divisor;
    std::memcpy(cycle.bytes + k * sizeof(float), &reciprocal, sizeof(float));
  }
  return cycle;
}

// value: one value for C1, else a pointer to as many as there are channels.
template <class T, Layout kLayout, class Value>
KelStatus divideByConstant(const T* src, int srcStep, Value value, T* dst, int dstStep,
                           KeliSize size, int scaleFactor = 0) {
  const Band<1> b = makeBand(src, srcStep, dst, dstStep, rowSamples<kLayout>(size), size.height);
  const Cycle divisors = cycleOf<T, kLayout>(value);
  if constexpr (std::is_integral_v<T>) {
    const ImageByConstant& kernels = imageByConstant<T>();
    walk<Team::kCaller>(b, sizeof(T), kLayout == Layout::C3 ? kernels.c3 : kernels.flat,
                        divisors.bytes, scaleFactor);
  } else {
    const arith::ImageAndConstant& kernels = arith::imageAndConstant<arith::Mul, T>();
    if constexpr (kLayout == Layout::C1) {
      // A reciprocal of 1 moves the bits of a NaN as they are, one of 0 takes infinities to 0.
      if (1 / value == 1) return data::copy<T, kLayout>(src, srcStep, dst, dstStep, size);
      if (1 / value == 0) return arith::setZero<T, kLayout>(dst, dstStep, size);
    }
    const Cycle factors = reciprocals(divisors);
    walk<Team::kCaller>(b, sizeof(T), kLayout == Layout::C3 ? kernels.c3 : kernels.flat,
                        factors.bytes, 0);
  }
  return kelStatusOk;
}

}  // namespace keli::division
