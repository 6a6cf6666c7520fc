// And, Or, Xor, their forms with a constant, Not and the shifts against their definitions.
#include <gtest/gtest.h>

#include "reference/pointwise.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Type;

// ---- Bitwise operations -------------------------------------------------------------------------

// Bit by bit, from a table of truth: bit 2 * a + b of truth is the result for the bits a and b.
template <class T>
T bitwise(unsigned truth, T a, T b) {
  T result = 0;
  for (unsigned bit = 0; bit < 8 * sizeof(T); ++bit) {
    const unsigned row = 2 * ((a >> bit) & 1u) + ((b >> bit) & 1u);
    result |= static_cast<T>(static_cast<T>((truth >> row) & 1u) << bit);
  }
  return result;
}

struct Bitwise {
  const char* operation;
  unsigned truth;
};

constexpr Bitwise kBitwise[] = {{"And", 0b1000},  {"Or", 0b1110},  {"Xor", 0b0110},
                                {"AndC", 0b1000}, {"OrC", 0b1110}, {"XorC", 0b0110}};

template <class T>
void checkBitwise(const Bitwise& row, Type type) {
  const int members = forMembers(row.operation, type, [&](const Function& f) {
    checkMember<T>(f, {}, [&](T a, T b, int) { return bitwise<T>(row.truth, a, b); });
  });
  EXPECT_EQ(members, 8) << row.operation;
}

TEST(Logic, BitwiseOperationsAreTheirTablesOfTruth) {
  for (const Bitwise& row : kBitwise) {
    checkBitwise<Kel8u>(row, Type::k8u);
    checkBitwise<Kel16u>(row, Type::k16u);
    checkBitwise<std::uint32_t>(row, Type::k32s);
  }
  const int members = forMembers("Not", Type::k8u, [](const Function& f) {
    checkMember<Kel8u>(f, {}, [](Kel8u a, int) { return static_cast<Kel8u>(255 - a); });
  });
  EXPECT_EQ(members, 8);
}

// ---- Shifts -------------------------------------------------------------------------------------

// One place at a time, in 64 bits: doubled without what the type does not hold, or halved and
// rounded down.
template <class T>
T shifted(bool left, T v, std::uint32_t count) {
  constexpr std::int64_t kModulus = std::int64_t{1} << (8 * sizeof(T));
  std::int64_t exact = v;
  for (std::uint32_t i = 0; i < std::min(count, 40u); ++i) {
    exact = left ? 2 * exact % kModulus : (exact - (exact % 2 != 0 && exact < 0 ? 1 : 0)) / 2;
  }
  return static_cast<T>(exact);
}

// Around the widths of all types, and far beyond.
constexpr std::uint32_t kCounts[] = {0,  1,  7,  8,  9,   15,  16,         17,
                                     31, 32, 33, 64, 255, 256, 0x80000001, 0xFFFFFFFF};

// Gives each channel another count.
void setCounts(TestCall& call, std::size_t first) {
  const std::size_t i = call.find(registry::Role::kShift);
  if (call.function.arguments[i].length == 0) {
    call.values[i].i = kCounts[first % std::size(kCounts)];
    return;
  }
  for (int k = 0; k < call.function.arguments[i].length; ++k, first += 5) {
    std::memcpy(static_cast<std::uint8_t*>(const_cast<void*>(call.values[i].p)) + 4 * k,
                &kCounts[first % std::size(kCounts)], 4);
  }
}

template <class T>
void checkShifts(bool left, Type type) {
  const char* const operation = left ? "LShiftC" : "RShiftC";
  const auto definition = [&](T v, std::uint32_t count, int) { return shifted(left, v, count); };
  const int members = forMembers(operation, type, [&](const Function& f) {
    checkMember<T, std::uint32_t>(f, {}, definition);
    // Prepares each call, and then the one that it is compared with.
    std::size_t prepared = 0;
    checkMember<T, std::uint32_t>(f, {}, definition,
                                  [&](TestCall& call) { setCounts(call, prepared++ / 2); });
  });
  EXPECT_EQ(members, 8) << operation;
}

TEST(Logic, ShiftsAreTheirDefinitions) {
  checkShifts<Kel8u>(true, Type::k8u);
  checkShifts<Kel16u>(true, Type::k16u);
  checkShifts<Kel32s>(true, Type::k32s);
  checkShifts<Kel8u>(false, Type::k8u);
  checkShifts<Kel8s>(false, Type::k8s);
  checkShifts<Kel16u>(false, Type::k16u);
  checkShifts<Kel16s>(false, Type::k16s);
  checkShifts<Kel32s>(false, Type::k32s);
}

// All values in every channel by every count, and all channels alike.
template <class T, class One, class Four>
void checkEveryValue(bool left, One one, Four four) {
  constexpr int kValues = 1 << (8 * sizeof(T));
  std::vector<T> src(4 * kValues), dst(src.size()), expected(src.size());
  for (std::size_t i = 0; i < src.size(); ++i) src[i] = static_cast<T>(i + i / kValues);
  for (std::uint32_t first = 0; first < 8 * sizeof(T) + 2; ++first) {
    for (const std::uint32_t stride : {0u, 3u}) {
      std::uint32_t counts[4];
      for (std::uint32_t k = 0; k < 4; ++k) counts[k] = (first + stride * k) % (8 * sizeof(T) + 2);
      for (std::size_t i = 0; i < src.size(); ++i)
        expected[i] = shifted(left, src[i], counts[i % 4]);
      for (const std::int64_t target : testedTargets()) {
        const UseTarget use(target);
        constexpr int kStep = 4 * kValues * sizeof(T);
        if (stride == 0) {
          one(src.data(), kStep, first, dst.data(), kStep, KeliSize{4 * kValues, 1});
          ASSERT_TRUE(dst == expected) << targetName(target) << " count " << first;
        }
        four(src.data(), kStep, counts, dst.data(), kStep, KeliSize{kValues, 1});
        ASSERT_TRUE(dst == expected) << targetName(target) << " counts from " << first;
      }
    }
  }
}

TEST(Logic, EveryValueByEveryCount) {
  checkEveryValue<Kel8u>(true, keliLShiftC_8u_C1R, keliLShiftC_8u_C4R);
  checkEveryValue<Kel16u>(true, keliLShiftC_16u_C1R, keliLShiftC_16u_C4R);
  checkEveryValue<Kel8u>(false, keliRShiftC_8u_C1R, keliRShiftC_8u_C4R);
  checkEveryValue<Kel8s>(false, keliRShiftC_8s_C1R, keliRShiftC_8s_C4R);
  checkEveryValue<Kel16u>(false, keliRShiftC_16u_C1R, keliRShiftC_16u_C4R);
  checkEveryValue<Kel16s>(false, keliRShiftC_16s_C1R, keliRShiftC_16s_C4R);
}

TEST(Logic, KnownResults) {
  const auto right16s = [](Kel16s v, std::uint32_t count) {
    EXPECT_EQ(keliRShiftC_16s_C1IR(count, &v, 2, {1, 1}), kelStatusOk);
    return v;
  };
  EXPECT_EQ(right16s(-5, 1), -3);
  EXPECT_EQ(right16s(-5, 40), -1);
  EXPECT_EQ(right16s(5, 40), 0);
  Kel8u v = 200;
  EXPECT_EQ(keliRShiftC_8u_C1IR(8, &v, 1, {1, 1}), kelStatusOk);
  EXPECT_EQ(v, 0);
  v = 3;
  EXPECT_EQ(keliLShiftC_8u_C1IR(7, &v, 1, {1, 1}), kelStatusOk);
  EXPECT_EQ(v, 128);
}

TEST(Logic, StepsAreCheckedBeforeSizes) {
  Kel8u v = 1;
  EXPECT_EQ(keliAndC_8u_C1R(&v, 0, 1, &v, 1, {0, 1}), kelStatusBadStep);
  EXPECT_EQ(keliLShiftC_8u_C1R(&v, 1, 0, &v, 0, {0, 1}), kelStatusBadStep);
  EXPECT_EQ(keliNot_8u_C3R(nullptr, 0, nullptr, 0, {0, 1}), kelStatusBadSize);
  EXPECT_EQ(keliNot_8u_AC4R(nullptr, 0, nullptr, 0, {0, 1}), kelStatusNullPointer);
}

}  // namespace
}  // namespace keli::test
