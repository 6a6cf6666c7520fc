// The comparisons against their definitions.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "reference/pointwise.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Role;
using registry::Type;

// Orders a against b: -1, 0 or 1, and 2 where one is no number.
template <class T>
int order(T a, T b) {
  if constexpr (std::is_floating_point_v<T>) {
    if (std::isnan(a) || std::isnan(b)) return 2;
  }
  const double first = a, second = b;
  return first < second ? -1 : first > second ? 1 : 0;
}

// By KelCmpOp, the orders that satisfy it.
constexpr bool kSatisfied[5][3] = {{true, false, false},
                                   {true, true, false},
                                   {false, true, false},
                                   {false, true, true},
                                   {false, false, true}};

template <class T>
bool related(T a, T b, std::int64_t op) {
  const int o = order(a, b);
  return o != 2 && kSatisfied[op][o + 1];
}

// Whether any of a call's images lies apart from the multiples of 16 bytes, or its step does.
bool unaligned(const TestCall& call) {
  for (std::size_t i = 0; i < call.values.size(); ++i) {
    if (!registry::isImage(call.function.arguments[i].role)) continue;
    const auto address = reinterpret_cast<std::uintptr_t>(call.values[i].p);
    if (address % 16 != 0 || call.stepOf(i) % 16 != 0) return true;
  }
  return false;
}

bool near(const TestCall& call, Kel32f a, Kel32f b) {
  const Kel32f eps = static_cast<Kel32f>(call.values[call.find(Role::kTolerance)].f);
  const bool wide = call.function.arguments[0].layout == Layout::C4 && unaligned(call);
  volatile Kel32f single = a - b;
  return wide ? std::fabs(Kel64f{a} - Kel64f{b}) <= Kel64f{eps} : std::fabs(single) <= eps;
}

template <class T>
bool holds(const TestCall& call, T a, T b) {
  const std::size_t op = call.find(Role::kCompareOp);
  if (op != TestCall::npos) return related(a, b, call.values[op].i);
  if constexpr (std::is_same_v<T, Kel32f>) return near(call, a, b);
  return false;
}

// The second operand of channel k at a pixel.
template <class T>
T second(const TestCall& call, int x, int y, int k) {
  const std::size_t constant = call.find(Role::kConstant);
  if (constant != TestCall::npos) return constantOf<T>(call, constant, k);
  return ImageView(call, call.lastSource()).get<T>(x, y, k);
}

template <class T>
void fill(const TestCall& call, KeliSize size) {
  const ImageView src(call, 0), dst(call, call.written());
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      bool all = true;
      for (int k = 0; k < src.channels(); ++k)
        all = all && holds<T>(call, src.get<T>(x, y, k), second<T>(call, x, y, k));
      dst.set<Kel8u>(x, y, 0, all ? 255 : 0);
    }
  }
}

// A sample that lies `away` steps from another, or, for a tolerance, at it and next to it.
template <class T>
T nextTo(const TestCall& call, T v, int away) {
  const std::size_t tolerance = call.find(Role::kTolerance);
  if constexpr (std::is_floating_point_v<T>) {
    if (tolerance != TestCall::npos)
      v += static_cast<T>(call.values[tolerance].f) * (away == 0 ? T{0} : static_cast<T>(away));
    return away == 0 ? v : std::nextafter(v, away < 0 ? -HUGE_VALF : HUGE_VALF);
  } else {
    return static_cast<T>(v + away);
  }
}

// Makes most samples of most pixels satisfy the relation, some just so and some just not: random
// ones of four channels hardly ever do.
template <class T>
void addNear(TestCall& call, std::size_t i) {
  const std::size_t op = call.find(Role::kCompareOp);
  if (op != TestCall::npos) call.values[op].i = static_cast<std::int64_t>(i % 5);
  const int wanted = op == TestCall::npos || i % 5 == 2 ? 0 : i % 5 < 2 ? -1 : 1;
  const ImageView src(call, 0);
  const KeliSize size = call.values[call.find(Role::kRegion)].size;
  Random random(i);
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      for (int k = 0; k < src.channels(); ++k) {
        const std::size_t draw = pick(random, 16);
        if (draw == 0) continue;  // stays as it is
        const int away = draw < 4 ? static_cast<int>(draw) - 2 : draw < 7 ? 0 : wanted;
        src.set<T>(x, y, k, nextTo(call, second<T>(call, x, y, k), away));
      }
    }
  }
  call.remember();
}

int membersFrom(const char* operation, Type type, const std::function<void(const Function&)>& f) {
  int count = 0;
  forMembers(operation, Type::k8u, [&](const Function& function) {
    if (function.arguments[0].type != type) return;
    ++count;
    f(function);
  });
  return count;
}

template <class T>
void checkAll(const char* operation, Type type) {
  const int members = membersFrom(operation, type, [](const Function& f) {
    // Three rounds of widths of every relation, so that each width meets several.
    checkCalls(f, 55, addNear<T>, fill<T>, [](const TestCall&, KeliSize) { return kelStatusOk; });
  });
  EXPECT_EQ(members, 4) << operation;
}

TEST(Compare, MembersAreTheirDefinitions) {
  for (const char* operation : {"Compare", "CompareC"}) {
    checkAll<Kel8u>(operation, Type::k8u);
    checkAll<Kel16s>(operation, Type::k16s);
    checkAll<Kel32f>(operation, Type::k32f);
  }
  for (const char* operation : {"CompareEqualEps", "CompareEqualEpsC"})
    checkAll<Kel32f>(operation, Type::k32f);
}

// Constants at the ends of the range, where a relation holds for all samples or for none.
template <class T, class F>
void checkExtremes(F function) {
  using Limits = std::numeric_limits<T>;
  std::vector<T> src(64);
  for (std::size_t i = 0; i < src.size(); ++i)
    src[i] = i % 3 == 0 ? Limits::lowest() : i % 3 == 1 ? Limits::max() : static_cast<T>(i);
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    for (const T value : {Limits::lowest(), Limits::max(), T{0}}) {
      for (KelCmpOp op = kelCmpLess; op <= kelCmpGreater; ++op) {
        Kel8u dst[64];
        ASSERT_EQ(function(src.data(), 64 * sizeof(T), value, dst, 64, {64, 1}, op), kelStatusOk);
        for (std::size_t i = 0; i < src.size(); ++i) {
          ASSERT_EQ(dst[i], related(src[i], value, op) ? 255 : 0)
              << targetName(target) << " operation " << op << " of " << +src[i] << ", " << +value;
        }
      }
    }
  }
}

TEST(Compare, ConstantsAtTheEndsOfTheRange) {
  checkExtremes<Kel8u>(keliCompareC_8u_C1R);
  checkExtremes<Kel16s>(keliCompareC_16s_C1R);
  checkExtremes<Kel32f>(keliCompareC_32f_C1R);
}

// Every pair of special floats, by every relation.
TEST(Compare, SpecialFloats) {
  const Kel32f nan = std::nanf(""), inf = HUGE_VALF;
  const std::vector<Kel32f> specials = {0.f, -0.f, nan, -nan, inf, -inf, 1.f, -1.f};
  std::vector<Kel32f> a(64), b(64);
  for (std::size_t i = 0; i < a.size(); ++i) {
    a[i] = specials[i % 8];
    b[i] = specials[i / 8];
  }
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    Kel8u two[64], one[64];
    for (KelCmpOp op = kelCmpLess; op <= kelCmpGreater; ++op) {
      EXPECT_EQ(keliCompare_32f_C1R(a.data(), 256, b.data(), 256, two, 64, {64, 1}, op), 0);
      for (std::size_t i = 0; i < a.size(); ++i) {
        EXPECT_EQ(keliCompareC_32f_C1R(&a[i], 4, b[i], &one[i], 1, {1, 1}, op), 0);
        const int expected = related(a[i], b[i], op) ? 255 : 0;
        EXPECT_EQ(two[i], expected) << targetName(target) << " " << a[i] << " " << b[i];
        EXPECT_EQ(one[i], expected) << targetName(target) << " " << a[i] << " " << b[i];
      }
    }
    // -0 is a tolerance.
    EXPECT_EQ(keliCompareEqualEps_32f_C1R(a.data(), 256, b.data(), 256, two, 64, {64, 1}, -0.f), 0);
    for (std::size_t i = 0; i < a.size(); ++i)
      EXPECT_EQ(two[i], order(a[i], b[i]) == 0 && std::isfinite(a[i]) ? 255 : 0) << a[i];
  }
}

// 1 + 2^-25 rounds to 1: within a tolerance of 1 in single precision, and above it in double, which
// images of four channels use that are not set on 16 bytes.
TEST(Compare, FourChannelsApartFrom16BytesUseDoubles) {
  alignas(16) Kel32f a[64 * 4 + 4], b[64 * 4 + 4];
  alignas(16) Kel8u dst[80];
  const Kel32f value[4] = {-0x1p-25f, -0x1p-25f, -0x1p-25f, -0x1p-25f};
  std::fill(std::begin(a), std::end(a), 1.f);
  std::fill(std::begin(b), std::end(b), value[0]);
  const auto check = [&](int offsetA, int offsetB, int offsetDst, int dstStep, bool wide) {
    const auto expect = [&](const char* function) {
      for (int x = 0; x < 64; ++x)
        ASSERT_EQ(dst[offsetDst + x], wide ? 0 : 255)
            << function << " offsets " << offsetA << " " << offsetB << " " << offsetDst;
    };
    std::fill(std::begin(dst), std::end(dst), Kel8u{1});
    ASSERT_EQ(keliCompareEqualEps_32f_C4R(a + offsetA, 1024, b + offsetB, 1024, dst + offsetDst,
                                          dstStep, {64, 1}, 1),
              kelStatusOk);
    expect("two images");
    if (offsetB != 0) return;
    ASSERT_EQ(keliCompareEqualEpsC_32f_C4R(a + offsetA, 1024, value, dst + offsetDst, dstStep,
                                           {64, 1}, 1),
              kelStatusOk);
    expect("a constant");
  };
  for (const std::int64_t target : testedTargets()) {
    const UseTarget use(target);
    check(0, 0, 0, 64, false);
    check(1, 0, 0, 64, true);
    check(0, 3, 0, 64, true);
    check(0, 0, 8, 64, true);
    check(0, 0, 0, 68, true);
    // AC4 and the others know no such difference.
    EXPECT_EQ(keliCompareEqualEps_32f_AC4R(a + 1, 1024, b, 1024, dst, 64, {64, 1}, 1), kelStatusOk);
    EXPECT_EQ(dst[5], 255);
  }
}

TEST(Compare, OtherOperationsWriteNothing) {
  for (const char* operation : {"Compare", "CompareC"}) {
    const int members = forMembers(operation, Type::k8u, [](const Function& f) {
      for (const int op :
           {-1, 5, 7, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        TestCall call(f, Geometry{}, runSeed());
        call.values[call.find(Role::kCompareOp)].i = op;
        EXPECT_EQ(call.run().status, kelStatusOk) << f.name;
        EXPECT_EQ(call.anyWrites(), "") << "operation " << op;
      }
    });
    EXPECT_EQ(members, 12) << operation;
  }
}

// Steps come before sizes, the tolerance last, and other operations after all.
TEST(Compare, OrderOfTheChecks) {
  Kel8u v[4] = {};
  Kel32f f = 0;
  const KeliSize none = {0, 1}, one = {1, 1};
  EXPECT_EQ(keliCompare_8u_C1R(v, 0, v, 1, v, 1, none, 7), kelStatusBadStep);
  EXPECT_EQ(keliCompare_8u_C1R(v, 1, v, 1, v, 1, none, 7), kelStatusBadSize);
  EXPECT_EQ(keliCompareC_8u_C3R(v, 0, nullptr, v, 1, none, 7), kelStatusNullPointer);
  EXPECT_EQ(keliCompareEqualEps_32f_C1R(&f, 4, &f, 4, v, 0, none, -1), kelStatusBadStep);
  EXPECT_EQ(keliCompareEqualEps_32f_C1R(&f, 4, &f, 4, v, 1, one, std::nanf("")),
            kelStatusBadEpsilon);
}

}  // namespace
}  // namespace keli::test
