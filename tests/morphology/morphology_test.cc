// Minimum and maximum filters, erosion and dilation against their definition.
#include <gtest/gtest.h>

#include <algorithm>

#include "keli.h"
#include "morphology/neighbourhood.h"
#include "support/targets.h"
#include "support/test_call.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Role;
using registry::Type;
using registry::Value;

enum class Shape { kAll, kRandom, kSparse, kSingle, kEllipse, kTriangle, kBox };

struct Case {
  KeliSize roi;
  KeliSize mask;
  Shape shape;
};

bool isSet(Shape shape, KeliSize size, int i, int j, Random& random) {
  const double u = (2.0 * i + 1) / size.width - 1, v = (2.0 * j + 1) / size.height - 1;
  switch (shape) {
    case Shape::kAll:
      return true;
    case Shape::kRandom:
      return random() % 2 == 0;
    case Shape::kSparse:
      return random() % 16 == 0;
    case Shape::kSingle:
      return i == size.width / 3 && j == size.height / 2;
    case Shape::kEllipse:
      return u * u + v * v <= 1;
    case Shape::kTriangle:  // runs of all lengths
      return i <= j * size.width / size.height;
    case Shape::kBox:  // a part of the mask, all set
      return i >= size.width / 3 && j >= size.height / 2;
  }
  return false;
}

Neighbourhood neighbourhood(const Function& f, const Case& c, Random& random) {
  Neighbourhood n = {c.mask, {}, {}};
  n.anchor.x = static_cast<int>(pick(random, static_cast<std::size_t>(c.mask.width)));
  n.anchor.y = static_cast<int>(pick(random, static_cast<std::size_t>(c.mask.height)));
  if (f.reach == registry::Reach::k3x3) n.anchor = {1, 1};
  for (int j = 0; j < c.mask.height; ++j) {
    for (int i = 0; i < c.mask.width; ++i) {
      const Kel8u set = static_cast<Kel8u>(1 + random() % 255);
      n.element.push_back(isSet(c.shape, c.mask, i, j, random) ? set : Kel8u{0});
    }
  }
  if (std::count(n.element.begin(), n.element.end(), 0) == c.mask.width * c.mask.height)
    n.element.back() = 1;
  return n;
}

// A function with its images.
struct Images {
  const Function& f;
  const Case& c;
  const Neighbourhood& n;
  Framed src, dst;  // of a function in place the same samples

  Images(const Function& function, const Case& theCase, const Neighbourhood& theNeighbourhood,
         int place, std::uint64_t seed)
      : f(function),
        c(theCase),
        n(theNeighbourhood),
        src(f.arguments[0], c.roi, n, place % 3, place % 2 == 0),
        dst(f.arguments[0], c.roi, f.inPlace ? n : Neighbourhood{{1, 1}, {0, 0}, {}}, place % 3,
            place % 4 < 2) {
    Random random(seed);
    dst.fill(random);
    src.fill(random);
    if (f.inPlace) std::memcpy(dst.block(), src.block(), src.size());
  }

  KelStatus run() const {
    std::vector<Value> values;
    bool source = false;
    for (const registry::Argument& a : f.arguments) {
      Value v = {};
      if (registry::isImage(a.role)) source = a.role == Role::kSource;
      if (registry::isImage(a.role)) v.p = (source ? src : dst).at(0, 0, 0);
      if (a.role == Role::kStep) v.i = (source ? src : dst).step();
      if (a.role == Role::kRegion) v.size = c.roi;
      if (a.role == Role::kMaskSize) v.size = n.mask;
      if (a.role == Role::kAnchor) v.point = n.anchor;
      if (a.role == Role::kElement) v.p = n.element.data();
      values.push_back(v);
    }
    return f(values.data()).status;
  }

  // Writes the results by the definition.
  template <class T>
  void define() const {
    const std::string name = f.operation;
    const bool least = name.find("Min") != name.npos || name.find("Erode") != name.npos;
    for (int y = 0; y < c.roi.height; ++y) {
      for (int x = 0; x < c.roi.width; ++x) {
        for (int k = 0; k < usedChannels(f.arguments[0].layout); ++k) {
          const T v = extremeAt<T>(src, n, least, x, y, k);
          std::memcpy(dst.at(x, y, k), &v, sizeof(T));
        }
      }
    }
  }
};

template <class T>
void check(const Function& f, const Case& c, int place) {
  const std::uint64_t seed = runSeed() + static_cast<std::uint64_t>(place);
  Random random(seed);
  const Neighbourhood n = neighbourhood(f, c, random);
  const Images expected(f, c, n, place, seed);
  expected.define<T>();
  const std::vector<std::uint8_t> results = expected.dst.contents();
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    const Images images(f, c, n, place, seed);
    ASSERT_EQ(images.run(), kelStatusOk) << f.name;
    ASSERT_TRUE(images.dst.contents() == results)
        << f.name << " " << targetName(target) << " " << c.roi.width << "x" << c.roi.height
        << ", mask " << c.mask.width << "x" << c.mask.height << " of shape "
        << static_cast<int>(c.shape) << ", anchor " << n.anchor.x << " " << n.anchor.y;
    ASSERT_TRUE(images.src.contents() == expected.src.contents()) << f.name << " writes its source";
  }
}

void check(const Function& f, const Case& c, int place) {
  switch (f.arguments[0].type) {
    case Type::k8u:
      return check<Kel8u>(f, c, place);
    case Type::k16s:
      return check<Kel16s>(f, c, place);
    default:
      return check<Kel32f>(f, c, place);
  }
}

// Masks of every small size, of the lengths at which the ways of computing change, and such that
// are larger than the region.
std::vector<Case> cases(const Function& f) {
  const bool square = f.reach == registry::Reach::k3x3;
  const bool element = checks(f, registry::Check::kElement);
  std::vector<Case> all;
  int turn = 0;
  constexpr KeliSize kSizes[] = {{1, 1}, {5, 2}, {33, 7}, {17, 3}, {70, 12}, {8, 1}, {140, 5}};
  const auto add = [&](KeliSize mask, Shape shape) {
    all.push_back({kSizes[static_cast<std::size_t>(turn++) % std::size(kSizes)], mask, shape});
  };
  if (square) {
    for (int width = 1; width < 100; width += 1 + width / 9) add({3, 3}, Shape::kAll);
    for (const KeliSize wide : {KeliSize{700, 6}, KeliSize{1501, 3}, KeliSize{4500, 4}})
      all.push_back({wide, {3, 3}, Shape::kAll});
    return all;
  }
  for (int width = 1; width <= 6; ++width) {
    for (int height = 1; height <= 6; ++height)
      add({width, height}, element ? static_cast<Shape>((width + height) % 3) : Shape::kAll);
  }
  for (const KeliSize mask : {KeliSize{15, 15},
                              {31, 31},
                              {64, 9},
                              {9, 64},
                              {40, 1},
                              {1, 40},
                              {8, 8},
                              {9, 9},
                              {17, 10},
                              {70, 33}})
    add(mask, Shape::kAll);
  all.push_back({{700, 21}, {5, 4}, Shape::kAll});
  all.push_back({{1501, 11}, {2, 10}, Shape::kAll});
  all.push_back({{4500, 3}, {21, 2}, Shape::kAll});
  if (!element) return all;
  for (const Shape shape : {Shape::kRandom, Shape::kSparse, Shape::kSingle, Shape::kEllipse,
                            Shape::kTriangle, Shape::kBox}) {
    for (const KeliSize mask : {KeliSize{7, 7}, {16, 12}, {41, 41}, {100, 4}, {3, 60}})
      add(mask, shape);
    all.push_back({{1501, 5}, {9, 5}, shape});
  }
  return all;
}

TEST(Morphology, EqualsTheDefinition) {
  int functions = 0;
  for (const Function& f : registry::functions()) {
    if (std::string(f.entry->group) != "morphology") continue;
    ++functions;
    int place = 0;
    for (const Case& c : cases(f)) check(f, c, place++);
    if (HasFatalFailure()) return;
  }
  EXPECT_EQ(functions, 72);
}

// Floats of any bits: NaNs of both signs and all payloads.
TEST(Morphology, NumbersAndNaNsHaveOneOrder) {
  constexpr std::uint32_t kOrder[] = {0xFFFFFFFF, 0xFFC00000, 0xFF800001, 0xFF800000,
                                      0xFF7FFFFF, 0xBF800000, 0x80000001, 0x80000000,
                                      0x00000000, 0x00000001, 0x3F800000, 0x7F7FFFFF,
                                      0x7F800000, 0x7F800001, 0x7FC00000, 0x7FFFFFFF};
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    for (std::size_t a = 0; a < std::size(kOrder); ++a) {
      for (std::size_t b = 0; b < std::size(kOrder); ++b) {
        // Windows of 9 samples that hold b at one place each and a else.
        Kel32f src[17], least[9], most[9];
        for (Kel32f& v : src) std::memcpy(&v, &kOrder[a], sizeof(v));
        std::memcpy(&src[8], &kOrder[b], sizeof(Kel32f));
        const KeliSize roi = {9, 1}, mask = {9, 1};
        ASSERT_EQ(keliFilterMin_32f_C1R(src, 68, least, 36, roi, mask, {0, 0}), kelStatusOk);
        ASSERT_EQ(keliFilterMax_32f_C1R(src, 68, most, 36, roi, mask, {0, 0}), kelStatusOk);
        for (int x = 0; x < 9; ++x) {
          ASSERT_EQ(std::memcmp(&least[x], &kOrder[std::min(a, b)], 4), 0) << a << " " << b;
          ASSERT_EQ(std::memcmp(&most[x], &kOrder[std::max(a, b)], 4), 0) << a << " " << b;
        }
      }
    }
  }
}

// Which of several faults is reported: fixed points beside the orders that the tables give.
TEST(Morphology, StatusOfBadArguments) {
  Kel8u image[64] = {}, none[4] = {};
  const Kel8u one[4] = {0, 0, 9, 0};
  Kel8u* const src = image + 20;
  Kel8u dst[8] = {};
  const KeliSize roi = {4, 1}, two = {2, 2};
  EXPECT_EQ(keliFilterMax_8u_C1R(src, 0, dst, 8, {0, 1}, two, {0, 0}), kelStatusBadSize);
  EXPECT_EQ(keliFilterMax_8u_C1R(src, 0, dst, 8, roi, {0, 2}, {0, 0}), kelStatusBadStep);
  EXPECT_EQ(keliFilterMax_8u_C1R(src, 8, dst, 8, roi, {0, 2}, {0, 0}), kelStatusBadMaskSize);
  EXPECT_EQ(keliFilterMax_8u_C1R(src, 8, dst, 8, roi, two, {0, 2}), kelStatusBadAnchor);
  EXPECT_EQ(keliFilterMax_8u_C1R(src, 1, dst, 8, {1, 1}, two, {0, 0}), kelStatusOk);
  EXPECT_EQ(keliErode3x3_8u_C1R(src, 0, dst, 8, {0, 1}), kelStatusBadStep);
  EXPECT_EQ(keliErode3x3_8u_C1R(src, 6, dst, 4, roi), kelStatusOk);
  EXPECT_EQ(keliErode3x3_8u_C1R(src, 5, dst, 4, roi), kelStatusStepTooSmall);
  EXPECT_EQ(keliErode3x3_8u_C1R(src, 6, dst, 3, roi), kelStatusStepTooSmall);
  EXPECT_EQ(keliErode3x3_8u_C1IR(src, 5, roi), kelStatusStepTooSmall);
  EXPECT_EQ(keliErode3x3_8u_C1IR(src, 6, roi), kelStatusOk);
  EXPECT_EQ(keliErode_8u_C1R(src, 0, dst, 8, {0, 1}, one, two, {0, 0}), kelStatusBadStep);
  EXPECT_EQ(keliErode_8u_C1R(src, 8, dst, 8, roi, none, {0, 2}, {0, 0}), kelStatusBadMaskSize);
  EXPECT_EQ(keliErode_8u_C1R(src, 1, dst, 8, roi, none, two, {2, 0}), kelStatusZeroMask);
  EXPECT_EQ(keliErode_8u_C1R(src, 1, dst, 8, roi, one, two, {2, 0}), kelStatusBadAnchor);
  EXPECT_EQ(keliErode_8u_C1R(src, 4, dst, 8, roi, one, two, {1, 0}), kelStatusStepTooSmall);
  EXPECT_EQ(keliErode_8u_C1R(src, 5, dst, 3, roi, one, two, {1, 0}), kelStatusStepTooSmall);
  EXPECT_EQ(keliErode_8u_C1R(src, 5, dst, 4, roi, one, two, {1, 0}), kelStatusOk);
}

}  // namespace
}  // namespace keli::test
