// A legal call of any function of the registry, built from the roles of its arguments: images
// between inaccessible pages, random samples, parameters in range. Tests change values, run it, and
// ask what was written.
#pragma once

#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include "registry/registry.h"
#include "registry/transform_spec.h"
#include "support/samples.h"

namespace keli::test {

// Where an image lies in its arena.
enum class Place { kStart, kMiddle, kEnd };

struct Geometry {
  int width = 16;
  int height = 3;
  int padding = 0;  // bytes between rows
  Place place = Place::kMiddle;
  int offset = 0;  // bytes from an aligned address, for kMiddle
};

// The mask of a neighbourhood, and how far beyond the region it makes a function read.
struct Window {
  KeliSize mask = {1, 1};
  KeliPoint anchor = {0, 0};

  int right() const { return mask.width - 1 - anchor.x; }
  int below() const { return mask.height - 1 - anchor.y; }
};

class TestCall {
 public:
  TestCall(const registry::Function& function, const Geometry& geometry, std::uint64_t seed);

  const registry::Function& function;
  std::vector<registry::Value> values;

  registry::Result run() const { return function(values.data()); }

  // Of the image's plane that argument i describes.
  std::size_t stepOf(std::size_t argument) const { return images_[imageAt_[argument]].step; }
  std::uint8_t* planeOf(std::size_t argument, int plane) const;
  // Index of the first argument of a role, or npos.
  static constexpr std::size_t npos = static_cast<std::size_t>(-1);
  std::size_t find(registry::Role role) const;
  // The last image that is read, and the one that is written.
  std::size_t lastSource() const;
  std::size_t written() const;

  // All that the call writes: the samples of an image, and results.
  std::vector<std::uint8_t> outcome() const;
  // A result of channel k, or entry k of a histogram's one channel.
  template <class T>
  T result(std::size_t argument, std::size_t k = 0) const {
    T value;
    std::memcpy(&value, static_cast<const T*>(values[argument].p) + k, sizeof(T));
    return value;
  }

  // The samples of an image, row after row without what lies between, with the pixels around the
  // region that are read.
  std::vector<std::uint8_t> samples(std::size_t argument) const;
  void setSamples(std::size_t argument, const std::vector<std::uint8_t>& samples);
  // Those of the region alone.
  std::vector<std::uint8_t> region(std::size_t argument) const;
  void setRegion(std::size_t argument, const std::vector<std::uint8_t>& samples);

  // A transform's specification, if it takes one.
  const registry::TransformSpec* spec() const { return spec_.get(); }
  const Window& window() const { return window_; }
  // Of an image, without the pixels around the region.
  KeliSize sizeOf(std::size_t argument) const { return images_[imageAt_[argument]].region; }

  // Moves all images to rows with an inaccessible page before each of them, or after.
  void fence(bool atEnd);

  // Empty if no byte has changed since construction (or since remember()) in any image or array but
  // those samples that the function may write; else what has changed.
  std::string strayWrites() const;
  // Empty if no byte at all has changed.
  std::string anyWrites() const;
  void remember();

 private:
  struct Image {
    std::size_t argument;
    std::vector<std::uint8_t*> planes;  // at the first pixel of the region
    KeliSize region;
    std::size_t step;
    std::size_t pixel;     // bytes from one pixel to the next
    std::size_t used;      // bytes of a pixel that belong to the function
    std::size_t rowBytes;  // from the first to the last byte of a row's pixels in the region
    Window around;         // what is read beside the region
    std::size_t inset;     // bytes from the first pixel that is read to the region
  };
  // Rows of bytes with a step between them.
  struct Area {
    std::uint8_t* data;
    std::size_t rowBytes;
    std::size_t rows;
  };

  void chooseWindow(Random random);
  void chooseSource(Random random);
  Image shapeOf(std::size_t argument, const Geometry& g) const;
  static std::size_t insetOf(const Image& image);
  std::vector<Area> regionsOf(std::size_t argument) const;
  std::vector<Area> areasOf(std::size_t argument) const;
  void addImage(std::size_t argument, const Geometry& g, Random& random);
  void pointTo(const Image& image);
  void fillRow(const Image& image, std::uint8_t* row, std::size_t rowBytes, Random& random) const;
  void addElement(std::size_t argument, const Geometry& g, Random& random);
  std::uint8_t* addArray(std::size_t argument, std::size_t count, const Geometry& g,
                         const void* data);
  void addConstants(std::size_t argument, const Geometry& g, Random& random);
  void addNumbers(std::size_t argument, const Geometry& g, const int (&numbers)[4]);
  void addResult(std::size_t argument, std::size_t count, const Geometry& g);
  void addPerChannel(std::size_t argument, const Geometry& g, Random& random);
  void addBuffer(std::size_t argument, const Geometry& g, Random& random);
  std::uint8_t* place(std::size_t count, const Geometry& g);
  template <class F>
  void forWritable(const std::uint8_t* begin, const std::uint8_t* end, const F& f) const;
  std::string changes(bool all) const;

  KeliSize size_;
  Window window_;
  KeliSize sourceSize_;
  KeliRect sourceRect_;
  KeliPoint border_ = {0, 0};
  int bitOffset_ = 0;
  std::vector<Image> images_;
  std::vector<std::size_t> imageAt_;  // by argument
  std::vector<std::shared_ptr<Arena>> arenas_;
  std::vector<std::shared_ptr<FencedRows>> fences_;
  std::vector<std::vector<std::uint8_t>> before_;
  std::vector<std::unique_ptr<const void*[]>> planeArrays_;
  struct Written {
    const std::uint8_t* data;
    std::size_t size;
  };
  std::vector<Written> results_;
  std::unique_ptr<registry::TransformSpec> spec_;
  Written buffer_ = {};
  std::uint8_t upper_[4 * 8] = {};  // the upper ends of a range whose lower ones are drawn
  int levelCounts_[4] = {};
};

// Whether the function's entry names a check.
bool checks(const registry::Function& function, registry::Check check);

}  // namespace keli::test
