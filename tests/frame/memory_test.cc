// The allocators, for every name in the registry, and the version record.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>

#include "core/memory.h"
#include "registry/registry.h"

namespace keli::test {
namespace {

using registry::Function;
using registry::Value;

const void* allocate(const Function& f, int width, int height, int* step) {
  Value values[3] = {};
  values[0].i = width;
  values[1].i = height;
  values[2].p = step;
  return f(values).pointer;
}

// Bytes of a pixel (of a sample for P3) by what the name says: "16sc_C3" has 4 * 3.
std::int64_t pixelBytes(const std::string& name) {
  const std::size_t type = name.find('_') + 1, layout = name.rfind('_') + 1;
  const std::string code = name.substr(type, layout - 1 - type);
  const std::int64_t sample = std::stoi(code) / 8 * (code.back() == 'c' ? 2 : 1);
  const std::string channels = name.substr(layout);
  return channels == "P3" ? sample : sample * (channels == "AC4" ? 4 : channels[1] - '0');
}

int planesOf(const std::string& name) { return name.substr(name.size() - 2) == "P3" ? 3 : 1; }

template <class F>
void forEachAllocator(F f) {
  int count = 0;
  for (const Function& function : registry::functions()) {
    if (std::string(function.operation) != "Malloc") continue;
    ++count;
    f(function, pixelBytes(function.name), planesOf(function.name));
  }
  EXPECT_EQ(count, 42);
}

TEST(Memory, StepAddressAndSizeOfEveryAllocator) {
  forEachAllocator([](const Function& f, std::int64_t pixel, int planes) {
    for (const int width : {1, 2, 10, 31, 32, 33, 640}) {
      const int height = 5;
      int step = -1;
      const void* const image = allocate(f, width, height, &step);
      ASSERT_NE(image, nullptr) << f.name;
      EXPECT_EQ(reinterpret_cast<std::uintptr_t>(image) % 32, 0u) << f.name;
      EXPECT_EQ(step, (width * pixel + 31) / 32 * 32) << f.name << " width " << width;
      // Every byte is the caller's: the sanitizers watch the ends.
      std::memset(const_cast<void*>(image), 0xA5, static_cast<std::size_t>(step) * height * planes);
      keliFree(const_cast<void*>(image));
    }
  });
  keliFree(nullptr);
}

TEST(Memory, RefusedRequests) {
  forEachAllocator([](const Function& f, std::int64_t pixel, int planes) {
    EXPECT_EQ(allocate(f, 4, 4, nullptr), nullptr) << f.name;
    for (const auto& [width, height] :
         {std::pair{0, 1}, {1, 0}, {-1, 1}, {1, -1}, {INT_MIN, INT_MIN}}) {
      int step = -1;
      EXPECT_EQ(allocate(f, width, height, &step), nullptr) << f.name;
      EXPECT_EQ(step, 0) << f.name;
    }
    // One row too many for 31 bits, sizes that are short again after 32 and 64 bits, and the
    // largest.
    const int width = 1024;
    const std::int64_t row = (width * pixel + 31) / 32 * 32;
    const std::int64_t fits = INT_MAX / (row * planes);
    const std::int64_t wraps = (std::int64_t{1} << 32) / (row * planes) + 1;
    for (const std::int64_t height : {fits + 1, wraps, std::int64_t{INT_MAX}}) {
      if (height > INT_MAX) continue;
      int step = -1;
      EXPECT_EQ(allocate(f, width, static_cast<int>(height), &step), nullptr)
          << f.name << " " << height;
      EXPECT_EQ(step, row) << f.name;
    }
    int step = -1;
    EXPECT_EQ(allocate(f, INT_MAX, INT_MAX, &step), nullptr) << f.name;
    EXPECT_EQ(static_cast<std::uint32_t>(step),
              static_cast<std::uint32_t>((INT_MAX * pixel + 31) / 32 * 32));
  });
}

TEST(Memory, WordBeforeTheBlockIsTheHeapsAddress) {
  for (std::size_t count = 1; count < 200; ++count) {
    void* const block = core::allocateAligned(count);
    std::uintptr_t raw;
    std::memcpy(&raw, static_cast<char*>(block) - sizeof(raw), sizeof(raw));
    const std::uintptr_t at = reinterpret_cast<std::uintptr_t>(block);
    EXPECT_EQ(at, (raw + sizeof(raw) + 31) / 32 * 32);
    core::freeImage(block);
  }
  EXPECT_EQ(core::allocateAligned(SIZE_MAX), nullptr);
  EXPECT_EQ(core::allocateAligned(SIZE_MAX - 38), nullptr);
}

TEST(Version, Record) {
  const KelLibraryVersion* const v = keliGetLibVersion();
  ASSERT_NE(v, nullptr);
  EXPECT_EQ(v->major, 4);
  EXPECT_EQ(v->minor, 0);
  EXPECT_EQ(v->majorBuild, 19);
  EXPECT_EQ(v->build, 73);
  EXPECT_EQ(std::memcmp(v->targetCpu, "z4\0", 4), 0);
  EXPECT_STREQ(v->Name, "keliz4.dll");
  EXPECT_STREQ(v->Version, "v4.0");
  EXPECT_STREQ(v->BuildDate, "Oct 14 2003");
  EXPECT_EQ(keliGetLibVersion(), v);
}

}  // namespace
}  // namespace keli::test
