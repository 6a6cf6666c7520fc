// Memory between two inaccessible pages, so that a byte read or written past either end stops the
// test, and a seeded generator whose seed is printed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

namespace keli::test {

class Arena {
 public:
  // At least count bytes. The memory is reserved, not touched: sparse use of gigabytes is cheap.
  explicit Arena(std::size_t count);
  ~Arena();
  Arena(const Arena&) = delete;
  Arena& operator=(const Arena&) = delete;

  std::uint8_t* begin() const { return data_; }
  std::uint8_t* end() const { return data_ + size_; }
  std::size_t size() const { return size_; }

 private:
  std::uint8_t* mapping_;
  std::uint8_t* data_;
  std::size_t size_;
};

// Rows whose first or last byte lies at an inaccessible page, each of them.
class FencedRows {
 public:
  FencedRows(std::size_t rows, std::size_t rowBytes, bool atEnd);
  ~FencedRows();
  FencedRows(const FencedRows&) = delete;
  FencedRows& operator=(const FencedRows&) = delete;

  std::uint8_t* begin() const { return first_; }
  std::size_t step() const { return step_; }

 private:
  std::uint8_t* mapping_;
  std::size_t size_;
  std::size_t step_;
  std::uint8_t* first_;
};

// An arena of at least count bytes, whose memory later ones use again: mapping it is slow.
std::shared_ptr<Arena> borrowArena(std::size_t count);

// Of this run: from the environment variable KELI_TEST_SEED or the clock; printed once.
std::uint64_t runSeed();

// SplitMix64 (Steele, Lea, Flood: Fast Splittable Pseudorandom Number Generators, 2014): tests fill
// megabytes, for which the standard generators are slow.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}
  std::uint64_t operator()() {
    std::uint64_t z = state_ += 0x9E3779B97F4A7C15u;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    return z ^ (z >> 31);
  }

 private:
  std::uint64_t state_;
};

// 0 .. count - 1.
inline std::size_t pick(Random& random, std::size_t count) { return random() % count; }

}  // namespace keli::test
