// OpenCV's headers over the images of a call.
#include "opencv.h"

#include <stdexcept>

namespace keli::bench {
namespace {

const AddLibrary kOpencv({"OpenCV", CV_VERSION, [](int threads) { cv::setNumThreads(threads); }});

int depthOf(registry::Type type) {
  using registry::Type;
  switch (type) {
    case Type::k8u:
      return CV_8U;
    case Type::k8s:
      return CV_8S;
    case Type::k16u:
      return CV_16U;
    case Type::k16s:
      return CV_16S;
    case Type::k32s:
      return CV_32S;
    case Type::k32f:
      return CV_32F;
    case Type::k64f:
      return CV_64F;
    default:
      throw std::runtime_error(std::string("OpenCV has no samples ") + nameOf(type));
  }
}

cv::Mat matOfDepth(const Image& image, int depth, int plane) {
  const Margin& m = image.margin();
  const int type = CV_MAKETYPE(depth, image.samplesPerPixel());
  std::uint8_t* const corner = image.plane(plane) -
                               m.top * static_cast<std::ptrdiff_t>(image.step()) -
                               m.left * static_cast<std::ptrdiff_t>(CV_ELEM_SIZE(type));
  const cv::Mat all(image.height() + m.top + m.bottom, image.width() + m.left + m.right, type,
                    corner, image.step());
  return all(cv::Rect(m.left, m.top, image.width(), image.height()));
}

}  // namespace

cv::Mat mat(const Image& image, int plane) {
  return matOfDepth(image, depthOf(image.type()), plane);
}

cv::Mat matOfBits(const Image& image) {
  const int depth = depthOf(image.type());
  return matOfDepth(image, depth == CV_16S ? CV_16U : depth, 0);
}

std::vector<cv::Mat> planes(const Image& image) {
  std::vector<cv::Mat> result;
  for (int k = 0; k < image.planes(); ++k) result.push_back(mat(image, k));
  return result;
}

cv::Scalar constants(const Frame& frame) {
  return {frame.constant(0), frame.constant(1), frame.constant(2), frame.constant(3)};
}

}  // namespace keli::bench
