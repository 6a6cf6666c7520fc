// Sums, sums of magnitudes and of squares, and largest magnitudes of a region or of the difference
// of two: one number for each channel.
//
// Integers are exact. 32f is summed in single precision (see FloatTotals), or in double precision
// in a fixed order: of each channel, the samples of even columns into one accumulator and those of
// odd columns into another, from row to row.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstring>
#include <type_traits>

#include "core/settled.h"
#include "core/values.h"
#include "core/walk.h"
#include "extremes/extremes.h"
#include "sums/totals.h"

namespace keli::sums {

enum class What { kSum, kL1, kL2, kInf };  // kL2: the sum of squares, whose root is the norm

struct Results {
  double value[4] = {};
};

// Arrays of results stand at any address.
template <Layout kLayout, class T>
void storeResults(const Results& results, T* to) {
  for (int k = 0; k < usedChannels(kLayout); ++k) {
    const T value = static_cast<T>(results.value[k]);
    std::memcpy(to + k, &value, sizeof(T));
  }
}

// ---- Totals of kernels ---------------------------------------------------------------------

template <What kWhat, class T>
using TotalsOf =
    std::conditional_t<std::is_same_v<T, Kel32f> && kWhat != What::kInf, FloatTotals, Totals>;

template <What kWhat, class T, Layout kLayout, int kSources>
Kernel<kSources, TotalsOf<kWhat, T>> kernelOf() {
  if constexpr (std::is_same_v<T, Kel32f>) {
    const auto& kernels = [] {
      if constexpr (kSources == 1) return floatsOfOne();
      if constexpr (kSources == 2) return floatsOfTwo();
    }();
    if constexpr (kWhat == What::kSum) return kernels.sums.template of<kLayout>();
    if constexpr (kWhat == What::kL1) return kernels.magnitudes.template of<kLayout>();
    if constexpr (kWhat == What::kL2) return kernels.squares.template of<kLayout>();
    if constexpr (kWhat == What::kInf) return kernels.largest.template of<kLayout>();
  } else if constexpr (std::is_same_v<T, Kel32s>) {
    static_assert(kWhat == What::kInf && kSources == 1);
    return largest32s().template of<kLayout>();
  } else if constexpr (std::is_same_v<T, Kel16s> && kWhat == What::kSum) {
    return signedSums().template of<kLayout>();
  } else {
    const auto& kernels = []() -> const auto& {
      if constexpr (kSources == 1) return integersOfOne<T>();
      if constexpr (kSources == 2) return integersOfTwo<T>();
    }
    ();
    if constexpr (kWhat == What::kL2) return kernels.squares.template of<kLayout>();
    if constexpr (kWhat == What::kInf) return kernels.largest.template of<kLayout>();
    if constexpr (kWhat == What::kSum || kWhat == What::kL1)
      return kernels.magnitudes.template of<kLayout>();
  }
}

template <What kWhat, class T, Layout kLayout>
Results resultsOf(const Totals& totals) {
  Results results;
  for (int k = 0; k < usedChannels(kLayout); ++k) {
    const std::uint64_t total = totals.value[k];
    if constexpr (std::is_same_v<T, Kel32f>) {
      const std::uint32_t bits = static_cast<std::uint32_t>(total);
      float largest;
      std::memcpy(&largest, &bits, sizeof(largest));
      results.value[k] = settled(static_cast<double>(largest));
    } else if constexpr (kWhat == What::kSum) {
      results.value[k] = static_cast<double>(static_cast<std::int64_t>(total));
    } else {
      results.value[k] = static_cast<double>(total);
    }
  }
  return results;
}

template <What kWhat, class T, Layout kLayout>
Results resultsOf(FloatTotals& totals) {
  constexpr std::size_t kStored = pixelSamples(kLayout);
  totals.empty();
  Results results;
  for (std::size_t i = 0; i < floatLanes(kStored); ++i)
    results.value[i % kStored] += totals.sums[i];
  for (double& value : results.value) value = settled(value);
  return results;
}

// Bands for such totals. A region without padding is one long row where that gives every sample the
// same place.
template <Layout kLayout, class Total>
bool joinsRows(std::size_t n) {
  return std::is_same_v<Total, Totals> || n % floatLanes(pixelSamples(kLayout)) == 0;
}

template <class T, Layout kLayout, class Total>
Band<1> bandOf(const T* src, int srcStep, std::size_t n, int height) {
  return joinsRows<kLayout, Total>(n) ? readBand(src, srcStep, n, height, sizeof(T))
                                      : makeBand(src, srcStep, nullptr, 0, n, height);
}

template <class T, Layout kLayout, class Total>
Band<2> bandOf(const T* src1, int src1Step, const T* src2, int src2Step, std::size_t n,
               int height) {
  return joinsRows<kLayout, Total>(n)
             ? readBand(src1, src1Step, src2, src2Step, n, height, sizeof(T))
             : makeBand(src1, src1Step, src2, src2Step, nullptr, 0, n, height);
}

// The largest magnitudes of one image of integers, from the extremes of its channels.
template <class T, Layout kLayout>
Results largestOfIntegers(const Band<1>& b) {
  using Operation = std::conditional_t<std::is_signed_v<T>, extremes::MinMax, extremes::Max>;
  extremes::Extremes<T> e;
  extremes::find<Operation, T, kLayout>(b, e);
  Results results;
  for (int k = 0; k < usedChannels(kLayout); ++k)
    results.value[k] =
        std::max(static_cast<double>(e.maxima[k]), -static_cast<double>(e.minima[k]));
  return results;
}

// ---- Double precision in a fixed order -----------------------------------------------------

template <What kWhat>
double summand(double v) {
  return kWhat == What::kSum ? v : kWhat == What::kL1 ? std::fabs(v) : v * v;
}

// difference: of the sources, in double precision, or the one source's sample.
template <What kWhat, Layout kLayout, class Sample>
Results accurate(KeliSize size, const Sample& sample) {
  constexpr std::size_t kStored = pixelSamples(kLayout), kUsed = usedChannels(kLayout);
  const std::size_t width = static_cast<std::size_t>(size.width);
  double even[kUsed] = {}, odd[kUsed] = {};
  for (std::ptrdiff_t y = 0; y < size.height; ++y) {
    const auto row = sample(y);
    std::size_t x = 0;
    for (; x + 2 <= width; x += 2) {
      for (std::size_t k = 0; k < kUsed; ++k) {
        even[k] += summand<kWhat>(row(x * kStored + k));
        odd[k] += summand<kWhat>(row((x + 1) * kStored + k));
      }
    }
    for (std::size_t k = 0; x < width && k < kUsed; ++k)
      even[k] += summand<kWhat>(row(x * kStored + k));
  }
  Results results;
  for (std::size_t k = 0; k < kUsed; ++k) results.value[k] = settled(odd[k] + even[k]);
  return results;
}

// ---- Regions -------------------------------------------------------------------------------

template <What kWhat, class T, Layout kLayout>
Results reduce(const T* src, int srcStep, KeliSize size, KelHintAlgorithm hint) {
  if constexpr (std::is_same_v<T, Kel32f> && kWhat != What::kInf) {
    if (hint == kelAlgHintAccurate) {
      return accurate<kWhat, kLayout>(size, [=](std::ptrdiff_t y) {
        const auto* const row = reinterpret_cast<const float*>(bytes(src) + y * srcStep);
        return [row](std::size_t i) { return static_cast<double>(valueAt(row, i)); };
      });
    }
  }
  TotalsOf<kWhat, T> totals;
  const Band<1> b =
      bandOf<T, kLayout, decltype(totals)>(src, srcStep, rowSamples<kLayout>(size), size.height);
  if constexpr (kWhat == What::kInf && sizeof(T) < 4) {
    return largestOfIntegers<T, kLayout>(b);
  } else {
    kernelOf<kWhat, T, kLayout, 1>()(b, &totals);
    return resultsOf<kWhat, T, kLayout>(totals);
  }
}

// Of src1 - src2.
template <What kWhat, class T, Layout kLayout>
Results reduce(const T* src1, int src1Step, const T* src2, int src2Step, KeliSize size,
               KelHintAlgorithm hint) {
  if constexpr (std::is_same_v<T, Kel32f> && kWhat != What::kInf) {
    if (hint == kelAlgHintAccurate) {
      return accurate<kWhat, kLayout>(size, [=](std::ptrdiff_t y) {
        const auto* const a = reinterpret_cast<const float*>(bytes(src1) + y * src1Step);
        const auto* const b = reinterpret_cast<const float*>(bytes(src2) + y * src2Step);
        return [a, b](std::size_t i) {
          return static_cast<double>(valueAt(a, i)) - static_cast<double>(valueAt(b, i));
        };
      });
    }
  }
  TotalsOf<kWhat, T> totals;
  kernelOf<kWhat, T, kLayout, 2>()(
      bandOf<T, kLayout, decltype(totals)>(src1, src1Step, src2, src2Step,
                                           rowSamples<kLayout>(size), size.height),
      &totals);
  return resultsOf<kWhat, T, kLayout>(totals);
}

// Both of the difference and of src2.
struct Pair {
  Results difference, second;
};

// Integers: one kernel for both.
template <What kWhat, class T, Layout kLayout>
Pair reducePairOfIntegers(const Band<2>& b) {
  const Integers<2>& kernels = integersOfBoth<T>();
  const ByChannels<2>& kinds = kWhat == What::kL1   ? kernels.magnitudes
                               : kWhat == What::kL2 ? kernels.squares
                                                    : kernels.largest;
  Totals totals[2];
  kinds.template of<kLayout>()(b, totals);
  return {resultsOf<kWhat, T, kLayout>(totals[0]), resultsOf<kWhat, T, kLayout>(totals[1])};
}

// 32f: two kernels by turns, so few rows at a time that src2's stay in the nearest cache.
template <What kWhat, Layout kLayout>
Pair reducePairOfFloats(const Band<2>& b) {
  constexpr std::size_t kBytes = 16384;  // of a source's rows at a time
  const std::size_t rows = std::max<std::size_t>(kBytes / (b.n * sizeof(Kel32f)), 1);
  TotalsOf<kWhat, Kel32f> difference, second;
  for (std::size_t y = 0; y < b.rows; y += rows) {
    const Band<2> both =
        rowsOf(b, {static_cast<int>(y), static_cast<int>(std::min(rows, b.rows - y)), nullptr});
    const Band<1> one = {{both.src[1]}, {both.srcStep[1]}, nullptr, 0, both.n, both.rows, false};
    kernelOf<kWhat, Kel32f, kLayout, 2>()(both, &difference);
    kernelOf<kWhat, Kel32f, kLayout, 1>()(one, &second);
  }
  return {resultsOf<kWhat, Kel32f, kLayout>(difference), resultsOf<kWhat, Kel32f, kLayout>(second)};
}

template <What kWhat, class T, Layout kLayout>
Pair reducePair(const T* src1, int src1Step, const T* src2, int src2Step, KeliSize size,
                KelHintAlgorithm hint) {
  const std::size_t n = rowSamples<kLayout>(size);
  if constexpr (!std::is_same_v<T, Kel32f>) {
    return reducePairOfIntegers<kWhat, T, kLayout>(
        bandOf<T, kLayout, Totals>(src1, src1Step, src2, src2Step, n, size.height));
  } else if (hint == kelAlgHintAccurate && kWhat != What::kInf) {
    return {reduce<kWhat, T, kLayout>(src1, src1Step, src2, src2Step, size, hint),
            reduce<kWhat, T, kLayout>(src2, src2Step, size, hint)};
  } else {
    return reducePairOfFloats<kWhat, kLayout>(
        makeBand(src1, src1Step, src2, src2Step, nullptr, 0, n, size.height));
  }
}

}  // namespace keli::sums
