// Images from the library's allocators, and what they hold.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "choices.h"
#include "registry/registry.h"

namespace keli::bench {

// Rows of equally many bytes, step bytes apart.
struct Block {
  std::uint8_t* data;
  std::size_t rowBytes;
  std::size_t step;
  std::size_t rows;

  std::size_t bytes() const { return rowBytes * rows; }
};

// Pixels around a region that belong to the same image.
struct Margin {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
};

// A planar image is one allocation, one plane after another. Eight pixels of 1u are one of 8u.
class Image {
 public:
  Image(registry::Type type, Layout layout, Size size, Margin margin = {});

  registry::Type type() const { return type_; }
  Layout layout() const { return layout_; }
  int width() const { return size_.width; }
  int height() const { return size_.height; }
  int step() const { return step_; }
  int planes() const { return isPlanar(layout_) ? storedChannels(layout_) : 1; }
  int samplesPerPixel() const { return pixelSamples(layout_); }
  const Margin& margin() const { return margin_; }
  std::uint8_t* plane(int index) const;  // at the first pixel of the region
  std::uint8_t* data() const { return plane(0); }

  // The region as one block; one row if nothing separates the rows.
  Block block() const;

  void fillPattern(std::uint64_t seed, const Choices& choices = {}) const;
  void fillPhotograph(std::uint64_t seed, const Choices& choices) const;
  void fillBytes(std::uint8_t value) const;
  void fillBlobs(std::uint64_t seed) const;  // about half of the pixels 255, the others 0
  // Columns or rows of a source of the same size, all inside it.
  void fillMap(bool columns, Map map) const;

 private:
  int rows() const { return size_.height + margin_.top + margin_.bottom; }
  std::size_t allBytes() const { return static_cast<std::size_t>(step_) * rows() * planes(); }
  std::uint8_t* start() const { return static_cast<std::uint8_t*>(memory_.get()); }

  struct Free {
    void operator()(void* block) const { keliFree(block); }
  };

  registry::Type type_;
  Layout layout_;
  Size size_;
  Margin margin_;
  int step_ = 0;
  std::unique_ptr<void, Free> memory_;
};

}  // namespace keli::bench
