// Images and their patterns.
#include "image.h"

#include <cmath>
#include <cstring>
#include <stdexcept>

#include "samples.h"

namespace keli::bench {

using registry::Type;
using registry::Value;

namespace {

// The library allocates by sample size; which type of that size does not matter.
const char* allocatedType(std::size_t sampleBytes) {
  return sampleBytes == 1 ? "8u" : sampleBytes == 2 ? "16u" : sampleBytes == 4 ? "32s" : "32fc";
}

std::uint64_t nextRandom(std::uint64_t* state) {
  std::uint64_t x = *state;
  x ^= x << 13;
  x ^= x >> 7;
  x ^= x << 17;
  return *state = x;
}

// Values of a lattice at the corners of cells, uniform in 0..1.
double latticeValue(std::uint64_t seed, int x, int y) {
  std::uint64_t state = seed ^ (std::uint64_t{0x9E3779B97F4A7C15} * (x + 1)) ^
                        (std::uint64_t{0xC2B2AE3D27D4EB4F} * (y + 1));
  nextRandom(&state);
  return static_cast<double>(nextRandom(&state) >> 11) / 9007199254740992.0;
}

// Calls body(x, y, value) for all pixels, with values between those of the corners of cells of so
// many pixels.
template <int kCell, class Body>
void forLattice(std::uint64_t seed, Size size, const Body& body) {
  for (int y = 0; y < size.height; ++y) {
    const double fy = static_cast<double>(y % kCell) / kCell;
    double left = 0;
    double right = 0;
    for (int x = 0; x < size.width; ++x) {
      if (x % kCell == 0) {
        const auto column = [&](int i) {
          return (1 - fy) * latticeValue(seed, x / kCell + i, y / kCell) +
                 fy * latticeValue(seed, x / kCell + i, y / kCell + 1);
        };
        left = column(0);
        right = column(1);
      }
      const double fx = static_cast<double>(x % kCell) / kCell;
      body(x, y, (1 - fx) * left + fx * right);
    }
  }
}

}  // namespace

std::string nameOf(Size size) {
  std::string name = std::to_string(size.width) + "x" + std::to_string(size.height);
  return size.padding == 0 ? name : name + "+" + std::to_string(size.padding);
}

Image::Image(Type type, Layout layout, Size size, Margin margin)
    : type_(type), layout_(layout), size_(size), margin_(margin) {
  if (type == Type::k1u) size_.width = (size.width + 7) / 8;
  const std::string allocator = std::string("keliMalloc_") + allocatedType(bytesOf(type)) + "_C" +
                                std::to_string(pixelSamples(layout));
  const registry::Function* function = registry::find(allocator);
  if (function == nullptr) throw std::runtime_error("no allocator " + allocator);
  Value arguments[3];
  arguments[0].i = size_.width + size.padding + margin.left + margin.right;
  arguments[1].i = std::int64_t{rows()} * planes();
  arguments[2].p = &step_;
  memory_.reset(const_cast<void*>((*function)(arguments).pointer));
  if (memory_ == nullptr) throw std::runtime_error("no memory for an image of " + nameOf(size));
}

std::uint8_t* Image::plane(int index) const {
  const std::size_t left = bytesOf(type_) * samplesPerPixel() * margin_.left;
  return start() + static_cast<std::size_t>(step_) * (rows() * index + margin_.top) + left;
}

Block Image::block() const {
  const std::size_t rowBytes = bytesOf(type_) * samplesPerPixel() * size_.width;
  const std::size_t step = step_;
  const std::size_t rows = static_cast<std::size_t>(size_.height) * planes();
  if (rowBytes == step) return {data(), rowBytes * rows, rowBytes * rows, 1};
  return {data(), rowBytes, step, rows};
}

// Integer samples take any value; floating ones lie in 0..most, so that no operation meets a NaN,
// an infinity or a denormal number by accident.
void Image::fillPattern(std::uint64_t seed, const Choices& choices) const {
  std::uint64_t state = seed * 0x9E3779B97F4A7C15 + 1;
  const std::size_t bytes = allBytes();
  if (!isFloating(type_)) {
    for (std::size_t i = 0; i < bytes; i += 8) {
      const std::uint64_t word = nextRandom(&state) | (choices.odd ? 0x0101010101010101 : 0);
      std::memcpy(start() + i, &word, 8);
    }
    return;
  }
  withComponent(type_, [&](auto component) {
    for (std::size_t i = 0; i < bytes; i += sizeof(component)) {
      component = static_cast<decltype(component)>(static_cast<double>(nextRandom(&state) >> 40) *
                                                   choices.most / (1 << 24));
      std::memcpy(start() + i, &component, sizeof(component));
    }
  });
}

void Image::fillBytes(std::uint8_t value) const { std::memset(start(), value, allBytes()); }

// Runs of both values as in real masks.
void Image::fillBlobs(std::uint64_t seed) const {
  forLattice<16>(seed, size_, [&](int x, int y, double value) {
    data()[static_cast<std::size_t>(step_) * y + x] = value >= 0.5 ? 255 : 0;
  });
}

// Every channel another landscape, with noise of up to 1 % of the range of values: a fifth of the
// bytes equal the next, as in the photographs of examples/images.
void Image::fillPhotograph(std::uint64_t seed, const Choices& choices) const {
  const double least = leastSample(type_), range = mostSample(type_, choices) - least;
  const int samples = samplesPerPixel();
  std::uint64_t noise = seed;
  const Size all = {size_.width + margin_.left + margin_.right, rows(), 0};
  for (int k = 0; k < samples; ++k) {
    forLattice<64>(seed + 10 * static_cast<std::uint64_t>(k), all, [&](int x, int y, double value) {
      value = 0.99 * value + 0.01 * static_cast<double>(nextRandom(&noise) >> 40) / (1 << 24);
      storeSample(type_, start() + static_cast<std::size_t>(step_) * y,
                  static_cast<std::size_t>(samples) * x + k, std::floor(least + range * value));
    });
  }
}

// A rotation about the middle, a little larger: each coordinate lies inside.
void Image::fillMap(bool columns, Map map) const {
  const double halfWidth = 0.5 * (size_.width - 1), halfHeight = 0.5 * (size_.height - 1);
  const double half = columns ? halfWidth : halfHeight;
  const double scale = 0.9 / (std::cos(0.3) + std::sin(0.3) * size_.width / size_.height);
  std::uint64_t random = columns ? 77 : 78;
  for (int y = 0; y < size_.height; ++y) {
    for (int x = 0; x < size_.width; ++x) {
      const double u = scale * (x - halfWidth), v = scale * (y - halfHeight);
      double at = half + (columns ? u * std::cos(0.3) - v * std::sin(0.3)
                                  : u * std::sin(0.3) + v * std::cos(0.3));
      if (map == Map::kRandom)
        at = 2 * half * static_cast<double>(nextRandom(&random) >> 11) / 9007199254740992.0;
      storeSample(type_, data() + static_cast<std::size_t>(step_) * y, x, at);
    }
  }
}

}  // namespace keli::bench
