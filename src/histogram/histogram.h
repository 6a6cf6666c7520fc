// Frame of the histograms. Arguments have been checked. Nothing is written before all memory is at
// hand.
#pragma once

#include "core/memory.h"
#include "histogram/byte_counter.h"
#include "histogram/float_counter.h"
#include "histogram/word_counter.h"

namespace keli::histogram {

// How the samples of one channel are counted. A counter has
//   Level                      the type of its levels
//   kNeedsMemory               whether it fails without the memory that it wants
//   kNeedsOrder                whether it wants to know if the levels increase
//   memoryFor<stride>(bins, pixels, increasing)   how many bytes it wants, 0 for none
//   prepare<stride>(bins, band, increasing, memory)   the band is what will be counted
//   begin(), count<stride>(band), end()   of a chunk of fewer than 2^32 pixels: end() adds what
//                              count() has found to the bins
template <class T>
struct CounterFor;
template <>
struct CounterFor<Kel8u> {
  using Type = ByteCounter;
};
template <>
struct CounterFor<Kel16s> {
  using Type = WordCounter;
};
template <>
struct CounterFor<Kel32f> {
  using Type = FloatCounter;
};
template <class T>
using Counter = typename CounterFor<T>::Type;

// The bins of all channels, and what each counter wants.
template <class Level, int kChannels>
struct Plan {
  Bins<Level> bins[kChannels];
  bool increasing[kChannels];
  std::size_t bytes[kChannels];
};

// The band of one channel's samples.
template <class T>
Band<1> channelBand(const T* src, int srcStep, int channel, std::size_t width, std::size_t rows) {
  const std::uint8_t* const first = bytes(src) + static_cast<std::size_t>(channel) * sizeof(T);
  return makeBand(first, srcStep, nullptr, 0, width, static_cast<int>(rows));
}

// All rows, channel by channel in blocks that stay in the second-level cache.
template <class T, Layout kLayout>
void countBlocks(const T* src, int srcStep, std::size_t width, std::size_t rows,
                 Counter<T>* counters) {
  constexpr std::size_t kStride = pixelSamples(kLayout);
  if constexpr (kStride == 1) {
    counters[0].template count<1>(readBand(src, srcStep, width, static_cast<int>(rows), sizeof(T)));
  } else {
    constexpr std::size_t kPixels = 16384;
    const std::size_t most = width < kPixels ? kPixels / width : 1;
    for (std::size_t y = 0; y < rows; y += most) {
      const std::size_t count = rows - y < most ? rows - y : most;
      const std::uint8_t* const first = bytes(src) + static_cast<std::ptrdiff_t>(y) * srcStep;
      for (int k = 0; k < usedChannels(kLayout); ++k) {
        counters[k].template count<kStride>(
            channelBand(reinterpret_cast<const T*>(first), srcStep, k, width, count));
      }
    }
  }
}

// In chunks of fewer than 2^32 pixels, whose counts fit 32 bits.
template <class T, Layout kLayout>
void countRows(const T* src, int srcStep, KeliSize size, Counter<T>* counters) {
  const auto width = static_cast<std::size_t>(size.width);
  const auto height = static_cast<std::size_t>(size.height);
  const std::size_t most = 0xFFFFFFFF / width;
  const std::uint8_t* row = bytes(src);
  for (std::size_t y = 0; y < height; y += most) {
    const std::size_t rows = height - y < most ? height - y : most;
    for (int k = 0; k < usedChannels(kLayout); ++k) counters[k].begin();
    countBlocks<T, kLayout>(reinterpret_cast<const T*>(row), srcStep, width, rows, counters);
    for (int k = 0; k < usedChannels(kLayout); ++k) counters[k].end();
    row += static_cast<std::ptrdiff_t>(rows) * srcStep;
  }
}

// writeLevels: called when nothing can fail any more.
template <class T, Layout kLayout, class Level, int kChannels, class WriteLevels>
KelStatus countAll(const T* src, int srcStep, KeliSize size, Plan<Level, kChannels>& plan,
                   const WriteLevels& writeLevels) {
  static_assert(kChannels == usedChannels(kLayout));
  constexpr std::size_t kAlignment = core::kAlignment, kStride = pixelSamples(kLayout);
  const std::uint64_t pixels = pixelsOf(size);
  std::size_t sum = 0;
  for (int k = 0; k < kChannels; ++k) {
    const std::size_t wanted =
        Counter<T>::template memoryFor<kStride>(plan.bins[k].size, pixels, plan.increasing[k]);
    plan.bytes[k] = (wanted + kAlignment - 1) / kAlignment * kAlignment;
    sum += plan.bytes[k];
  }
  const core::Scratch scratch(sum);
  auto* memory = scratch.as<std::uint8_t>();
  if (Counter<T>::kNeedsMemory && sum != 0 && memory == nullptr) return kelStatusNoMemory;
  writeLevels();
  Counter<T> counters[kChannels];
  for (int k = 0; k < kChannels; ++k) {
    plan.bins[k].clear();
    const bool has = memory != nullptr && plan.bytes[k] != 0;
    counters[k].template prepare<kStride>(
        plan.bins[k],
        channelBand(src, srcStep, k, static_cast<std::size_t>(size.width),
                    static_cast<std::size_t>(size.height)),
        plan.increasing[k], has ? memory : nullptr);
    if (has) memory += plan.bytes[k];
  }
  countRows<T, kLayout>(src, srcStep, size, counters);
  return kelStatusOk;
}

template <class T, Layout kLayout, class Level>
KelStatus range(const T* src, int srcStep, KeliSize size, int* const* counts,
                const Level* const* levels, const int* nLevels) {
  constexpr int kChannels = usedChannels(kLayout);
  Plan<Level, kChannels> plan;
  for (int k = 0; k < kChannels; ++k) {
    const auto bins = static_cast<std::size_t>(valueAt(nLevels, k) - 1);
    plan.bins[k] = {valueAt(counts, k), valueAt(levels, k), bins};
    plan.increasing[k] = Counter<T>::kNeedsOrder && plan.bins[k].increasing();
  }
  return countAll<T, kLayout>(src, srcStep, size, plan, [] {});
}

template <class T, Layout kLayout, class Level>
KelStatus range(const T* src, int srcStep, KeliSize size, int* counts, const Level* levels,
                int nLevels) {
  return range<T, kLayout>(src, srcStep, size, &counts, &levels, &nLevels);
}

// The range is divided by integers, towards 0; the first bins, as many as remain, are one longer.
inline void writeEvenLevels(int* levels, int nLevels, int lower, int upper) {
  const std::int64_t bins = nLevels - 1;
  const std::int64_t range = std::int64_t{upper} - lower;
  const std::int64_t quotient = range / bins;
  std::int64_t rest = range % bins;
  std::int64_t level = lower;
  for (int k = 0; k < nLevels; ++k) {
    const int value = static_cast<int>(level);
    std::memcpy(levels + k, &value, sizeof(value));
    if (quotient >= 0) {
      level += quotient + (rest > 0 ? 1 : 0);
      --rest;
    } else {
      level += quotient - (rest < 0 ? 1 : 0);
      ++rest;
    }
  }
}

template <class T, Layout kLayout>
KelStatus even(const T* src, int srcStep, KeliSize size, int* const* counts, int* const* levels,
               const int* nLevels, const int* lower, const int* upper) {
  constexpr int kChannels = usedChannels(kLayout);
  Plan<int, kChannels> plan;
  for (int k = 0; k < kChannels; ++k) {
    const int bins = valueAt(nLevels, k) - 1;
    plan.bins[k] = {valueAt(counts, k), valueAt(levels, k), static_cast<std::size_t>(bins)};
    // No bin is empty where there are at least as many values as bins.
    plan.increasing[k] = std::int64_t{valueAt(upper, k)} - valueAt(lower, k) >= bins;
  }
  return countAll<T, kLayout>(src, srcStep, size, plan, [&] {
    for (int k = 0; k < kChannels; ++k) {
      writeEvenLevels(valueAt(levels, k), valueAt(nLevels, k), valueAt(lower, k),
                      valueAt(upper, k));
    }
  });
}

template <class T, Layout kLayout>
KelStatus even(const T* src, int srcStep, KeliSize size, int* counts, int* levels, int nLevels,
               int lower, int upper) {
  return even<T, kLayout>(src, srcStep, size, &counts, &levels, &nLevels, &lower, &upper);
}

}  // namespace keli::histogram
