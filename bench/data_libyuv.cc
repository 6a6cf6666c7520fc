// libyuv's equivalents of copy, set and channel exchange. The library knows 8-bit samples; planes
// of others are copied as bytes, and 4-byte pixels are filled as such.
#include <libyuv.h>

#include <cstring>

#include "samples.h"
#include "tables.h"

#define KELI_BENCH_TEXT_OF(x) #x
#define KELI_BENCH_TEXT(x) KELI_BENCH_TEXT_OF(x)

namespace keli::bench {
namespace {

const AddLibrary kLibyuv({"libyuv", KELI_BENCH_TEXT(LIBYUV_VERSION), [](int) {}});

using Convert = int (*)(const std::uint8_t* from, int fromStep, std::uint8_t* to, int toStep,
                        int width, int height);

template <Convert kConvert>
Work convert(const Frame& f) {
  return [s = &f.source(), d = &f.destination()] {
    kConvert(s->data(), s->step(), d->data(), d->step(), s->width(), s->height());
  };
}

Work copyPlane(const Frame& f) {
  const int bytes = static_cast<int>(registry::bytesOf(f.source().type())) *
                    f.source().samplesPerPixel() * f.source().width();
  return [s = &f.source(), d = &f.destination(), bytes] {
    libyuv::CopyPlane(s->data(), s->step(), d->data(), d->step(), bytes, s->height());
  };
}

Work setPlane(const Frame& f) {
  const auto value = static_cast<std::uint32_t>(f.constant(0));
  return [d = &f.destination(), value] {
    libyuv::SetPlane(d->data(), d->step(), d->width(), d->height(), value);
  };
}

Work fillRectangle(const Frame& f) {
  const Image& image = f.destination();
  std::uint32_t pixel = 0;
  for (int k = 0; k < image.samplesPerPixel(); ++k) {
    storeSample(image.type(), &pixel, k, f.constant(k));
  }
  return [d = &image, pixel] {
    libyuv::ARGBRect(d->data(), d->step(), 0, 0, d->width(), d->height(), pixel);
  };
}

Work splitThree(const Frame& f) {
  return [s = &f.source(), d = &f.destination()] {
    libyuv::SplitRGBPlane(s->data(), s->step(), d->plane(0), d->step(), d->plane(1), d->step(),
                          d->plane(2), d->step(), s->width(), s->height());
  };
}

Work mergeThree(const Frame& f) {
  return [s = &f.source(), d = &f.destination()] {
    libyuv::MergeRGBPlane(s->plane(0), s->step(), s->plane(1), s->step(), s->plane(2), s->step(),
                          d->data(), d->step(), s->width(), s->height());
  };
}

// The library's four-channel pixels are blue, green, red, alpha in memory.
Work splitFour(const Frame& f) {
  return [s = &f.source(), d = &f.destination()] {
    libyuv::SplitARGBPlane(s->data(), s->step(), d->plane(2), d->step(), d->plane(1), d->step(),
                           d->plane(0), d->step(), d->plane(3), d->step(), s->width(), s->height());
  };
}

Work mergeFour(const Frame& f) {
  return [s = &f.source(), d = &f.destination()] {
    libyuv::MergeARGBPlane(s->plane(2), s->step(), s->plane(1), s->step(), s->plane(0), s->step(),
                           s->plane(3), s->step(), d->data(), d->step(), s->width(), s->height());
  };
}

Work swapInPlace(const Frame& f) {
  return [d = &f.destination()] {
    libyuv::RAWToRGB24(d->data(), d->step(), d->data(), d->step(), d->width(), d->height());
  };
}

// Three to four channels, and the exchange in four, write the fourth sample too, where the
// functions on AC4 leave it alone.
const AddPeers kPeers({
    {"keliCopy_{8u,16s,32f}_{C1R,C3R,C4R}", "libyuv CopyPlane", copyPlane},
    {"keliCopy_8u_AC4C3R", "libyuv ARGBToRGB24", convert<libyuv::ARGBToRGB24>},
    {"keliCopy_8u_C3AC4R", "libyuv RGB24ToARGB, alpha set", convert<libyuv::RGB24ToARGB>},
    {"keliCopy_8u_C3P3R", "libyuv SplitRGBPlane", splitThree},
    {"keliCopy_8u_C4P4R", "libyuv SplitARGBPlane", splitFour},
    {"keliCopy_8u_P3C3R", "libyuv MergeRGBPlane", mergeThree},
    {"keliCopy_8u_P4C4R", "libyuv MergeARGBPlane", mergeFour},
    {"keliSet_8u_C1R", "libyuv SetPlane", setPlane},
    {"keliSet_8u_C4R", "libyuv ARGBRect", fillRectangle},
    {"keliSet_32f_C1R", "libyuv ARGBRect", fillRectangle},
    {"keliSwapChannels_8u_C3R", "libyuv RAWToRGB24", convert<libyuv::RAWToRGB24>},
    {"keliSwapChannels_8u_AC4R", "libyuv ARGBToABGR, alpha copied", convert<libyuv::ARGBToABGR>},
    {"keliSwapChannels_8u_C3IR", "libyuv RAWToRGB24", swapInPlace},
});

}  // namespace
}  // namespace keli::bench
