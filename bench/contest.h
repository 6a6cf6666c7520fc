// Times the ways of doing one thing against each other, in turns, so that what disturbs the machine
// meets all of them alike.
#pragma once

#include <string>
#include <vector>

#include "tables.h"

namespace keli::bench {

struct Contestant {
  std::string name;
  Work work;
  int calls = 1;         // in one measurement
  double seconds = 1e9;  // the best of one call
};

struct Contest {
  Contestant function;
  std::vector<Contestant> limits;
  std::vector<Contestant> peers;
};

struct Effort {
  double seconds;
  int rounds;  // at least
};

// Runs the contest: fills in the times.
void run(Contest& contest, const Effort& effort);

// The fastest, or null if there is none.
const Contestant* best(const std::vector<Contestant>& contestants);

// Empty if the peer writes what the function writes, otherwise what differs. Work calls the peer.
std::string compare(const Frame& frame, const Peer& peer, const Work& work);

}  // namespace keli::bench
