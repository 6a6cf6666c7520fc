// Conversions and scalings against their definitions, which are exact in doubles and 64-bit
// integers but for the products of floats.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <functional>
#include <limits>

#include "reference/pointwise.h"

#if defined(__SSE2__)
#include <xmmintrin.h>
#endif

namespace keli::test {
namespace {

using registry::Function;
using registry::Role;
using registry::Type;

constexpr Kel32f kInf = HUGE_VALF;

// body(T{}) with the type of a sample.
template <class Body>
auto withType(Type type, const Body& body) {
  switch (type) {
    case Type::k8s:
      return body(Kel8s{});
    case Type::k16u:
      return body(Kel16u{});
    case Type::k16s:
      return body(Kel16s{});
    case Type::k32s:
      return body(Kel32s{});
    case Type::k32f:
      return body(Kel32f{});
    default:
      EXPECT_EQ(type, Type::k8u);
      return body(Kel8u{});
  }
}

double leastOf(Type type) {
  return withType(type, [](auto v) -> double { return std::numeric_limits<decltype(v)>::min(); });
}
double mostOf(Type type) {
  return withType(type, [](auto v) -> double { return std::numeric_limits<decltype(v)>::max(); });
}

// The parameters of a call, as far as it has them.
struct Terms {
  Type from, to;
  bool scales, nearest;
  Kel32f vMin = 0, vMax = 0;

  explicit Terms(const TestCall& call)
      : from(call.function.arguments[0].type), to(call.function.arguments[call.written()].type) {
    scales = std::string(call.function.operation) == "Scale";
    const std::size_t mode = call.find(Role::kRoundMode), least = call.find(Role::kRangeMin);
    nearest = scales || (mode != TestCall::npos && call.values[mode].i == 1);
    if (least == TestCall::npos) return;
    vMin = static_cast<Kel32f>(call.values[least].f);
    vMax = static_cast<Kel32f>(call.values[call.find(Role::kRangeMax)].f);
  }
};

// To an integer of the destination's type. NaNs give its upper bound.
double rounded(double v, const Terms& t) {
  if (std::isnan(v)) return mostOf(t.to);
  v = std::min(std::max(v, leastOf(t.to)), mostOf(t.to));
  return t.nearest ? std::nearbyint(v) : std::trunc(v);
}

// The whole range onto the whole range, by exact integers.
double rangeToRange(double v, const Terms& t) {
  const auto offset = static_cast<std::int64_t>(v - leastOf(t.from));
  const auto span = static_cast<std::int64_t>(mostOf(t.from) - leastOf(t.from));
  const auto most = static_cast<std::int64_t>(mostOf(t.to) - leastOf(t.to));
  return leastOf(t.to) + static_cast<double>((2 * offset * most + span) / (2 * span));
}

double expected(double v, const Terms& t) {
  if (!t.scales) return t.to == Type::k32f ? v : rounded(v, t);
  if (t.to == Type::k32f) {
    const volatile Kel32f k = (t.vMax - t.vMin) / 255;
    const volatile Kel32f product = static_cast<Kel32f>(v) * k;
    return static_cast<Kel32f>(product + t.vMin);
  }
  if (t.from != Type::k32f) return rangeToRange(v, t);
  if (!(v < t.vMax)) v = t.vMax;
  if (!(v > t.vMin)) v = t.vMin;
  const volatile Kel32f k = 255 / (t.vMax - t.vMin), b = -t.vMin * k;
  const volatile Kel32f product = static_cast<Kel32f>(v) * k;
  const volatile Kel32f sum = product + b;
  return std::isfinite(sum) ? rounded(sum, t) : 0;
}

void fill(const TestCall& call, KeliSize size) {
  const ImageView src(call, 0), dst(call, call.written());
  const Terms terms(call);
  withType(terms.from, [&](auto from) {
    withType(terms.to, [&](auto to) {
      for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
          for (int k = 0; k < dst.channels(); ++k) {
            const double v = expected(src.get<decltype(from)>(x, y, k), terms);
            dst.set(x, y, k, static_cast<decltype(to)>(v));
          }
        }
      }
    });
  });
}

// Members between samples of at least a byte whose descriptor is one of those given.
int forAll(const std::string& descriptors, const std::function<void(const Function&)>& f) {
  int count = 0;
  for (const Function& function : registry::functions()) {
    const std::string operation = function.operation;
    if (operation != "Convert" && operation != "Scale") continue;
    if (descriptors.find(function.descriptor) == std::string::npos) continue;
    bool bits = false;
    for (const auto& a : function.arguments) bits |= a.type == Type::k1u;
    if (bits) continue;
    ++count;
    f(function);
    if (testing::Test::HasFatalFailure()) break;
  }
  return count;
}

// Halves and their neighbours, where random floats hardly ever fall.
void addHalves(TestCall& call, std::size_t i) {
  if (call.function.arguments[0].type != Type::k32f) return;
  Random random(i);
  const ImageView src(call, 0);
  const KeliSize size = call.values[call.find(Role::kRegion)].size;
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      for (int k = 0; k < src.channels(); ++k) {
        const auto half = static_cast<Kel32f>(static_cast<int>(pick(random, 800)) - 300) / 2;
        const Kel32f neighbours[] = {half, std::nextafter(half, kInf), std::nextafter(half, -kInf)};
        if (pick(random, 2) == 0) src.set(x, y, k, neighbours[pick(random, 3)]);
      }
    }
  }
  call.remember();
}

TEST(Convert, MembersAreTheirDefinitions) {
  const int members = forAll("C1R C3R AC4R C4R", [](const Function& f) {
    checkCalls(f, 0, addHalves, fill, [](const TestCall&, KeliSize) { return kelStatusOk; });
  });
  EXPECT_EQ(members, 96);
}

// All values of 8 and 16 bits; of wider types those around every step of every result.
template <class T>
std::vector<T> decisiveValues() {
  using L = std::numeric_limits<T>;
  std::vector<T> all;
  if constexpr (sizeof(T) < 4) {
    for (int v = L::min(); v <= L::max(); ++v) all.push_back(static_cast<T>(v));
  } else if constexpr (std::is_integral_v<T>) {
    std::vector<std::int64_t> centres = {L::min(), -32768, -128, 0, 127, 255, 32767, L::max()};
    for (std::int64_t q = 0; q < 255; ++q) centres.push_back(q * 16843009 + 8421505 + L::min());
    for (const std::int64_t c : centres) {
      for (int d = -2; d <= 2; ++d) {
        const std::int64_t v = c + d;
        if (v >= L::min() && v <= L::max()) all.push_back(static_cast<T>(v));
      }
    }
  } else {
    all = {T{0},
           -T{0},
           kInf,
           -kInf,
           L::quiet_NaN(),
           -L::quiet_NaN(),
           L::max(),
           -L::max(),
           L::denorm_min(),
           -L::denorm_min(),
           300.7f,
           -4.2f,
           0x1p31f,
           -0x1p31f,
           0x1p32f,
           -0x1p33f};
    for (int twice = -2 * 32770; twice <= 2 * 65537; ++twice) {
      const bool edge = std::abs(twice) < 1000 || std::abs(twice) > 2 * 32700;
      const T half = static_cast<T>(twice) / 2;
      if (!edge && twice % 37 != 0) continue;
      all.insert(all.end(), {std::nextafter(half, -kInf), half, std::nextafter(half, kInf)});
    }
  }
  return all;
}

struct Range {
  Kel32f vMin, vMax;
};
// Usual ones, one whose results miss 0 and 255 by roundings, and those that are no numbers.
constexpr Range kRanges[] = {
    {0, 1},    {0, 255},   {-1, 1},       {-50, 201},  {1e8f, 1e8f + 16},     {-3e38f, 3e38f},
    {0, kInf}, {-kInf, 0}, {-kInf, kInf}, {0, 1e-42f}, {1e30f, 1.0000001e30f}};

// A call of a C1 member on all decisive values; modes and ranges take turns.
TestCall decisiveCall(const Function& f, std::size_t turn) {
  std::vector<std::uint8_t> bytes;
  withType(f.arguments[0].type, [&](auto zero) {
    const auto values = decisiveValues<decltype(zero)>();
    bytes.resize(values.size() * sizeof(zero));
    std::memcpy(bytes.data(), values.data(), bytes.size());
  });
  const Geometry g = {static_cast<int>(bytes.size() / registry::bytesOf(f.arguments[0].type)), 1};
  TestCall call(f, g, 1);
  call.setRegion(0, bytes);
  const std::size_t mode = call.find(Role::kRoundMode), least = call.find(Role::kRangeMin);
  const std::int64_t modes[] = {1, 0, 2, -1};
  if (mode != TestCall::npos) call.values[mode].i = modes[turn % 4];
  if (least != TestCall::npos) {
    const Range range = kRanges[turn % std::size(kRanges)];
    call.values[least].f = range.vMin;
    call.values[call.find(Role::kRangeMax)].f = range.vMax;
  }
  return call;
}

std::size_t turnsOf(const Function& f) {
  return checks(f, registry::Check::kSpan)   ? std::size(kRanges)
         : f.arguments[0].type == Type::k32f ? 4
                                             : 1;
}

// Floats by their values: which NaN stands for a missing number is not promised.
void expectSame(const TestCall& call, const TestCall& wanted, const std::string& where) {
  const ImageView a(call, call.written()), b(wanted, wanted.written());
  const int width = call.sizeOf(0).width;
  withType(call.function.arguments[call.written()].type, [&](auto zero) {
    using T = decltype(zero);
    for (int x = 0; x < width; ++x) {
      const double v = a.get<T>(x, 0, 0), w = b.get<T>(x, 0, 0);
      if (v == w || (std::isnan(v) && std::isnan(w))) continue;
      FAIL() << call.function.name << " " << where << " at " << x << ": " << v << ", not " << w;
    }
  });
}

TEST(Convert, DecisiveValues) {
  const int members = forAll("C1R", [](const Function& f) {
    for (std::size_t turn = 0; turn < turnsOf(f); ++turn) {
      TestCall wanted = decisiveCall(f, turn);
      fill(wanted, wanted.sizeOf(0));
      for (const std::int64_t target : testedTargets()) {
        const UseTarget use(target);
        const TestCall call = decisiveCall(f, turn);
        ASSERT_EQ(call.run().status, kelStatusOk);
        expectSame(call, wanted, targetName(target) + std::string(" turn ") + std::to_string(turn));
        if (testing::Test::HasFatalFailure()) return;
      }
    }
  });
  EXPECT_EQ(members, 24);
}

// The rounding mode, of the unit that vectors use too.
struct Mode {
  int mode;
  unsigned control;
  static Mode now() {
#if defined(__SSE2__)
    return {std::fegetround(), _mm_getcsr() & ~unsigned{_MM_EXCEPT_MASK}};
#else
    return {std::fegetround(), 0};
#endif
  }
  bool operator==(const Mode& m) const { return mode == m.mode && control == m.control; }
};

TEST(Convert, CallersRoundingModeIsKeptAndDoesNotMatter) {
  forAll("C1R", [](const Function& f) {
    for (std::size_t turn = 0; turn < turnsOf(f); ++turn) {
      const TestCall wanted = decisiveCall(f, turn);
      wanted.run();
      for (const std::int64_t target : testedTargets()) {
        const UseTarget use(target);
        for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
          const TestCall call = decisiveCall(f, turn);
          ASSERT_EQ(std::fesetround(mode), 0);
          const Mode before = Mode::now();
          const KelStatus status = call.run().status;
          const bool kept = Mode::now() == before;
          std::fesetround(FE_TONEAREST);
          ASSERT_EQ(status, kelStatusOk);
          ASSERT_TRUE(kept) << f.name << " " << targetName(target);
          ASSERT_EQ(call.outcome(), wanted.outcome()) << f.name << " " << targetName(target);
        }
      }
    }
  });
}

TEST(Convert, SingleValues) {
  const KeliSize one = {1, 1};
  const struct {
    Kel32f src;
    Kel8u nearest, truncated;
  } kRounded[] = {{300.7f, 255, 255}, {-4.2f, 0, 0}, {2.5f, 2, 2}, {3.5f, 4, 3}, {NAN, 255, 255}};
  for (const auto& r : kRounded) {
    Kel8u dst[2];
    EXPECT_EQ(keliConvert_32f8u_C1R(&r.src, 4, dst, 1, one, kelRoundNearest), kelStatusOk);
    EXPECT_EQ(keliConvert_32f8u_C1R(&r.src, 4, dst + 1, 1, one, kelRoundZero), kelStatusOk);
    EXPECT_EQ(dst[0], r.nearest) << r.src;
    EXPECT_EQ(dst[1], r.truncated) << r.src;
  }
  const Kel8u grey = 128;
  Kel16u wide;
  keliScale_8u16u_C1R(&grey, 1, &wide, 2, one);
  EXPECT_EQ(wide, 32896);
  const Kel32f half = 0.5f;
  Kel8u dst;
  keliScale_32f8u_C1R(&half, 4, &dst, 1, one, 0, 1);
  EXPECT_EQ(dst, 128);
}

// The range comes before null pointers, sizes and steps.
TEST(Convert, EmptyRangesComeFirst) {
  const Range empty[] = {{1, 1}, {1, 0}, {NAN, 1}, {0, NAN}, {kInf, kInf}, {-kInf, -kInf}};
  for (const Range& r : empty) {
    EXPECT_EQ(keliScale_8u32f_C1R(nullptr, 0, nullptr, 0, {0, 0}, r.vMin, r.vMax),
              kelStatusEmptyRange);
    EXPECT_EQ(keliScale_32f8u_AC4R(nullptr, 0, nullptr, 0, {0, 0}, r.vMin, r.vMax),
              kelStatusEmptyRange);
  }
  EXPECT_EQ(keliScale_8u32f_C1R(nullptr, 0, nullptr, 0, {0, 0}, 0, 1), kelStatusNullPointer);
}

}  // namespace
}  // namespace keli::test
