// OpenCV's equivalents of minimum and maximum filters and of morphology: on a part of an image it
// reads the margin around it, too.
#include "opencv.h"

namespace keli::bench {
namespace {

cv::Mat element(const Frame& f) {
  const KeliSize size = f.choices().mask;
  cv::Mat mask(size.height, size.width, CV_8U, cv::Scalar(1));
  if (f.element() != nullptr)
    cv::Mat(size.height, size.width, CV_8U, const_cast<std::uint8_t*>(f.element())).copyTo(mask);
  return mask;
}

template <void (*kOperation)(cv::InputArray, cv::OutputArray, cv::InputArray, cv::Point, int, int,
                             const cv::Scalar&)>
Work filter(const Frame& f) {
  const cv::Mat dst = mat(f.destination()), src = mat(f.source());
  const KeliSize size = f.choices().mask;
  const cv::Point anchor(size.width / 2, size.height / 2);
  return [src, dst, mask = element(f), anchor]() mutable {
    kOperation(src, dst, mask, anchor, 1, cv::BORDER_REPLICATE, cv::Scalar());
  };
}

const AddPeers kPeers({
    {"keliFilterMax_{8u,16s,32f}_C1R", "OpenCV dilate", filter<cv::dilate>},
    {"keliFilterMin_{8u,16s,32f}_{C3R,C4R}", "OpenCV erode", filter<cv::erode>},
    {"keliFilterMin_{8u,16s,32f}_AC4R", "OpenCV erode, alpha too", filter<cv::erode>},
    {"keliDilate3x3_{8u,32f}_{C1R,C3R,C4R}", "OpenCV dilate", filter<cv::dilate>},
    {"keliErode3x3_{8u,32f}_{C1R,C3R,C4R}", "OpenCV erode", filter<cv::erode>},
    {"keliErode_{8u,32f}_{C1R,C3R,C4R}", "OpenCV erode", filter<cv::erode>},
    {"keliDilate_{8u,32f}_C1R", "OpenCV dilate", filter<cv::dilate>},
});

}  // namespace
}  // namespace keli::bench
