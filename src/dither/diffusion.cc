// Error diffusion: which rows the lanes of a wave work on, and when; wave_rows.h says how. Threads
// take turns of rows: each has a stream of chains, and the first rows of one stream follow those of
// the stream before, which it waits for.
//
// Weights: R. W. Floyd and L. Steinberg, "An adaptive algorithm for spatial greyscale" (1976);
// J. F. Jarvis, C. N. Judice and W. H. Ninke, "A survey of techniques for the display of continuous
// tone pictures on bilevel displays" (1976); P. Stucki, "MECCA - a multiple-error correction
// computation algorithm for bi-level image hardcopy reproduction" (1981).
#include <algorithm>
#include <array>
#include <atomic>
#include <cstring>
#include <new>
#include <thread>

#include "core/memory.h"
#include "core/parallel.h"
#include "dither/reduce.h"
#include "dither/wave_rows.h"

namespace keli::dither {
namespace {

constexpr Weights kFloydSteinberg = {{7 / 16.f, 0}, {{0, 1 / 16.f, 5 / 16.f, 3 / 16.f, 0}, {}}};
constexpr Weights kJarvisJudiceNinke = {{7 / 48.f, 5 / 48.f},
                                        {{3 / 48.f, 5 / 48.f, 7 / 48.f, 5 / 48.f, 3 / 48.f},
                                         {1 / 48.f, 3 / 48.f, 5 / 48.f, 3 / 48.f, 1 / 48.f}}};
constexpr Weights kStucki = {{8 / 42.f, 4 / 42.f},
                             {{2 / 42.f, 4 / 42.f, 8 / 42.f, 4 / 42.f, 2 / 42.f},
                              {1 / 42.f, 2 / 42.f, 4 / 42.f, 2 / 42.f, 1 / 42.f}}};

// Steps from the last lane of a chain to the first of the next one beyond the skew, which hide what
// it takes to store an error and load it again.
constexpr std::size_t kChainDelay = 4;

// More threads than that wait for each other on any image that one can have.
constexpr std::size_t kMostStreams = 64;

// How the rows of an image are dealt to lanes. Row r is that of lane r % rows() of all streams, and
// lane j of a stream starts with its first row at step start(j) and with another every period.
struct Plan {
  const Images& images;
  const Method& method;
  const WaveRows& wave;
  const Weights& weights;
  std::size_t rowsAbove;
  std::size_t skew;
  std::size_t chainsOfChannel;
  std::size_t streams;
  std::size_t period;
  std::size_t steps;  // of the longest stream

  Plan(const Images& images, const Method& method);

  std::size_t lanes() const { return wave.lanes * chainsOfChannel; }
  std::size_t chains() const { return images.channels * chainsOfChannel; }
  std::size_t rows() const { return lanes() * streams; }
  // The errors above a row's first pixels go through the vectors in the steps before.
  std::size_t start(std::size_t lane) const {
    return skew * (rowsAbove + lane) + kChainDelay * (lane / wave.lanes);
  }
  // How far a stream is behind the one that works on the rows above.
  std::size_t lag() const { return skew * lanes() + kChainDelay * (chainsOfChannel - 1); }
  // Room for the errors that one row of lanes leaves in memory, behind those of a period before. A
  // stream on its own reads them within a period, and moves them down when the room is full.
  std::size_t window() const { return streams == 1 ? 32 * kTileSteps : steps + lag() + kTileSteps; }
  std::size_t errors() const { return period + window(); }

  std::size_t stepsOf(std::size_t stream) const;
  void chooseShape(std::size_t threads);
};

const Weights& weightsOf(int dither) {
  return dither == kelDitherFloydSteinberg      ? kFloydSteinberg
         : dither == kelDitherJarvisJudiceNinke ? kJarvisJudiceNinke
                                                : kStucki;
}

Plan::Plan(const Images& images_, const Method& method_)
    : images(images_),
      method(method_),
      wave(waveRows()),
      weights(weightsOf(method.dither)),
      rowsAbove(method.dither == kelDitherFloydSteinberg ? 1 : 2),
      skew(rowsAbove + 1),
      chainsOfChannel(1),
      streams(1),
      period(0),
      steps(0) {
  const int rows = static_cast<int>(std::min<std::size_t>(images.height, 1 << 20));
  const std::size_t moved = images.width * images.height * (images.srcPixel + images.dstPixel);
  chooseShape(static_cast<std::size_t>(core::teamSize(rows, moved)));
  for (std::size_t s = 0; s < streams; ++s) steps = std::max(steps, stepsOf(s));
}

// Lanes that have to wait for the row above to come round again would idle: narrow images take
// fewer chains and streams.
void Plan::chooseShape(std::size_t threads) {
  const std::size_t row = images.width + rowsAbove;
  while (2 * chains() <= kMostChains && lanes() < images.height) {
    chainsOfChannel *= 2;
    if (lag() <= row) continue;
    chainsOfChannel /= 2;
    break;
  }
  const std::size_t apart = lag() + 2 * kTileSteps;
  const std::size_t passes = (images.height + lanes() - 1) / lanes();
  streams = std::max<std::size_t>(1, std::min({threads, row / apart, passes, kMostStreams}));
  period = std::max(row, streams == 1 ? lag() + 1 : streams * apart);
}

// Steps until the last row of a stream is done, in whole tiles.
std::size_t Plan::stepsOf(std::size_t stream) const {
  std::size_t end = 0;
  for (std::size_t lane = 0; lane < lanes(); ++lane) {
    const std::size_t first = stream * lanes() + lane;
    if (first >= images.height) break;
    const std::size_t last = (images.height - 1 - first) / rows();
    end = std::max(end, start(lane) + last * period + images.width);
  }
  return (end + kTileSteps - 1) / kTileSteps * kTileSteps;
}

// Where a lane is: a column of a row, or before or after the row's columns.
struct Place {
  std::size_t row;
  std::ptrdiff_t column;
};

// Goes on by a tile, and calls f(place, at, n) for each piece of it: n columns of a row from step
// `at` of the tile on, or idle steps.
template <class F>
void pieces(const Plan& plan, Place& place, const F& f) {
  const std::ptrdiff_t width = static_cast<std::ptrdiff_t>(plan.images.width);
  const std::ptrdiff_t period = static_cast<std::ptrdiff_t>(plan.period);
  for (std::size_t at = 0; at < kTileSteps;) {
    const std::ptrdiff_t end = place.column < 0 ? 0 : place.column < width ? width : period;
    const std::size_t n = std::min(kTileSteps - at, static_cast<std::size_t>(end - place.column));
    f(place, at, n);
    at += n;
    place.column += static_cast<std::ptrdiff_t>(n);
    if (place.column == period) place = {place.row + plan.rows(), 0};
  }
}

bool isIdle(const Plan& plan, const Place& place) {
  return place.row >= plan.images.height || place.column < 0 ||
         place.column >= static_cast<std::ptrdiff_t>(plan.images.width);
}

constexpr std::array<Kel32f, kTileSteps> makeIdleSteps() {
  std::array<Kel32f, kTileSteps> steps{};
  for (std::size_t i = 0; i < kTileSteps; ++i) steps[i] = kIdle;
  return steps;
}
constexpr std::array<Kel32f, kTileSteps> kIdleSteps = makeIdleSteps();

// Asks for what the next tile will need of a row: the rows of all lanes are more than the processor
// follows by itself.
template <int kWrites>
void fetchNext(const std::uint8_t* piece, std::size_t pixel) {
  constexpr std::size_t kLine = 64;
  for (std::size_t i = 0; i < kTileSteps * pixel; i += kLine)
    __builtin_prefetch(piece + kTileSteps * pixel + i, kWrites);
}

// The chains that a thread works on.
class Stream {
 public:
  Stream(const Plan& plan, std::size_t index)
      : plan_(plan), index_(index), steps_(plan.stepsOf(index)) {}

  void place(core::Parts& parts);
  // Tells which stream works on the rows above.
  void follow(const Stream& above) { above_ = &above; }

  bool isDone() const { return done_.load(std::memory_order_relaxed) == steps_; }
  bool isReady() const;
  void advance();

 private:
  static constexpr std::size_t kLanesMost = kMostChains * 16;

  std::size_t perChain() const { return plan_.wave.lanes * kTileSteps; }
  // Where the errors stand that the last lane of a channel's chain leaves at a step.
  Kel32f* errorsAt(std::size_t row, std::size_t channel, std::size_t step) const {
    return errors_[row][channel] + plan_.period + step - base_;
  }
  Tile tile();
  void makeRoom();
  void fetch(const Place& from) const;
  void read();
  void write();

  const Plan& plan_;
  const std::size_t index_;
  const std::size_t steps_;
  const Stream* above_ = this;
  std::size_t base_ = 0;  // step of the first error after those of a period before
  std::atomic<std::size_t> done_{0};
  Kel32f* rows_ = nullptr;    // of each chain and lane, a tile's values in the order of the image
  Kel32f* values_ = nullptr;  // in the order of the steps
  Kel32f* memory_[kMostChains] = {};
  Kel32f* errors_[2][kMostChains] = {};   // by channel
  Kel32f* between_[2][kMostChains] = {};  // those that go to the next chain, from kChainDelay ago
  Place places_[kLanesMost];
};

void Stream::place(core::Parts& parts) {
  const std::size_t chains = plan_.chains();
  rows_ = parts.take<Kel32f>(chains * perChain());
  values_ = parts.take<Kel32f>(chains * perChain());
  for (std::size_t c = 0; c < chains; ++c) {
    memory_[c] = parts.take<Kel32f>(kMemoryVectors * plan_.wave.lanes);
    for (std::size_t r = 0; r < plan_.rowsAbove; ++r)
      between_[r][c] = parts.take<Kel32f>(kChainDelay + kTileSteps);
  }
  for (std::size_t k = 0; k < plan_.images.channels; ++k) {
    for (std::size_t r = 0; r < plan_.rowsAbove; ++r)
      errors_[r][k] = parts.take<Kel32f>(plan_.errors());
  }
  for (std::size_t lane = 0; lane < plan_.lanes(); ++lane) {
    places_[lane] = {index_ * plan_.lanes() + lane,
                     -static_cast<std::ptrdiff_t>(plan_.start(lane))};
  }
}

// Whether the rows above have got far enough for another tile.
bool Stream::isReady() const {
  if (above_ == this) return true;
  const std::size_t before = index_ == 0 ? plan_.period : 0;
  const std::size_t needed = done_.load(std::memory_order_relaxed) + kTileSteps + plan_.lag();
  const std::size_t made = above_->done_.load(std::memory_order_acquire);
  return made == above_->steps_ || made + before >= needed;
}

void Stream::makeRoom() {
  const std::size_t used = done_.load(std::memory_order_relaxed) - base_;
  if (used + kTileSteps <= plan_.window()) return;
  for (std::size_t k = 0; k < plan_.images.channels; ++k) {
    for (std::size_t r = 0; r < plan_.rowsAbove; ++r)
      std::memmove(errors_[r][k], errors_[r][k] + used, plan_.period * sizeof(Kel32f));
  }
  base_ += used;
}

Tile Stream::tile() {
  Tile t = {};
  const std::size_t step = done_.load(std::memory_order_relaxed), of = plan_.chainsOfChannel;
  for (std::size_t c = 0; c < plan_.chains(); ++c) {
    const std::size_t channel = c / of;
    const bool first = c % of == 0, last = c % of == of - 1;
    t.values[c] = values_ + c * perChain();
    t.memory[c] = memory_[c];
    for (std::size_t r = 0; r < plan_.rowsAbove; ++r) {
      t.above[r][c] = first ? above_->errorsAt(r, channel, step + plan_.lag()) -
                                  (index_ == 0 ? plan_.period : 0)
                            : between_[r][c - 1];
      t.below[r][c] = last ? errorsAt(r, channel, step) : between_[r][c] + kChainDelay;
    }
  }
  return t;
}

void Stream::fetch(const Place& from) const {
  const Images& images = plan_.images;
  const std::ptrdiff_t row = static_cast<std::ptrdiff_t>(from.row);
  const std::ptrdiff_t srcPixel = static_cast<std::ptrdiff_t>(images.srcPixel);
  const std::ptrdiff_t dstPixel = static_cast<std::ptrdiff_t>(images.dstPixel);
  fetchNext<0>(images.src + row * images.srcStep + from.column * srcPixel, images.srcPixel);
  fetchNext<1>(images.dst + row * images.dstStep + from.column * dstPixel, images.dstPixel);
}

void Stream::read() {
  for (std::size_t lane = 0; lane < plan_.lanes(); ++lane) {
    Place place = places_[lane];
    pieces(plan_, place, [&](const Place& from, std::size_t at, std::size_t n) {
      Kel32f* planes[4] = {};
      for (std::size_t k = 0; k < plan_.images.channels; ++k) {
        planes[k] = rows_ + (k * plan_.lanes() + lane) * kTileSteps + at;
        if (isIdle(plan_, from)) std::memcpy(planes[k], kIdleSteps.data(), n * sizeof(Kel32f));
      }
      if (isIdle(plan_, from)) return;
      fetch(from);
      readValues(plan_.images, plan_.method, static_cast<std::size_t>(from.column), from.row, n,
                 planes);
    });
  }
}

void Stream::write() {
  const Images& images = plan_.images;
  for (std::size_t lane = 0; lane < plan_.lanes(); ++lane) {
    pieces(plan_, places_[lane], [&](const Place& to, std::size_t at, std::size_t n) {
      if (isIdle(plan_, to)) return;
      Kel32f* planes[4] = {};
      for (std::size_t k = 0; k < images.channels; ++k)
        planes[k] = rows_ + (k * plan_.lanes() + lane) * kTileSteps + at;
      images.write(planes, n, plan_.method.levels,
                   images.dst + static_cast<std::ptrdiff_t>(to.row) * images.dstStep +
                       to.column * static_cast<std::ptrdiff_t>(images.dstPixel));
    });
  }
}

void Stream::advance() {
  const std::size_t chains = plan_.chains();
  makeRoom();
  read();
  for (std::size_t c = 0; c < chains; ++c)
    plan_.wave.toSteps(rows_ + c * perChain(), values_ + c * perChain());
  plan_.wave.advance[plan_.rowsAbove - 1][chains - 1](tile(), plan_.method.levels, plan_.weights);
  for (std::size_t c = 0; c < chains; ++c) {
    plan_.wave.toRows(values_ + c * perChain(), rows_ + c * perChain());
    for (std::size_t r = 0; r < plan_.rowsAbove; ++r)
      std::copy_n(between_[r][c] + kTileSteps, kChainDelay, between_[r][c]);
  }
  write();
  done_.store(done_.load(std::memory_order_relaxed) + kTileSteps, std::memory_order_release);
}

// Runs the streams of one thread by turns. However few threads there are, some stream can go on: a
// period is longer than the distances that all of them keep together.
void run(Stream* const* streams, int count) {
  for (int done = 0; done < count;) {
    done = 0;
    bool waits = true;
    for (int s = 0; s < count; ++s) {
      if (streams[s]->isDone()) {
        ++done;
      } else if (streams[s]->isReady()) {
        streams[s]->advance();
        waits = false;
      }
    }
    if (waits && done < count) std::this_thread::yield();
  }
}

}  // namespace

KelStatus diffuse(const Images& images, const Method& method) {
  const Plan plan(images, method);
  core::Parts counted;
  counted.take<Stream>(1);
  Stream(plan, 0).place(counted);
  const std::size_t count = plan.streams * counted.taken();
  const core::Scratch scratch(count);
  auto* const memory = scratch.as<std::uint8_t>();
  if (memory == nullptr) return kelStatusNoMemory;
  std::memset(memory, 0, count);
  core::Parts parts(memory);
  Stream* streams[kMostStreams];
  for (std::size_t s = 0; s < plan.streams; ++s) {
    streams[s] = new (parts.take<Stream>(1)) Stream(plan, s);
    streams[s]->place(parts);
  }
  for (std::size_t s = 0; s < plan.streams; ++s)
    streams[s]->follow(*streams[s > 0 ? s - 1 : plan.streams - 1]);
  return core::runRows(
      core::Split::kStatic, static_cast<int>(plan.streams), static_cast<int>(plan.streams), 0,
      [&](const core::RowBlock& block) { run(streams + block.first, block.count); });
}

}  // namespace keli::dither
