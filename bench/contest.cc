// Interleaved timing and the comparison of results before it.
#include "contest.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>

#include "samples.h"

namespace keli::bench {
namespace {

constexpr double kShortestMeasurement = 20e-6;
// Above this a call moves more than the inner caches hold and no warm-up changes what it finds
// there.
constexpr double kLongCall = 1e-3;
// A variant or peer this much slower than the best of its kind after so many rounds runs no more.
constexpr double kHopeless = 1.5;
constexpr int kRoundsForAll = 5;

double now() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

double secondsOf(const Contestant& c) {
  const double start = now();
  for (int i = 0; i < c.calls; ++i) c.work();
  return (now() - start) / c.calls;
}

void calibrate(Contestant& c) {
  c.work();
  for (;;) {
    const double seconds = secondsOf(c) * c.calls;
    if (seconds >= kShortestMeasurement || c.calls >= 1 << 20) return;
    const double wanted = 1.2 * c.calls * kShortestMeasurement / std::max(seconds, 1e-7);
    c.calls = std::max(c.calls + 1, static_cast<int>(wanted));
  }
}

// The call before the clock starts undoes what the contestant before has done to the caches.
void measure(Contestant& c) {
  if (c.seconds < kLongCall) c.work();
  c.seconds = std::min(c.seconds, secondsOf(c));
}

void dropHopeless(std::vector<Contestant>& contestants) {
  const Contestant* fastest = best(contestants);
  if (fastest == nullptr) return;
  const double most = kHopeless * fastest->seconds;
  contestants.erase(std::remove_if(contestants.begin(), contestants.end(),
                                   [most](const Contestant& c) { return c.seconds > most; }),
                    contestants.end());
}

std::vector<Contestant*> all(Contest& contest) {
  std::vector<Contestant*> result = {&contest.function};
  for (Contestant& c : contest.limits) result.push_back(&c);
  for (Contestant& c : contest.peers) result.push_back(&c);
  return result;
}

// The fourth samples of AC4 are left alone by the functions, not by all peers.
bool takesPart(const Image& image, std::size_t sampleInRow) {
  const std::size_t samples = image.samplesPerPixel();
  return image.layout() != Layout::AC4 || sampleInRow % samples != samples - 1;
}

std::vector<std::uint8_t> contents(const Image& image) {
  const Block b = image.block();
  std::vector<std::uint8_t> result(b.bytes());
  for (std::size_t y = 0; y < b.rows; ++y) {
    std::memcpy(result.data() + y * b.rowBytes, b.data + y * b.step, b.rowBytes);
  }
  return result;
}

double sampleDifference(registry::Type type, const std::uint8_t* a, const std::uint8_t* b) {
  double result = std::abs(loadComponent(type, a, 0) - loadComponent(type, b, 0));
  if (isComplex(type)) {
    result = std::max(result, std::abs(loadComponent(type, a, 1) - loadComponent(type, b, 1)));
  }
  return result;
}

// Position of the first sample that differs by more than the tolerance, or the number of samples.
std::size_t firstDifference(const Image& image, const std::vector<std::uint8_t>& expected,
                            const std::vector<std::uint8_t>& found, const Peer& peer) {
  const std::size_t bytes = registry::bytesOf(image.type());
  const std::size_t samples = expected.size() / bytes;
  for (std::size_t i = 0; i < samples; ++i) {
    const std::uint8_t* a = expected.data() + i * bytes;
    const std::uint8_t* b = found.data() + i * bytes;
    if (std::memcmp(a, b, bytes) == 0 || !takesPart(image, i)) continue;
    double difference = sampleDifference(image.type(), a, b);
    if (peer.circle != 0) difference = std::min(difference, peer.circle - difference);
    // Written so that a NaN on one side counts as a difference.
    if (peer.tolerance == 0 || !(difference <= peer.tolerance)) return i;
  }
  return samples;
}

std::string otherResult(const Peer& peer, const char* what, std::size_t at, double found,
                        double expected) {
  return std::string(peer.name) + " gives another result, first in " + what + " " +
         std::to_string(at) + ": " + std::to_string(found) + " instead of " +
         std::to_string(expected);
}

std::string compareImages(const Frame& frame, const Peer& peer, const Work& work) {
  const Image& image = frame.destination();
  frame.resetDestination();
  frame.call();
  const std::vector<std::uint8_t> expected = contents(image);
  frame.resetDestination();
  work();
  const std::vector<std::uint8_t> found = contents(image);
  const std::size_t bytes = registry::bytesOf(image.type());
  const std::size_t at = firstDifference(image, expected, found, peer);
  if (at == expected.size() / bytes) return "";
  return otherResult(peer, "sample", at, loadComponent(image.type(), found.data() + at * bytes, 0),
                     loadComponent(image.type(), expected.data() + at * bytes, 0));
}

std::string compareResults(const Frame& frame, const Peer& peer, const Work& work) {
  frame.call();
  const std::vector<double> expected = frame.results();
  std::vector<double>& found = frame.answer();
  std::fill(found.begin(), found.end(), std::nan(""));
  work();
  std::size_t compared = 0;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    if (std::isnan(found[i])) continue;
    ++compared;
    if (!(std::abs(found[i] - expected[i]) <= peer.tolerance * std::abs(expected[i])))
      return otherResult(peer, "result", i, found[i], expected[i]);
  }
  return compared != 0 ? "" : std::string(peer.name) + " gives no result";
}

}  // namespace

void run(Contest& contest, const Effort& effort) {
  for (Contestant* c : all(contest)) calibrate(*c);
  const double start = now();
  for (int round = 0; round < effort.rounds || now() - start < effort.seconds; ++round) {
    if (round == kRoundsForAll) {
      dropHopeless(contest.limits);
      dropHopeless(contest.peers);
    }
    std::vector<Contestant*> turns = all(contest);
    std::rotate(turns.begin(), turns.begin() + round % turns.size(), turns.end());
    for (Contestant* c : turns) measure(*c);
  }
}

const Contestant* best(const std::vector<Contestant>& contestants) {
  const auto fastest = std::min_element(
      contestants.begin(), contestants.end(),
      [](const Contestant& a, const Contestant& b) { return a.seconds < b.seconds; });
  return fastest == contestants.end() ? nullptr : &*fastest;
}

std::string compare(const Frame& frame, const Peer& peer, const Work& work) {
  return frame.hasDestination() ? compareImages(frame, peer, work)
                                : compareResults(frame, peer, work);
}

}  // namespace keli::bench
