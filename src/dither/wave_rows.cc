// Row kernels of error diffusion; see wave_rows.h for how rows share a vector.
//
// With v the value and the errors that reach it, every operation rounded to single precision:
//   k = trunc(v * factor), q = k * step; if v - q > step / 2 the level is k + 1, else k
//   the error is v - k * step; 0 where v is at full scale or above, or below 2^-100
// That bound in the place of 0 keeps errors that fade out on black from becoming denormal numbers,
// which take the processor a hundred times as long.
#define KELI_ENABLE_AVX512
#include "core/simd_config.h"
#include "core/target.h"
#include "dither/wave_rows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "dither/wave_rows.cc"
#include <hwy/foreach_target.h>
//
#include "core/simd-inl.h"

HWY_BEFORE_NAMESPACE();
namespace keli::HWY_NAMESPACE {

using dither::kTileSteps;

using Lanes = hn::ScalableTag<Kel32f>;
using V = hn::Vec<Lanes>;
constexpr std::size_t kLanes = hn::MaxLanes(Lanes());

// Turns the lanes up by one: the last one comes first.
struct Turn {
  hn::Vec<hn::RebindToSigned<Lanes>> from;

  HWY_INLINE Turn()
      : from(hn::Iota(hn::RebindToSigned<Lanes>(), static_cast<std::int32_t>(kLanes) - 1) &
             hn::Set(hn::RebindToSigned<Lanes>(), static_cast<std::int32_t>(kLanes) - 1)) {}
  HWY_INLINE V operator()(V v) const {
    return hn::TableLookupLanes(v, hn::IndicesFromVec(Lanes(), from));
  }
};

// The rows of the lanes above: what each lane had, one further up. last: where what the last one
// had goes; first: what the first one gets.
HWY_INLINE V rowsAbove(const Turn& turn, V v, Kel32f* last, const Kel32f* first) {
  const Lanes d;
  const V turned = turn(v);
  *last = hn::GetLane(turned);
  return hn::IfThenElse(hn::FirstN(d, 1), hn::Set(d, *first), turned);
}

struct Quantizer {
  V full, least, factor, step, half;

  HWY_INLINE explicit Quantizer(const dither::Levels& levels)
      : full(hn::Set(Lanes(), levels.full)),
        least(hn::Set(Lanes(), 0x1p-100f)),
        factor(hn::Set(Lanes(), levels.factor)),
        step(hn::Set(Lanes(), levels.step)),
        half(hn::Set(Lanes(), levels.step * 0.5f)) {}

  // Stores the numbers of the levels, and gives the errors.
  HWY_INLINE V operator()(V v, Kel32f* numbers) const {
    const Lanes d;
    const V k = hn::Trunc(v * factor);
    const V q = k * step;
    const V rest = v - q;
    const auto up = hn::Gt(rest, half);
    hn::Store(hn::IfThenElse(up, k + hn::Set(d, 1.f), k), d, numbers);
    const V error = hn::IfThenElse(up, v - (q + step), rest);
    return hn::IfThenElseZero(hn::And(hn::Ge(v, least), hn::Lt(v, full)), error);
  }
};

// One row above. The errors of the row above that a lane reads are those that the lane above made
// one, two and three steps ago, from right to left.
struct OneRow {
  static constexpr std::size_t kPeriod = 1;
  V here, right, middle, left;

  HWY_INLINE explicit OneRow(const dither::Weights& w)
      : here(hn::Set(Lanes(), w.here[0])),
        right(hn::Set(Lanes(), w.above[0][3])),
        middle(hn::Set(Lanes(), w.above[0][2])),
        left(hn::Set(Lanes(), w.above[0][1])) {}

  struct Chain {
    V error, above[3];
    HWY_INLINE explicit Chain(const Kel32f* memory) : error(hn::Load(Lanes(), memory)) {
      unrolled<3>([&](auto i)
                      KELI_LAMBDA { above[i] = hn::Load(Lanes(), memory + (i + 1) * kLanes); });
    }
    HWY_INLINE void keep(Kel32f* memory) const {
      hn::Store(error, Lanes(), memory);
      unrolled<3>([&](auto i)
                      KELI_LAMBDA { hn::Store(above[i], Lanes(), memory + (i + 1) * kLanes); });
    }
  };

  template <std::size_t kPhase>
  HWY_INLINE V value(const Chain& c, V v) const {
    const V fromAbove = (left * c.above[2] + middle * c.above[1]) + right * c.above[0];
    return (v + fromAbove) + here * c.error;
  }
  template <std::size_t kPhase>
  HWY_INLINE void put(Chain& c, const Turn& turn, V error, const dither::Tile& t, std::size_t chain,
                      std::size_t i) const {
    c.error = error;
    c.above[2] = c.above[1];
    c.above[1] = c.above[0];
    c.above[0] = rowsAbove(turn, error, t.below[0][chain] + i, t.above[0][chain] + i);
  }
};

// Two rows above: the errors that the lane above made one to five steps ago, and the one above that
// four to eight steps ago.
struct TwoRows {
  static constexpr std::size_t kPeriod = 8;
  V here[2];
  V above[2][3];  // in the middle, one and two pixels beside it

  HWY_INLINE explicit TwoRows(const dither::Weights& w) {
    unrolled<2>([&](auto r) KELI_LAMBDA {
      here[r] = hn::Set(Lanes(), w.here[r]);
      unrolled<3>([&](auto i) KELI_LAMBDA { above[r][i] = hn::Set(Lanes(), w.above[r][2 + i]); });
    });
  }

  // The rows above stay in memory, by the step modulo 8.
  struct Chain {
    Kel32f* ring;
    V error, before;
    HWY_INLINE explicit Chain(Kel32f* memory)
        : ring(memory + 2 * kLanes),
          error(hn::Load(Lanes(), memory)),
          before(hn::Load(Lanes(), memory + kLanes)) {}
    HWY_INLINE void keep(Kel32f* memory) const {
      hn::Store(error, Lanes(), memory);
      hn::Store(before, Lanes(), memory + kLanes);
    }
    // Of the row above (0) or the one above that (1), so many steps before step kPhase.
    template <std::size_t kPhase, std::size_t kRow, std::size_t kBefore>
    HWY_INLINE V past() const {
      return hn::Load(Lanes(), ring + (8 * kRow + (kPhase + 8 - kBefore) % 8) * kLanes);
    }
  };

  // Those of a row from left to right; the last of them was made kLast steps ago.
  template <std::size_t kPhase, std::size_t kRow, std::size_t kLast>
  HWY_INLINE V addRow(const Chain& c, V v) const {
    v = v + above[kRow][2] * c.past<kPhase, kRow, kLast + 4>();
    v = v + above[kRow][1] * c.past<kPhase, kRow, kLast + 3>();
    v = v + above[kRow][0] * c.past<kPhase, kRow, kLast + 2>();
    v = v + above[kRow][1] * c.past<kPhase, kRow, kLast + 1>();
    return v + above[kRow][2] * c.past<kPhase, kRow, kLast>();
  }
  template <std::size_t kPhase>
  HWY_INLINE V value(const Chain& c, V v) const {
    v = addRow<kPhase, 0, 1>(c, addRow<kPhase, 1, 4>(c, v));
    return (v + here[1] * c.before) + here[0] * c.error;
  }
  template <std::size_t kPhase>
  HWY_INLINE void put(Chain& c, const Turn& turn, V error, const dither::Tile& t, std::size_t chain,
                      std::size_t i) const {
    c.before = c.error;
    c.error = error;
    const V one = rowsAbove(turn, error, t.below[0][chain] + i, t.above[0][chain] + i);
    const V two = rowsAbove(turn, one, t.below[1][chain] + i, t.above[1][chain] + i);
    hn::Store(one, Lanes(), c.ring + kPhase * kLanes);
    hn::Store(two, Lanes(), c.ring + (8 + kPhase) * kLanes);
  }
};

template <class Method, std::size_t... kChain>
HWY_INLINE void advance(const dither::Tile& tile, const dither::Levels& levels,
                        const dither::Weights& weights, std::index_sequence<kChain...>) {
  constexpr std::size_t kChains = sizeof...(kChain);
  const Turn turn;
  const Quantizer quantize(levels);
  const Method method(weights);
  typename Method::Chain chains[] = {typename Method::Chain(tile.memory[kChain])...};
  for (std::size_t first = 0; first < kTileSteps; first += Method::kPeriod) {
    unrolled<Method::kPeriod>([&](auto phase) KELI_LAMBDA {
      const std::size_t i = first + phase;
      unrolled<kChains>([&](auto c) KELI_LAMBDA {
        Kel32f* const values = tile.values[c] + i * kLanes;
        const V v = method.template value<phase>(chains[c], hn::Load(Lanes(), values));
        method.template put<phase>(chains[c], turn, quantize(v, values), tile, c, i);
      });
    });
  }
  unrolled<kChains>([&](auto c) KELI_LAMBDA { chains[c].keep(tile.memory[c]); });
}

template <class Method, std::size_t kChains>
void ownAdvance(const dither::Tile& tile, const dither::Levels& levels,
                const dither::Weights& weights) {
  advance<Method>(tile, levels, weights, std::make_index_sequence<kChains>());
}

// Four rows of four values each, exchanged.
template <class D>
HWY_INLINE void transpose(D d, const Kel32f* from, std::size_t fromStep, Kel32f* to,
                          std::size_t toStep) {
#if HWY_TARGET == HWY_SCALAR
  (void)d, (void)fromStep, (void)toStep;
  *to = *from;
#else
  const hn::RepartitionToWide<D> dw;
  const auto a = hn::LoadU(d, from), b = hn::LoadU(d, from + fromStep),
             c = hn::LoadU(d, from + 2 * fromStep), e = hn::LoadU(d, from + 3 * fromStep);
  const auto ab = hn::BitCast(dw, hn::InterleaveLower(d, a, b));
  const auto abUpper = hn::BitCast(dw, hn::InterleaveUpper(d, a, b));
  const auto ce = hn::BitCast(dw, hn::InterleaveLower(d, c, e));
  const auto ceUpper = hn::BitCast(dw, hn::InterleaveUpper(d, c, e));
  hn::StoreU(hn::BitCast(d, hn::InterleaveLower(dw, ab, ce)), d, to);
  hn::StoreU(hn::BitCast(d, hn::InterleaveUpper(dw, ab, ce)), d, to + toStep);
  hn::StoreU(hn::BitCast(d, hn::InterleaveLower(dw, abUpper, ceUpper)), d, to + 2 * toStep);
  hn::StoreU(hn::BitCast(d, hn::InterleaveUpper(dw, abUpper, ceUpper)), d, to + 3 * toStep);
#endif
}

constexpr std::size_t kBlock = kLanes < 4 ? kLanes : 4;

void ownToSteps(const Kel32f* rows, Kel32f* steps) {
  const hn::CappedTag<Kel32f, kBlock> d;
  for (std::size_t i = 0; i < kTileSteps; i += kBlock) {
    for (std::size_t lane = 0; lane < kLanes; lane += kBlock)
      transpose(d, rows + lane * kTileSteps + i, kTileSteps, steps + i * kLanes + lane, kLanes);
  }
}

void ownToRows(const Kel32f* steps, Kel32f* rows) {
  const hn::CappedTag<Kel32f, kBlock> d;
  for (std::size_t i = 0; i < kTileSteps; i += kBlock) {
    for (std::size_t lane = 0; lane < kLanes; lane += kBlock)
      transpose(d, steps + i * kLanes + lane, kLanes, rows + lane * kTileSteps + i, kTileSteps);
  }
}

constexpr dither::WaveRows kWaveRows = {
    kLanes,
    {{ownAdvance<OneRow, 1>, ownAdvance<OneRow, 2>, ownAdvance<OneRow, 3>, ownAdvance<OneRow, 4>},
     {ownAdvance<TwoRows, 1>, ownAdvance<TwoRows, 2>, ownAdvance<TwoRows, 3>,
      ownAdvance<TwoRows, 4>}},
    ownToSteps,
    ownToRows};

}  // namespace keli::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace keli::dither {
KELI_SELECT_ROWS(WaveRows, kWaveRows, waveRows)
}  // namespace keli::dither
#endif
