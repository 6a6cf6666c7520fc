// OpenCV's equivalents of division. Of bytes it rounds the quotient, not the product with a decimal
// reciprocal: ties differ by one.
#include "opencv.h"

namespace keli::bench {
namespace {

Work divide(const Frame& f) {
  return [a = mat(f.source(0)), b = mat(f.source(1)), d = mat(f.destination())]() mutable {
    cv::divide(b, a, d);
  };
}

Work divideByScalar(const Frame& f) {
  return [s = mat(f.source()), c = constants(f), d = mat(f.destination())]() mutable {
    cv::divide(s, c, d);
  };
}

Work convertScaled(const Frame& f) {
  return [s = mat(f.source()), c = 1 / f.constant(0), d = mat(f.destination())]() mutable {
    s.convertTo(d, -1, c);
  };
}

const AddPeers kPeers({
    {"keliDiv_8u_{C1RSfs,C3RSfs}", "OpenCV divide", divide, 1},
    {"keliDiv_16s_{C1RSfs,C3RSfs}", "OpenCV divide", divide},
    {"keliDiv_32f_{C1R,C3R,C4R}", "OpenCV divide", divide},
    {"keliDiv_32f_AC4R", "OpenCV divide, alpha divided", divide},
    {"keliDivC_{8u,16s}_{C1RSfs,C3RSfs}", "OpenCV divide", divideByScalar, 1},
    {"keliDivC_32f_{C1R,C3R}", "OpenCV divide", divideByScalar, 1e-5},
    {"keliDivC_{8u,16s}_C1RSfs", "OpenCV convertTo", convertScaled, 1},
    {"keliDivC_32f_C1R", "OpenCV convertTo", convertScaled, 1e-5},
});

}  // namespace
}  // namespace keli::bench
