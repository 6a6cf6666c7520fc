// An element as runs of its rows: which windows they need, and where they lie.
#pragma once

#include <algorithm>
#include <iterator>

#include "morphology/plan.h"

namespace keli::morphology {

struct Mask {
  const Kel8u* bytes;
  std::size_t step;  // bytes from one row to the next
  std::size_t width;
  std::size_t height;

  // Calls f(row, start, length) for every run of bytes that are set.
  template <class F>
  void eachRun(const F& f) const {
    for (std::size_t y = 0; y < height; ++y) {
      const Kel8u* const row = bytes + y * step;
      for (std::size_t x = 0; x < width; ++x) {
        const std::size_t start = x;
        while (x < width && row[x] != 0) ++x;
        if (x > start) f(y, start, x - start);
      }
    }
  }

  bool full() const {
    std::size_t runs = 0, whole = 0;
    eachRun([&](std::size_t, std::size_t, std::size_t length) {
      ++runs;
      whole += length == width;
    });
    return runs == height && whole == height;
  }
};

// The smallest part that has all bytes that are set, of which there is one; anchor is moved with
// it.
inline Mask cropped(const Kel8u* bytes, KeliSize size, KeliPoint& anchor) {
  const Mask all = {bytes, std::size_t(size.width), std::size_t(size.width),
                    std::size_t(size.height)};
  std::size_t left = all.width, right = 0, top = all.height, bottom = 0;
  all.eachRun([&](std::size_t y, std::size_t start, std::size_t length) {
    left = std::min(left, start);
    right = std::max(right, start + length);
    top = std::min(top, y);
    bottom = y + 1;
  });
  anchor.x -= static_cast<int>(left);
  anchor.y -= static_cast<int>(top);
  return {bytes + top * all.step + left, all.step, right - left, bottom - top};
}

// The lengths of windows that an element's runs are made of, rising from 1.
class Lengths {
 public:
  // Those of the runs themselves, and such between them as leave no step too long. False if there
  // are more than `most`.
  bool ofRuns(const Mask& mask, std::size_t most) {
    count_ = 1;
    bool fit = true;
    mask.eachRun([&](std::size_t, std::size_t, std::size_t length) {
      std::size_t* const at = std::lower_bound(length_, length_ + count_, length);
      if (!fit || (at != length_ + count_ && *at == length)) return;
      fit = count_ < most;
      if (fit) insert(at, length);
    });
    for (std::size_t i = 1; fit && i < count_; ++i) {
      if (length_[i] <= kMostStarts * length_[i - 1]) continue;
      fit = count_ < most;
      if (fit) insert(length_ + i, kMostStarts * length_[i - 1]);
    }
    return fit;
  }

  // Powers of two; two windows make a run of any other length.
  void powersOfTwo(std::size_t longest) {
    count_ = 1;
    while (2 * length_[count_ - 1] <= longest) {
      length_[count_] = 2 * length_[count_ - 1];
      ++count_;
    }
  }

  std::size_t count() const { return count_; }
  std::size_t operator[](std::size_t i) const { return length_[i]; }
  // The longest that is no longer than a run.
  std::size_t within(std::size_t run) const {
    return static_cast<std::size_t>(std::upper_bound(length_, length_ + count_, run) - length_) - 1;
  }

 private:
  void insert(std::size_t* at, std::size_t length) {
    std::copy_backward(at, length_ + count_, length_ + count_ + 1);
    *at = length;
    ++count_;
  }

  std::size_t length_[kMostSteps] = {1};
  std::size_t count_ = 1;
};

inline std::size_t countChords(const Mask& mask, const Lengths& lengths) {
  std::size_t count = 0;
  mask.eachRun([&](std::size_t, std::size_t, std::size_t run) {
    count += lengths[lengths.within(run)] == run ? 1 : 2;
  });
  return count;
}

inline void makeChords(const Mask& mask, const Lengths& lengths, std::size_t channels,
                       Chord* chords) {
  mask.eachRun([&](std::size_t row, std::size_t start, std::size_t run) {
    const std::size_t step = lengths.within(run), rest = run - lengths[step];
    *chords++ = {row, start * channels, step};
    if (rest != 0) *chords++ = {row, (start + rest) * channels, step};
  });
}

inline void makeElementSteps(const Mask& mask, const Lengths& lengths, std::size_t channels,
                             Element& e) {
  e.height = mask.height;
  e.steps = lengths.count();
  e.firstStep = e.steps > 1 ? 1 : 0;
  mask.eachRun([&](std::size_t, std::size_t, std::size_t run) {
    if (lengths.within(run) == 0) e.firstStep = 0;
  });
  e.step[0] = makeStep(1, 1, channels);
  e.step[0].rest = (mask.width - 1) * channels;
  for (std::size_t i = 1; i < e.steps; ++i) {
    e.step[i] = makeStep(lengths[i - 1], lengths[i], channels);
    e.step[i].rest = (mask.width - lengths[i]) * channels;
  }
}

}  // namespace keli::morphology
