// The parallel frame: runs the rows of a region on a team of threads. All of OpenMP is in
// parallel.cc.
//
// Every split covers rows 0 .. rows - 1 once, each thread with one contiguous block of whole rows,
// so no result may depend on it beyond what the function promises. Threads round to nearest while
// they run it, whatever the caller does: the runtime's own would not share the caller's mode.
#pragma once

#include <cstddef>

#include "core/types.h"

namespace keli::core {

enum class Split {
  kStatic,  // contiguous blocks as even as the runtime makes them
  kBands,   // rows / team rows each, the remainder to the last thread
};

struct RowBlock {
  int first;
  int count;
  void* scratch;  // this thread's slice
};

struct TeamTask {
  void (*run)(const void* context, const RowBlock& block);
  const void* context;
};

// Threads that a region of this many rows and bytes (moved, all images together) is worth: 1 below
// the threshold at which a second thread pays, and inside a parallel region.
int teamSize(int rows, std::size_t bytes);

// Runs the task on a team of at most `team` threads; a team of one runs on the calling thread. When
// scratchPerThread is not 0, one block for the team is allocated first and sliced by thread number;
// if that fails, nothing is run and the result is kelStatusNoMemory.
KelStatus runTeam(Split split, int rows, int team, std::size_t scratchPerThread,
                  const TeamTask& task);

// The same with a callable: body(const RowBlock&), called by threads at once.
template <class Body>
KelStatus runRows(Split split, int rows, int team, std::size_t scratchPerThread, const Body& body) {
  return runTeam(split, rows, team, scratchPerThread,
                 {[](const void* context, const RowBlock& block) {
                    (*static_cast<const Body*>(context))(block);
                  },
                  &body});
}

}  // namespace keli::core
