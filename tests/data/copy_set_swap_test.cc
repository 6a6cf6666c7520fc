// Copy, Set and SwapChannels against their definitions, for every member.
#include <gtest/gtest.h>

#include "reference/image.h"
#include "support/targets.h"

namespace keli::test {
namespace {

using registry::Argument;
using registry::Function;
using registry::Role;

// Bytes of channel k of the constant, wherever it stands.
const std::uint8_t* constantOf(const TestCall& call, std::size_t argument, int k,
                               std::uint8_t* scalar) {
  const Argument& a = call.function.arguments[argument];
  if (a.length != 0) {
    return static_cast<const std::uint8_t*>(call.values[argument].p) +
           static_cast<std::size_t>(k) * registry::bytesOf(a.type);
  }
  const Kel32f f = static_cast<Kel32f>(call.values[argument].f);
  const Kel16s s = static_cast<Kel16s>(call.values[argument].i);
  const Kel8u u = static_cast<Kel8u>(call.values[argument].i);
  switch (a.type) {
    case registry::Type::k32f:
      std::memcpy(scalar, &f, sizeof(f));
      break;
    case registry::Type::k16s:
      std::memcpy(scalar, &s, sizeof(s));
      break;
    default:
      std::memcpy(scalar, &u, sizeof(u));
      break;
  }
  return scalar;
}

// dst = the constant or the source, its channels in order or as dstOrder says, where the mask is
// set.
void define(const TestCall& call, KeliSize size) {
  const ImageView dst(call, call.written());
  const std::size_t mask = call.find(Role::kMask), order = call.find(Role::kOrder);
  const std::size_t array = call.find(Role::kConstant), one = call.find(Role::kScalar);
  const std::size_t constant = array != TestCall::npos ? array : one;
  const std::size_t source = call.lastSource();
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      if (mask != TestCall::npos && *ImageView(call, mask).at(x, y, 0) == 0) continue;
      std::uint8_t pixel[4][4];
      for (int k = 0; k < dst.channels(); ++k) {
        if (constant != TestCall::npos) {
          std::uint8_t scalar[4];
          std::memcpy(pixel[k], constantOf(call, constant, k, scalar), dst.sampleBytes());
        } else {
          int from = k;
          if (order != TestCall::npos) {
            const auto* entries = static_cast<const std::uint8_t*>(call.values[order].p);
            std::memcpy(&from, entries + k * sizeof(int), sizeof(int));
          }
          std::memcpy(pixel[k], ImageView(call, source).at(x, y, from), dst.sampleBytes());
        }
      }
      for (int k = 0; k < dst.channels(); ++k)
        std::memcpy(dst.at(x, y, k), pixel[k], dst.sampleBytes());
    }
  }
}

TEST(Data, CopySetSwapChannelsAreTheirDefinitions) {
  int members = 0;
  for (const Function& f : registry::functions()) {
    const std::string operation = f.operation;
    if (operation != "Copy" && operation != "Set" && operation != "SwapChannels") continue;
    ++members;
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      for (const int width :
           {1, 2, 3, 7, 15, 16, 17, 31, 32, 33, 45, 64, 65, 96, 100, 257, 1001, 4099}) {
        // With and without padding; different orders and constants by the seed.
        for (const int padding : {0, 5}) {
          const Geometry g = {width, 3, padding, Place::kMiddle, padding};
          const std::uint64_t seed = runSeed() + static_cast<std::uint64_t>(width);
          TestCall call(f, g, seed), expected(f, g, seed);
          ASSERT_EQ(call.run().status, kelStatusOk) << f.name;
          define(expected, {width, 3});
          ASSERT_EQ(call.samples(call.written()), expected.samples(expected.written()))
              << f.name << " " << targetName(target) << " width " << width << " padding "
              << padding;
        }
      }
    }
  }
  EXPECT_EQ(members, 99);
}

TEST(Data, EveryChannelOrder) {
  for (const Function& f : registry::functions()) {
    if (std::string(f.operation) != "SwapChannels") continue;
    for (const std::int64_t target : testedTargets()) {
      const UseTarget use(target);
      for (int code = 0; code < 27; ++code) {
        const int order[3] = {code % 3, code / 3 % 3, code / 9};
        const Geometry g = {203, 2, 3, Place::kMiddle, 1};
        TestCall call(f, g, runSeed()), expected(f, g, runSeed());
        call.values[call.find(Role::kOrder)].p = order;
        expected.values[expected.find(Role::kOrder)].p = order;
        ASSERT_EQ(call.run().status, kelStatusOk);
        define(expected, {203, 2});
        ASSERT_EQ(call.samples(call.written()), expected.samples(expected.written()))
            << f.name << " " << targetName(target) << " order " << order[0] << order[1] << order[2];
      }
    }
  }
}

}  // namespace
}  // namespace keli::test
