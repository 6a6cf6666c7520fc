// Row kernels of Exp: e^src; of integers times 2^-scaleFactor, rounded to nearest with ties to
// even, saturated.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "math/exp_rows.cc"
#include <hwy/foreach_target.h>
//
#include "math/tables.h"
#include "core/vector_tables-inl.h"
#include "math/unary-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

// Results of integers: those of sixteen inputs; see ExpTable.
template <class T>
struct ExpOfIntegers : UnaryOp {
  static constexpr std::size_t kVectorBytes = 64;
  math::ExpTable<T> table;
  HWY_INLINE T entry(int v) const {
    const int place = v - table.start;
    return table.results[place < 0 ? 0 : place > 15 ? 15 : place];
  }
};

struct ExpOf8u : ExpOfIntegers<Kel8u> {
  template <class D>
  HWY_INLINE Table16<D> at(D, std::size_t) const {
    return Table16<D>::make(table.results);
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, const Table16<D>& results, V v) const {
    return results(hn::Min(hn::SaturatedSub(v, hn::Set(d, table.start)), hn::Set(d, 15)));
  }
  HWY_INLINE Kel8u scalar(std::size_t, Kel8u v) const { return entry(v); }
};

// The table's low and high bytes are looked up apart.
struct ExpOf16s : ExpOfIntegers<Kel16s> {
  std::uint8_t low[16];
  std::uint8_t high[16];

  template <class D>
  struct Halves {
    using Bytes = hn::Repartition<std::uint8_t, D>;
    Table16<Bytes> low;
    Table16<Bytes> high;
  };

  template <class D>
  HWY_INLINE Halves<D> at(D, std::size_t) const {
    using Half = Table16<typename Halves<D>::Bytes>;
    return {Half::make(low), Half::make(high)};
  }
  template <class D, class V>
  HWY_INLINE V vector(D d, const Halves<D>& halves, V v) const {
    const typename Halves<D>::Bytes d8;
    const V above = hn::SaturatedSub(v, hn::Set(d, table.start));
    const V place = hn::Min(hn::Max(above, hn::Zero(d)), hn::Set(d, 15));
    const auto places = hn::BitCast(d8, hn::Or(place, hn::ShiftLeft<8>(place)));
    return hn::IfVecThenElse(hn::Set(d, 0xFF), hn::BitCast(d, halves.low(places)),
                             hn::BitCast(d, halves.high(places)));
  }
  HWY_INLINE Kel16s scalar(std::size_t, Kel16s v) const { return entry(v); }
};

KelStatus ownExp8u(const Band<1>& b, int sf) {
  ExpOf8u op;
  op.table = math::expTable<Kel8u>(sf);
  return quietly<Kel8u, KeepNone>(b, op);
}

KelStatus ownExp16s(const Band<1>& b, int sf) {
  ExpOf16s op;
  op.table = math::expTable<Kel16s>(sf);
  for (std::size_t i = 0; i < 16; ++i) {
    const std::uint16_t bits = static_cast<std::uint16_t>(op.table.results[i]);
    op.low[i] = static_cast<std::uint8_t>(bits & 0xFF);
    op.high[i] = static_cast<std::uint8_t>(bits >> 8);
  }
  return quietly<Kel16s, KeepNone>(b, op);
}

// e^x = 2^n e^r with n = x / ln 2 rounded and r = x - n ln 2 of at most 0.34658 in size, e^r =
// 1 + r + r^2 Q(r), within 1 ulp. Q is of degree 4, from the exchange algorithm: the error is
// below 2^-27.9 of e^r. The high part of ln 2 has 12 bits, so that its product with n is exact.
struct ExpOf32f : UnaryOp {
  static constexpr std::size_t kVectorBytes = 64;

  template <class V>
  struct Parts {
    V power;     // e^r
    V exponent;  // n in the lowest bits
  };

  template <class D, class V>
  HWY_INLINE V vector(D d, Nothing, V x) const {
    const hn::RebindToSigned<D> di;
    const auto size = hn::BitCast(di, hn::Abs(x));
    const Parts<V> parts = split(d, x);
    // Up to 87 in size the result is normal, and n goes into its exponent.
    const V fast = hn::BitCast(
        d, hn::BitCast(di, parts.power) + hn::ShiftLeft<23>(hn::BitCast(di, parts.exponent)));
    if (HWY_LIKELY(hn::AllFalse(di, size > hn::BitCast(di, hn::Set(d, 87.0f))))) return fast;
    return special(d, x);
  }
  HWY_INLINE Kel32f scalar(std::size_t, Kel32f x) const {
    const hn::CappedTag<float, 1> d;
    return hn::GetLane(vector(d, Nothing(), hn::Set(d, x)));
  }

 private:
  template <class D, class V>
  static HWY_INLINE Parts<V> split(D d, V x) {
    const V toInteger = hn::Set(d, 0x1.8p23f);  // whose last bit is worth 1
    const V exponent = x * hn::Set(d, 0x1.715476p0f) + toInteger, n = exponent - toInteger;
    const V r = (x - n * hn::Set(d, 0x1.62ep-1f)) - n * hn::Set(d, 0x1.0bfbe8p-15f);
    const V a = hn::Set(d, 0x1.fffffcp-2f), b = hn::Set(d, 0x1.555492p-3f),
            c = hn::Set(d, 0x1.5558f2p-5f), e = hn::Set(d, 0x1.1239e2p-7f),
            f = hn::Set(d, 0x1.6a2434p-10f);
    const V q = a + r * (b + r * (c + r * (e + r * f)));
    return {hn::Set(d, 1.0f) + (r + r * r * q), exponent};
  }

  // For all lanes: in two factors 2^n passes through no number that is too large or too small.
  template <class D>
  static HWY_NOINLINE hn::Vec<D> special(D d, hn::Vec<D> x) {
    const hn::RebindToSigned<D> di;
    const auto number = x == x;
    // Beyond these e^x is infinite, or less than half of the least number.
    const auto inRange = hn::Min(hn::Max(x, hn::Set(d, -104.0f)), hn::Set(d, 89.0f));
    const Parts<hn::Vec<D>> parts = split(d, hn::IfThenElseZero(number, inRange));
    const auto n = hn::BitCast(di, parts.exponent) - hn::BitCast(di, hn::Set(d, 0x1.8p23f));
    const auto half = hn::ShiftRight<1>(n);
    const auto power = [&](auto k) KELI_LAMBDA {
      return hn::BitCast(d, hn::ShiftLeft<23>(k + hn::Set(di, 127)));
    };
    return hn::IfThenElse(number, parts.power * power(half) * power(n - half),
                          hn::BitCast(d, hn::Set(di, 0x7FC00000)));
  }
};

KelStatus ownExp32f(const Band<1>& b, int) { return quietly<Kel32f, KeepNone>(b, ExpOf32f()); }

constexpr math::Unary kExp8u = {ownExp8u, nullptr};
constexpr math::Unary kExp16s = {ownExp16s, nullptr};
constexpr math::Unary kExp32f = {ownExp32f, nullptr};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::math {
template <>
KELI_SELECT_ROWS(Unary, kExp8u, unaryRows<Exp, Kel8u>)
template <>
KELI_SELECT_ROWS(Unary, kExp16s, unaryRows<Exp, Kel16s>)
template <>
KELI_SELECT_ROWS(Unary, kExp32f, unaryRows<Exp, Kel32f>)
}  // namespace keli::math
#endif
