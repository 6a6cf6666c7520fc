// Cosine transforms of images against their definition, summed up in double precision: sides of
// every kind, both ways, all layouts, on every target; and the life of their specifications.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "registry/transform_spec.h"
#include "support/no_memory.h"
#include "support/targets.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::TransformSpec;
using Samples = std::vector<double>;

// The orthonormal transform of n samples, of type II, or its transpose.
Samples matrixOf(int n, bool inverse) {
  Samples m(static_cast<std::size_t>(n * n));
  for (int k = 0; k < n; ++k) {
    for (int j = 0; j < n; ++j) {
      const double c = std::sqrt((k == 0 ? 1.0 : 2.0) / n);
      const int turn = (2 * j + 1) * k % (4 * n);
      m[static_cast<std::size_t>(inverse ? j * n + k : k * n + j)] =
          c * std::cos(turn * M_PI / (2 * n));
    }
  }
  return m;
}

Samples transformed(const Samples& image, KeliSize size, bool inverse) {
  const auto along = [&](const Samples& from, int n, int others, int stride, int otherStride) {
    const Samples m = matrixOf(n, inverse);
    Samples to(from.size());
    for (int o = 0; o < others; ++o) {
      for (int k = 0; k < n; ++k) {
        double sum = 0;
        for (int j = 0; j < n; ++j)
          sum += m[static_cast<std::size_t>(k * n + j)] *
                 from[static_cast<std::size_t>(o * otherStride + j * stride)];
        to[static_cast<std::size_t>(o * otherStride + k * stride)] = sum;
      }
    }
    return to;
  };
  const Samples rows = along(image, size.width, size.height, 1, size.width);
  return along(rows, size.height, size.width, size.width, 1);
}

std::vector<float> noise(std::size_t count) {
  std::mt19937 engine(9);
  std::uniform_real_distribution<float> values(-1, 1);
  std::vector<float> v(count);
  for (float& value : v) value = values(engine);
  return v;
}

// Of an image without padding; scratch of exactly the size that is told where the height is even.
std::vector<float> run(const Function& f, KeliSize size, int channels,
                       const std::vector<float>& image) {
  const TransformSpec spec(f, size, 0);
  std::vector<float> result(image.size(), 5);
  std::vector<std::uint8_t> scratch(static_cast<std::size_t>(spec.scratchBytes()) + 1);
  registry::Value values[6] = {};
  values[0].p = image.data();
  values[1].i = values[3].i = std::int64_t{4} * size.width * channels;
  values[2].p = result.data();
  values[4].p = spec.get();
  values[5].p = size.height % 2 == 0 ? scratch.data() + 1 : nullptr;
  EXPECT_EQ(f(values).status, kelStatusOk) << f.name;
  return result;
}

void check(KeliSize size, const std::string& layout, int channels) {
  const std::size_t pixels = static_cast<std::size_t>(size.width * size.height);
  const std::size_t stride = static_cast<std::size_t>(channels);
  const std::vector<float> image = noise(pixels * stride);
  for (const bool inverse : {false, true}) {
    const Function& f = *registry::find((inverse ? "keliDCTInv_32f_" : "keliDCTFwd_32f_") + layout);
    const std::vector<float> result = run(f, size, channels, image);
    for (std::size_t k = 0; k < stride; ++k) {
      Samples channel, found;
      for (std::size_t i = k; i < image.size(); i += stride) {
        channel.push_back(image[i]);
        found.push_back(result[i]);
      }
      const bool alpha = layout == "AC4R" && k == 3;
      const Samples expected = alpha ? Samples(pixels, 5) : transformed(channel, size, inverse);
      double error = 0, sum = 1e-30;
      for (std::size_t i = 0; i < pixels; ++i) {
        error += (found[i] - expected[i]) * (found[i] - expected[i]);
        sum += expected[i] * expected[i];
      }
      EXPECT_LT(std::sqrt(error / sum), 6e-7)
          << f.name << " " << size.width << "x" << size.height << " channel " << k;
    }
  }
}

TEST(Dct, ImagesOfAnySize) {
  for (int n = 1; n <= 128; ++n)
    check(n % 2 == 0 ? KeliSize{n, 1 + n % 5} : KeliSize{1 + n % 7, n}, "C1R", 1);
  for (int n = 1; n <= 40; ++n) check({n, n}, "C1R", 1);
  for (const int n : {131, 243, 509, 512, 1001}) {
    check({n, 2}, "C1R", 1);
    check({3, n}, "C1R", 1);
    check({1, n}, "C1R", 1);
  }
  for (const KeliSize size : {KeliSize{8, 8}, {5, 6}, {16, 1}}) {
    check(size, "C3R", 3);
    check(size, "C4R", 4);
    check(size, "AC4R", 4);
  }
}

TEST(Dct, ImagesOfEightByEightAreBlocks) {
  const std::vector<float> image = noise(64);
  std::vector<float> block(64);
  keliDCT8x8Fwd_32f_C1(image.data(), block.data());
  EXPECT_EQ(run(*registry::find("keliDCTFwd_32f_C1R"), {8, 8}, 1, image), block);
  keliDCT8x8Inv_32f_C1(image.data(), block.data());
  EXPECT_EQ(run(*registry::find("keliDCTInv_32f_C1R"), {8, 8}, 1, image), block);
}

TEST(Dct, SpecificationsAnswerFaultsInOrder) {
  KeliDCTFwdSpec_32f* forward = nullptr;
  KeliDCTInvSpec_32f* inverse = nullptr;
  EXPECT_EQ(keliDCTFwdInitAlloc_32f(nullptr, {0, 1}, kelAlgHintNone), kelStatusNullPointer);
  for (const KeliSize bad : {KeliSize{0, 1}, {1, 0}, {-3, 5}}) {
    EXPECT_EQ(keliDCTFwdInitAlloc_32f(&forward, bad, kelAlgHintNone), kelStatusBadSize);
    EXPECT_EQ(keliDCTInvInitAlloc_32f(&inverse, bad, kelAlgHintNone), kelStatusBadSize);
  }
  EXPECT_EQ(forward, nullptr);
  ASSERT_EQ(keliDCTFwdInitAlloc_32f(&forward, {3, 4}, kelAlgHintNone), kelStatusOk);
  ASSERT_EQ(keliDCTInvInitAlloc_32f(&inverse, {3, 4}, kelAlgHintNone), kelStatusOk);
  int size = -1;
  EXPECT_EQ(keliDCTFwdGetBufSize_32f(nullptr, &size), kelStatusNullPointer);
  EXPECT_EQ(keliDCTFwdGetBufSize_32f(forward, nullptr), kelStatusNullPointer);
  const auto* const other = reinterpret_cast<KeliDCTFwdSpec_32f*>(inverse);
  EXPECT_EQ(keliDCTFwdGetBufSize_32f(other, &size), kelStatusBadSpec);
  float image[12] = {};
  EXPECT_EQ(keliDCTFwd_32f_C1R(nullptr, 0, image, 12, other, nullptr), kelStatusBadSpec);
  EXPECT_EQ(size, -1);
  EXPECT_EQ(keliDCTInvFree_32f(reinterpret_cast<KeliDCTInvSpec_32f*>(forward)), kelStatusBadSpec);
  EXPECT_EQ(keliDCTFwdFree_32f(nullptr), kelStatusNullPointer);
  EXPECT_EQ(keliDCTFwdFree_32f(forward), kelStatusOk);
  EXPECT_EQ(keliDCTInvFree_32f(inverse), kelStatusOk);
}

// The leak check of the address sanitizer tells whether what had been made is released.
TEST(Dct, EachAllocationMayFail) {
  for (const KeliSize size : {KeliSize{8, 8}, {17, 17}, {17, 19}}) {
    int failures = 0;
    for (KelStatus status = kelStatusNoMemory; status != kelStatusOk; ++failures) {
      KeliDCTFwdSpec_32f* spec = nullptr;
      {
        const NoMemory soon(failures);
        status = keliDCTFwdInitAlloc_32f(&spec, size, kelAlgHintNone);
      }
      if (status == kelStatusOk) {
        EXPECT_EQ(keliDCTFwdFree_32f(spec), kelStatusOk);
      } else {
        ASSERT_EQ(status, kelStatusNoMemory);
        EXPECT_EQ(spec, nullptr);
      }
    }
    EXPECT_GE(failures, size.width == 8 ? 1 : 4);
  }
}

TEST(Dct, ImagesWithoutMemoryAreNotWritten) {
  KeliDCTFwdSpec_32f* spec = nullptr;
  ASSERT_EQ(keliDCTFwdInitAlloc_32f(&spec, {5, 4}, kelAlgHintNone), kelStatusOk);
  const std::vector<float> image = noise(20);
  std::vector<float> result(20, 5);
  const KelStatus status = withoutMemory(
      [&] { return keliDCTFwd_32f_C1R(image.data(), 20, result.data(), 20, spec, nullptr); });
  EXPECT_EQ(status, kelStatusNoMemory);
  EXPECT_EQ(result, std::vector<float>(20, 5));
  EXPECT_EQ(keliDCTFwdFree_32f(spec), kelStatusOk);
}

}  // namespace
}  // namespace keli::test
