// OpenCV's equivalents of copies with borders.
#include "opencv.h"

namespace keli::bench {
namespace {

template <int kType>
Work makeBorder(const Frame& f) {
  const int border = f.choices().border;
  return [s = mat(f.source()), d = mat(f.destination()), c = constants(f), border]() mutable {
    cv::copyMakeBorder(s, d, border, border, border, border, kType, c);
  };
}

const AddPeers kPeers({
    {"keliCopyConstBorder_{8u,16s,32s}_{C1R,C3R,C4R}", "OpenCV copyMakeBorder",
     makeBorder<cv::BORDER_CONSTANT>},
    {"keliCopyReplicateBorder_{8u,16s,32s}_{C1R,C3R,C4R}", "OpenCV copyMakeBorder",
     makeBorder<cv::BORDER_REPLICATE>},
    {"keliCopyWrapBorder_32s_C1R", "OpenCV copyMakeBorder", makeBorder<cv::BORDER_WRAP>},
});

}  // namespace
}  // namespace keli::bench
