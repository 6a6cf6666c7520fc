// What transforms show of a gray photograph: the logarithm of its spectrum, the photograph with
// only its low frequencies, by way of the packed spectrum, and with 8 x 8 blocks of which few
// cosine coefficients are kept.
//
// Usage: transforms IN.png SPECTRUM.png LOW.png BLOCKS.png
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "keli.h"
#include "png_image.h"

namespace {

using keli::tool::PngImage;

void require(KelStatus status) {
  if (status == kelStatusOk) return;
  std::fprintf(stderr, "transforms: status %d\n", static_cast<int>(status));
  std::exit(1);
}

// An image of floats without padding.
struct Image {
  KeliSize size;
  std::vector<float> samples;

  explicit Image(KeliSize s) : size(s), samples(std::size_t(s.width) * std::size_t(s.height)) {}
  int step() const { return size.width * int(sizeof(float)); }
  float& at(int x, int y) {
    return samples[std::size_t(y) * std::size_t(size.width) + std::size_t(x)];
  }
};

void save(const char* path, const Image& image) {
  PngImage png;
  png.width = image.size.width;
  png.height = image.size.height;
  png.channels = 1;
  png.samples.resize(image.samples.size());
  require(keliConvert_32f8u_C1R(image.samples.data(), image.step(), png.samples.data(), png.width,
                                image.size, kelRoundNearest));
  writePng(path, png);
}

// Frequency of a place in the packed order of n values.
int frequencyAt(int place) { return (place + 1) / 2; }

// Which frequencies a value of the packed spectrum belongs to: columns 0 and, of an even width, the
// last are packed along the columns, others hold frequency v or v - height in row v.
double distanceAt(KeliSize size, int x, int y) {
  const int u = frequencyAt(x);
  const bool packed = u == 0 || 2 * u == size.width;
  const int v = packed ? frequencyAt(y) : std::min(y, size.height - y);
  return std::hypot(double(u) / size.width, double(v) / size.height);
}

void showSpectrum(const Image& photograph, const char* path) {
  const KeliSize size = photograph.size;
  std::vector<Kel32fc> complex(photograph.samples.size());
  for (std::size_t i = 0; i < complex.size(); ++i) complex[i] = {photograph.samples[i], 0};
  const int step = size.width * int(sizeof(Kel32fc));
  KeliDFTSpec_C_32fc* spec = nullptr;
  require(keliDFTInitAlloc_C_32fc(&spec, size, 8, kelAlgHintNone));
  require(keliDFTFwd_CToC_32fc_C1R(complex.data(), step, complex.data(), step, spec, nullptr));
  require(keliDFTFree_C_32fc(spec));
  Image result(size);  // frequency 0 in the middle
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const int u = (x + size.width - size.width / 2) % size.width;
      const int v = (y + size.height - size.height / 2) % size.height;
      const Kel32fc c = complex[std::size_t(v) * std::size_t(size.width) + std::size_t(u)];
      result.at(x, y) = 16 * std::log(1 + std::hypot(c.re, c.im)) - 70;
    }
  }
  save(path, result);
}

void keepLowFrequencies(const Image& photograph, const char* path) {
  Image spectrum(photograph.size);
  const int step = spectrum.step();
  KeliDFTSpec_R_32f* spec = nullptr;
  require(keliDFTInitAlloc_R_32f(&spec, spectrum.size, 2, kelAlgHintNone));
  require(keliDFTFwd_RToPack_32f_C1R(photograph.samples.data(), step, spectrum.samples.data(), step,
                                     spec, nullptr));
  for (int y = 0; y < spectrum.size.height; ++y) {
    for (int x = 0; x < spectrum.size.width; ++x) {
      const double d = distanceAt(spectrum.size, x, y) / 0.05;
      spectrum.at(x, y) *= float(std::exp(-d * d));
    }
  }
  require(keliDFTInv_PackToR_32f_C1R(spectrum.samples.data(), step, spectrum.samples.data(), step,
                                     spec, nullptr));
  require(keliDFTFree_R_32f(spec));
  save(path, spectrum);
}

// Coefficients rounded to multiples of a step that grows with their frequency.
void quantiseBlocks(const Image& photograph, const char* path) {
  const KeliSize size = photograph.size;
  PngImage png;
  png.width = size.width;
  png.height = size.height;
  png.channels = 1;
  png.samples.resize(photograph.samples.size());
  require(keliConvert_32f8u_C1R(photograph.samples.data(), photograph.step(), png.samples.data(),
                                png.width, size, kelRoundNearest));
  for (int y = 0; y + 8 <= size.height; y += 8) {
    for (int x = 0; x + 8 <= size.width; x += 8) {
      Kel8u* const pixels = png.samples.data() + y * png.width + x;
      Kel16s block[64];
      require(keliDCT8x8FwdLS_8u16s_C1R(pixels, png.width, block, -128));
      for (int k = 0; k < 64; ++k) {
        const int quantum = 24 + 24 * (k / 8 + k % 8);
        block[k] = Kel16s(std::lround(double(block[k]) / quantum) * quantum);
      }
      require(keliDCT8x8InvLSClip_16s8u_C1R(block, pixels, png.width, 128, 0, 255));
    }
  }
  writePng(path, png);
}

}  // namespace

int main(int argc, char** argv) try {
  if (argc != 5) {
    std::fprintf(stderr, "usage: transforms IN.png SPECTRUM.png LOW.png BLOCKS.png\n");
    return 2;
  }
  const PngImage png = keli::tool::readPng(argv[1]);
  Image photograph({png.width, png.height});
  for (std::size_t i = 0; i < photograph.samples.size(); ++i)
    photograph.samples[i] = png.samples[i * std::size_t(png.channels)];
  showSpectrum(photograph, argv[2]);
  keepLowFrequencies(photograph, argv[3]);
  quantiseBlocks(photograph, argv[4]);
  return 0;
} catch (const std::exception& e) {
  std::fprintf(stderr, "transforms: %s\n", e.what());
  return 2;
}
