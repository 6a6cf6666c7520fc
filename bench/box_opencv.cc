// OpenCV's box filter, which rounds integers to nearest.
#include "opencv.h"

namespace keli::bench {
namespace {

Work blur(const Frame& f) {
  const KeliSize mask = f.choices().mask;
  return [s = mat(f.source()), d = mat(f.destination()),
          size = cv::Size(mask.width, mask.height)]() mutable { cv::blur(s, d, size); };
}

const AddPeers kPeers({
    {"keliFilterBox_{8u,16s}_{C1R,C3R,C4R}", "OpenCV blur", blur, 1},
    {"keliFilterBox_32f_{C1R,C3R,C4R}", "OpenCV blur", blur, 1e-3},
});

}  // namespace
}  // namespace keli::bench
