// Row kernels between images of one bit and of one byte for each pixel: 255 where the bit is set,
// and the bit where the byte is above a threshold. Bytes of bits that lie outside a row are neither
// read nor written, and bits that belong to no pixel keep their values.
#include "convert/bits_rows.h"

#include <algorithm>

#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "convert/bits_rows.cc"
#include <hwy/foreach_target.h>
//
#include <hwy/cache_control.h>

#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

constexpr std::size_t kLongRow = 1024;  // pixels from which on stores are set on cache lines

HWY_INLINE std::uint8_t bitAt(std::size_t place) {
  return static_cast<std::uint8_t>(0x80 >> place % 8);
}

// Of the bits of eight bytes, the byte that each stands in, and its place there.
struct BitPlaces {
  std::uint8_t byteOf[64];
  std::uint8_t bitOf[64];

  static constexpr BitPlaces make() {
    BitPlaces p{};
    for (std::size_t i = 0; i < 64; ++i) {
      p.byteOf[i] = static_cast<std::uint8_t>(i / 8);
      p.bitOf[i] = static_cast<std::uint8_t>(0x80 >> i % 8);
    }
    return p;
  }
};
constexpr BitPlaces kBitPlaces = BitPlaces::make();

// The bits of a row, read in windows of eight bytes, of which the last ends with the row. A shorter
// row is the last window, filled up with zeros.
struct BitSource {
  const std::uint8_t* bits;
  std::size_t lastAt;  // the byte that the last window begins at
  std::uint64_t last = 0;

  HWY_INLINE BitSource(const std::uint8_t* p, std::size_t bytes)
      : bits(p), lastAt(bytes < 8 ? 0 : bytes - 8) {
    if (bytes >= 8) {
      last = load64(lastAt);
    } else {
      std::memcpy(&last, p, bytes);
    }
  }

  // Pixels of a vector from a bit of a window on.
  template <class D>
  static HWY_INLINE hn::Vec<D> pixels(D d, std::uint64_t window, std::size_t bit) {
    const auto eight = hn::BitCast(d, hn::Set(hn::Repartition<std::uint64_t, D>(), window));
    const auto place = hn::LoadU(d, kBitPlaces.bitOf + bit);
    const auto byte = hn::TableLookupBytes(eight, hn::LoadU(d, kBitPlaces.byteOf + bit));
    return hn::VecFromMask(d, hn::TestBit(byte, place));
  }

  // From a bit of the row on.
  template <class D>
  HWY_INLINE hn::Vec<D> at(D d, std::size_t bit) const {
    if (bit / 8 < lastAt) return pixels(d, load64(bit / 8), bit % 8);
    return pixels(d, last, bit - 8 * lastAt);
  }

  HWY_INLINE std::uint64_t load64(std::size_t byte) const {
    std::uint64_t window;
    std::memcpy(&window, bits + byte, sizeof(window));
    return window;
  }
};

// At least a vector of kBytes pixels, of which the last may meet pixels again.
template <std::size_t kBytes>
HWY_INLINE void spread(const BitSource& source, std::size_t first, std::size_t n, bool streams,
                       std::uint8_t* dst) {
  const hn::CappedTag<std::uint8_t, kBytes> d;
  const std::size_t end = n - kBytes;
  const auto put = [&](auto v, std::uint8_t* to) KELI_LAMBDA {
    if (streams) {
      hn::Stream(v, d, to);
    } else {
      hn::StoreU(v, d, to);
    }
  };
  std::size_t x = 0;
  for (std::size_t byte = first / 8; x < end && byte < source.lastAt; x += kBytes) {
    put(source.pixels(d, source.load64(byte), first % 8), dst + x);
    byte += kBytes / 8;
  }
  for (; x < end; x += kBytes) put(source.at(d, first + x), dst + x);
  hn::StoreU(source.at(d, first + end), d, dst + end);
}

HWY_INLINE void spreadFew(const BitSource& source, std::size_t first, std::size_t n,
                          std::uint8_t* dst) {
  if (!kScalarTarget && n >= 16) return spread<16>(source, first, n, false, dst);
  if (!kScalarTarget && n >= 8) return spread<8>(source, first, n, false, dst);
  for (std::size_t x = 0; x < n; ++x)
    dst[x] = (source.bits[(first + x) / 8] & bitAt(first + x)) != 0 ? 255 : 0;
}

void ownBitsToBytes(const Band<1>& b, std::size_t offset) {
  constexpr std::size_t kBytes = std::min<std::size_t>(HWY_MAX_BYTES, 32);
  for (std::size_t y = 0; y < b.rows; ++y) {
    const BitSource source(b.srcRow<std::uint8_t>(0, y), (offset + b.n + 7) / 8);
    std::uint8_t* const dst = b.dstRow<std::uint8_t>(y);
    if constexpr (kScalarTarget) {
      spreadFew(source, offset, b.n, dst);
    } else {
      const bool isLong = b.n >= kLongRow;
      const std::size_t head = b.n < kBytes ? b.n
                               : isLong     ? (0 - reinterpret_cast<std::uintptr_t>(dst)) % kBytes
                                            : 0;
      if (head != 0) spreadFew(source, offset, head, dst);
      if (head == b.n) continue;
      spread<kBytes>(source, offset + head, b.n - head, b.streams && isLong, dst + head);
    }
  }
  if (b.streams) hwy::FlushStream();
}

// At least a vector of kBytes pixels, and whole bytes of them. The first of eight has the lowest
// place in a mask and the highest in a byte: each eight are reversed before they are compared.
template <std::size_t kBytes>
HWY_INLINE void gather(const std::uint8_t* src, std::size_t n, std::uint8_t threshold,
                       std::uint8_t* dst) {
  alignas(16) static constexpr std::uint8_t kReversed[16] = {7,  6,  5,  4,  3,  2,  1, 0,
                                                             15, 14, 13, 12, 11, 10, 9, 8};
  const hn::CappedTag<std::uint8_t, kBytes> d;
  const auto reversed = [&]() KELI_LAMBDA {
    if constexpr (kBytes >= 16) {
      return hn::LoadDup128(d, kReversed);
    } else {
      return hn::LoadU(d, kReversed);
    }
  }();
  const auto most = hn::Set(d, threshold);
  const auto step = [&](std::size_t x) KELI_LAMBDA {
    const auto v = hn::TableLookupBytes(hn::LoadU(d, src + x), reversed);
    hn::StoreMaskBits(d, hn::Gt(v, most), dst + x / 8);
  };
  const std::size_t end = n - kBytes;
  for (std::size_t x = 0; x < end; x += kBytes) step(x);
  step(end);
}

// Some of a byte's bits, the others of which it keeps: n from `first` on, the last n of `bits`.
HWY_INLINE void putBits(unsigned bits, std::size_t first, std::size_t n, std::uint8_t* dst) {
  const std::size_t after = 8 - first - n;
  const unsigned mask = ((1u << n) - 1) << after;
  *dst = static_cast<std::uint8_t>((*dst & ~mask) | (bits << after & mask));
}

// The bits of n pixels, at most eight, the last lowest.
HWY_INLINE unsigned bitsOf(const std::uint8_t* p, std::size_t n, std::uint8_t threshold) {
  if constexpr (!kScalarTarget) {
    if (n == 8) {
      std::uint8_t eight;
      gather<8>(p, 8, threshold, &eight);
      return eight;
    }
  }
  unsigned bits = 0;
  for (std::size_t x = 0; x < n; ++x) bits = 2 * bits + (p[x] > threshold ? 1 : 0);
  return bits;
}

HWY_INLINE void wholeBytes(const std::uint8_t* src, std::size_t n, std::uint8_t threshold,
                           std::uint8_t* dst) {
  if constexpr (!kScalarTarget) {
    constexpr std::size_t kBytes = std::min<std::size_t>(HWY_MAX_BYTES, 64);
    if (n >= kBytes) return gather<kBytes>(src, n, threshold, dst);
    if (kBytes > 32 && n >= 32) return gather<32>(src, n, threshold, dst);
    if (kBytes > 16 && n >= 16) return gather<16>(src, n, threshold, dst);
    if (n >= 8) return gather<8>(src, n, threshold, dst);
  } else {
    for (std::size_t x = 0; x < n; x += 8)
      dst[x / 8] = static_cast<std::uint8_t>(bitsOf(src + x, 8, threshold));
  }
}

void ownBytesToBits(const Band<1>& b, std::size_t offset, Kel8u threshold) {
  for (std::size_t y = 0; y < b.rows; ++y) {
    const std::uint8_t* const src = b.srcRow<std::uint8_t>(0, y);
    std::uint8_t* dst = b.dstRow<std::uint8_t>(y);
    const std::size_t head = std::min((8 - offset) % 8, b.n);
    // At the row's ends eight pixels are compared, if there are so many, and some bits kept.
    const std::size_t few = std::min<std::size_t>(b.n, 8);
    if (head != 0) putBits(bitsOf(src, few, threshold) >> (few - head), offset, head, dst++);
    const std::size_t whole = (b.n - head) / 8 * 8, rest = b.n - head - whole;
    wholeBytes(src + head, whole, threshold, dst);
    if (rest != 0) putBits(bitsOf(src + b.n - few, few, threshold), 0, rest, dst + whole / 8);
  }
}

constexpr convert::BitsRows kBitsRows = {ownBitsToBytes, ownBytesToBits};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::convert {
KELI_SELECT_ROWS(BitsRows, kBitsRows, bitsRows)
}  // namespace keli::convert
#endif
