// The arguments of one call, made from the registry's roles: images from the library's allocators
// with a seeded pattern, a mask of blobs, constants.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "image.h"
#include "registry/transform_spec.h"

namespace keli::bench {

// The channel that functions of a single channel of interleaved pixels work on.
constexpr int kChannel = 1;
constexpr int kOrder[3] = {2, 1, 0};

class Frame {
 public:
  // Throws std::runtime_error if the function has an argument that no role here provides.
  Frame(const registry::Function& function, Size size, const Choices& choices);

  const Image& source(std::size_t index = 0) const { return *sources_.at(index); }
  const Image& destination() const { return *destination_; }
  const Image& mask() const { return *mask_; }
  const Image& map(std::size_t index) const { return *maps_.at(index); }
  bool hasSource() const { return !sources_.empty(); }
  bool inPlace() const { return function_.inPlace; }
  std::size_t sourceCount() const { return sources_.size(); }
  bool hasDestination() const { return destination_ != nullptr; }
  const Choices& choices() const { return choices_; }
  // The bytes of a structuring element, null where the function takes none.
  const std::uint8_t* element() const { return element_; }
  int scaleFactor() const { return choices_.scaleFactor; }
  // Level i of a histogram.
  double level(int i) const {
    return least() + (most() - least()) * static_cast<double>(i) / (choices_.levels - 1);
  }
  double constant(int channel) const { return choices_.constant * (channel + 1); }

  // Calls the function.
  KelStatus call() const { return function_(values_.data()).status; }

  // Gives the written image its state before the first call.
  void resetDestination() const;

  // What a call has answered beside images: all numbers of the first result, then of the next.
  std::vector<double> results() const;
  // Where a peer puts its own answer to the same; what it leaves a NaN is not compared.
  std::vector<double>& answer() const { return answer_; }

 private:
  bool takes(registry::Role role) const;
  Size sizeOf(const registry::Argument& argument) const;
  Margin marginOf(const registry::Argument& argument) const;
  void addImage(const registry::Argument& argument);
  void addElement();
  void addConstant(const registry::Argument& argument);
  void addArgument(const registry::Argument& argument);
  void addResult(const registry::Argument& argument);
  void addPerChannel(const registry::Argument& argument);
  void addNumber(const registry::Argument& argument, double number);
  void addSpec();
  void* addArray(std::size_t count);
  double least() const;
  double most() const;

  const registry::Function& function_;
  Size size_;
  Choices choices_;
  std::vector<std::unique_ptr<Image>> sources_;
  std::unique_ptr<Image> destination_;
  std::unique_ptr<Image> mask_;
  std::vector<std::unique_ptr<Image>> maps_;
  std::vector<std::unique_ptr<std::uint64_t[]>> arrays_;
  std::vector<registry::Value> values_;
  const std::uint8_t* element_ = nullptr;
  std::unique_ptr<registry::TransformSpec> spec_;
  int lastStep_ = 0;
  struct Result {
    registry::Type type;
    std::size_t count;
    const void* data;
  };
  std::vector<Result> results_;
  mutable std::vector<double> answer_;
};

}  // namespace keli::bench
