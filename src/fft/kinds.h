// The kinds of specification structures: what their first fields hold, and the types by which
// callers tell them apart.
#pragma once

#include <cstdint>
#include <cstring>

#include "core/types.h"
#include "keli_spec.h"

namespace keli::fft {

// What a structure's first field holds.
enum class Kind : std::int32_t {
  kComplexFft = 25,
  kRealFft = 26,
  kComplexDft = 27,
  kRealDft = 28,
  kIntegerFft = 29,
  kIntegerDft = 30,
  kForwardCosine = 31,
  kInverseCosine = 32,
};

// The callers' structures are of a type for each kind, which nothing but the address is known of.
template <class Opaque>
constexpr Kind kKindOf = Kind{};
template <>
inline constexpr Kind kKindOf<KeliFFTSpec_C_32fc> = Kind::kComplexFft;
template <>
inline constexpr Kind kKindOf<KeliFFTSpec_R_32f> = Kind::kRealFft;
template <>
inline constexpr Kind kKindOf<KeliFFTSpec_R_32s> = Kind::kIntegerFft;
template <>
inline constexpr Kind kKindOf<KeliDFTSpec_C_32fc> = Kind::kComplexDft;
template <>
inline constexpr Kind kKindOf<KeliDFTSpec_R_32f> = Kind::kRealDft;
template <>
inline constexpr Kind kKindOf<KeliDFTSpec_R_32s> = Kind::kIntegerDft;
template <>
inline constexpr Kind kKindOf<KeliDCTFwdSpec_32f> = Kind::kForwardCosine;
template <>
inline constexpr Kind kKindOf<KeliDCTInvSpec_32f> = Kind::kInverseCosine;

template <class Opaque>
bool badSpec(const Opaque* spec) {
  Kind kind;
  std::memcpy(&kind, spec, sizeof kind);
  return kind != kKindOf<Opaque>;
}

}  // namespace keli::fft
