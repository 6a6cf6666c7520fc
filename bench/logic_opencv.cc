// OpenCV's equivalents of the bitwise operations and shifts.
#include <cmath>

#include "opencv.h"

namespace keli::bench {
namespace {

using Operation = void (*)(cv::InputArray, cv::InputArray, cv::OutputArray, cv::InputArray);

template <Operation kOperation>
Work twoImages(const Frame& f) {
  return [a = mat(f.source(0)), b = mat(f.source(1)), d = mat(f.destination())]() mutable {
    kOperation(a, b, d, cv::noArray());
  };
}

template <Operation kOperation>
Work inPlace(const Frame& f) {
  return [a = mat(f.source()), d = mat(f.destination())]() mutable {
    kOperation(a, d, d, cv::noArray());
  };
}

template <Operation kOperation>
Work imageAndConstant(const Frame& f) {
  return [s = mat(f.source()), c = constants(f), d = mat(f.destination())]() mutable {
    kOperation(s, c, d, cv::noArray());
  };
}

Work invert(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination())]() mutable { cv::bitwise_not(s, d); };
}

// floor(src / 2^count) is src - (2^count - 1) / 2 over 2^count, rounded to nearest: never a tie.
Work halve(const Frame& f) {
  const double scale = std::exp2(-f.constant(0));
  return [s = mat(f.source()), d = mat(f.destination()), scale]() mutable {
    s.convertTo(d, -1, scale, (scale - 1) / 2);
  };
}

// The fourth samples of AC4 are written too, where the functions leave them alone.
const AddPeers kPeers({
    {"keliAnd_8u_{C1R,C3R}", "OpenCV bitwise_and", twoImages<cv::bitwise_and>},
    {"keliAnd_{8u,16u,32s}_AC4R", "OpenCV bitwise_and, alpha too", twoImages<cv::bitwise_and>},
    {"keliAnd_8u_C1IR", "OpenCV bitwise_and", inPlace<cv::bitwise_and>},
    {"keliOr_8u_C1R", "OpenCV bitwise_or", twoImages<cv::bitwise_or>},
    {"keliXor_8u_C1R", "OpenCV bitwise_xor", twoImages<cv::bitwise_xor>},
    {"keliAndC_8u_C1R", "OpenCV bitwise_and", imageAndConstant<cv::bitwise_and>},
    {"keliOrC_8u_C1R", "OpenCV bitwise_or", imageAndConstant<cv::bitwise_or>},
    {"keliXorC_8u_C1R", "OpenCV bitwise_xor", imageAndConstant<cv::bitwise_xor>},
    {"keliNot_8u_C1R", "OpenCV bitwise_not", invert},
    {"keliAndC_{8u,16u,32s}_{C3R,C4R}", "OpenCV bitwise_and", imageAndConstant<cv::bitwise_and>},
    {"keliAndC_{8u,16u,32s}_AC4R", "OpenCV bitwise_and, alpha too",
     imageAndConstant<cv::bitwise_and>},
    {"keliRShiftC_{8u,8s,16u,16s,32s}_C1R", "OpenCV convertTo", halve},
});

}  // namespace
}  // namespace keli::bench
