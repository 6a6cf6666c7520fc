// keli_bench: times the library's functions against what memory allows and against other libraries.
//
// Every benchmark is one function at one size. Its counters: ns and ns_pixel, the time of a call;
// limit, the fraction of the limit's speed that the function reaches; peer, how many times as fast
// as the best peer it is. The label names that peer and the variant that set the limit.
#include <benchmark/benchmark.h>
#include <omp.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <string>

#include "contest.h"

namespace keli::bench {
namespace {

struct Options {
  Effort effort = {0.3, 15};
  int threads = 1;
  bool padded = false;
};

bool gFailed = false;

std::vector<Size> sizesOf(const Row& row, const Options& options) {
  if (!row.sizes.empty()) return row.sizes;
  std::vector<Size> sizes = {{64, 64, 0}, {640, 480, 0}, {3840, 2160, 0}};
  if (options.padded) sizes.push_back({640, 480, 32});
  return sizes;
}

Contest makeContest(const Entry& entry, const Frame& frame) {
  Contest contest;
  contest.function = {entry.function->name, entry.row->prepare != nullptr
                                                ? entry.row->prepare(frame)
                                                : Work([&frame] { frame.call(); })};
  for (LimitVariant& v : limitVariants(entry.row->limit, frame)) {
    contest.limits.push_back({v.name, std::move(v.work)});
  }
  for (const Peer* peer : entry.peers) contest.peers.push_back({peer->name, peer->prepare(frame)});
  return contest;
}

// Empty if the function succeeds and all peers agree with it.
std::string findFault(const Entry& entry, const Frame& frame, const Contest& contest) {
  const KelStatus status = frame.call();
  if (status < kelStatusOk) return std::string("returns ") + registry::statusName(status);
  for (std::size_t i = 0; i < contest.peers.size(); ++i) {
    const std::string fault = compare(frame, *entry.peers[i], contest.peers[i].work);
    if (!fault.empty()) return fault;
  }
  return "";
}

void report(const Contest& contest, Size size, benchmark::State& state) {
  const double seconds = contest.function.seconds;
  const Contestant* limit = best(contest.limits);
  const Contestant* peer = best(contest.peers);
  state.SetIterationTime(seconds);
  state.counters["ns"] = 1e9 * seconds;
  state.counters["ns_pixel"] = 1e9 * seconds / (1.0 * size.width * size.height);
  state.counters["limit"] = limit->seconds / seconds;
  std::string label = "limit: " + limit->name;
  if (peer != nullptr) {
    state.counters["peer"] = peer->seconds / seconds;
    label = "peer: " + peer->name + "; " + label;
  }
  state.SetLabel(label);
}

void runEntry(benchmark::State& state, const Entry& entry, Size size, const Effort& effort) {
  std::string fault;
  try {
    const Frame frame(*entry.function, size, entry.row->choices);
    Contest contest = makeContest(entry, frame);
    fault = findFault(entry, frame, contest);
    if (fault.empty()) {
      frame.resetDestination();
      for (auto _ : state) {
        run(contest, effort);
        report(contest, size, state);
      }
      return;
    }
  } catch (const std::exception& e) {
    fault = e.what();
  }
  gFailed = true;
  state.SkipWithError(fault.c_str());
}

std::string processorName() {
  std::ifstream info("/proc/cpuinfo");
  for (std::string line; std::getline(info, line);) {
    if (line.rfind("model name", 0) == 0) return line.substr(line.find(": ") + 2);
  }
  return "unknown";
}

void describeRun(const Options& options) {
#ifdef __clang__
  benchmark::AddCustomContext("compiler", "Clang " __clang_version__);
#else
  benchmark::AddCustomContext("compiler", "GCC " __VERSION__);
#endif
  benchmark::AddCustomContext("processor", processorName());
  benchmark::AddCustomContext("rounds", "at least " + std::to_string(options.effort.rounds));
  benchmark::AddCustomContext("threads", std::to_string(options.threads));
  benchmark::AddCustomContext("without_row", std::to_string(functionsWithoutRow().size()));
  for (const Family& f : families()) {
    benchmark::AddCustomContext(std::string("family ") + f.name, f.title);
  }
  for (const Library& l : libraries()) {
    benchmark::AddCustomContext(std::string("library ") + l.name, l.version);
  }
}

void setThreads(int threads) {
  omp_set_num_threads(threads);
  for (const Library& l : libraries()) l.setThreads(threads);
}

// "keliAdd_8u_C1RSfs:3" with a scale factor of 3, "keliHistogramEven_8u_C1R:257:flat" with so many
// levels over a flat image, "keliFilterBox_8u_C1R:5x5", "keliRemap_8u_C1R:linear:random".
std::string labelOf(const Entry& entry) {
  static constexpr const char* kRelations[] = {":less", ":lessEq", ":eq", ":greaterEq", ":greater"};
  static constexpr const char* kAxes[] = {":horizontal", ":vertical", ":both"};
  static constexpr const char* kModes[] = {"", ":nearest", ":linear", "", ":cubic"};
  static constexpr const char* kDithers[] = {":none", ":floydSteinberg", ":jarvis", ":stucki",
                                             ":bayer"};
  std::string label = entry.function->name, random;
  const Choices& choices = entry.row->choices;
  for (const registry::Argument& a : entry.function->arguments) {
    if (a.role == registry::Role::kScaleFactor) label += ":" + std::to_string(choices.scaleFactor);
    if (a.role == registry::Role::kCompareOp) label += kRelations[choices.compareOp];
    if (a.role == registry::Role::kMaskSize)
      label += ":" + std::to_string(choices.mask.width) + "x" + std::to_string(choices.mask.height);
    if (a.role == registry::Role::kElement && choices.element == Element::kAll) label += ":all";
    if (a.role == registry::Role::kAxis) label += kAxes[choices.axis];
    if (a.role == registry::Role::kInterpolation) label += kModes[choices.interpolation];
    if (a.role == registry::Role::kMap && choices.map == Map::kRandom) random = ":random";
    if (a.role == registry::Role::kRoundMode && choices.roundMode != kelRoundNearest)
      label += ":zero";
    if (a.role == registry::Role::kBitOffset && choices.bitOffset != 0)
      label += ":bit" + std::to_string(choices.bitOffset);
    if (a.role == registry::Role::kDither) label += kDithers[choices.dither];
    if (a.role == registry::Role::kNoise && choices.noise != 0)
      label += ":" + std::to_string(choices.noise) + "%";
    if (a.role == registry::Role::kLevelCount) label += ":" + std::to_string(choices.levels);
  }
  if (choices.content == Content::kPhotograph) label += ":photograph";
  if (choices.content == Content::kFlat) label += ":flat";
  return label + random;
}

void registerAll(const std::vector<Entry>& rows, const Options& options) {
  for (const Entry& entry : rows) {
    for (const Size size : sizesOf(*entry.row, options)) {
      const std::string name =
          std::string(entry.family->name) + "/" + labelOf(entry) + "/" + nameOf(size);
      benchmark::RegisterBenchmark(name.c_str(),
                                   [&entry, size, effort = options.effort](benchmark::State& s) {
                                     runEntry(s, entry, size, effort);
                                   })
          ->Iterations(1)
          ->UseManualTime();
    }
  }
}

// Takes the program's own options out of the arguments.
Options takeOptions(int* argc, char** argv) {
  Options options;
  int kept = 1;
  for (int i = 1; i < *argc; ++i) {
    if (std::strcmp(argv[i], "--quick") == 0) {
      options.effort = {0.02, 7};
    } else if (std::strcmp(argv[i], "--padded") == 0) {
      options.padded = true;
    } else if (std::strncmp(argv[i], "--threads=", 10) == 0) {
      options.threads = std::atoi(argv[i] + 10);
    } else {
      argv[kept++] = argv[i];
    }
  }
  *argc = kept;
  if (options.threads < 1) throw std::runtime_error("--threads needs a number of at least 1");
  return options;
}

int runAll(int argc, char** argv) {
  const Options options = takeOptions(&argc, argv);
  const std::vector<Entry> rows = entries();
  setThreads(options.threads);
  registerAll(rows, options);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  describeRun(options);
  const std::size_t matched = benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  if (matched == 0) std::fprintf(stderr, "keli_bench: the filter matches nothing\n");
  if (gFailed) std::fprintf(stderr, "keli_bench: some rows failed\n");
  return matched > 0 && !gFailed ? 0 : 1;
}

}  // namespace
}  // namespace keli::bench

int main(int argc, char** argv) {
  try {
    return keli::bench::runAll(argc, argv);
  } catch (const std::exception& e) {
    std::fprintf(stderr, "keli_bench: %s\n", e.what());
    return 1;
  }
}
