// Collects the tables' lines and expands their patterns.
#include "tables.h"

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>

namespace keli::bench {
namespace {

// Filled by the global objects of other files: made on first use.
template <class T>
std::vector<T>& collected() {
  static std::vector<T> lines;
  return lines;
}

}  // namespace

AddFamily::AddFamily(Family family) { collected<Family>().push_back(std::move(family)); }

AddPeers::AddPeers(std::vector<Peer> peers) {
  collected<Peer>().insert(collected<Peer>().end(), peers.begin(), peers.end());
}

AddLibrary::AddLibrary(const Library& library) { collected<Library>().push_back(library); }

const std::vector<Family>& families() { return collected<Family>(); }
const std::vector<Library>& libraries() { return collected<Library>(); }

std::vector<std::string> expand(const std::string& pattern) {
  const std::size_t open = pattern.find('{');
  if (open == std::string::npos) return {pattern};
  const std::size_t close = pattern.find('}', open);
  if (close == std::string::npos) throw std::runtime_error("no closing brace in " + pattern);
  std::vector<std::string> result;
  for (std::size_t first = open + 1; first <= close;) {
    const std::size_t end = std::min(pattern.find(',', first), close);
    const std::string choice = pattern.substr(first, end - first);
    for (std::string& name : expand(pattern.substr(0, open) + choice + pattern.substr(close + 1))) {
      result.push_back(std::move(name));
    }
    first = end + 1;
  }
  return result;
}

std::vector<Entry> entries() {
  std::multimap<std::string, const Peer*> peers;
  for (const Peer& peer : collected<Peer>()) {
    for (const std::string& name : expand(peer.functions)) peers.emplace(name, &peer);
  }
  std::vector<Entry> result;
  std::set<std::string> measured;
  for (const Family& family : families()) {
    for (const Row& row : family.rows) {
      for (const std::string& name : expand(row.functions)) {
        const registry::Function* function = registry::find(name);
        if (function == nullptr) throw std::runtime_error("a row names no function: " + name);
        Entry entry{&family, &row, function, {}};
        const auto range = peers.equal_range(name);
        for (auto i = range.first; i != range.second; ++i) entry.peers.push_back(i->second);
        result.push_back(std::move(entry));
        measured.insert(name);
      }
    }
  }
  for (const auto& [name, peer] : peers) {
    if (measured.count(name) == 0) {
      throw std::runtime_error(std::string(peer->name) + " is a peer of no row: " + name);
    }
  }
  return result;
}

std::vector<std::string> functionsWithoutRow() {
  std::set<std::string> measured;
  for (const Entry& entry : entries()) measured.insert(entry.function->name);
  std::vector<std::string> result;
  for (const registry::Function& f : registry::functions()) {
    const bool onImages = std::any_of(f.arguments.begin(), f.arguments.end(),
                                      [](const auto& a) { return registry::isImage(a.role); });
    if (onImages && measured.count(f.name) == 0) result.push_back(f.name);
  }
  return result;
}

}  // namespace keli::bench
