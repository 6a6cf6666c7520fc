// The operations on complex images. Their kernels are found as those of real ones are, by operation
// and type of a sample: keliMulC_16sc_C3RSfs is imageAndConstant<Mul, Kel16sc>().c3. A sample is a
// real and an imaginary part; n counts samples.
#pragma once

#include "arith/operations.h"

namespace keli::complex {

struct Div {};  // src2 / src1, src / value

// One part of a sample, and a whole sample as bits, as the kernels take it.
template <class T>
struct SampleTraits;
template <>
struct SampleTraits<Kel16sc> {
  using Part = Kel16s;
  using Bits = std::uint32_t;
};
template <>
struct SampleTraits<Kel32sc> {
  using Part = Kel32s;
  using Bits = std::uint64_t;
};
template <>
struct SampleTraits<Kel32fc> {
  using Part = Kel32f;
  using Bits = std::uint64_t;
};
template <class T>
using PartOf = typename SampleTraits<T>::Part;
template <class T>
using BitsOf = typename SampleTraits<T>::Bits;

// zeroDivisor: set where a divisor that takes part is zero, else left as it is.
struct DivImages {
  using Kernel = void (*)(const Band<2>&, int scaleFactor, bool* zeroDivisor);
  Kernel flat;
  Kernel ac4;
};

// Defined in the rows files.
template <class T>
const DivImages& divImages();

}  // namespace keli::complex

namespace keli::arith {

template <>
inline constexpr int kBits<Add, Kel16sc> = 16;
template <>
inline constexpr int kBits<Sub, Kel16sc> = 16;
template <>
inline constexpr int kBits<Mul, Kel16sc> = 31;
template <>
inline constexpr int kBits<Add, Kel32sc> = 32;
template <>
inline constexpr int kBits<Sub, Kel32sc> = 32;
template <>
inline constexpr int kBits<Mul, Kel32sc> = 63;
// A quotient is at most sqrt(2) times the largest part, divided by 1.
template <>
inline constexpr int kBits<complex::Div, Kel16sc> = 16;
template <>
inline constexpr int kBits<complex::Div, Kel32sc> = 32;

}  // namespace keli::arith
