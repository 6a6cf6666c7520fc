// The arguments of a call that are neither images, steps nor the region: numbers from options, and
// memory for results.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "options.h"
#include "registry/registry.h"
#include "results.h"

namespace keli::tool {

class Numbers {
 public:
  // Reads the levels of histograms, or how many there are to be.
  Numbers(const registry::Function& function, const Options& options);

  // Of argument i; what it points to lives as long as this.
  registry::Value valueOf(std::size_t i);

  // The mask of a neighbourhood, and the pixel of it that lies on the result.
  KeliSize maskSize() const;
  KeliPoint anchor() const;

  // After the call: what it has counted, channel by channel.
  std::vector<Histogram> histograms() const;
  // After the call: all results, with or without the histograms.
  void print(bool withHistograms) const;

 private:
  void countLevels(const registry::Argument& a);
  void readLevels(const registry::Argument& a);
  std::vector<registry::Value> onePerChannel(const registry::Argument& a) const;
  registry::Value perChannel(const registry::Argument& a);
  std::int64_t wordOf(const registry::Argument& a) const;
  const void* element(const registry::Argument& a);
  registry::Value numbersOf(const registry::Argument& a);
  registry::Value inMemory(registry::Type type, const std::vector<registry::Value>& numbers);
  const void* newArray(std::size_t bytes);
  const void* arraysFor(std::size_t i);

  const registry::Function& function_;
  const Options& options_;
  std::deque<std::vector<unsigned char>> arrays_;
  std::vector<std::vector<const void*>> outputs_;  // by argument, for each channel
  std::vector<int> levelCounts_;
  std::vector<std::vector<registry::Value>> levels_;
};

}  // namespace keli::tool
