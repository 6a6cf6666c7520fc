#include "support/test_call.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <mutex>

namespace keli::test {

using registry::Argument;
using registry::Role;
using registry::Type;
using registry::Value;

namespace {

// Larger arenas hold sparse images: they are neither filled nor compared as a whole.
constexpr std::size_t kWatchedBytes = std::size_t{1} << 26;

template <class T>
void fillIntegers(std::uint8_t* p, std::size_t count, Random& random) {
  constexpr T kExtremes[] = {std::numeric_limits<T>::min(), std::numeric_limits<T>::max(), T{0},
                             T{1}};
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint64_t r = random();
    const T v = (r & 7) == 0 ? kExtremes[(r >> 3) & 3] : static_cast<T>(r >> 5);
    std::memcpy(p + i * sizeof(T), &v, sizeof(T));
  }
}

template <class T>
void fillFloats(std::uint8_t* p, std::size_t count, Random& random) {
  using L = std::numeric_limits<T>;
  const T kSpecials[] = {T{0},           -T{0},           L::infinity(), -L::infinity(),
                         L::quiet_NaN(), L::denorm_min(), L::max(),      -L::max()};
  for (std::size_t i = 0; i < count; ++i) {
    const std::uint64_t r = random();
    const T v = (r & 15) == 0 ? kSpecials[(r >> 4) & 7]
                              : static_cast<T>(static_cast<std::int32_t>(r >> 20)) / 4096;
    std::memcpy(p + i * sizeof(T), &v, sizeof(T));
  }
}

// Makes most counts of bits such as move something.
void keepSmall(std::uint8_t* counts, int length, Random& random) {
  for (int k = 0; k < std::max(length, 1); ++k) {
    const std::uint32_t count = static_cast<std::uint32_t>(pick(random, 36));
    if (pick(random, 4) != 0) std::memcpy(counts + 4 * k, &count, sizeof(count));
  }
}

bool isFloating(Type type) {
  return type == Type::k32f || type == Type::k64f || type == Type::k32fc;
}

// Zero of its type, a negative one included.
bool isZero(Type type, const std::uint8_t* sample) {
  const std::size_t bytes = registry::bytesOf(type);
  const std::size_t sign = type == Type::k64f ? 7 : 3;  // the byte that holds it
  for (std::size_t i = 0; i < bytes; ++i) {
    const bool signs = isFloating(type) && i % 8 % (sign + 1) == sign;
    if ((sample[i] & (signs ? 0x7F : 0xFF)) != 0) return false;
  }
  return true;
}

template <class T>
bool isInner(const std::uint8_t* low, const std::uint8_t* high) {
  T a, b;
  std::memcpy(&a, low, sizeof(T));
  std::memcpy(&b, high, sizeof(T));
  return a > std::numeric_limits<T>::lowest() && a <= b && b < std::numeric_limits<T>::max();
}

bool isInnerRange(Type type, const std::uint8_t* low, const std::uint8_t* high) {
  return type == Type::k8u    ? isInner<Kel8u>(low, high)
         : type == Type::k16s ? isInner<Kel16s>(low, high)
                              : isInner<Kel32f>(low, high);
}

// Arenas are kept for further calls: mapping memory is slow.
class ArenaPool {
 public:
  std::shared_ptr<Arena> get(std::size_t count) {
    const std::lock_guard<std::mutex> lock(mutex_);
    for (std::size_t i = 0; i < free_.size(); ++i) {
      if (free_[i]->size() >= count && free_[i]->size() <= 4 * count + 16384) {
        Arena* found = free_[i].release();
        free_.erase(free_.begin() + static_cast<std::ptrdiff_t>(i));
        return wrap(found);
      }
    }
    return wrap(new Arena(count));
  }

 private:
  std::shared_ptr<Arena> wrap(Arena* arena) {
    return {arena, [this](Arena* a) {
              const std::lock_guard<std::mutex> lock(mutex_);
              free_.emplace_back(a);
              if (free_.size() > 32) free_.erase(free_.begin());
            }};
  }

  std::mutex mutex_;
  std::vector<std::unique_ptr<Arena>> free_;
};

ArenaPool& pool() {
  static ArenaPool* const arenas = new ArenaPool;
  return *arenas;
}

// Functions that use steps rounded down to whole samples.
bool stepsByWholeSamples(const registry::Function& function) {
  return std::string(function.name) == "keliSqrt_32f_C1R";
}

}  // namespace

void fillSamples(Type type, std::uint8_t* p, std::size_t count, Random& random) {
  switch (type) {
    case Type::k8u:
      return fillIntegers<Kel8u>(p, count, random);
    case Type::k8s:
      return fillIntegers<Kel8s>(p, count, random);
    case Type::k16u:
      return fillIntegers<Kel16u>(p, count, random);
    case Type::k16s:
      return fillIntegers<Kel16s>(p, count, random);
    case Type::k32u:
      return fillIntegers<std::uint32_t>(p, count, random);
    case Type::k32s:
      return fillIntegers<Kel32s>(p, count, random);
    case Type::k64s:
      return fillIntegers<Kel64s>(p, count, random);
    case Type::k32f:
      return fillFloats<Kel32f>(p, count, random);
    case Type::k64f:
      return fillFloats<Kel64f>(p, count, random);
    case Type::k16sc:
      return fillIntegers<Kel16s>(p, 2 * count, random);
    case Type::k32sc:
      return fillIntegers<Kel32s>(p, 2 * count, random);
    case Type::k32fc:
      return fillFloats<Kel32f>(p, 2 * count, random);
    case Type::kNone:
      return;
  }
}

bool checks(const registry::Function& f, registry::Check check) {
  for (const registry::Check made : f.entry->checks) {
    if (made == check) return true;
  }
  return false;
}

TestCall::TestCall(const registry::Function& f, const Geometry& g, std::uint64_t seed)
    : function(f), values(f.arguments.size), size_{g.width, g.height}, imageAt_(f.arguments.size) {
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

// Values of channels; those of a range's ends are in order, and short of the type's extremes.
void TestCall::addConstants(std::size_t i, const Geometry& g, Random& random) {
  const Argument& a = function.arguments[i];
  const std::size_t bytes = registry::bytesOf(a.type);
  const std::size_t count = static_cast<std::size_t>(std::max(a.length, 1));
  std::uint8_t constant[4 * 8] = {};
  fillSamples(a.type, constant, count, random);
  if (a.role == Role::kShift) keepSmall(constant, a.length, random);
  for (std::size_t k = 0; checks(function, registry::Check::kDivisor) && k < 4; ++k) {
    while (isZero(a.type, constant + k * bytes))
      fillSamples(a.type, constant + k * bytes, 1, random);
  }
  for (std::size_t k = 0; a.role == Role::kLower && k < count; ++k) {
    do {
      fillSamples(a.type, constant + k * bytes, 1, random);
      fillSamples(a.type, upper_ + k * bytes, 1, random);
    } while (!isInnerRange(a.type, constant + k * bytes, upper_ + k * bytes));
  }
  if (a.role == Role::kUpper) std::memcpy(constant, upper_, sizeof(constant));
  if (a.length != 0) {
    addArray(i, count * bytes, g, constant);
  } else if (a.type == Type::k32f) {
    Kel32f sample;
    std::memcpy(&sample, constant, sizeof(sample));
    values[i].f = sample;
  } else {
    std::memcpy(&values[i], constant, bytes);
  }
}

void TestCall::addNumbers(std::size_t i, const Geometry& g, const int (&numbers)[4]) {
  const int length = function.arguments[i].length;
  if (length != 0) {
    addArray(i, static_cast<std::size_t>(length) * sizeof(int), g, numbers);
  } else {
    values[i].i = numbers[0];
  }
}

void TestCall::addResult(std::size_t i, std::size_t count, const Geometry& g) {
  const std::vector<std::uint8_t> before(count, 0x5A);
  results_.push_back({addArray(i, count, g, before.data()), count});
}

// Histograms and levels of each channel; levels rise from some point within the type's range.
void TestCall::addPerChannel(std::size_t i, const Geometry& g, Random& random) {
  const Argument& a = function.arguments[i];
  auto arrays = std::make_unique<const void*[]>(4);
  for (int k = 0; k < std::max(a.length, 1); ++k) {
    const std::size_t levels = static_cast<std::size_t>(levelCounts_[k]);
    if (a.role == Role::kLevels) {
      std::vector<Kel32s> whole;
      std::vector<Kel32f> real;
      Kel32s level = static_cast<Kel32s>(pick(random, 60)) - 20;
      for (std::size_t j = 0; j < levels; ++j, level += 1 + static_cast<Kel32s>(pick(random, 9))) {
        whole.push_back(level);
        real.push_back(static_cast<Kel32f>(level) * 100);
      }
      const void* const data =
          a.type == Type::k32f ? static_cast<const void*>(real.data()) : whole.data();
      addArray(i, levels * 4, g, data);
    } else {
      addResult(i, 4 * (levels - (a.role == Role::kCounts ? 1 : 0)), g);
    }
    arrays[static_cast<std::size_t>(k)] = values[i].p;
  }
  if (a.length == 0) return;
  values[i].p = arrays.get();
  planeArrays_.push_back(std::move(arrays));
}

std::uint8_t* TestCall::place(std::size_t count, const Geometry& g) {
  arenas_.push_back(pool().get(count + 256));
  const Arena& arena = *arenas_.back();
  // What lies around images differs from call to call, and their samples do not.
  static Random* const around = new Random(runSeed());
  if (arena.size() <= kWatchedBytes) {
    fillIntegers<std::uint64_t>(arena.begin(), arena.size() / 8, *around);
  }
  if (g.place == Place::kStart) return arena.begin();
  if (g.place == Place::kEnd) return arena.end() - count;
  return arena.begin() + 128 + g.offset;
}

void TestCall::addImage(std::size_t i, const Geometry& g, Random& random) {
  const Argument& a = function.arguments[i];
  const bool channel = a.role == Role::kSourceChannel || a.role == Role::kDestinationChannel;
  const std::size_t sample = registry::bytesOf(a.type);
  const std::size_t width = static_cast<std::size_t>(g.width);
  Image image;
  image.argument = i;
  image.pixel = sample * static_cast<std::size_t>(pixelSamples(a.layout));
  image.used = isPlanar(a.layout) || channel
                   ? sample
                   : sample * static_cast<std::size_t>(usedChannels(a.layout));
  image.rowBytes = channel ? (width - 1) * image.pixel + sample : width * image.pixel;
  image.step = width * image.pixel + static_cast<std::size_t>(g.padding);
  if (stepsByWholeSamples(function)) image.step -= image.step % sample;
  const int planes = isPlanar(a.layout) ? usedChannels(a.layout) : 1;
  for (int k = 0; k < planes; ++k) {
    const std::size_t height = static_cast<std::size_t>(g.height);
    std::uint8_t* p = place((height - 1) * image.step + image.rowBytes, g);
    image.planes.push_back(p);
    for (std::size_t y = 0; y < height; ++y) {
      std::uint8_t* row = p + y * image.step;
      fillSamples(a.type, row, image.rowBytes / sample, random);
      if (a.role != Role::kMask) continue;
      // Masks have runs of nothing and of something.
      for (std::size_t x = 0; x < width; ++x) {
        if (x / 24 % 3 == 0) row[x] = 0;
        if (x / 24 % 3 == 1 && row[x] == 0) row[x] = 255;
      }
    }
  }
  if (isPlanar(a.layout)) {
    planeArrays_.push_back(std::make_unique<const void*[]>(static_cast<std::size_t>(planes)));
    for (int k = 0; k < planes; ++k)
      planeArrays_.back()[static_cast<std::size_t>(k)] = image.planes[static_cast<std::size_t>(k)];
    values[i].p = planeArrays_.back().get();
  } else {
    values[i].p = image.planes[0];
  }
  imageAt_[i] = images_.size();
  images_.push_back(image);
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
  if (written() != npos) all = samples(written());
  for (const Written& w : results_) all.insert(all.end(), w.data, w.data + w.size);
  return all;
}

std::vector<std::uint8_t> TestCall::samples(std::size_t argument) const {
  const Image& image = images_[imageAt_[argument]];
  std::vector<std::uint8_t> out;
  for (const std::uint8_t* plane : image.planes) {
    for (int y = 0; y < size_.height; ++y) {
      const std::uint8_t* row = plane + static_cast<std::size_t>(y) * image.step;
      out.insert(out.end(), row, row + image.rowBytes);
    }
  }
  return out;
}

void TestCall::setSamples(std::size_t argument, const std::vector<std::uint8_t>& samples) {
  const Image& image = images_[imageAt_[argument]];
  const std::uint8_t* from = samples.data();
  for (std::uint8_t* plane : image.planes) {
    for (int y = 0; y < size_.height; ++y, from += image.rowBytes) {
      std::memcpy(plane + static_cast<std::size_t>(y) * image.step, from, image.rowBytes);
    }
  }
  remember();
}

void TestCall::remember() {
  before_.clear();
  for (const auto& arena : arenas_) {
    before_.emplace_back();
    if (arena->size() <= kWatchedBytes) before_.back().assign(arena->begin(), arena->end());
  }
}

bool TestCall::mayWrite(const std::uint8_t* p) const {
  for (const Written& w : results_) {
    if (p >= w.data && p < w.data + w.size) return true;
  }
  for (const Image& image : images_) {
    if (!registry::isWritten(function.arguments[image.argument].role)) continue;
    for (const std::uint8_t* plane : image.planes) {
      if (p < plane) continue;
      const std::size_t at = static_cast<std::size_t>(p - plane);
      const std::size_t x = at % image.step;
      if (at / image.step < static_cast<std::size_t>(size_.height) && x < image.rowBytes &&
          x % image.pixel < image.used) {
        return true;
      }
    }
  }
  return false;
}

std::string TestCall::changes(bool all) const {
  for (std::size_t k = 0; k < arenas_.size(); ++k) {
    const Arena& arena = *arenas_[k];
    if (std::memcmp(arena.begin(), before_[k].data(), before_[k].size()) == 0) continue;
    for (std::size_t i = 0; i < before_[k].size(); ++i) {
      if (arena.begin()[i] != before_[k][i] && (all || !mayWrite(arena.begin() + i))) {
        return std::string(function.name) + ": byte " + std::to_string(i) + " of block " +
               std::to_string(k) + " was changed";
      }
    }
  }
  return "";
}

std::string TestCall::strayWrites() const { return changes(false); }
std::string TestCall::anyWrites() const { return changes(true); }

}  // namespace keli::test
