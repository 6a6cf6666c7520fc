// Frames of the norms of an image, of a difference, and of a difference relative to its second
// image. Arguments have been checked.
#pragma once

#include "sums/reduce.h"

namespace keli::norms {

using sums::Results;
using sums::What;

constexpr What kInf = What::kInf, kL1 = What::kL1, kL2 = What::kL2;

template <What kNorm>
Results finished(Results results) {
  for (double& value : results.value) value = kNorm == kL2 ? std::sqrt(value) : value;
  return results;
}

template <What kNorm, class T, Layout kLayout>
KelStatus norm(const T* src, int srcStep, KeliSize size, Kel64f* result,
               KelHintAlgorithm hint = kelAlgHintNone) {
  const Results results = sums::reduce<kNorm, T, kLayout>(src, srcStep, size, hint);
  sums::storeResults<kLayout>(finished<kNorm>(results), result);
  return kelStatusOk;
}

template <What kNorm, class T, Layout kLayout>
KelStatus difference(const T* src1, int src1Step, const T* src2, int src2Step, KeliSize size,
                     Kel64f* result, KelHintAlgorithm hint = kelAlgHintNone) {
  const Results results =
      sums::reduce<kNorm, T, kLayout>(src1, src1Step, src2, src2Step, size, hint);
  sums::storeResults<kLayout>(finished<kNorm>(results), result);
  return kelStatusOk;
}

// Where the norm of the second image is no normal number in some channel, no channel is divided.
template <What kNorm, class T, Layout kLayout>
KelStatus relative(const T* src1, int src1Step, const T* src2, int src2Step, KeliSize size,
                   Kel64f* result, KelHintAlgorithm hint = kelAlgHintNone) {
  // One root of the quotient of sums, for this one member.
  constexpr bool kRootLast = kNorm == kL2 && std::is_same_v<T, Kel16s> && kLayout == Layout::C1;
  const sums::Pair pair =
      sums::reducePair<kNorm, T, kLayout>(src1, src1Step, src2, src2Step, size, hint);
  Results results = finished<kNorm>(pair.difference);
  const Results second = kRootLast ? pair.second : finished<kNorm>(pair.second);
  bool divides = true;
  for (int k = 0; k < usedChannels(kLayout); ++k)
    divides = divides && second.value[k] >= std::numeric_limits<double>::min();
  for (int k = 0; divides && k < usedChannels(kLayout); ++k) {
    results.value[k] = kRootLast ? std::sqrt(pair.difference.value[k] / second.value[k])
                                 : results.value[k] / second.value[k];
  }
  sums::storeResults<kLayout>(results, result);
  return divides ? kelStatusOk : kelStatusDivByZeroWarning;
}

}  // namespace keli::norms
