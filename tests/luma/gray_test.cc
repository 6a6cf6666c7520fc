// Gray against its definition: bytes by weights in units of 1 / 4096, others in single precision.
#include <cmath>

#include "reference/pixels.h"

namespace keli::test {
namespace {

using registry::Type;
using Weights = std::array<Kel32f, 3>;

template <class T>
T grayOf(const Weights& weights, const Pixel<T>& in) {
  using L = std::numeric_limits<T>;
  if constexpr (std::is_same_v<T, Kel8u>) {
    double sum = 0;  // of integers, which are exact
    for (std::size_t k = 0; k < 3; ++k) {
      const double w = std::isnan(weights[k]) ? 0 : std::clamp(double{weights[k]}, -256., 256.);
      sum += std::nearbyint(4096 * w) * in[k];
    }
    return static_cast<T>(std::clamp(std::floor(sum / 4096), 0., 255.));
  } else {
    const float first = weights[0] * static_cast<float>(in[0]);
    const float second = weights[1] * static_cast<float>(in[1]);
    const float sum = first + second + weights[2] * static_cast<float>(in[2]);
    if (std::is_floating_point_v<T>) return std::isnan(sum) ? L::quiet_NaN() : static_cast<T>(sum);
    if (std::isnan(sum)) return L::max();
    return static_cast<T>(
        std::clamp(std::nearbyint(double{sum}), double{L::min()}, double{L::max()}));
  }
}

constexpr Kel32f kInf = std::numeric_limits<Kel32f>::infinity();
constexpr Kel32f kNone = std::numeric_limits<Kel32f>::quiet_NaN();
constexpr Kel32f kStep = 1.f / 4096;
constexpr Weights kWeights[] = {
    {0.299f, 0.587f, 0.114f},
    {0.2126f, 0.7152f, 0.0722f},
    {1, 0, 0},
    {0, 0, -1},
    {0.5f * kStep, 1.5f * kStep, 2.5f * kStep},  // ties of bytes' weights
    {16256 * kStep, -16256 * kStep, 3},          // the largest that are products of bytes
    {-3.96875f, -3.96875f, -3.96875f},
    {3.96875f, 3.96875f, 3.96875f},
    {16257 * kStep, -1, -2},  // the first beyond
    {-0.1f, 1, -16257 * kStep},
    {8, -1, -5},
    {255.9f, -256, 1},
    {256, 256, 256},
    {-1e30f, 300, 0.25f},  // beyond the range
    {kInf, 1, 1},
    {1, -kInf, 1},
    {0.5f, kNone, 0.25f},
    {3e38f, -3e38f, 3e38f},
};

template <class T>
int checkColorToGray(Type type) {
  return forMembers("ColorToGray", type, [](const registry::Function& f) {
    checkCalls(
        f, 3 * std::size(kWeights),
        [](TestCall& call, std::size_t i) {
          call.values[argumentNamed(call, "weights")].p = &kWeights[i % std::size(kWeights)];
        },
        [](const TestCall& call, KeliSize size) {
          const std::size_t argument = argumentNamed(call, "weights");
          Weights weights;
          for (int k = 0; k < 3; ++k)
            weights[static_cast<std::size_t>(k)] = constantOf<Kel32f>(call, argument, k);
          const ImageView src(call, call.find(registry::Role::kSource)), dst(call, call.written());
          for (int y = 0; y < size.height; ++y) {
            for (int x = 0; x < size.width; ++x) {
              const Pixel<T> in = {src.get<T>(x, y, 0), src.get<T>(x, y, 1), src.get<T>(x, y, 2)};
              dst.set<T>(x, y, 0, grayOf<T>(weights, in));
            }
          }
        },
        [](const TestCall&, KeliSize) { return kelStatusOk; });
  });
}

template <class T>
void checkGray(Type type) {
  checkConversion<T>("RGBToGray", type, 2,
                     [](const Pixel<T>& p) { return Pixel<T>{grayOf<T>(kWeights[0], p)}; });
  EXPECT_EQ(checkColorToGray<T>(type), 2);
}

TEST(Luma, GrayIsTheWeightedSum) {
  checkGray<Kel8u>(Type::k8u);
  checkGray<Kel16u>(Type::k16u);
  checkGray<Kel16s>(Type::k16s);
  checkGray<Kel32f>(Type::k32f);
}

TEST(Luma, GrayOfAllColors) {
  checkAllColors("keliRGBToGray_8u_C3C1R", [](const Pixel<Kel8u>& p) {
    return Pixel<Kel8u>{static_cast<Kel8u>((1225 * p[0] + 2404 * p[1] + 467 * p[2]) / 4096)};
  });
}

}  // namespace
}  // namespace keli::test
