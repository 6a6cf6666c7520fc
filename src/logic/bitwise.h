// Frames of the bitwise operations on two images, and on an image and a constant. Arguments have
// been checked.
#pragma once

#include <cstring>

#include "core/walk.h"
#include "logic/bitwise_rows.h"

namespace keli::logic {

// An operation with a constant keeps some bits of the source and then flips some: kept() and
// flipped() give them from the constant's bits.
struct And {
  static constexpr TwoImages BitwiseRows::*kKernels = &BitwiseRows::conjunction;
  static constexpr std::uint64_t kept(std::uint64_t bits) { return bits; }
  static constexpr std::uint64_t flipped(std::uint64_t) { return 0; }
};
struct Or {
  static constexpr TwoImages BitwiseRows::*kKernels = &BitwiseRows::disjunction;
  static constexpr std::uint64_t kept(std::uint64_t bits) { return ~bits; }
  static constexpr std::uint64_t flipped(std::uint64_t bits) { return bits; }
};
struct Xor {
  static constexpr TwoImages BitwiseRows::*kKernels = &BitwiseRows::difference;
  static constexpr std::uint64_t kept(std::uint64_t) { return ~std::uint64_t{0}; }
  static constexpr std::uint64_t flipped(std::uint64_t bits) { return bits; }
};

template <class Operation, class T, Layout kLayout>
KelStatus bitwise(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                  KeliSize size) {
  const TwoImages& kernels = bitwiseRows().*Operation::kKernels;
  constexpr bool kBytes = kLayout != Layout::AC4;
  constexpr std::size_t kUnit = kBytes ? 1 : sizeof(T);
  walk<Team::kCaller>(makeBand(src1, src1Step, src2, src2Step, dst, dstStep,
                               rowSamples<kLayout>(size) * sizeof(T) / kUnit, size.height),
                      kUnit, kBytes ? kernels.bytes : kernels.ac4.template get<T>());
  return kelStatusOk;
}

template <class T, Layout kLayout>
KelStatus keepAndFlip(const BitConstant& constant, const T* src, int srcStep, T* dst, int dstStep,
                      KeliSize size) {
  const BitConstantRows& rows = bitConstantRows();
  constexpr std::size_t kUnit = kLayout == Layout::AC4 ? sizeof(T) : 1;
  const auto kernel = kLayout == Layout::C3    ? rows.c3
                      : kLayout == Layout::AC4 ? rows.ac4.template get<T>()
                                               : rows.bytes;
  walk<Team::kCaller>(makeBand(src, srcStep, dst, dstStep,
                               rowSamples<kLayout>(size) * sizeof(T) / kUnit, size.height),
                      kUnit, kernel, &constant);
  return kelStatusOk;
}

// value: one value for C1, else a pointer to as many as there are channels processed.
template <class Operation, class T, Layout kLayout, class Value>
KelStatus bitwiseConstant(const T* src, int srcStep, Value value, T* dst, int dstStep,
                          KeliSize size) {
  T samples[16 / sizeof(T)];
  for (std::size_t i = 0; i < 16 / sizeof(T); ++i) {
    if constexpr (kLayout == Layout::C1) {
      samples[i] = value;
    } else {
      constexpr std::size_t kUsed = usedChannels(kLayout);
      const std::size_t k = i % pixelSamples(kLayout);
      std::memcpy(samples + i, value + (k < kUsed ? k : 0), sizeof(T));
    }
  }
  BitConstant constant;
  for (std::size_t i = 0; i < 16; i += 8) {
    std::uint64_t bits;
    std::memcpy(&bits, reinterpret_cast<const std::uint8_t*>(samples) + i, sizeof(bits));
    const std::uint64_t kept = Operation::kept(bits), flipped = Operation::flipped(bits);
    std::memcpy(constant.kept + i, &kept, sizeof(kept));
    std::memcpy(constant.flipped + i, &flipped, sizeof(flipped));
  }
  return keepAndFlip<T, kLayout>(constant, src, srcStep, dst, dstStep, size);
}

template <Layout kLayout>
KelStatus invert(const Kel8u* src, int srcStep, Kel8u* dst, int dstStep, KeliSize size) {
  BitConstant constant;
  std::memset(&constant, 0xFF, sizeof(constant));
  return keepAndFlip<Kel8u, kLayout>(constant, src, srcStep, dst, dstStep, size);
}

}  // namespace keli::logic
