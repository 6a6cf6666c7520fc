// Moving, filling and reading memory with library calls and with 32-byte loads and stores.
//
// The loops hold a compiler barrier in every round: they stay as written and do not become calls of
// memcpy or memset.
#include "memory_limits.h"

#include <algorithm>
#include <cstring>
#include <memory>

#if defined(__x86_64__)
#include <immintrin.h>
#define KELI_BENCH_AVX2 __attribute__((target("avx2")))
#endif

namespace keli::bench {
namespace {

using Mover = void (*)(std::uint8_t* to, const std::uint8_t* from, std::size_t bytes);
using Joiner = void (*)(std::uint8_t* to, const std::uint8_t* a, const std::uint8_t* b,
                        std::size_t bytes);
// Of two sources, which are the same where there is one; bytes: of the destination.
using Folder = void (*)(std::uint8_t* to, const std::uint8_t* a, const std::uint8_t* b,
                        std::size_t bytes);
using Filler = void (*)(std::uint8_t* to, std::size_t bytes);
using Reader = std::uint64_t (*)(const std::uint8_t* from, std::size_t bytes);

constexpr std::size_t kPiece = 4096;
constexpr std::uint8_t kFillByte = 0x11;

inline void barrier() { asm volatile("" ::: "memory"); }

template <int kRatio>
void foldBytes(std::uint8_t* to, const std::uint8_t* a, const std::uint8_t* b, std::size_t bytes) {
  for (std::size_t i = 0; i < bytes; ++i) {
    to[i] = 0;
    for (std::size_t k = kRatio * i; k < kRatio * (i + 1); ++k) to[i] |= a[k] | b[k];
  }
}

void moveAtOnce(std::uint8_t* to, const std::uint8_t* from, std::size_t bytes) {
  std::memcpy(to, from, bytes);
}

void moveInPieces(std::uint8_t* to, const std::uint8_t* from, std::size_t bytes) {
  for (std::size_t i = 0; i < bytes; i += kPiece) {
    std::memcpy(to + i, from + i, std::min(kPiece, bytes - i));
  }
}

// Both sources' bits: less work than any function has that reads two images.
void joinWords(std::uint8_t* to, const std::uint8_t* a, const std::uint8_t* b, std::size_t bytes) {
  std::size_t i = 0;
  for (; i + 8 <= bytes; i += 8) {
    std::uint64_t x, y;
    std::memcpy(&x, a + i, 8);
    std::memcpy(&y, b + i, 8);
    x |= y;
    std::memcpy(to + i, &x, 8);
    barrier();
  }
  for (; i < bytes; ++i) to[i] = a[i] | b[i];
}

void fillAtOnce(std::uint8_t* to, std::size_t bytes) { std::memset(to, kFillByte, bytes); }

void fillInPieces(std::uint8_t* to, std::size_t bytes) {
  for (std::size_t i = 0; i < bytes; i += kPiece) {
    std::memset(to + i, kFillByte, std::min(kPiece, bytes - i));
  }
}

std::uint64_t readWords(const std::uint8_t* from, std::size_t bytes) {
  std::uint64_t sums[4] = {};
  std::size_t i = 0;
  for (; i + 32 <= bytes; i += 32) {
    std::uint64_t words[4];
    std::memcpy(words, from + i, 32);
    for (int k = 0; k < 4; ++k) sums[k] += words[k];
  }
  for (; i < bytes; ++i) sums[0] += from[i];
  return sums[0] + sums[1] + sums[2] + sums[3];
}

#ifdef KELI_BENCH_AVX2

constexpr std::size_t kVector = 32;

template <bool kStream>
KELI_BENCH_AVX2 inline void storeVector(std::uint8_t* to, __m256i v) {
  if constexpr (kStream) {
    _mm256_stream_si256(reinterpret_cast<__m256i*>(to), v);
  } else {
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(to), v);
  }
}

template <int kVectors, bool kStream>
KELI_BENCH_AVX2 void moveVectors(std::uint8_t* to, const std::uint8_t* from, std::size_t bytes) {
  // Streams begin at whole vectors, regions inside a larger image anywhere.
  const std::size_t before = (0 - reinterpret_cast<std::uintptr_t>(to)) % kVector;
  std::size_t i = kStream ? std::min(before, bytes) : 0;
  if (to != from) std::memcpy(to, from, i);
  for (; i + kVectors * kVector <= bytes; i += kVectors * kVector) {
    __m256i v[kVectors];
    for (int k = 0; k < kVectors; ++k) {
      v[k] = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(from + i + k * kVector));
    }
    for (int k = 0; k < kVectors; ++k) storeVector<kStream>(to + i + k * kVector, v[k]);
    barrier();
  }
  if (to != from) std::memcpy(to + i, from + i, bytes - i);
  if constexpr (kStream) _mm_sfence();
}

template <int kVectors, bool kStream>
KELI_BENCH_AVX2 void joinVectors(std::uint8_t* to, const std::uint8_t* a, const std::uint8_t* b,
                                 std::size_t bytes) {
  std::size_t i = 0;
  for (; i + kVectors * kVector <= bytes; i += kVectors * kVector) {
    __m256i v[kVectors];
    for (int k = 0; k < kVectors; ++k) {
      const auto* x = reinterpret_cast<const __m256i*>(a + i + k * kVector);
      const auto* y = reinterpret_cast<const __m256i*>(b + i + k * kVector);
      v[k] = _mm256_or_si256(_mm256_loadu_si256(x), _mm256_loadu_si256(y));
    }
    for (int k = 0; k < kVectors; ++k) storeVector<kStream>(to + i + k * kVector, v[k]);
    barrier();
  }
  joinWords(to + i, a + i, b + i, bytes - i);
  if constexpr (kStream) _mm_sfence();
}

// Of each source kRatio vectors for one that is written.
template <int kRatio, bool kStream>
KELI_BENCH_AVX2 void foldVectors(std::uint8_t* to, const std::uint8_t* a, const std::uint8_t* b,
                                 std::size_t bytes) {
  std::size_t i = 0;
  for (; i + kVector <= bytes; i += kVector) {
    __m256i v = _mm256_setzero_si256();
    for (int k = 0; k < kRatio; ++k) {
      const auto* x = reinterpret_cast<const __m256i*>(a + kRatio * i + k * kVector);
      const auto* y = reinterpret_cast<const __m256i*>(b + kRatio * i + k * kVector);
      v = _mm256_or_si256(v, _mm256_loadu_si256(x));
      if (a != b) v = _mm256_or_si256(v, _mm256_loadu_si256(y));
    }
    storeVector<kStream>(to + i, v);
    barrier();
  }
  foldBytes<kRatio>(to + i, a + kRatio * i, b + kRatio * i, bytes - i);
  if constexpr (kStream) _mm_sfence();
}

template <int kVectors, bool kStream>
KELI_BENCH_AVX2 void fillVectors(std::uint8_t* to, std::size_t bytes) {
  const __m256i v = _mm256_set1_epi8(kFillByte);
  std::size_t i = 0;
  for (; i + kVectors * kVector <= bytes; i += kVectors * kVector) {
    for (int k = 0; k < kVectors; ++k) storeVector<kStream>(to + i + k * kVector, v);
    barrier();
  }
  std::memset(to + i, kFillByte, bytes - i);
  if constexpr (kStream) _mm_sfence();
}

KELI_BENCH_AVX2 std::uint64_t readVectors(const std::uint8_t* from, std::size_t bytes) {
  __m256i sums[4] = {};
  std::size_t i = 0;
  for (; i + 4 * kVector <= bytes; i += 4 * kVector) {
    for (int k = 0; k < 4; ++k) {
      const auto* p = reinterpret_cast<const __m256i*>(from + i + k * kVector);
      sums[k] = _mm256_add_epi64(sums[k], _mm256_loadu_si256(p));
    }
  }
  const __m256i sum =
      _mm256_add_epi64(_mm256_add_epi64(sums[0], sums[1]), _mm256_add_epi64(sums[2], sums[3]));
  return static_cast<std::uint64_t>(_mm256_extract_epi64(sum, 0)) + readWords(from + i, bytes - i);
}

__attribute__((target("avx512f"))) std::uint64_t readLongVectors(const std::uint8_t* from,
                                                                 std::size_t bytes) {
  constexpr std::size_t kLong = 64;
  __m512i sums[4] = {_mm512_setzero_si512(), _mm512_setzero_si512(), _mm512_setzero_si512(),
                     _mm512_setzero_si512()};
  const std::size_t head = (kLong - reinterpret_cast<std::uintptr_t>(from) % kLong) % kLong;
  std::size_t i = std::min(head, bytes);  // loads across cache lines would be slower
  const std::uint64_t first = readWords(from, i);
  for (; i + 4 * kLong <= bytes; i += 4 * kLong) {
    for (int k = 0; k < 4; ++k) {
      sums[k] = _mm512_add_epi64(sums[k], _mm512_loadu_si512(from + i + k * kLong));
    }
  }
  const __m512i sum =
      _mm512_add_epi64(_mm512_add_epi64(sums[0], sums[1]), _mm512_add_epi64(sums[2], sums[3]));
  std::uint8_t lanes[kLong];
  _mm512_storeu_si512(lanes, sum);
  return first + readWords(lanes, kLong) + readWords(from + i, bytes - i);
}

bool hasVectors() { return __builtin_cpu_supports("avx2"); }
bool hasLongVectors() { return __builtin_cpu_supports("avx512f"); }

#else

bool hasVectors() { return false; }

#endif

template <class F>
struct Named {
  const char* name;
  F function;
};

std::vector<Named<Mover>> movers(bool inPlace) {
  std::vector<Named<Mover>> result;
  if (!inPlace) result = {{"memcpy", moveAtOnce}, {"memcpy of 4 KiB", moveInPieces}};
#ifdef KELI_BENCH_AVX2
  if (hasVectors()) {
    result.push_back({"stores", moveVectors<1, false>});
    result.push_back({"4 stores", moveVectors<4, false>});
    result.push_back({"streaming", moveVectors<1, true>});
    result.push_back({"4 streaming", moveVectors<4, true>});
  }
#endif
  // Where overlap is allowed, memmove.
  if (result.empty()) {
    result.push_back({"memmove", [](std::uint8_t* to, const std::uint8_t* from, std::size_t bytes) {
                        std::memmove(to, from, bytes);
                      }});
  }
  return result;
}

std::vector<Named<Joiner>> joiners() {
  std::vector<Named<Joiner>> result = {{"8-byte stores", joinWords}};
#ifdef KELI_BENCH_AVX2
  if (hasVectors()) {
    result.push_back({"stores", joinVectors<1, false>});
    result.push_back({"4 stores", joinVectors<4, false>});
    result.push_back({"streaming", joinVectors<1, true>});
    result.push_back({"4 streaming", joinVectors<4, true>});
  }
#endif
  return result;
}

template <int kRatio>
void addFolders(std::size_t ratio, std::vector<Named<Folder>>& result) {
  if (ratio != kRatio) return;
  result.push_back({"bytes", foldBytes<kRatio>});
#ifdef KELI_BENCH_AVX2
  if (hasVectors()) {
    result.push_back({"stores", foldVectors<kRatio, false>});
    result.push_back({"streaming", foldVectors<kRatio, true>});
  }
#endif
}

// For samples of a pixel of one to four channels.
std::vector<Named<Folder>> folders(std::size_t ratio) {
  std::vector<Named<Folder>> result;
  addFolders<2>(ratio, result);
  addFolders<3>(ratio, result);
  addFolders<4>(ratio, result);
  addFolders<6>(ratio, result);
  addFolders<8>(ratio, result);
  addFolders<12>(ratio, result);
  addFolders<16>(ratio, result);
  return result;
}

std::vector<Named<Filler>> fillers() {
  std::vector<Named<Filler>> result = {{"memset", fillAtOnce}, {"memset of 4 KiB", fillInPieces}};
#ifdef KELI_BENCH_AVX2
  if (hasVectors()) {
    result.push_back({"stores", fillVectors<1, false>});
    result.push_back({"4 stores", fillVectors<4, false>});
    result.push_back({"streaming", fillVectors<1, true>});
    result.push_back({"4 streaming", fillVectors<4, true>});
  }
#endif
  return result;
}

std::vector<Named<Reader>> readers() {
  std::vector<Named<Reader>> result = {{"8-byte loads", readWords}};
#ifdef KELI_BENCH_AVX2
  if (hasVectors()) result.push_back({"4 loads", readVectors});
  if (hasLongVectors()) result.push_back({"4 loads of 64 bytes", readLongVectors});
#endif
  return result;
}

// A scratch block shaped like another one; its memory lives as long as the result's owner.
struct Scratch {
  std::shared_ptr<Image> image;
  Block block;
};

Scratch scratchLike(const Block& b) {
  const int width = static_cast<int>(b.rowBytes);
  const int padding = static_cast<int>(b.step - b.rowBytes);
  auto image = std::make_shared<Image>(registry::Type::k8u, Layout::C1,
                                       Size{width, static_cast<int>(b.rows), padding});
  image->fillPattern(3);
  return {image, {image->data(), b.rowBytes, static_cast<std::size_t>(image->step()), b.rows}};
}

std::vector<LimitVariant> moves(Block to, Block from) {
  std::shared_ptr<Image> scratch;
  if (to.rowBytes != from.rowBytes || to.rows != from.rows) {
    const bool readsMore = from.bytes() > to.bytes();
    Scratch s = scratchLike(readsMore ? from : to);
    (readsMore ? to : from) = s.block;
    scratch = s.image;
  }
  std::vector<LimitVariant> result;
  for (const auto& [name, move] : movers(to.data == from.data)) {
    // Naming the function apart: structured bindings cannot be captured.
    const Mover mover = move;
    result.push_back({name, [to, from, mover, scratch] {
                        for (std::size_t y = 0; y < to.rows; ++y) {
                          mover(to.data + y * to.step, from.data + y * from.step, to.rowBytes);
                        }
                      }});
  }
  return result;
}

std::vector<LimitVariant> joins(Block to, Block a, Block b) {
  std::vector<LimitVariant> result;
  for (const auto& [name, join] : joiners()) {
    const Joiner joiner = join;
    result.push_back({name, [to, a, b, joiner] {
                        for (std::size_t y = 0; y < to.rows; ++y) {
                          joiner(to.data + y * to.step, a.data + y * a.step, b.data + y * b.step,
                                 to.rowBytes);
                        }
                      }});
  }
  return result;
}

// Row by row, though nothing may separate them.
Block rowsOf(const Image& image) {
  const std::size_t height = static_cast<std::size_t>(image.height());
  return {image.data(), image.block().bytes() / height, static_cast<std::size_t>(image.step()),
          height};
}

std::vector<LimitVariant> folds(const Image& dst, const Image& first, const Image& last) {
  const bool whole = dst.block().rows == 1 && first.block().rows == 1;
  const Block to = whole ? dst.block() : rowsOf(dst);
  const Block a = whole ? first.block() : rowsOf(first), b = whole ? last.block() : rowsOf(last);
  std::vector<LimitVariant> result;
  for (const auto& [name, fold] : folders(a.bytes() / to.bytes())) {
    const Folder folder = fold;
    result.push_back({name, [to, a, b, folder] {
                        for (std::size_t y = 0; y < to.rows; ++y) {
                          folder(to.data + y * to.step, a.data + y * a.step, b.data + y * b.step,
                                 to.rowBytes);
                        }
                      }});
  }
  return result;
}

std::vector<LimitVariant> fills(Block to) {
  std::vector<LimitVariant> result;
  for (const auto& [name, fill] : fillers()) {
    const Filler filler = fill;
    result.push_back({name, [to, filler] {
                        for (std::size_t y = 0; y < to.rows; ++y) {
                          filler(to.data + y * to.step, to.rowBytes);
                        }
                      }});
  }
  return result;
}

// All sources, one after the other.
std::vector<LimitVariant> reads(const std::vector<Block>& blocks) {
  std::vector<LimitVariant> result;
  for (const auto& [name, read] : readers()) {
    const Reader reader = read;
    result.push_back({name, [blocks, reader] {
                        std::uint64_t sum = 0;
                        for (const Block& from : blocks) {
                          for (std::size_t y = 0; y < from.rows; ++y) {
                            sum += reader(from.data + y * from.step, from.rowBytes);
                          }
                        }
                        asm volatile("" ::"r"(sum) : "memory");
                      }});
  }
  return result;
}

std::vector<Block> sourcesOf(const Frame& frame) {
  std::vector<Block> blocks;
  for (std::size_t i = 0; i < frame.sourceCount(); ++i) blocks.push_back(frame.source(i).block());
  return blocks;
}

}  // namespace

std::vector<LimitVariant> limitVariants(Limit limit, const Frame& frame) {
  const Block to = frame.hasDestination() ? frame.destination().block() : Block{};
  switch (limit) {
    case Limit::kFill:
      return fills(to);
    case Limit::kRead:
      return reads(sourcesOf(frame));
    case Limit::kFold:
      return folds(frame.destination(), frame.source(), frame.source(frame.sourceCount() - 1));
    default:
      if (frame.sourceCount() == 2)
        return joins(to, frame.source(0).block(), frame.source(1).block());
      if (frame.hasSource() && frame.inPlace()) return joins(to, frame.source().block(), to);
      return moves(to, frame.hasSource() ? frame.source().block() : to);
  }
}

}  // namespace keli::bench
