// The row drivers with small operations, on every target: every length from one sample to past two
// vectors and some longer, rows that end and start at inaccessible pages, odd addresses, in place.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <vector>

#include "drivers/driver_rows.h"
#include "support/arena.h"
#include "support/targets.h"
#include "support/test_call.h"

namespace keli::test {
namespace {

std::vector<std::size_t> lengths() {
  std::vector<std::size_t> all;
  for (std::size_t n = 1; n <= 2 * 64 + 3; ++n) all.push_back(n);
  for (const std::size_t n : {191, 192, 193, 257, 383, 1000}) all.push_back(n);
  return all;
}

// Two rows of an image in an arena, at its end, its start or an odd address.
class Rows {
 public:
  Rows(std::size_t rowBytes, std::size_t place, std::uint64_t seed)
      : rowBytes_(rowBytes), step_(rowBytes + (place == 2 ? 5 : 0)), arena_(2 * step_ + 64) {
    Random random(seed);
    fillSamples(registry::Type::k8u, arena_.begin(), arena_.size(), random);
    data_ = place == 0 ? arena_.end() - (step_ + rowBytes) : arena_.begin() + (place == 1 ? 0 : 33);
    before_.assign(arena_.begin(), arena_.end());
  }

  std::uint8_t* data() const { return data_; }
  int step() const { return static_cast<int>(step_); }
  template <class T>
  T get(std::size_t y, std::size_t i) const {
    T v;
    std::memcpy(&v, data_ + y * step_ + i * sizeof(T), sizeof(T));
    return v;
  }
  // Numbers small enough to be exact in any order of operations.
  template <class T>
  void fillSmall(std::uint64_t seed) {
    Random random(seed);
    for (std::size_t y = 0; y < 2; ++y) {
      for (std::size_t i = 0; i < rowBytes_ / sizeof(T); ++i) {
        const T v = static_cast<T>(static_cast<std::int64_t>(random() % 2001) - 1000);
        std::memcpy(data_ + y * step_ + i * sizeof(T), &v, sizeof(T));
      }
    }
  }
  template <class T>
  T was(std::size_t y, std::size_t i) const {
    T v;
    std::memcpy(&v, before_.data() + (data_ - arena_.begin()) + y * step_ + i * sizeof(T),
                sizeof(T));
    return v;
  }
  bool paddingKept() const {
    return rowBytes_ == step_ ||
           std::memcmp(data_ + rowBytes_, before_.data() + (data_ - arena_.begin()) + rowBytes_,
                       step_ - rowBytes_) == 0;
  }

 private:
  std::size_t rowBytes_, step_;
  Arena arena_;
  std::uint8_t* data_;
  std::vector<std::uint8_t> before_;
};

void forEachTargetLengthPlace(const std::function<void(std::size_t n, std::size_t place)>& f) {
  for (const std::int64_t target : testedTargets()) {
    SCOPED_TRACE(targetName(target));
    const UseTarget use(target);
    for (const std::size_t n : lengths()) {
      SCOPED_TRACE("n = " + std::to_string(n));
      for (std::size_t place = 0; place < 3; ++place) f(n, place);
      if (testing::Test::HasFailure()) return;
    }
  }
}

template <class T>
bool sameBits(T a, T b) {
  return std::memcmp(&a, &b, sizeof(T)) == 0;
}

// Rows of whole cycles of channels, of which the first `used` are written.
template <class TS, class TD, class Definition>
void checkMap1(DriverRows::Map1 DriverRows::*kernel, std::size_t cycle, std::size_t used,
               bool inPlace, Definition definition) {
  forEachTargetLengthPlace([&](std::size_t length, std::size_t place) {
    const std::size_t n = (length + cycle - 1) / cycle * cycle;
    Rows src(n * sizeof(TS), place, runSeed() + n), dst(n * sizeof(TD), place, n);
    (driverRows().*kernel)(makeBand(src.data(), src.step(), dst.data(), dst.step(), n, 2));
    for (std::size_t y = 0; y < 2; ++y) {
      for (std::size_t i = 0; i < n; ++i) {
        const TD expected = i % cycle < used ? definition(src.get<TS>(y, i)) : dst.was<TD>(y, i);
        ASSERT_TRUE(sameBits(dst.get<TD>(y, i), expected)) << "sample " << i << " of row " << y;
      }
    }
    ASSERT_TRUE(dst.paddingKept());
    if (!inPlace) return;
    (driverRows().*kernel)(makeBand(src.data(), src.step(), src.data(), src.step(), n, 2));
    for (std::size_t i = 0; i < n; ++i) {
      if (i % cycle >= used) continue;
      ASSERT_TRUE(sameBits<TD>(src.get<TD>(1, i), dst.get<TD>(1, i))) << "in place, sample " << i;
    }
  });
}

TEST(Drivers, MapOfOneSource) {
  const auto invert = [](Kel8u a) { return static_cast<Kel8u>(~a); };
  checkMap1<Kel8u, Kel8u>(&DriverRows::invert8u, 1, 1, true, invert);
  checkMap1<Kel8u, Kel8u>(&DriverRows::invert8uAC4, 4, 3, true, invert);
  checkMap1<Kel8u, Kel8u>(&DriverRows::invert8uOfC3, 3, 1, true, invert);
  checkMap1<Kel8u, Kel16s>(&DriverRows::widen8u16s, 1, 1, false, [](Kel8u a) { return Kel16s{a}; });
  checkMap1<Kel16s, Kel32f>(&DriverRows::widen16s32f, 1, 1, false,
                            [](Kel16s a) { return static_cast<Kel32f>(a); });
  checkMap1<Kel16s, Kel8u>(&DriverRows::narrow16s8u, 1, 1, false, [](Kel16s a) {
    return static_cast<Kel8u>(a < 0 ? 0 : a > 255 ? 255 : a);
  });
  checkMap1<Kel64f, Kel64f>(&DriverRows::negate64f, 1, 1, true, [](Kel64f a) { return -a; });
}

// With the second source as destination too.
template <class T, class Definition>
void checkMap2(DriverRows::Map2 DriverRows::*kernel, Definition definition) {
  forEachTargetLengthPlace([&](std::size_t n, std::size_t place) {
    Rows a(n * sizeof(T), place, 1), b(n * sizeof(T), place, 2), dst(n * sizeof(T), place, 3);
    a.fillSmall<T>(runSeed());
    b.fillSmall<T>(runSeed() + 1);
    (driverRows().*
     kernel)(makeBand(a.data(), a.step(), b.data(), b.step(), dst.data(), dst.step(), n, 2));
    std::vector<T> expected;
    for (std::size_t y = 0; y < 2; ++y) {
      for (std::size_t i = 0; i < n; ++i) {
        expected.push_back(definition(a.get<T>(y, i), b.get<T>(y, i)));
        ASSERT_EQ(dst.get<T>(y, i), expected.back());
      }
    }
    (driverRows().*
     kernel)(makeBand(a.data(), a.step(), b.data(), b.step(), b.data(), b.step(), n, 2));
    for (std::size_t i = 0; i < 2 * n; ++i)
      ASSERT_EQ(b.get<T>(i / n, i % n), expected[i]) << "in place";
  });
}

TEST(Drivers, MapOfTwoSources) {
  checkMap2<Kel8u>(&DriverRows::add8u,
                   [](int a, int b) { return static_cast<Kel8u>(a + b > 255 ? 255 : a + b); });
  checkMap2<Kel32f>(&DriverRows::add32f, [](Kel32f a, Kel32f b) { return a + b; });
}

template <class T>
void checkMapC(DriverRows::MapC DriverRows::*kernel, std::size_t channels, std::int64_t least,
               std::int64_t most) {
  const T values[4] = {static_cast<T>(3), static_cast<T>(50), static_cast<T>(100),
                       static_cast<T>(7)};
  T cycle[64 + 4];
  for (std::size_t i = 0; i < 68; ++i) cycle[i] = values[i % channels];
  forEachTargetLengthPlace([&](std::size_t length, std::size_t place) {
    const std::size_t n = (length + channels - 1) / channels * channels;
    Rows src(n * sizeof(T), place, 1), dst(n * sizeof(T), place, 2);
    src.fillSmall<T>(runSeed());
    (driverRows().*kernel)(makeBand(src.data(), src.step(), dst.data(), dst.step(), n, 2), cycle);
    for (std::size_t y = 0; y < 2; ++y) {
      for (std::size_t i = 0; i < n; ++i) {
        const auto sum = static_cast<std::int64_t>(src.get<T>(y, i)) +
                         static_cast<std::int64_t>(values[i % channels]);
        ASSERT_EQ(static_cast<std::int64_t>(dst.get<T>(y, i)),
                  std::min(std::max(sum, least), most));
      }
    }
  });
}

TEST(Drivers, MapOfConstants) {
  checkMapC<Kel8u>(&DriverRows::addC8uC1, 1, 0, 255);
  checkMapC<Kel8u>(&DriverRows::addC8uC3, 3, 0, 255);
  checkMapC<Kel16s>(&DriverRows::addC16sC4, 4, -32768, 32767);
  checkMapC<Kel32f>(&DriverRows::addC32fC3, 3, -100000, 100000);
}

// Channels 1, 2, 0 of the source in 0, 1, 2 of the destination; a fourth is kept.
template <class T, Layout kFrom, Layout kTo>
void checkRotate(DriverRows::Planes DriverRows::*kernel) {
  constexpr std::size_t kIn = isPlanar(kFrom) ? 3 : 1, kOut = isPlanar(kTo) ? 3 : 1;
  constexpr std::size_t kInSamples = pixelSamples(kFrom), kOutSamples = pixelSamples(kTo);
  forEachTargetLengthPlace([&](std::size_t n, std::size_t place) {
    std::vector<std::unique_ptr<Rows>> src, dst;
    PlanesBand band = {};
    for (std::size_t k = 0; k < kIn; ++k) {
      src.push_back(std::make_unique<Rows>(n * kInSamples * sizeof(T), place, runSeed() + k));
      band.src[k] = src[k]->data();
    }
    for (std::size_t k = 0; k < kOut; ++k) {
      dst.push_back(std::make_unique<Rows>(n * kOutSamples * sizeof(T), place, k));
      band.dst[k] = dst[k]->data();
    }
    band.srcStep = src[0]->step();
    band.dstStep = dst[0]->step();
    band.n = n;
    band.rows = 2;
    (driverRows().*kernel)(band);
    for (std::size_t i = 0; i < 2 * n * 3; ++i) {
      const std::size_t y = i / 3 / n, x = i / 3 % n, k = i % 3, from = (k + 1) % 3;
      const T expected = isPlanar(kFrom) ? src[from % kIn]->template get<T>(y, x)
                                         : src[0]->template get<T>(y, x * kInSamples + from);
      const T result = isPlanar(kTo) ? dst[k % kOut]->template get<T>(y, x)
                                     : dst[0]->template get<T>(y, x * kOutSamples + k);
      ASSERT_EQ(result, expected) << "channel " << k << " of pixel " << x << " of row " << y;
    }
    if (kOutSamples == 4) {
      for (std::size_t x = 0; x < n; ++x)
        ASSERT_EQ(dst[0]->template get<T>(1, 4 * x + 3), dst[0]->template was<T>(1, 4 * x + 3));
    }
  });
}

TEST(Drivers, PixelsOfThreeAndFourChannels) {
  checkRotate<Kel8u, Layout::C3, Layout::C3>(&DriverRows::rotateC3);
  checkRotate<Kel8u, Layout::C3, Layout::P3>(&DriverRows::rotateC3P3);
  checkRotate<Kel8u, Layout::P3, Layout::AC4>(&DriverRows::rotateP3AC4);
  checkRotate<Kel16u, Layout::AC4, Layout::C3>(&DriverRows::rotateAC4C3_16u);
  forEachTargetLengthPlace([&](std::size_t n, std::size_t place) {
    Rows src(3 * n * 4, place, 1), dst(n * 4, place, 2);
    src.fillSmall<Kel32f>(runSeed());
    driverRows().grayC3C1_32f({{src.data()}, {dst.data()}, src.step(), dst.step(), n, 2, false});
    for (std::size_t x = 0; x < n; ++x) {
      ASSERT_EQ(dst.get<Kel32f>(1, x), src.get<Kel32f>(1, 3 * x) + src.get<Kel32f>(1, 3 * x + 1) +
                                           src.get<Kel32f>(1, 3 * x + 2));
    }
  });
}

}  // namespace
}  // namespace keli::test
