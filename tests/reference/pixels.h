// Members that turn pixels of three channels into pixels of three or one, against a definition of
// one pixel; and 8u members over every colour there is.
#pragma once

#include <array>
#include <functional>

#include "reference/pointwise.h"

namespace keli::test {

// A pixel's first three samples, and what becomes of them: the rest of three, or the first alone.
template <class T>
using Pixel = std::array<T, 3>;
template <class T>
using PixelDefinition = std::function<Pixel<T>(const Pixel<T>&)>;

// Every sample of f's results, exactly, in calls as checkCalls makes them, whose samples
// prepare(call, i) may change. definition(pixel, column, width) where the place matters.
template <class T, class Definition, class Prepare>
void checkPixels(const registry::Function& f, const Definition& definition,
                 const Prepare& prepare) {
  checkCalls(f, prepare, [&](const TestCall& call, KeliSize size) {
    const ImageView src(call, call.find(registry::Role::kSource)), dst(call, call.written());
    for (int y = 0; y < size.height; ++y) {
      for (int x = 0; x < size.width; ++x) {
        Pixel<T> in, out;
        for (int k = 0; k < 3; ++k) in[static_cast<std::size_t>(k)] = src.template get<T>(x, y, k);
        if constexpr (std::is_invocable_v<Definition, Pixel<T>, int, int>) {
          out = definition(in, x, size.width);
        } else {
          out = definition(in);
        }
        // AP4C4 and AC4P4 leave a fourth channel that their layouts count.
        for (int k = 0; k < std::min(dst.channels(), 3); ++k)
          dst.template set<T>(x, y, k, out[static_cast<std::size_t>(k)]);
      }
    }
  });
}

template <class T, class Definition>
void checkPixels(const registry::Function& f, const Definition& definition) {
  checkPixels<T>(f, definition, [](TestCall&, std::size_t) {});
}

// All members of an operation of T.
template <class T, class Definition>
void checkConversion(const std::string& operation, registry::Type type, int members,
                     const Definition& definition) {
  EXPECT_EQ(forMembers(operation, type,
                       [&](const registry::Function& f) { checkPixels<T>(f, definition); }),
            members)
      << operation;
}

// An 8u conversion of C3 to C3 or C1, called with rows of pixels.
class ByteConversion {
 public:
  explicit ByteConversion(const char* name) : function_(registry::find(name)) {
    EXPECT_NE(function_, nullptr) << name;
  }
  int channels() const { return pixelSamples(function_->arguments[2].layout); }
  std::vector<Kel8u> operator()(const std::vector<Kel8u>& src) const {
    const int width = static_cast<int>(src.size() / 3);
    std::vector<Kel8u> dst(static_cast<std::size_t>(width * channels()));
    registry::Value values[5] = {};
    values[0].p = src.data();
    values[1].i = 3 * width;
    values[2].p = dst.data();
    values[3].i = channels() * width;
    values[4].size = {width, 1};
    EXPECT_EQ((*function_)(values).status, kelStatusOk) << function_->name;
    return dst;
  }

 private:
  const registry::Function* function_;
};

// Calls f with rows that hold all 2^24 colours together, 2^16 in each: those of one red.
template <class F>
void forAllColors(const F& f) {
  std::vector<Kel8u> row(3 << 16);
  for (int red = 0; red < 256; ++red) {
    for (std::size_t i = 0; i < 1 << 16; ++i) {
      row[3 * i] = static_cast<Kel8u>(red);
      row[3 * i + 1] = static_cast<Kel8u>(i >> 8);
      row[3 * i + 2] = static_cast<Kel8u>(i);
    }
    f(row);
    if (testing::Test::HasFatalFailure()) return;
  }
}

// All colours by a conversion of 8u on every target. definition gives a pixel's results.
inline void checkAllColors(const char* name, const PixelDefinition<Kel8u>& definition) {
  const ByteConversion convert(name);
  forAllColors([&](const std::vector<Kel8u>& row) {
    std::vector<Kel8u> expected;
    expected.reserve(row.size());
    for (std::size_t i = 0; i < row.size(); i += 3) {
      const Pixel<Kel8u> out = definition({row[i], row[i + 1], row[i + 2]});
      expected.insert(expected.end(), out.begin(), out.begin() + convert.channels());
    }
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      const std::vector<Kel8u> found = convert(row);
      for (std::size_t i = 0; i < found.size(); ++i) {
        ASSERT_EQ(found[i], expected[i])
            << name << " " << targetName(target) << " of " << int{row[0]} << ", "
            << i / static_cast<std::size_t>(convert.channels()) / 256 << ", "
            << i / static_cast<std::size_t>(convert.channels()) % 256 << ", channel "
            << i % static_cast<std::size_t>(convert.channels());
      }
    }
  });
}

// What a colour is away from itself after a conversion and its inverse.
struct RoundTrip {
  int most = 0;     // of any sample
  double mean = 0;  // of all of them
};

inline RoundTrip roundTrip(const char* there, const char* back) {
  const ByteConversion forward(there), inverse(back);
  RoundTrip trip;
  std::uint64_t sum = 0;
  forAllColors([&](const std::vector<Kel8u>& row) {
    const std::vector<Kel8u> found = inverse(forward(row));
    for (std::size_t i = 0; i < row.size(); ++i) {
      const int error = std::abs(found[i] - row[i]);
      trip.most = std::max(trip.most, error);
      sum += static_cast<std::uint64_t>(error);
    }
  });
  trip.mean = static_cast<double>(sum) / (3 << 24);
  return trip;
}

}  // namespace keli::test
