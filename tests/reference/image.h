// Images as the definitions of the functions see them: samples by column, row and channel, whatever
// the layout. For the reference implementations, which share nothing with the library's kernels.
#pragma once

#include <cstring>

#include "support/test_call.h"

namespace keli::test {

class ImageView {
 public:
  // Of an image argument of a call; an argument that addresses one channel has that channel alone.
  ImageView(const TestCall& call, std::size_t argument)
      : bytes_(registry::bytesOf(typeOf(call, argument))) {
    const registry::Argument& a = call.function.arguments[argument];
    const bool channel =
        a.role == registry::Role::kSourceChannel || a.role == registry::Role::kDestinationChannel;
    planar_ = isPlanar(a.layout);
    pixel_ = static_cast<std::size_t>(pixelSamples(a.layout));
    channels_ = channel ? 1 : usedChannels(a.layout);
    step_ = call.stepOf(argument);
    for (int k = 0; k < (planar_ ? channels_ : 1); ++k) planes_[k] = call.planeOf(argument, k);
  }

  int channels() const { return channels_; }
  std::size_t sampleBytes() const { return bytes_; }

  // Pixels before the first of the region are those left of it and above.
  std::uint8_t* at(int x, int y, int k) const {
    std::uint8_t* const row = planes_[planar_ ? k : 0] + y * static_cast<std::ptrdiff_t>(step_);
    const std::ptrdiff_t sample = x * static_cast<std::ptrdiff_t>(pixel_) + (planar_ ? 0 : k);
    return row + sample * static_cast<std::ptrdiff_t>(bytes_);
  }

  template <class T>
  T get(int x, int y, int k) const {
    T v;
    std::memcpy(&v, at(x, y, k), sizeof(T));
    return v;
  }

  template <class T>
  void set(int x, int y, int k, T v) const {
    std::memcpy(at(x, y, k), &v, sizeof(T));
  }

 private:
  static registry::Type typeOf(const TestCall& call, std::size_t i) {
    return call.function.arguments[i].type;
  }

  std::uint8_t* planes_[4] = {};
  std::size_t bytes_;
  std::size_t pixel_;
  std::size_t step_;
  int channels_;
  bool planar_;
};

}  // namespace keli::test
