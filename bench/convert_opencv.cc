// OpenCV's equivalents of conversions and scalings. It rounds to nearest alone, so where fractions
// are cut off results differ by 1, and it scales in single precision, with roundings of its own.
#include <cmath>

#include "opencv.h"

namespace keli::bench {
namespace {

Work converting(const Frame& f, double factor, double offset) {
  return [s = mat(f.source()), d = mat(f.destination()), factor, offset]() mutable {
    s.convertTo(d, d.depth(), factor, offset);
  };
}

Work convert(const Frame& f) { return converting(f, 1, 0); }

// The whole range of integers.
double least(const Image& image) {
  using registry::Type;
  return image.type() == Type::k16s ? -32768 : image.type() == Type::k32s ? -0x1p31 : 0;
}
double span(const Image& image) {
  return std::exp2(8.0 * static_cast<double>(registry::bytesOf(image.type()))) - 1;
}

Work scale(const Frame& f) {
  const double factor = span(f.destination()) / span(f.source());
  return converting(f, factor, least(f.destination()) - factor * least(f.source()));
}

Work toRange(const Frame& f) { return converting(f, f.choices().most / 255, 0); }
Work fromRange(const Frame& f) { return converting(f, 255 / f.choices().most, 0); }

const AddPeers kPeers({
    {"keliConvert_{8u16u,8u16s,8u32s,8s32s,8u32f,8s32f,16u32f,16s32f}_C1R", "OpenCV convertTo",
     convert},
    {"keliConvert_8u32f_{C3R,C4R}", "OpenCV convertTo", convert},
    {"keliConvert_{16u8u,16s8u,32s8u,32s8s}_C1R", "OpenCV convertTo", convert},
    {"keliConvert_32f8u_{C3R,C4R}", "OpenCV convertTo", convert},
    {"keliConvert_{32f8u,32f8s,32f16u,32f16s}_C1R", "OpenCV convertTo", convert, 1},
    {"keliScale_{8u16u,8u16s}_C1R", "OpenCV convertTo", scale},
    {"keliScale_8u32s_C1R", "OpenCV convertTo", scale, 256},
    {"keliScale_{16u8u,16s8u,32s8u}_C1R", "OpenCV convertTo", scale, 1},
    {"keliScale_8u32f_C1R", "OpenCV convertTo", toRange, 1e-4},
    {"keliScale_32f8u_C1R", "OpenCV convertTo", fromRange, 1},
});

}  // namespace
}  // namespace keli::bench
