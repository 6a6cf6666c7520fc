// The two-dimensional transforms against their definition, summed up in double precision: lengths
// of every kind, both ways, all layouts and flags, on every target.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <random>

#include "registry/transform_spec.h"
#include "support/targets.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::TransformSpec;
using Complex = std::complex<double>;
using Spectrum = std::vector<Complex>;  // row after row

// One dimension after the other, by the sums. sign: of the exponent.
Spectrum transformed(const Spectrum& image, KeliSize size, int sign) {
  const auto along = [&](const Spectrum& from, int n, int others, int stride, int otherStride) {
    Spectrum to(from.size()), roots(static_cast<std::size_t>(n));
    for (int k = 0; k < n; ++k)
      roots[static_cast<std::size_t>(k)] = std::polar(1.0, sign * 2 * M_PI * k / n);
    for (int o = 0; o < others; ++o) {
      for (int k = 0; k < n; ++k) {
        Complex sum = 0;
        for (int j = 0; j < n; ++j) {
          const std::size_t turn = static_cast<std::size_t>(std::int64_t{j} * k % n);
          sum += from[static_cast<std::size_t>(o * otherStride + j * stride)] * roots[turn];
        }
        to[static_cast<std::size_t>(o * otherStride + k * stride)] = sum;
      }
    }
    return to;
  };
  const Spectrum rows = along(image, size.width, size.height, 1, size.width);
  return along(rows, size.height, size.width, size.width, 1);
}

// What stands at a place of the packed order of n: the frequency, and whether its imaginary part.
struct Packed {
  int frequency;
  bool imaginary;
};
Packed packed(int at, int n) {
  const int frequency = (at + 1) / 2;
  return {frequency, frequency != 0 && 2 * frequency != n && at % 2 == 0};
}

// Where value (x, y) of a packed image comes from: column 0 and that of the last frequency of an
// even width are packed along the column.
double packedValue(const Spectrum& f, KeliSize size, int x, int y) {
  const Packed u = packed(x, size.width);
  const bool real = u.frequency == 0 || 2 * u.frequency == size.width;
  const Packed v = real ? packed(y, size.height) : Packed{y, u.imaginary};
  const Complex c = f[static_cast<std::size_t>(v.frequency * size.width + u.frequency)];
  return v.imaginary ? c.imag() : c.real();
}

double factorOf(int flag, bool forward, KeliSize size) {
  const double n = static_cast<double>(size.width) * size.height;
  if (flag == 4) return 1 / std::sqrt(n);
  return flag == (forward ? 1 : 2) ? 1 / n : 1;
}

// Calls a transform with images that have padding between their rows and, now and then, scratch.
class Transform {
 public:
  Transform(const std::string& name, KeliSize size, int flag)
      : function_(*registry::find(name)), size_(size), spec_(function_, size, flag) {
    EXPECT_NE(spec_.get(), nullptr) << name;
  }

  template <class S, class D>
  std::vector<D> operator()(const std::vector<S>& src, int channels, int scaleFactor = 0,
                            D fill = D{}) const {
    const std::size_t row = static_cast<std::size_t>(size_.width * channels), padding = 3;
    const std::size_t rows = static_cast<std::size_t>(size_.height);
    std::vector<S> from((row + padding) * rows);
    std::vector<D> to((row + padding) * rows, fill), result;
    for (std::size_t y = 0; y < rows; ++y)
      std::copy_n(src.begin() + static_cast<std::ptrdiff_t>(y * row), row,
                  from.begin() + static_cast<std::ptrdiff_t>(y * (row + padding)));
    std::vector<std::uint8_t> scratch(static_cast<std::size_t>(spec_.scratchBytes()) + 1);
    std::vector<registry::Value> values(function_.arguments.size);
    values[0].p = from.data();
    values[1].i = static_cast<std::int64_t>((row + padding) * sizeof(S));
    values[2].p = to.data();
    values[3].i = static_cast<std::int64_t>((row + padding) * sizeof(D));
    values[4].p = spec_.get();
    if (values.size() == 7) values[5].i = scaleFactor;
    values.back().p = size_.height % 2 == 0 ? scratch.data() + 1 : nullptr;
    EXPECT_EQ(function_(values.data()).status, kelStatusOk) << function_.name;
    for (std::size_t y = 0; y < rows; ++y) {
      const auto begin = to.begin() + static_cast<std::ptrdiff_t>(y * (row + padding));
      result.insert(result.end(), begin, begin + static_cast<std::ptrdiff_t>(row));
    }
    return result;
  }

 private:
  const Function& function_;
  KeliSize size_;
  TransformSpec spec_;
};

double relativeError(const std::vector<double>& found, const std::vector<double>& expected) {
  double error = 0, sum = 0;
  for (std::size_t i = 0; i < found.size(); ++i) {
    error += (found[i] - expected[i]) * (found[i] - expected[i]);
    sum += expected[i] * expected[i];
  }
  return std::sqrt(error / std::max(sum, 1e-30));
}

constexpr double kBound = 6e-7;

class Sizes {
 public:
  // Rows and columns of every length up to a few vectors, and longer ones of every kind.
  static std::vector<KeliSize> all() {
    std::vector<KeliSize> sizes;
    for (int n = 1; n <= 128; ++n)
      sizes.push_back(n % 2 == 0 ? KeliSize{n, 1 + n % 5} : KeliSize{1 + n % 7, n});
    for (int n = 1; n <= 40; ++n) sizes.push_back({n, n});
    for (const int n : {131, 169, 210, 243, 256, 509, 512, 625, 1000, 1001, 1024, 1331, 2048}) {
      sizes.push_back({n, 2});
      sizes.push_back({3, n});
      sizes.push_back({n, 1});
      sizes.push_back({1, n});
    }
    for (const KeliSize s : {KeliSize{64, 48}, {33, 70}, {70, 33}, {128, 64}}) sizes.push_back(s);
    return sizes;
  }
  static bool powers(KeliSize s) {
    return (s.width & (s.width - 1)) == 0 && (s.height & (s.height - 1)) == 0;
  }
};

std::vector<float> noise(std::size_t count, unsigned seed) {
  std::mt19937 engine(seed);
  std::uniform_real_distribution<float> values(-1, 1);
  std::vector<float> v(count);
  for (float& value : v) value = values(engine);
  return v;
}

// Forward and, from the result of that, inverse.
void checkComplex(const std::string& kind, KeliSize size, int flag) {
  const std::size_t n = static_cast<std::size_t>(size.width * size.height);
  const std::vector<float> parts = noise(2 * n, 7);
  std::vector<Kel32fc> image(n);
  Spectrum exact(n);
  for (std::size_t i = 0; i < n; ++i) {
    image[i] = {parts[2 * i], parts[2 * i + 1]};
    exact[i] = {parts[2 * i], parts[2 * i + 1]};
  }
  for (const bool forward : {true, false}) {
    const Transform transform(kind + (forward ? "Fwd" : "Inv") + "_CToC_32fc_C1R", size, flag);
    const Spectrum expected = transformed(exact, size, forward ? -1 : 1);
    const std::vector<Kel32fc> result = transform.operator()<Kel32fc, Kel32fc>(image, 1);
    std::vector<double> a, b;
    for (std::size_t i = 0; i < n; ++i) {
      a.insert(a.end(), {result[i].re, result[i].im});
      const Complex e = expected[i] * factorOf(flag, forward, size);
      b.insert(b.end(), {e.real(), e.imag()});
    }
    EXPECT_LT(relativeError(a, b), kBound)
        << kind << " " << size.width << "x" << size.height << " forward " << forward;
  }
}

// The packed spectrum of channel k of an image.
std::vector<double> packedSpectrum(const std::vector<float>& image, KeliSize size, int channels,
                                   int k) {
  Spectrum samples;
  for (std::size_t i = static_cast<std::size_t>(k); i < image.size();
       i += static_cast<std::size_t>(channels))
    samples.emplace_back(image[i]);
  const Spectrum f = transformed(samples, size, -1);
  std::vector<double> result;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) result.push_back(packedValue(f, size, x, y));
  }
  return result;
}

std::vector<double> channelOf(const std::vector<float>& image, int channels, int k) {
  std::vector<double> v;
  for (std::size_t i = static_cast<std::size_t>(k); i < image.size();
       i += static_cast<std::size_t>(channels))
    v.push_back(image[i]);
  return v;
}

void checkReal(const std::string& kind, KeliSize size, int flag, const std::string& layout,
               int channels) {
  const std::size_t n = static_cast<std::size_t>(size.width * size.height * channels);
  const std::vector<float> image = noise(n, 11);
  const Transform forward(kind + "Fwd_RToPack_32f_" + layout, size, flag);
  const Transform inverse(kind + "Inv_PackToR_32f_" + layout, size, flag);
  const std::vector<float> spectrum = forward.operator()<float, float>(image, channels, 0, 5.f);
  const std::vector<float> back = inverse.operator()<float, float>(spectrum, channels, 0, 5.f);
  const double there = factorOf(flag, true, size);
  const double both = there * factorOf(flag, false, size) * size.width * size.height;
  for (int k = 0; k < channels; ++k) {
    std::vector<double> expected = packedSpectrum(image, size, channels, k);
    std::vector<double> original = channelOf(image, channels, k);
    for (double& v : expected) v *= there;
    for (double& v : original) v *= both;
    if (layout == "AC4R" && k == 3) {
      std::fill(expected.begin(), expected.end(), 5);
      std::fill(original.begin(), original.end(), 5);
    }
    EXPECT_LT(relativeError(channelOf(spectrum, channels, k), expected), kBound)
        << kind << layout << " " << size.width << "x" << size.height << " channel " << k;
    EXPECT_LT(relativeError(channelOf(back, channels, k), original), 2 * kBound)
        << kind << layout << " back " << size.width << "x" << size.height << " channel " << k;
  }
}

TEST(Fft, ComplexTransformsAreTheirSums) {
  int i = 0;
  for (const KeliSize size : Sizes::all()) {
    const int flag = 1 << i++ % 4;
    checkComplex("keliDFT", size, flag);
    if (Sizes::powers(size)) checkComplex("keliFFT", size, flag);
  }
}

TEST(Fft, RealTransformsArePackedAndInvertible) {
  int i = 0;
  for (const KeliSize size : Sizes::all()) {
    const int flag = 1 << i++ % 4;
    checkReal("keliDFT", size, flag, "C1R", 1);
    if (Sizes::powers(size)) checkReal("keliFFT", size, flag, "C1R", 1);
  }
}

TEST(Fft, EveryChannelIsAnImageOfItsOwn) {
  for (const KeliSize size : {KeliSize{8, 4}, {5, 6}, {1, 9}, {16, 1}}) {
    const std::string kind = Sizes::powers(size) ? "keliFFT" : "keliDFT";
    checkReal(kind, size, 8, "C3R", 3);
    checkReal(kind, size, 2, "C4R", 4);
    checkReal(kind, size, 1, "AC4R", 4);
  }
}

TEST(Fft, TheSmallestImages) {
  const Transform one("keliFFTFwd_RToPack_32f_C1R", {1, 1}, 8);
  EXPECT_EQ((one.operator()<float, float>({3.25f}, 1)), std::vector<float>{3.25f});
  const Transform four("keliFFTFwd_RToPack_32f_C1R", {2, 2}, 8);
  EXPECT_EQ((four.operator()<float, float>({1, 2, 4, 8}, 1)), (std::vector<float>{15, -5, -9, 3}));
}

// The nearest integer, ties to even, within the range of T.
template <class T>
double rounded(double v) {
  const double low = std::floor(v), rest = v - low;
  const double whole = rest > 0.5 || (rest == 0.5 && std::fmod(low, 2) != 0) ? low + 1 : low;
  return std::clamp(whole, static_cast<double>(std::numeric_limits<T>::lowest()),
                    static_cast<double>(std::numeric_limits<T>::max()));
}

template <class S>
std::vector<S> integers(std::size_t count, int least, int most) {
  std::mt19937 engine(3);
  std::uniform_int_distribution<int> values(least, most);
  std::vector<S> v(count);
  for (S& value : v) value = static_cast<S>(values(engine));
  return v;
}

// Integers are those of the transform of floats, scaled and rounded.
template <class S, class D>
void checkIntegers(const std::string& name, KeliSize size, int channels, int used, int sf,
                   const std::vector<S>& src) {
  const std::string layout = used < channels ? "AC4R" : "C" + std::to_string(channels) + "R";
  const bool forward = sizeof(S) == 1;
  const std::string real = name + (forward ? "Fwd_RToPack_32f_" : "Inv_PackToR_32f_") + layout;
  const std::string whole =
      name + (forward ? "Fwd_RToPack_8u32s_" : "Inv_PackToR_32s8u_") + layout + "Sfs";
  const Transform transform(whole, size, 2), floats(real, size, 2);
  const std::vector<float> expected =
      floats.operator()<float, float>(std::vector<float>(src.begin(), src.end()), channels);
  const std::vector<D> found = transform.operator()<S, D>(src, channels, sf, D{77});
  for (std::size_t i = 0; i < found.size(); ++i) {
    const bool alpha = static_cast<int>(i) % channels >= used;
    const double scaled = std::ldexp(static_cast<double>(expected[i]), -std::clamp(sf, -999, 999));
    ASSERT_EQ(found[i], alpha ? 77 : rounded<D>(scaled)) << whole << " " << sf << " at " << i;
  }
}

TEST(Fft, IntegersAreScaledAndSaturated) {
  for (const int sf : {0, 1, 3, -2, 8, 31, 40, 200, -31, -40, -200, std::numeric_limits<int>::max(),
                       std::numeric_limits<int>::min()}) {
    for (const KeliSize size : {KeliSize{8, 4}, {6, 5}, {64, 64}}) {
      const std::string kind = Sizes::powers(size) ? "keliFFT" : "keliDFT";
      for (const auto& [channels, used] : {std::pair{1, 1}, {3, 3}, {4, 4}, {4, 3}}) {
        const std::size_t n = static_cast<std::size_t>(size.width * size.height * channels);
        checkIntegers<Kel8u, Kel32s>(kind, size, channels, used, sf, integers<Kel8u>(n, 0, 255));
        checkIntegers<Kel32s, Kel8u>(kind, size, channels, used, sf,
                                     integers<Kel32s>(n, -1000, 9000));
      }
    }
  }
}

// A few samples of every kind of length on every target; the targets' results are the same bytes.
TEST(Fft, TargetsAgree) {
  for (const KeliSize size : {KeliSize{64, 32}, {45, 77}, {17, 34}, {1, 509}, {1001, 1}}) {
    const std::vector<float> image = noise(static_cast<std::size_t>(size.width * size.height), 5);
    std::vector<float> first;
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      const Transform transform("keliDFTFwd_RToPack_32f_C1R", size, 1);
      const std::vector<float> result = transform.operator()<float, float>(image, 1);
      if (first.empty()) first = result;
      EXPECT_EQ(result, first) << targetName(target) << " " << size.width << "x" << size.height;
    }
  }
}

}  // namespace
}  // namespace keli::test
