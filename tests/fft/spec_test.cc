// The life of specification structures: what making, measuring and releasing them answers, each
// allocation failing in turn, and transforms without memory for their scratch.
#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <vector>

#include "keli.h"
#include "support/no_memory.h"

namespace keli::test {
namespace {

// The functions of one kind of structure. x and y of make: orders of FFTs, else sides.
template <class Spec>
struct Functions {
  KelStatus (*make)(Spec** out, int x, int y, int flag);
  KelStatus (*measure)(const Spec* spec, int* size);
  KelStatus (*release)(Spec* spec);
  bool fft;
};

constexpr Functions<KeliFFTSpec_C_32fc> kFftC = {
    [](KeliFFTSpec_C_32fc** out, int x, int y, int flag) {
      return keliFFTInitAlloc_C_32fc(out, x, y, flag, kelAlgHintNone);
    },
    keliFFTGetBufSize_C_32fc, keliFFTFree_C_32fc, true};
constexpr Functions<KeliFFTSpec_R_32f> kFftR = {
    [](KeliFFTSpec_R_32f** out, int x, int y, int flag) {
      return keliFFTInitAlloc_R_32f(out, x, y, flag, kelAlgHintNone);
    },
    keliFFTGetBufSize_R_32f, keliFFTFree_R_32f, true};
constexpr Functions<KeliFFTSpec_R_32s> kFftS = {
    [](KeliFFTSpec_R_32s** out, int x, int y, int flag) {
      return keliFFTInitAlloc_R_32s(out, x, y, flag, kelAlgHintNone);
    },
    keliFFTGetBufSize_R_32s, keliFFTFree_R_32s, true};
constexpr Functions<KeliDFTSpec_C_32fc> kDftC = {
    [](KeliDFTSpec_C_32fc** out, int x, int y, int flag) {
      return keliDFTInitAlloc_C_32fc(out, {x, y}, flag, kelAlgHintNone);
    },
    keliDFTGetBufSize_C_32fc, keliDFTFree_C_32fc, false};
constexpr Functions<KeliDFTSpec_R_32f> kDftR = {
    [](KeliDFTSpec_R_32f** out, int x, int y, int flag) {
      return keliDFTInitAlloc_R_32f(out, {x, y}, flag, kelAlgHintNone);
    },
    keliDFTGetBufSize_R_32f, keliDFTFree_R_32f, false};
constexpr Functions<KeliDFTSpec_R_32s> kDftS = {
    [](KeliDFTSpec_R_32s** out, int x, int y, int flag) {
      return keliDFTInitAlloc_R_32s(out, {x, y}, flag, kelAlgHintNone);
    },
    keliDFTGetBufSize_R_32s, keliDFTFree_R_32s, false};

template <class F>
void forEachKind(const F& f) {
  f(kFftC);
  f(kFftR);
  f(kFftS);
  f(kDftC);
  f(kDftR);
  f(kDftS);
}

// Prime sides, which need the most memory blocks, where they may be any.
template <class Spec>
KelStatus makeSome(const Functions<Spec>& f, Spec** out) {
  return f.fft ? f.make(out, 4, 3, 2) : f.make(out, 17, 19, 2);
}

template <class Spec>
Spec* madeBy(const Functions<Spec>& f) {
  Spec* spec = nullptr;
  EXPECT_EQ(makeSome(f, &spec), kelStatusOk);
  return spec;
}

TEST(FftSpec, FaultsAreAnsweredInOrder) {
  forEachKind([](const auto& f) {
    auto* spec = madeBy(f);
    decltype(spec) untouched = spec;
    const KelStatus badSides = f.fft ? kelStatusBadOrder : kelStatusBadSize;
    decltype(spec)* const nowhere = nullptr;
    EXPECT_EQ(f.make(nowhere, -1, 3, 3), kelStatusNullPointer);
    for (const int bad : {f.fft ? -1 : 0, f.fft ? 31 : -5, INT_MIN}) {
      EXPECT_EQ(f.make(&untouched, bad, 3, 3), badSides);
      EXPECT_EQ(f.make(&untouched, 3, bad, 3), badSides);
    }
    for (const int bad : {0, 3, 5, 16, -1})
      EXPECT_EQ(f.make(&untouched, 3, 3, bad), kelStatusBadFlag);
    int size = -1;
    EXPECT_EQ(f.measure(nullptr, &size), kelStatusNullPointer);
    EXPECT_EQ(f.measure(spec, nullptr), kelStatusNullPointer);
    EXPECT_EQ(size, -1);
    EXPECT_EQ(f.measure(spec, &size), kelStatusOk);
    EXPECT_GT(size, 0);
    EXPECT_EQ(f.release(nullptr), kelStatusNullPointer);
    EXPECT_EQ(untouched, spec);
    EXPECT_EQ(f.release(spec), kelStatusOk);
  });
}

// A structure of one kind is none of any other.
TEST(FftSpec, KindsAreToldApart) {
  forEachKind([](const auto& a) {
    auto* const spec = madeBy(a);
    int accepted = 0;
    forEachKind([&](const auto& b) {
      using Other = std::remove_pointer_t<decltype(madeBy(b))>;
      auto* const other = reinterpret_cast<Other*>(spec);
      int size = 0;
      const KelStatus status = b.measure(other, &size);
      if (status == kelStatusOk) {
        ++accepted;
      } else {
        EXPECT_EQ(status, kelStatusBadSpec);
        EXPECT_EQ(b.release(other), kelStatusBadSpec);
      }
    });
    EXPECT_EQ(accepted, 1);
    EXPECT_EQ(a.release(spec), kelStatusOk);
  });
}

// The leak check of the address sanitizer tells whether what had been made is released.
TEST(FftSpec, EachAllocationMayFail) {
  forEachKind([](const auto& f) {
    int failures = 0;
    for (KelStatus status = kelStatusNoMemory; status != kelStatusOk; ++failures) {
      auto* spec = madeBy(f);
      auto* const old = spec;
      {
        const NoMemory soon(failures);
        status = makeSome(f, &spec);
      }
      if (status == kelStatusOk) {
        EXPECT_EQ(f.release(spec), kelStatusOk);
      } else {
        ASSERT_EQ(status, kelStatusNoMemory);
        EXPECT_EQ(spec, old);
      }
      EXPECT_EQ(f.release(old), kelStatusOk);
    }
    EXPECT_GE(failures, 3);
  });
}

TEST(FftSpec, TransformsWithoutMemoryWriteNothing) {
  KeliFFTSpec_R_32f* const spec = madeBy(kFftR);
  float image[128], result[128];
  std::fill_n(image, 128, 1.f);
  std::fill_n(result, 128, 5.f);
  const auto transform = [&](void* buffer) {
    return keliFFTFwd_RToPack_32f_C1R(image, 64, result, 64, spec, buffer);
  };
  EXPECT_EQ(withoutMemory([&] { return transform(nullptr); }), kelStatusNoMemory);
  for (const float v : result) ASSERT_EQ(v, 5);
  int size = 0;
  EXPECT_EQ(keliFFTGetBufSize_R_32f(spec, &size), kelStatusOk);
  std::vector<unsigned char> scratch(static_cast<std::size_t>(size));
  EXPECT_EQ(withoutMemory([&] { return transform(scratch.data()); }), kelStatusOk);
  EXPECT_EQ(result[0], 128);
  EXPECT_EQ(keliFFTFree_R_32f(spec), kelStatusOk);
}

}  // namespace
}  // namespace keli::test
