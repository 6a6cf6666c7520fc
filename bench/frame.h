// The arguments of one call, made from the registry's roles: images from the library's allocators
// with a seeded pattern, a mask of blobs, constants.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "registry/registry.h"

namespace keli::bench {

// In pixels. padding: pixels of each row beyond the region.
struct Size {
  int width;
  int height;
  int padding;
};

std::string nameOf(Size size);  // "640x480", "16x16+48"

// Rows of equally many bytes, step bytes apart.
struct Block {
  std::uint8_t* data;
  std::size_t rowBytes;
  std::size_t step;
  std::size_t rows;

  std::size_t bytes() const { return rowBytes * rows; }
};

// What sources hold where that decides the speed.
enum class Content {
  kNoise,       // any values of integers, evenly spread ones of floats
  kPhotograph,  // smooth, with a little noise
  kFlat,        // one value
};

// What a row of the tables may choose about the arguments.
struct Choices {
  int scaleFactor = 0;
  double constant = 17;  // of the first channel; that of channel k is (k + 1) times as large
  bool odd = false;      // whether sources hold odd integers alone, for divisors
  double most = 256;     // what floating samples of sources stay below
  int compareOp = kelCmpLess;
  int hint = kelAlgHintFast;
  double upper = 64;  // how far the upper end of a range lies above the lower one, the constant
  int levels = 17;    // of histograms, from the least sample value to past the greatest
  Content content = Content::kNoise;
};

// A planar image is one allocation, one plane after another.
class Image {
 public:
  Image(registry::Type type, Layout layout, Size size);

  registry::Type type() const { return type_; }
  Layout layout() const { return layout_; }
  int width() const { return size_.width; }
  int height() const { return size_.height; }
  int step() const { return step_; }
  int planes() const { return isPlanar(layout_) ? storedChannels(layout_) : 1; }
  int samplesPerPixel() const { return pixelSamples(layout_); }
  std::uint8_t* plane(int index) const;
  std::uint8_t* data() const { return plane(0); }

  // The region as one block; one row if nothing separates the rows.
  Block block() const;

  void fillPattern(std::uint64_t seed, const Choices& choices = {}) const;
  void fillPhotograph(std::uint64_t seed, const Choices& choices) const;
  void fillBytes(std::uint8_t value) const;
  void fillBlobs(std::uint64_t seed) const;  // about half of the pixels 255, the others 0

 private:
  struct Free {
    void operator()(void* block) const { keliFree(block); }
  };

  registry::Type type_;
  Layout layout_;
  Size size_;
  int step_ = 0;
  std::unique_ptr<void, Free> memory_;
};

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
  bool hasSource() const { return !sources_.empty(); }
  bool inPlace() const { return function_.inPlace; }
  std::size_t sourceCount() const { return sources_.size(); }
  bool hasDestination() const { return destination_ != nullptr; }
  const Choices& choices() const { return choices_; }
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
  void addImage(const registry::Argument& argument);
  void addConstant(const registry::Argument& argument);
  void addArgument(const registry::Argument& argument);
  void addResult(const registry::Argument& argument);
  void addPerChannel(const registry::Argument& argument);
  void addNumber(const registry::Argument& argument, double number);
  void* addArray(std::size_t count);
  double least() const;
  double most() const;

  const registry::Function& function_;
  Size size_;
  Choices choices_;
  std::vector<std::unique_ptr<Image>> sources_;
  std::unique_ptr<Image> destination_;
  std::unique_ptr<Image> mask_;
  std::vector<std::unique_ptr<std::uint64_t[]>> arrays_;
  std::vector<registry::Value> values_;
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
