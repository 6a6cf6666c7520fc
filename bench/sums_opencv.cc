// OpenCV's equivalents of sums, means and norms. Its norms take all channels as one.
#include "opencv.h"

namespace keli::bench {
namespace {

void put(const Frame& f, const cv::Scalar& values) {
  for (std::size_t k = 0; k < f.answer().size(); ++k) f.answer()[k] = values[static_cast<int>(k)];
}

Work sum(const Frame& f) {
  return [&f, src = mat(f.source())] { put(f, cv::sum(src)); };
}

Work mean(const Frame& f) {
  return [&f, src = mat(f.source())] { put(f, cv::mean(src)); };
}

template <int kNorm>
Work norm(const Frame& f) {
  return [&f, src = mat(f.source())] { f.answer()[0] = cv::norm(src, kNorm); };
}

template <int kNorm>
Work normOfTwo(const Frame& f) {
  return
      [&f, a = mat(f.source(0)), b = mat(f.source(1))] { f.answer()[0] = cv::norm(a, b, kNorm); };
}

const AddPeers kPeers({
    {"keliSum_{8u,16s,32f}_{C1R,C3R}", "OpenCV sum", sum, 1e-4},
    {"keliMean_{8u,16s,32f}_C3R", "OpenCV mean", mean, 1e-4},
    {"keliNorm_Inf_{8u,16s,32f}_C1R", "OpenCV norm", norm<cv::NORM_INF>},
    {"keliNorm_Inf_32s_C1R", "OpenCV norm", norm<cv::NORM_INF>, 1e-9},
    {"keliNorm_L1_{8u,16s,32f}_C1R", "OpenCV norm", norm<cv::NORM_L1>, 1e-4},
    {"keliNorm_L2_{8u,16s,32f}_C1R", "OpenCV norm", norm<cv::NORM_L2>, 1e-4},
    {"keliNormDiff_Inf_{8u,16s,32f}_C1R", "OpenCV norm", normOfTwo<cv::NORM_INF>},
    {"keliNormDiff_L1_{8u,16s,32f}_C1R", "OpenCV norm", normOfTwo<cv::NORM_L1>, 1e-4},
    {"keliNormDiff_L2_{8u,16s,32f}_C1R", "OpenCV norm", normOfTwo<cv::NORM_L2>, 1e-4},
    {"keliNormRel_Inf_{8u,16s,32f}_C1R", "OpenCV norm", normOfTwo<cv::NORM_INF | cv::NORM_RELATIVE>,
     1e-6},
    {"keliNormRel_L1_{8u,16s,32f}_C1R", "OpenCV norm", normOfTwo<cv::NORM_L1 | cv::NORM_RELATIVE>,
     1e-4},
    {"keliNormRel_L2_{8u,16s,32f}_C1R", "OpenCV norm", normOfTwo<cv::NORM_L2 | cv::NORM_RELATIVE>,
     1e-4},
});

}  // namespace
}  // namespace keli::bench
