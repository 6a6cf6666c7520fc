// The thresholds against their definitions.
#include <gtest/gtest.h>

#include <cmath>

#include "reference/pointwise.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Role;
using registry::Type;

template <class T>
bool isNumber(T v) {
  if constexpr (std::is_floating_point_v<T>) return !std::isnan(v);
  return true;
}

// The constant of channel k of an argument, by the argument's name.
template <class T>
T named(const TestCall& call, const char* name, int k) {
  return constantOf<T>(call, argumentNamed(call, name), k);
}

// Thresholds of a sample that may be none or equal: what is left of the other cases is beyond.
template <class T>
T clamped(bool less, T src, T threshold) {
  if (!isNumber(src) || !isNumber(threshold)) return threshold;
  const bool inside = less ? src > threshold : src < threshold;
  return inside ? src : threshold;
}

template <class T>
T replaced(bool less, T src, T threshold, T value) {
  if (!isNumber(src) || !isNumber(threshold)) return less ? value : src;
  const bool beyond = less ? src < threshold : src > threshold;
  return beyond ? value : src;
}

template <class T>
T replacedOutside(const TestCall& call, T src, int k) {
  if (!isNumber(src) || src < named<T>(call, "thresholdLT", k)) return named<T>(call, "valueLT", k);
  if (src > named<T>(call, "thresholdGT", k)) return named<T>(call, "valueGT", k);
  return src;
}

// What the call makes of a sample of channel k.
template <class T>
T expectedOf(const TestCall& call, T src, int k) {
  const std::string operation = call.function.operation;
  if (operation == "Threshold_LTValGTVal") return replacedOutside<T>(call, src, k);
  const std::size_t op = call.find(Role::kCompareOp);
  const bool less = op != TestCall::npos ? call.values[op].i == kelCmpLess
                                         : operation.find("_LT") != std::string::npos;
  const T threshold = named<T>(call, "threshold", k);
  return operation.find("Val") == std::string::npos
             ? clamped(less, src, threshold)
             : replaced(less, src, threshold, named<T>(call, "value", k));
}

// Puts samples equal to the thresholds, next to them, and special ones among the random ones.
template <class T>
void addSpecials(TestCall& call, std::size_t) {
  const bool two = call.find(Role::kUpper) != TestCall::npos;
  const std::size_t source = call.lastSource();
  std::vector<std::uint8_t> samples = call.samples(source);
  const int stored = pixelSamples(call.function.arguments[source].layout);
  for (std::size_t i = 0; i < samples.size() / sizeof(T); i += 3) {
    const int k = std::min(static_cast<int>(i) % stored, stored == 4 ? 2 : 3);
    T v = named<T>(call, !two ? "threshold" : i % 2 == 0 ? "thresholdLT" : "thresholdGT", k);
    if constexpr (std::is_floating_point_v<T>) {
      const T choices[] = {v,
                           v,
                           std::nextafter(v, T{-INFINITY}),
                           std::nextafter(v, T{INFINITY}),
                           std::numeric_limits<T>::quiet_NaN(),
                           T{0},
                           -T{0}};
      v = choices[i / 3 % std::size(choices)];
    } else {
      v = static_cast<T>(v + static_cast<int>(i / 3 % 3) - 1);
    }
    std::memcpy(samples.data() + i * sizeof(T), &v, sizeof(T));
  }
  call.setSamples(source, samples);
}

template <class T>
void fill(const TestCall& call, KeliSize size) {
  const ImageView src(call, call.lastSource()), dst(call, call.written());
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      for (int k = 0; k < dst.channels(); ++k)
        dst.set<T>(x, y, k, expectedOf<T>(call, src.get<T>(x, y, k), k));
    }
  }
}

struct Operation {
  const char* name;
  int members;
};

constexpr Operation kOperations[] = {{"Threshold", 6},           {"Threshold_LT", 6},
                                     {"Threshold_GT", 6},        {"Threshold_Val", 6},
                                     {"Threshold_LTVal", 8},     {"Threshold_GTVal", 8},
                                     {"Threshold_LTValGTVal", 6}};

template <class T>
void checkAll(Type type) {
  for (const Operation& operation : kOperations) {
    const int members = forMembers(
        operation.name, type, [](const Function& f) { checkCalls(f, addSpecials<T>, fill<T>); });
    EXPECT_EQ(members, operation.members) << operation.name;
  }
}

TEST(Threshold, MembersAreTheirDefinitions) {
  checkAll<Kel8u>(Type::k8u);
  checkAll<Kel16s>(Type::k16s);
  checkAll<Kel32f>(Type::k32f);
}

// Thresholds that are zero or no number, in every combination with such samples, to the bit.
TEST(Threshold, SpecialFloats) {
  const Kel32f nan = std::nanf(""), inf = HUGE_VALF;
  const std::vector<Kel32f> specials = {0.f, -0.f, nan, -nan, inf, -inf, 1.f, -1.f};
  std::vector<Kel32f> src(64), dst(64), expected(64);
  for (std::size_t i = 0; i < src.size(); ++i) src[i] = specials[i % specials.size()];
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    for (const Kel32f t : specials) {
      for (const KelCmpOp op : {kelCmpLess, kelCmpGreater}) {
        const auto check = [&](KelStatus status, const auto& definition) {
          ASSERT_EQ(status, kelStatusOk);
          for (std::size_t i = 0; i < src.size(); ++i) expected[i] = definition(src[i]);
          ASSERT_EQ(std::memcmp(dst.data(), expected.data(), 4 * src.size()), 0)
              << targetName(target) << " threshold " << t << " operation " << op;
        };
        check(keliThreshold_32f_C1R(src.data(), 256, dst.data(), 256, {64, 1}, t, op),
              [&](Kel32f v) { return clamped(op == kelCmpLess, v, t); });
        check(keliThreshold_Val_32f_C1R(src.data(), 256, dst.data(), 256, {64, 1}, t, 7, op),
              [&](Kel32f v) { return replaced(op == kelCmpLess, v, t, 7.f); });
      }
    }
  }
}

TEST(Threshold, KnownResults) {
  const auto outside = [](int src, int low, int high, KelStatus expected) {
    Kel8u v = static_cast<Kel8u>(src);
    EXPECT_EQ(keliThreshold_LTValGTVal_8u_C1IR(&v, 1, {1, 1}, static_cast<Kel8u>(low), 11,
                                               static_cast<Kel8u>(high), 22),
              expected);
    return int{v};
  };
  EXPECT_EQ(outside(100, 100, 100, kelStatusOk), 100);
  EXPECT_EQ(outside(99, 100, 100, kelStatusOk), 11);
  EXPECT_EQ(outside(101, 100, 100, kelStatusOk), 22);
  EXPECT_EQ(outside(100, 101, 100, kelStatusBadThresholds), 100);

  const Kel32f nan = std::nanf("");
  const auto value = [&](KelCmpOp op) {
    Kel32f v = nan;
    EXPECT_EQ(keliThreshold_Val_32f_C1IR(&v, 4, {1, 1}, 1, 5, op), kelStatusOk);
    return v;
  };
  EXPECT_EQ(value(kelCmpLess), 5);
  EXPECT_TRUE(std::isnan(value(kelCmpGreater)));
  Kel32f v = nan;
  EXPECT_EQ(keliThreshold_LTValGTVal_32f_C1IR(&v, 4, {1, 1}, 1, 5, 2, 6), kelStatusOk);
  EXPECT_EQ(v, 5);
  EXPECT_EQ(keliThreshold_LTValGTVal_32f_C1IR(&v, 4, {1, 1}, nan, 5, 2, 6), kelStatusBadThresholds);
}

// Threshold looks at its operation last, Threshold_Val first.
TEST(Threshold, OrderOfTheOperationsCheck) {
  Kel8u v[3] = {};
  const KeliSize none = {0, 1}, one = {1, 1};
  EXPECT_EQ(keliThreshold_8u_C1R(nullptr, 0, v, 0, none, 1, kelCmpEq), kelStatusNullPointer);
  EXPECT_EQ(keliThreshold_8u_C3R(v, 3, v, 3, one, nullptr, kelCmpEq), kelStatusNullPointer);
  EXPECT_EQ(keliThreshold_8u_C1R(v, 1, v, 1, one, 1, kelCmpEq), kelStatusBadCompareOp);
  EXPECT_EQ(keliThreshold_Val_8u_C1R(nullptr, 0, v, 0, none, 1, 2, kelCmpEq),
            kelStatusBadCompareOp);
  EXPECT_EQ(keliThreshold_Val_8u_C1R(nullptr, 0, v, 0, none, 1, 2, kelCmpLess),
            kelStatusNullPointer);
  EXPECT_EQ(keliThreshold_GTVal_8u_C4R(v, 0, v, 0, one, nullptr, nullptr), kelStatusBadStep);
}

}  // namespace
}  // namespace keli::test
