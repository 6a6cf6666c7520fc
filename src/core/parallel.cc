// The parallel frame over OpenMP.
//
// A process forked after a team has run inherits the runtime's idea of the team but not its
// threads, and some runtimes then wait for them forever. So a child of a process that has had a
// team runs its rows on the calling thread; results are the same.
#include "core/parallel.h"

#include <omp.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>

#include "core/memory.h"
#include "core/rounding_mode.h"

namespace keli::core {
namespace {

// Waking a sleeping team costs some 10 microseconds, in which one thread moves a few hundred
// kilobytes; see docs/decisions.md for the measurement.
constexpr std::size_t kBytesPerThread = std::size_t{512} << 10;

// The process that has had a team; 0 before the first.
std::atomic<pid_t> gTeamProcess{0};

bool mayFork() {
  if (omp_in_parallel() != 0) return false;
  const pid_t self = getpid();
  pid_t owner = 0;
  return gTeamProcess.compare_exchange_strong(owner, self) || owner == self;
}

RowBlock blockOf(Split split, int rows, int thread, int team) {
  if (split == Split::kBands) {
    const int band = rows / team;
    return {thread * band, thread == team - 1 ? band + rows % team : band, nullptr};
  }
  const std::int64_t first = std::int64_t{rows} * thread / team;
  const std::int64_t end = std::int64_t{rows} * (thread + 1) / team;
  return {static_cast<int>(first), static_cast<int>(end - first), nullptr};
}

}  // namespace

int teamSize(int rows, std::size_t bytes) {
  if (bytes < 2 * kBytesPerThread || omp_in_parallel() != 0) return 1;
  const std::size_t most =
      std::min<std::size_t>(static_cast<std::size_t>(rows), bytes / kBytesPerThread);
  return static_cast<int>(
      std::min<std::size_t>(most, static_cast<std::size_t>(omp_get_max_threads())));
}

KelStatus runTeam(Split split, int rows, int team, std::size_t scratchPerThread,
                  const TeamTask& task) {
  if (team > 1 && !mayFork()) team = 1;
  const std::size_t slice = wholeLines(scratchPerThread);
  const Scratch scratch(slice * static_cast<std::size_t>(team));
  unsigned char* const slices = scratch.as<unsigned char>();
  if (slice != 0 && slices == nullptr) return kelStatusNoMemory;

  if (team == 1) {
    const RoundToNearest nearest;
    task.run(task.context, {0, rows, slices});
    return kelStatusOk;
  }
#pragma omp parallel num_threads(team)
  {
    const RoundToNearest nearest;
    // The runtime may give fewer threads than asked for, never more.
    const int thread = omp_get_thread_num();
    RowBlock block = blockOf(split, rows, thread, omp_get_num_threads());
    block.scratch = slices + slice * static_cast<std::size_t>(thread);
    if (block.count > 0) task.run(task.context, block);
  }
  return kelStatusOk;
}

}  // namespace keli::core
