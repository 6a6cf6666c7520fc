// Tests of what the benchmark's figures rest on: that the limits move all bytes and no others, that
// a peer with another result is found, and that arguments are as the rows expect.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <stdexcept>

#include "contest.h"

namespace keli::bench {
namespace {

const registry::Function& function(const char* name) {
  const registry::Function* f = registry::find(name);
  if (f == nullptr) throw std::runtime_error(name);
  return *f;
}

std::vector<std::uint8_t> allBytes(const Image& image) {
  const std::size_t bytes = static_cast<std::size_t>(image.step()) * image.height();
  return {image.data(), image.data() + bytes * image.planes()};
}

// Sizes with and without padding, and with rows that no vector divides.
const Size kSizes[] = {{64, 64, 0}, {61, 7, 0}, {64, 5, 32}, {3, 3, 0}, {257, 33, 1}};

TEST(Limits, MovesCopyTheRegionAndNothingElse) {
  for (const char* name : {"keliCopy_8u_C1R", "keliCopy_16s_C3R", "keliCopy_32f_C4R"}) {
    for (const Size size : kSizes) {
      const Frame frame(function(name), size, {});
      frame.call();
      const std::vector<std::uint8_t> expected = allBytes(frame.destination());
      for (const LimitVariant& v : limitVariants(Limit::kMove, frame)) {
        frame.resetDestination();
        v.work();
        EXPECT_EQ(allBytes(frame.destination()), expected)
            << v.name << " " << name << " " << nameOf(size);
      }
    }
  }
}

// They join the bits of both, as a function does that is measured by them.
TEST(Limits, MovesOfTwoSourcesReadBoth) {
  for (const char* name : {"keliOr_8u_C1R", "keliOr_16u_C3R", "keliOr_8u_C1IR"}) {
    for (const Size size : kSizes) {
      const Frame frame(function(name), size, {});
      frame.resetDestination();
      frame.call();
      const std::vector<std::uint8_t> expected = allBytes(frame.destination());
      for (const LimitVariant& v : limitVariants(Limit::kMove, frame)) {
        frame.resetDestination();
        v.work();
        EXPECT_EQ(allBytes(frame.destination()), expected)
            << v.name << " " << name << " " << nameOf(size);
      }
    }
  }
}

TEST(Limits, FillsWriteTheRegionAndNothingElse) {
  for (const Size size : kSizes) {
    const Frame frame(function("keliSet_8u_C3R"), size, {});
    const Image& image = frame.destination();
    for (const LimitVariant& v : limitVariants(Limit::kFill, frame)) {
      frame.resetDestination();
      const std::vector<std::uint8_t> before = allBytes(image);
      v.work();
      const std::vector<std::uint8_t> after = allBytes(image);
      for (std::size_t i = 0; i < after.size(); ++i) {
        const bool inside = i % image.step() < 3u * size.width;
        ASSERT_EQ(after[i] != before[i], inside) << v.name << " " << nameOf(size) << " byte " << i;
      }
    }
  }
}

TEST(Limits, MovesInPlaceKeepTheImage) {
  const Frame frame(function("keliSwapChannels_8u_C3IR"), {61, 7, 3}, {});
  const std::vector<std::uint8_t> before = allBytes(frame.destination());
  for (const LimitVariant& v : limitVariants(Limit::kMove, frame)) {
    v.work();
    EXPECT_EQ(allBytes(frame.destination()), before) << v.name;
  }
}

TEST(Limits, MovesOfUnequalSizesLeaveTheLargerSourceAlone) {
  const Frame frame(function("keliCopy_32f_AC4C3R"), {64, 16, 0}, {});
  const std::vector<std::uint8_t> source = allBytes(frame.source());
  const std::vector<std::uint8_t> destination = allBytes(frame.destination());
  for (const LimitVariant& v : limitVariants(Limit::kMove, frame)) v.work();
  EXPECT_EQ(allBytes(frame.source()), source);
  EXPECT_EQ(allBytes(frame.destination()), destination);
}

// Of sources without a bit, or with one in a row's first or last byte.
TEST(Limits, FoldsReadAllAndWriteTheRegionAndNothingElse) {
  for (const char* name : {"keliCompare_16s_C3R", "keliCompareC_8u_C4R", "keliCompareC_16s_C1R"}) {
    for (const Size size : kSizes) {
      const Frame frame(function(name), size, {});
      const Image& image = frame.destination();
      const Image& last = frame.source(frame.sourceCount() - 1);
      for (std::size_t i = 0; i < frame.sourceCount(); ++i) frame.source(i).fillBytes(0);
      const std::size_t rowBytes = last.samplesPerPixel() * bytesOf(last.type()) * size.width;
      std::uint8_t* const row = last.data() + (size.height - 1) * last.step();
      for (const LimitVariant& v : limitVariants(Limit::kFold, frame)) {
        for (std::uint8_t* const set :
             {static_cast<std::uint8_t*>(nullptr), row, row + rowBytes - 1}) {
          if (set != nullptr) *set = 4;
          frame.resetDestination();
          v.work();
          if (set != nullptr) *set = 0;
          const std::vector<std::uint8_t> after = allBytes(image);
          std::ptrdiff_t found = 0;
          for (std::size_t i = 0; i < after.size(); ++i) {
            const bool inside = i % image.step() < static_cast<std::size_t>(size.width);
            ASSERT_TRUE(inside ? after[i] == 0 || after[i] == 4 : after[i] == 0x5A) << v.name;
            found += after[i] == 4;
          }
          EXPECT_EQ(found, set != nullptr) << v.name << " " << name << " " << nameOf(size);
        }
      }
    }
  }
}

// A peer that does what the function does and then changes one byte of the region.
std::string compareWithChange(const char* name, std::size_t byte, int change, double tolerance,
                              double circle = 0) {
  const Frame frame(function(name), {9, 4, 0}, {});
  const Peer peer{name, "peer", nullptr, tolerance, circle};
  return compare(frame, peer, [&] {
    frame.call();
    frame.destination().data()[frame.destination().step() + byte] += change;
  });
}

TEST(Compare, FindsOneChangedSample) {
  EXPECT_EQ(compareWithChange("keliCopy_8u_C3R", 4, 0, 0), "");
  EXPECT_NE(compareWithChange("keliCopy_8u_C3R", 4, 1, 0), "");
  EXPECT_EQ(compareWithChange("keliCopy_8u_C3R", 30, 1, 0), "") << "beyond the region";
  EXPECT_NE(compareWithChange("keliCopy_32f_C1R", 8, 1, 0), "");
}

TEST(Compare, MeasuresRoundTheCircle) {
  EXPECT_EQ(compareWithChange("keliCopy_8u_C3R", 4, 255, 1, 256), "");
  EXPECT_NE(compareWithChange("keliCopy_8u_C3R", 4, 128, 1, 256), "");
  EXPECT_NE(compareWithChange("keliCopy_8u_C3R", 4, 2, 1, 256), "");
}

TEST(Compare, IgnoresOnlyFourthSamplesOfAC4) {
  EXPECT_EQ(compareWithChange("keliCopy_8u_AC4R", 7, 1, 0), "");
  EXPECT_NE(compareWithChange("keliCopy_8u_AC4R", 6, 1, 0), "");
  EXPECT_NE(compareWithChange("keliCopy_8u_C4R", 7, 1, 0), "");
  EXPECT_NE(compareWithChange("keliCopy_8u_C1C4R", 7, 1, 0), "");
}

TEST(Compare, AllowsDifferencesUpToTheTolerance) {
  // The constant is 17: adding 2 does not wrap.
  EXPECT_EQ(compareWithChange("keliSet_8u_C1R", 0, 2, 2), "");
  EXPECT_NE(compareWithChange("keliSet_8u_C1R", 0, 2, 1), "");
}

TEST(Compare, TakesNoNanForAValue) {
  const Frame frame(function("keliCopy_32f_C1R"), {9, 4, 0}, {});
  const Peer peer{"", "peer", nullptr, 1e30};
  const float nan = std::nanf("");
  EXPECT_NE(compare(frame, peer,
                    [&] {
                      frame.call();
                      std::memcpy(frame.destination().data(), &nan, sizeof(nan));
                    }),
            "");
}

TEST(Frame, MasksSelectAboutHalfInRuns) {
  const Frame frame(function("keliSet_8u_C1MR"), {640, 480, 0}, {});
  const std::vector<std::uint8_t> mask = allBytes(frame.mask());
  const auto set = std::count(mask.begin(), mask.end(), 255);
  EXPECT_EQ(set + std::count(mask.begin(), mask.end(), 0), 640 * 480);
  EXPECT_GT(set, 640 * 480 * 0.4);
  EXPECT_LT(set, 640 * 480 * 0.6);
  std::ptrdiff_t changes = 0;
  for (std::size_t i = 1; i < mask.size(); ++i) changes += mask[i] != mask[i - 1];
  EXPECT_LT(changes, 640 * 480 / 8);
  EXPECT_GT(changes, 640 * 480 / 64);
}

TEST(Frame, ContentsDifferInHowOftenNeighboursAreEqual) {
  const auto equalNeighbours = [](Content content) {
    Choices choices;
    choices.content = content;
    const Frame frame(function("keliHistogramEven_8u_C1R"), {640, 480, 0}, choices);
    const std::vector<std::uint8_t> image = allBytes(frame.source());
    int equal = 0;
    for (std::size_t i = 1; i < image.size(); ++i) equal += image[i] == image[i - 1];
    return static_cast<double>(equal) / (640 * 480);
  };
  EXPECT_LT(equalNeighbours(Content::kNoise), 0.01);
  EXPECT_NEAR(equalNeighbours(Content::kPhotograph), 0.2, 0.05);
  EXPECT_GT(equalNeighbours(Content::kFlat), 0.99);
}

TEST(Tables, ExpandNamesAllChoices) {
  EXPECT_EQ(expand("keliCopy_8u_C1R"), (std::vector<std::string>{"keliCopy_8u_C1R"}));
  EXPECT_EQ(expand("a{1,2}{x,}"), (std::vector<std::string>{"a1x", "a1", "a2x", "a2"}));
  EXPECT_THROW(expand("a{1"), std::runtime_error);
}

TEST(Tables, RefuseRowsAndPeersThatNameNothing) {
  EXPECT_TRUE(entries().empty());
  EXPECT_FALSE(functionsWithoutRow().empty());
  AddPeers({{"keliCopy_8u_C1R", "peer", nullptr}});
  EXPECT_THROW(entries(), std::runtime_error);
  AddFamily({"f", "F", {{"keliCopy_{8u,16s}_C1R", Limit::kMove}}});
  ASSERT_EQ(entries().size(), 2u);
  EXPECT_EQ(entries()[0].peers.size(), 1u);
  EXPECT_TRUE(entries()[1].peers.empty());
  AddFamily({"g", "G", {{"keliCopy_9u_C1R", Limit::kMove}}});
  EXPECT_THROW(entries(), std::runtime_error);
}

}  // namespace
}  // namespace keli::bench
