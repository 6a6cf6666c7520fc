// The tables of what is measured. Each family has a file of rows (what bounds which functions) and
// each library that it is compared with a file of peers for it; both enter their lines by a global
// object, so a new file needs no other change than its name in CMakeLists.txt.
//
// Function names are patterns: "keliCopy_{8u,16s}_{C1R,C3R}" stands for four functions.
#pragma once

#include <string>
#include <vector>

#include "frame.h"
#include "memory_limits.h"

namespace keli::bench {

struct Row {
  const char* functions;
  Limit limit;
  Choices choices = {};
  std::vector<Size> sizes = {};  // the usual ones if empty
  // Calls the function itself where the uniform call of the registry would weigh too much.
  Work (*prepare)(const Frame& frame) = nullptr;
};

// Another library's way of doing the same.
struct Peer {
  const char* functions;
  const char* name;  // library and function
  // Makes ready what a user of that library would keep (headers over the same pixels) and returns
  // the call.
  Work (*prepare)(const Frame& frame);
  // Largest difference of a written sample from the function's result; for reductions, relative to
  // it.
  double tolerance = 0;
  // Samples are places on a circle of this length, if any: its ends are no distance apart.
  double circle = 0;
};

struct Family {
  const char* name;
  const char* title;
  std::vector<Row> rows;
};

struct Library {
  const char* name;
  const char* version;
  void (*setThreads)(int threads);
};

struct AddFamily {
  explicit AddFamily(Family family);
};

struct AddPeers {
  explicit AddPeers(std::vector<Peer> peers);
};

struct AddLibrary {
  explicit AddLibrary(const Library& library);
};

const std::vector<Family>& families();
const std::vector<Library>& libraries();

// All names that a pattern stands for.
std::vector<std::string> expand(const std::string& pattern);

// One function of a row, with its peers.
struct Entry {
  const Family* family;
  const Row* row;
  const registry::Function* function;
  std::vector<const Peer*> peers;
};

// Throws std::runtime_error for a row of an unknown function and for a peer of a function without a
// row.
std::vector<Entry> entries();

// Functions that work on images and that no row measures.
std::vector<std::string> functionsWithoutRow();

}  // namespace keli::bench
