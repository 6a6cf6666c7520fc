// keli_drivers_bench: the row drivers on rows of a few samples and of many, in nanoseconds a row.
// The operations are those of the drivers' tests.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <functional>
#include <vector>

#include "drivers/driver_rows.h"

namespace keli::bench {
namespace {

using test::driverRows;

// A row of n samples or pixels in buffers that are large enough for every driver.
struct Buffers {
  std::vector<std::uint8_t> bytes[3];
  explicit Buffers(std::size_t n) {
    for (auto& b : bytes) b.assign(16 * n + 64, 7);
  }
  const std::uint8_t* source(int i) const { return bytes[i].data(); }
  std::uint8_t* destination() { return bytes[2].data(); }
};

struct Case {
  const char* name;
  std::function<void(Buffers&, std::size_t n)> run;
};

Band<1> one(Buffers& b, std::size_t n) {
  return makeBand(b.source(0), 1, b.destination(), 1, n, 1);
}

Band<2> two(Buffers& b, std::size_t n) {
  return makeBand(b.source(0), 1, b.source(1), 1, b.destination(), 1, n, 1);
}

PlanesBand planes(Buffers& b, std::size_t n) {
  PlanesBand band = {};
  for (std::size_t k = 0; k < 4; ++k) {
    band.src[k] = b.source(0) + k * n;
    band.dst[k] = b.destination() + k * n;
  }
  band.n = n;
  band.rows = 1;
  return band;
}

const std::uint8_t kTable[256] = {};
const float kFloats[68] = {};

const Case kCases[] = {
    {"map 8u", [](Buffers& b, std::size_t n) { driverRows().invert8u(one(b, n)); }},
    {"map 8u AC4",
     [](Buffers& b, std::size_t n) { driverRows().invert8uAC4(one(b, (n + 3) / 4 * 4)); }},
    {"map 8u to 16s", [](Buffers& b, std::size_t n) { driverRows().widen8u16s(one(b, n)); }},
    {"map 2 x 8u", [](Buffers& b, std::size_t n) { driverRows().add8u(two(b, n)); }},
    {"map 2 x 32f", [](Buffers& b, std::size_t n) { driverRows().add32f(two(b, n)); }},
    {"constants 8u C3",
     [](Buffers& b, std::size_t n) { driverRows().addC8uC3(one(b, n), kTable); }},
    {"constants 32f C3",
     [](Buffers& b, std::size_t n) { driverRows().addC32fC3(one(b, n), kFloats); }},
    {"pixels 8u C3", [](Buffers& b, std::size_t n) { driverRows().rotateC3(planes(b, n)); }},
    {"pixels 8u C3 to P3",
     [](Buffers& b, std::size_t n) { driverRows().rotateC3P3(planes(b, n)); }},
    {"pixels 8u P3 to AC4",
     [](Buffers& b, std::size_t n) { driverRows().rotateP3AC4(planes(b, n)); }},
};

void measure(benchmark::State& state, const Case& c) {
  const std::size_t n = static_cast<std::size_t>(state.range(0));
  Buffers buffers(n);
  for (auto _ : state) {
    c.run(buffers, n);
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

}  // namespace
}  // namespace keli::bench

int main(int argc, char** argv) {
  using namespace keli::bench;
  for (const Case& c : kCases) {
    benchmark::RegisterBenchmark(c.name, [&c](benchmark::State& state) { measure(state, c); })
        ->Arg(7)
        ->Arg(45)
        ->Arg(64)
        ->Arg(1920);
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  return benchmark::RunSpecifiedBenchmarks() == 0 ? 1 : 0;
}
