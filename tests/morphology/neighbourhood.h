// Filters of neighbourhoods as their definition reads: every sample of the neighbourhood of every
// pixel is looked at. Images lie between inaccessible pages, with exactly the margin that may be
// read.
#pragma once

#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include "registry/registry.h"
#include "support/samples.h"

namespace keli::test {

struct Neighbourhood {
  KeliSize mask;
  KeliPoint anchor;
  std::vector<Kel8u> element;  // all bytes set where a function takes none

  bool has(int i, int j) const {
    return element[static_cast<std::size_t>(j) * static_cast<std::size_t>(mask.width) +
                   static_cast<std::size_t>(i)] != 0;
  }
};

// A region of an image and its margin, the block of memory that ends or begins with them.
class Framed {
 public:
  Framed(const registry::Argument& a, KeliSize region, const Neighbourhood& around, int padding,
         bool atEnd)
      : around_(around), pixel_(pixelSamples(a.layout)), type_(a.type) {
    bytes_ = static_cast<int>(registry::bytesOf(type_));
    step_ = (region.width + around.mask.width - 1) * pixel_ * bytes_ + padding;
    const int rows = region.height + around.mask.height - 1;
    size_ = static_cast<std::size_t>(rows - 1) * static_cast<std::size_t>(step_) +
            static_cast<std::size_t>(step_ - padding);
    arena_ = borrowArena(size_);
    block_ = atEnd ? arena_->end() - size_ : arena_->begin();
  }

  int step() const { return step_; }
  std::uint8_t* block() const { return block_; }
  std::size_t size() const { return size_; }
  std::uint8_t* at(int x, int y, int k) const {
    return block_ + (y + around_.anchor.y) * static_cast<std::ptrdiff_t>(step_) +
           ((x + around_.anchor.x) * pixel_ + k) * bytes_;
  }
  template <class T>
  T get(int x, int y, int k) const {
    T v;
    std::memcpy(&v, at(x, y, k), sizeof(T));
    return v;
  }

  void fill(Random& random) const {
    std::vector<std::uint8_t> row(size_ / static_cast<std::size_t>(bytes_) * 4 + 4);
    fillSamples(type_, row.data(), size_ / static_cast<std::size_t>(bytes_), random);
    std::memcpy(block_, row.data(), size_);
  }

  std::vector<std::uint8_t> contents() const { return {block_, block_ + size_}; }

 private:
  Neighbourhood around_;
  int pixel_;
  registry::Type type_;
  int bytes_;
  int step_;
  std::size_t size_;
  std::shared_ptr<Arena> arena_;
  std::uint8_t* block_;
};

// The order of samples: of floats -NaN, -infinity, ..., -0, +0, ..., infinity, NaN.
template <class T>
bool below(T a, T b) {
  return a < b;
}
template <>
inline bool below(Kel32f a, Kel32f b) {
  if (std::signbit(a) != std::signbit(b)) return std::signbit(a);
  std::uint32_t sizeOfA, sizeOfB;
  std::memcpy(&sizeOfA, &a, sizeof(a));
  std::memcpy(&sizeOfB, &b, sizeof(b));
  return std::signbit(a) ? sizeOfA > sizeOfB : sizeOfA < sizeOfB;
}

template <class T>
T extremeAt(const Framed& src, const Neighbourhood& n, bool least, int x, int y, int k) {
  bool first = true;
  T best = T();
  for (int j = 0; j < n.mask.height; ++j) {
    for (int i = 0; i < n.mask.width; ++i) {
      if (!n.has(i, j)) continue;
      const T v = src.get<T>(x - n.anchor.x + i, y - n.anchor.y + j, k);
      if (first || (least ? below(v, best) : below(best, v))) best = v;
      first = false;
    }
  }
  return best;
}

}  // namespace keli::test
