// OpenCV's equivalent of Mirror.
#include "opencv.h"

namespace keli::bench {
namespace {

Work flip(const Frame& f) {
  const int axis = f.choices().axis;
  const int code = axis == kelAxisHorizontal ? 0 : axis == kelAxisVertical ? 1 : -1;
  return [s = mat(f.inPlace() ? f.destination() : f.source()), d = mat(f.destination()),
          code]() mutable { cv::flip(s, d, code); };
}

const AddPeers kPeers({
    {"keliMirror_{8u,16u,32s}_{C1R,C3R,C4R,C1IR,C3IR,C4IR}", "OpenCV flip", flip},
});

}  // namespace
}  // namespace keli::bench
