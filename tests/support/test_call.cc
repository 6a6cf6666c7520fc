#include "support/test_call.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace keli::test {

using registry::Argument;
using registry::Role;
using registry::Type;
using registry::Value;

namespace {

// Larger arenas hold sparse images: they are neither filled nor compared as a whole.
constexpr std::size_t kWatchedBytes = std::size_t{1} << 26;

// Functions that use steps rounded down to whole samples.
bool stepsByWholeSamples(const registry::Function& function) {
  return std::string(function.name) == "keliSqrt_32f_C1R";
}

}  // namespace

bool checks(const registry::Function& f, registry::Check check) {
  for (const registry::Check made : f.entry->checks) {
    if (made == check) return true;
  }
  return false;
}

TestCall::TestCall(const registry::Function& f, const Geometry& g, std::uint64_t seed)
    : function(f), values(f.arguments.size), size_{g.width, g.height}, imageAt_(f.arguments.size) {
  if (registry::TransformSpec::needsPowersOfTwo(f)) {
    while ((size_.width & (size_.width - 1)) != 0) size_.width &= size_.width - 1;
    while ((size_.height & (size_.height - 1)) != 0) size_.height &= size_.height - 1;
  }
  if (registry::takesBlocks(f)) size_ = {8, 8};
  chooseWindow(Random(seed + 1));
  chooseSource(Random(seed + 2));
  Random random(seed);
  for (int& count : levelCounts_) count = 2 + static_cast<int>(pick(random, 40));
  for (std::size_t i = 0; i < f.arguments.size; ++i) {
    const Argument& a = f.arguments[i];
    Value& v = values[i];
    v = Value{};
    const int order[3] = {static_cast<int>(pick(random, 3)), static_cast<int>(pick(random, 3)),
                          static_cast<int>(pick(random, 3))};
    if (registry::isImage(a.role)) {
      addImage(i, g, random);
      continue;
    }
    switch (a.role) {
      case Role::kStep:
        imageAt_[i] = images_.size() - 1;
        v.i = static_cast<std::int64_t>(images_.back().step);
        break;
      case Role::kRegion:
        v.size = size_;
        break;
      case Role::kSourceRegion:
        v.size = sourceSize_;
        break;
      case Role::kSourceRect:
        v.rect = sourceRect_;
        break;
      case Role::kTopBorder:
        v.i = border_.y;
        break;
      case Role::kLeftBorder:
        v.i = border_.x;
        break;
      case Role::kMaskSize:
        v.size = window_.mask;
        break;
      case Role::kAnchor:
        v.point = window_.anchor;
        break;
      case Role::kElement:
        addElement(i, g, random);
        break;
      case Role::kAxis:
        v.i = order[0];
        break;
      case Role::kInterpolation:
        v.i = std::int64_t{1} << order[0];
        break;
      case Role::kRoundMode:
        v.i = order[0];
        break;
      case Role::kBitOffset:
        v.i = bitOffset_;
        break;
      case Role::kSpec:
        if (!registry::TransformSpec::isTakenBy(f)) break;
        spec_ = std::make_unique<registry::TransformSpec>(f, size_, 1 << (order[0] + order[1]) / 2);
        v.p = spec_->get();
        break;
      case Role::kBuffer:
        if (order[0] != 0) addBuffer(i, g, random);
        break;
      case Role::kNoise:
        v.i = std::int64_t{order[0]} * 50;
        break;
      case Role::kDither:
        v.i = static_cast<std::int64_t>(pick(random, 6));
        break;
      case Role::kGrayLevels: {
        static constexpr int kLevels[] = {2, 3, 4, 7, 16, 200, 256};
        v.i = kLevels[pick(random, std::size(kLevels))];
        break;
      }
      case Role::kRangeMin:
        v.f = order[0] * 100 - 50;
        break;
      case Role::kRangeMax:
        v.f = 200 + order[0];
        break;
      case Role::kConstant:
      case Role::kShift:
      case Role::kLower:
      case Role::kUpper:
      case Role::kScalar:
        addConstants(i, g, random);
        break;
      case Role::kScaleFactor:
        v.i = static_cast<std::int64_t>(pick(random, 9)) - 3;
        break;
      case Role::kTolerance:
        v.f = static_cast<float>(pick(random, 100000)) / 16;
        break;
      case Role::kCompareOp:
        v.i = static_cast<std::int64_t>(pick(random, 5));
        if (checks(f, registry::Check::kOperation)) v.i = v.i % 2 * kelCmpGreater;
        break;
      case Role::kHint:
        v.i = static_cast<std::int64_t>(pick(random, 4));
        break;
      case Role::kResult:
        addResult(i, static_cast<std::size_t>(std::max(a.length, 1)) * registry::bytesOf(a.type),
                  g);
        break;
      case Role::kCounts:
      case Role::kLevels:
      case Role::kLevelsOut:
        addPerChannel(i, g, random);
        break;
      case Role::kLevelCount:
        addNumbers(i, g, levelCounts_);
        break;
      case Role::kLevelBound:
        addNumbers(i, g, {order[0] * 100, order[1] * 100, order[2] * 100, 300});
        break;
      case Role::kOrder:
        addArray(i, sizeof(order), g, order);
        break;
      default:
        break;
    }
  }
  remember();
}

std::uint8_t* TestCall::place(std::size_t count, const Geometry& g) {
  arenas_.push_back(borrowArena(count + 256));
  const Arena& arena = *arenas_.back();
  // What lies around images differs from call to call, and their samples do not.
  static Random* const around = new Random(runSeed());
  if (arena.size() <= kWatchedBytes) {
    fillSamples(Type::k64s, arena.begin(), arena.size() / 8, *around);
  }
  if (g.place == Place::kStart) return arena.begin();
  if (g.place == Place::kEnd) return arena.end() - count;
  return arena.begin() + 128 + g.offset;
}

// Masks of many shapes, often of those that have kernels of their own. The same for the same seed,
// whatever the arguments are.
void TestCall::chooseWindow(Random random) {
  if (function.reach == registry::Reach::k3x3) window_ = {{3, 3}, {1, 1}};
  if (function.reach != registry::Reach::kMask) return;
  const bool box = checks(function, registry::Check::kBoxSize);
  const auto side = [&] { return static_cast<int>(1 + (box ? 1 : 0) + pick(random, 7)); };
  const std::size_t kind = pick(random, 4);
  KeliSize& mask = window_.mask;
  mask = kind == 0 ? KeliSize{3, 3} : kind == 1 ? KeliSize{5, 5} : KeliSize{side(), side()};
  const auto within = [&](int count) {
    return static_cast<int>(pick(random, static_cast<std::size_t>(count)));
  };
  window_.anchor = {within(mask.width), within(mask.height)};
}

// A source of another size than the destination, and where it goes. With borders it lies within the
// destination.
void TestCall::chooseSource(Random random) {
  const auto upTo = [&](int most) {
    return 1 + static_cast<int>(pick(random, static_cast<std::size_t>(most)));
  };
  const bool within = find(Role::kTopBorder) != npos;
  bitOffset_ = upTo(8) - 1;
  sourceSize_ =
      within ? KeliSize{upTo(size_.width), upTo(size_.height)} : KeliSize{upTo(40), upTo(40)};
  if (within) {
    border_.x = upTo(size_.width - sourceSize_.width + 1) - 1;
    border_.y = upTo(size_.height - sourceSize_.height + 1) - 1;
  }
  sourceRect_.width = upTo(sourceSize_.width);
  sourceRect_.height = upTo(sourceSize_.height);
  sourceRect_.x = upTo(sourceSize_.width - sourceRect_.width + 1) - 1;
  sourceRect_.y = upTo(sourceSize_.height - sourceRect_.height + 1) - 1;
}

TestCall::Image TestCall::shapeOf(std::size_t i, const Geometry& g) const {
  const Argument& a = function.arguments[i];
  const bool channel = a.role == Role::kSourceChannel || a.role == Role::kDestinationChannel;
  const std::size_t sample = registry::bytesOf(a.type);
  Image image = {};
  image.argument = i;
  image.region = a.role == Role::kSource && find(Role::kSourceRegion) != npos ? sourceSize_ : size_;
  if (registry::isBlock(function, i)) image.region = {64, 1};
  if (a.role == Role::kSource || a.role == Role::kInOut) image.around = window_;
  image.pixel = sample * static_cast<std::size_t>(pixelSamples(a.layout));
  image.used = isPlanar(a.layout) || channel
                   ? sample
                   : sample * static_cast<std::size_t>(usedChannels(a.layout));
  std::size_t width = static_cast<std::size_t>(image.region.width);
  if (a.type == Type::k1u) width = (width + static_cast<std::size_t>(bitOffset_) + 7) / 8;
  const std::size_t all = width + static_cast<std::size_t>(image.around.mask.width) - 1;
  image.rowBytes = channel ? (width - 1) * image.pixel + sample : width * image.pixel;
  image.step = all * image.pixel + static_cast<std::size_t>(g.padding);
  if (stepsByWholeSamples(function)) image.step -= image.step % sample;
  image.inset = insetOf(image);
  return image;
}

std::size_t TestCall::insetOf(const Image& image) {
  return static_cast<std::size_t>(image.around.anchor.y) * image.step +
         static_cast<std::size_t>(image.around.anchor.x) * image.pixel;
}

void TestCall::addImage(std::size_t i, const Geometry& g, Random& random) {
  const Argument& a = function.arguments[i];
  imageAt_[i] = images_.size();
  images_.push_back(shapeOf(i, g));
  Image& image = images_.back();
  const std::size_t beside = static_cast<std::size_t>(image.around.mask.width - 1) * image.pixel;
  const std::size_t rows =
      static_cast<std::size_t>(image.region.height + image.around.mask.height - 1);
  // Of AP4, the plane that is left alone too.
  const int planes = isPlanar(a.layout) ? storedChannels(a.layout) : 1;
  for (int k = 0; k < planes; ++k) {
    std::uint8_t* const p = place((rows - 1) * image.step + image.rowBytes + beside, g);
    for (std::size_t y = 0; y < rows; ++y)
      fillRow(image, p + y * image.step, image.rowBytes + beside, random);
    image.planes.push_back(p + image.inset);
  }
  pointTo(image);
}

// Gives the function an image's address, or those of its planes.
void TestCall::pointTo(const Image& image) {
  const Argument& a = function.arguments[image.argument];
  Value& value = values[image.argument];
  value.p = image.planes[0];
  if (isPlanar(a.layout)) {
    planeArrays_.push_back(std::make_unique<const void*[]>(image.planes.size()));
    std::copy(image.planes.begin(), image.planes.end(), planeArrays_.back().get());
    value.p = planeArrays_.back().get();
  }
  if (a.role == Role::kInOutWithin) {
    value.p = image.planes[0] + static_cast<std::size_t>(border_.y) * image.step +
              static_cast<std::size_t>(border_.x) * image.pixel;
  }
}

void TestCall::fence(bool atEnd) {
  for (Image& image : images_) {
    const std::vector<Area> areas = areasOf(image.argument);
    const std::size_t step = image.step;
    for (std::size_t k = 0; k < areas.size(); ++k) {
      fences_.push_back(std::make_shared<FencedRows>(areas[k].rows, areas[k].rowBytes, atEnd));
      const FencedRows& fenced = *fences_.back();
      for (std::size_t y = 0; y < areas[k].rows; ++y)
        std::memcpy(fenced.begin() + y * fenced.step(), areas[k].data + y * step,
                    areas[k].rowBytes);
      image.step = fenced.step();
      image.inset = insetOf(image);
      image.planes[k] = fenced.begin() + image.inset;
    }
    pointTo(image);
  }
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (function.arguments[i].role == Role::kStep)
      values[i].i = static_cast<std::int64_t>(stepOf(i));
  }
}

void TestCall::fillRow(const Image& image, std::uint8_t* row, std::size_t rowBytes,
                       Random& random) const {
  const Argument& a = function.arguments[image.argument];
  fillSamples(a.type, row, rowBytes / registry::bytesOf(a.type), random);
  // Masks have runs of nothing and of something.
  for (std::size_t x = 0; a.role == Role::kMask && x < rowBytes; ++x) {
    if (x / 24 % 3 == 0) row[x] = 0;
    if (x / 24 % 3 == 1 && row[x] == 0) row[x] = 255;
  }
  if (a.role != Role::kMap) return;
  // Coordinates lie on and around the source's part, on its pixels and between them.
  const bool columns = find(Role::kMap) == image.argument;
  const int first = columns ? sourceRect_.x : sourceRect_.y;
  const int count = columns ? sourceRect_.width : sourceRect_.height;
  for (std::size_t x = 0; x < rowBytes / sizeof(Kel32f); ++x) {
    const std::uint64_t r = random();
    Kel32f at = static_cast<Kel32f>(r >> 40) / (1 << 24) * static_cast<Kel32f>(count + 1) - 1;
    if (r % 4 == 0) at = std::floor(at * 2) / 2;
    at += static_cast<Kel32f>(first);
    if (r % 32 == 1) at = std::nextafter(static_cast<Kel32f>(first + count - 1), HUGE_VALF);
    if (r % 64 != 2) std::memcpy(row + x * sizeof(at), &at, sizeof(at));  // else any number
  }
}

std::uint8_t* TestCall::addArray(std::size_t i, std::size_t count, const Geometry& g,
                                 const void* data) {
  std::uint8_t* p = place(count, g);
  std::memcpy(p, data, count);
  values[i].p = p;
  return p;
}

std::uint8_t* TestCall::planeOf(std::size_t argument, int plane) const {
  return images_[imageAt_[argument]].planes[static_cast<std::size_t>(plane)];
}

std::size_t TestCall::find(Role role) const {
  for (std::size_t i = 0; i < function.arguments.size; ++i) {
    if (function.arguments[i].role == role) return i;
  }
  return npos;
}

std::size_t TestCall::lastSource() const {
  std::size_t last = npos;
  for (const Image& image : images_) {
    const Role role = function.arguments[image.argument].role;
    if (role == Role::kSource || role == Role::kSourceChannel || role == Role::kInOut)
      last = image.argument;
  }
  return last;
}

std::size_t TestCall::written() const {
  for (const Image& image : images_) {
    if (registry::isWritten(function.arguments[image.argument].role)) return image.argument;
  }
  return npos;
}

std::vector<std::uint8_t> TestCall::outcome() const {
  std::vector<std::uint8_t> all;
  if (written() != npos) all = region(written());
  for (const Written& w : results_) all.insert(all.end(), w.data, w.data + w.size);
  return all;
}

std::vector<TestCall::Area> TestCall::regionsOf(std::size_t argument) const {
  const Image& image = images_[imageAt_[argument]];
  std::vector<Area> areas;
  for (std::uint8_t* plane : image.planes)
    areas.push_back({plane, image.rowBytes, static_cast<std::size_t>(image.region.height)});
  return areas;
}

std::vector<TestCall::Area> TestCall::areasOf(std::size_t argument) const {
  const Image& image = images_[imageAt_[argument]];
  std::vector<Area> areas = regionsOf(argument);
  for (Area& area : areas) {
    area.data -= image.inset;
    area.rowBytes += static_cast<std::size_t>(image.around.mask.width - 1) * image.pixel;
    area.rows += static_cast<std::size_t>(image.around.mask.height - 1);
  }
  return areas;
}

namespace {

template <class Areas>
std::vector<std::uint8_t> read(const Areas& areas, std::size_t step) {
  std::vector<std::uint8_t> out;
  for (const auto& area : areas) {
    for (std::size_t y = 0; y < area.rows; ++y)
      out.insert(out.end(), area.data + y * step, area.data + y * step + area.rowBytes);
  }
  return out;
}

template <class Areas>
void write(const Areas& areas, std::size_t step, const std::vector<std::uint8_t>& samples) {
  const std::uint8_t* from = samples.data();
  for (const auto& area : areas) {
    for (std::size_t y = 0; y < area.rows; ++y, from += area.rowBytes)
      std::memcpy(area.data + y * step, from, area.rowBytes);
  }
}

}  // namespace

std::vector<std::uint8_t> TestCall::samples(std::size_t argument) const {
  return read(areasOf(argument), stepOf(argument));
}

std::vector<std::uint8_t> TestCall::region(std::size_t argument) const {
  return read(regionsOf(argument), stepOf(argument));
}

void TestCall::setSamples(std::size_t argument, const std::vector<std::uint8_t>& samples) {
  write(areasOf(argument), stepOf(argument), samples);
  remember();
}

void TestCall::setRegion(std::size_t argument, const std::vector<std::uint8_t>& samples) {
  write(regionsOf(argument), stepOf(argument), samples);
  remember();
}

void TestCall::remember() {
  before_.clear();
  for (const auto& arena : arenas_) {
    before_.emplace_back();
    if (arena->size() <= kWatchedBytes) before_.back().assign(arena->begin(), arena->end());
  }
}

// Calls f(first byte, count) for all bytes that the function may write, as far as they lie in
// memory from begin to end.
template <class F>
void TestCall::forWritable(const std::uint8_t* begin, const std::uint8_t* end, const F& f) const {
  const auto within = [&](const std::uint8_t* p, std::size_t count) {
    if (p >= begin && p < end) f(p, count);
  };
  for (const Written& w : results_) within(w.data, w.size);
  within(buffer_.data, buffer_.size);
  for (const Image& image : images_) {
    const Argument& a = function.arguments[image.argument];
    if (!registry::isWritten(a.role)) continue;
    for (int k = 0; k < (isPlanar(a.layout) ? usedChannels(a.layout) : 1); ++k) {
      const std::uint8_t* const plane = image.planes[static_cast<std::size_t>(k)];
      for (int y = 0; y < image.region.height; ++y) {
        const std::uint8_t* const row = plane + static_cast<std::size_t>(y) * image.step;
        const bool whole = image.used == image.pixel;
        const std::size_t run = whole ? image.rowBytes : image.used;
        for (std::size_t x = 0; x < image.rowBytes; x += whole ? image.rowBytes : image.pixel)
          within(row + x, run);
      }
    }
  }
}

std::string TestCall::changes(bool all) const {
  for (std::size_t k = 0; k < arenas_.size(); ++k) {
    const Arena& arena = *arenas_[k];
    const std::size_t size = before_[k].size();
    if (std::memcmp(arena.begin(), before_[k].data(), size) == 0) continue;
    std::vector<std::uint8_t> expected = before_[k];
    if (!all) {
      forWritable(arena.begin(), arena.end(), [&](const std::uint8_t* p, std::size_t count) {
        std::memcpy(expected.data() + (p - arena.begin()), p, count);
      });
    }
    const auto first = std::mismatch(expected.begin(), expected.end(), arena.begin()).first;
    if (first != expected.end()) {
      return std::string(function.name) + ": byte " + std::to_string(first - expected.begin()) +
             " of block " + std::to_string(k) + " was changed";
    }
  }
  return "";
}

std::string TestCall::strayWrites() const { return changes(false); }
std::string TestCall::anyWrites() const { return changes(true); }

}  // namespace keli::test
