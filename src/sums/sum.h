// Frames of Sum and Mean. Arguments have been checked.
#pragma once

#include "core/checks.h"
#include "sums/reduce.h"

namespace keli::sums {

template <class T, Layout kLayout>
KelStatus sum(const T* src, int srcStep, KeliSize size, Kel64f* result,
              KelHintAlgorithm hint = kelAlgHintNone) {
  storeResults<kLayout>(reduce<What::kSum, T, kLayout>(src, srcStep, size, hint), result);
  return kelStatusOk;
}

// One division for one channel, a product with the reciprocal for several.
template <class T, Layout kLayout>
KelStatus mean(const T* src, int srcStep, KeliSize size, Kel64f* result,
               KelHintAlgorithm hint = kelAlgHintNone) {
  Results results = reduce<What::kSum, T, kLayout>(src, srcStep, size, hint);
  const double pixels = static_cast<double>(std::int64_t{size.width} * size.height);
  const double reciprocal = 1.0 / pixels;
  for (double& value : results.value)
    value = kLayout == Layout::C1 ? value / pixels : value * reciprocal;
  storeResults<kLayout>(results, result);
  return kelStatusOk;
}

}  // namespace keli::sums
