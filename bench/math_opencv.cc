// OpenCV's equivalents of the functions of one operand.
#include "opencv.h"

namespace keli::bench {
namespace {

Work absdiff(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination())]() mutable {
    cv::absdiff(s, cv::Scalar::all(0), d);
  };
}

template <int kScaleFactor>
Work multiply(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination())]() mutable {
    cv::multiply(s, s, d, 1.0 / (1 << kScaleFactor));
  };
}

Work sqrt(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination())]() mutable { cv::sqrt(s, d); };
}

Work log(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination())]() mutable { cv::log(s, d); };
}

Work exp(const Frame& f) {
  return [s = mat(f.source()), d = mat(f.destination())]() mutable { cv::exp(s, d); };
}

// A table of the function's own results.
template <KelStatus (*kFunction)(const Kel8u*, int, Kel8u*, int, KeliSize, int), int kScaleFactor>
Work lookUp(const Frame& f) {
  cv::Mat table(1, 256, CV_8U);
  for (int v = 0; v < 256; ++v) table.at<std::uint8_t>(v) = static_cast<std::uint8_t>(v);
  kFunction(table.data, 256, table.data, 256, {256, 1}, kScaleFactor);
  return [s = mat(f.source()), d = mat(f.destination()), table]() mutable { cv::LUT(s, table, d); };
}

// Products of 16 bits are rounded to single precision first. Logarithms are near 5, exponentials
// below e^16.
const AddPeers kPeers({
    {"keliAbs_{16s,32f}_C1R", "OpenCV absdiff", absdiff},
    {"keliSqr_8u_C1RSfs", "OpenCV multiply", multiply<0>},
    {"keliSqr_8u_C4RSfs", "OpenCV multiply", multiply<8>},
    {"keliSqr_{16u,16s}_C1RSfs", "OpenCV multiply", multiply<0>, 1},
    {"keliSqr_{16u,16s}_C3RSfs", "OpenCV multiply", multiply<1>, 1},
    {"keliSqr_{16u,16s}_C4RSfs", "OpenCV multiply", multiply<8>, 1},
    {"keliSqr_32f_C1R", "OpenCV multiply", multiply<0>},
    {"keliSqrt_8u_C1RSfs", "OpenCV LUT", lookUp<keliSqrt_8u_C1RSfs, 0>},
    {"keliSqrt_32f_C1R", "OpenCV sqrt", sqrt},
    {"keliLn_8u_C1RSfs", "OpenCV LUT", lookUp<keliLn_8u_C1RSfs, -1>},
    {"keliLn_32f_C1R", "OpenCV log", log, 1e-5},
    {"keliExp_8u_C1RSfs", "OpenCV LUT", lookUp<keliExp_8u_C1RSfs, 0>},
    {"keliExp_32f_C1R", "OpenCV exp", exp, 32},
});

}  // namespace
}  // namespace keli::bench
