// Scratch memory of transforms, and the way of images of several channels through an image of one.
#pragma once

#include <algorithm>

#include "core/band.h"
#include "core/memory.h"
#include "data/copy_rows.h"

namespace keli::fft {

// A call's scratch from a cache line on: the caller's, or memory of its own if that is null.
// bytes: that are used from there on.
class Buffer {
 public:
  Buffer(void* given, std::size_t bytes)
      : own_(given == nullptr ? bytes : 0),
        data_(given == nullptr ? own_.as<std::uint8_t>() : core::firstLine(given)) {}
  // Null if there is no memory.
  std::uint8_t* data() const { return data_; }

 private:
  const core::Scratch own_;
  std::uint8_t* const data_;
};

// The two images of a transform of one channel.
struct Image {
  const void* src;
  int srcStep;
  void* dst;
  int dstStep;
};

inline void copyChannel(data::CopyBand kernel, const void* src, int srcStep, std::size_t srcPixel,
                        void* dst, int dstStep, std::size_t dstPixel, KeliSize size) {
  Band<1> b =
      makeBand(src, srcStep, dst, dstStep, static_cast<std::size_t>(size.width), size.height);
  layOut(b, {srcPixel, dstPixel});
  kernel(b);
}

// run(image) for each of the first `used` of `channels` interleaved channels of floats: the image
// itself if it has one, else `plane`, to which and from which the channel is copied.
template <class Run>
void forChannels(const Image& image, KeliSize size, int channels, int used, void* plane,
                 const Run& run) {
  if (channels == 1) return run(image);
  const data::CopyChannelsRows& copy = data::copyChannelsRows();
  const auto take = (channels == 3 ? copy.c3c1 : copy.c4c1).get<Kel32f>();
  const auto put = (channels == 3 ? copy.c1c3 : copy.c1c4).get<Kel32f>();
  constexpr std::size_t kSample = sizeof(Kel32f);
  const int step = size.width * static_cast<int>(kSample);
  const std::size_t pixel = static_cast<std::size_t>(channels) * kSample;
  for (std::size_t k = 0; k < static_cast<std::size_t>(used); ++k) {
    copyChannel(take, bytes(image.src) + k * kSample, image.srcStep, pixel, plane, step, kSample,
                size);
    run({plane, step, plane, step});
    copyChannel(put, plane, step, kSample, bytes(image.dst) + k * kSample, image.dstStep, pixel,
                size);
  }
}

}  // namespace keli::fft
