// Walks the rows of a region with a row kernel, on the calling thread or on a team. All images of
// the region hold the same number of bytes in each of the n units of a row.
#pragma once

#include <type_traits>

#include "core/band.h"
#include "core/parallel.h"

namespace keli {

enum class Team { kCaller, kThreads };

template <int kSources>
Band<kSources> rowsOf(const Band<kSources>& b, const core::RowBlock& block) {
  Band<kSources> part = b;
  for (int i = 0; i < kSources; ++i) part.src[i] += block.first * b.srcStep[i];
  part.dst += block.first * b.dstStep;
  part.rows = static_cast<std::size_t>(block.count);
  return part;
}

// Calls kernel(band, arguments...) and returns what it returns; on a team, kernels return nothing.
template <Team kTeam, int kSources, class Result, class... Parameters, class... Arguments>
Result walk(Band<kSources> b, std::size_t unitBytes,
            Result (*kernel)(const Band<kSources>&, Parameters...), Arguments... arguments) {
  const std::size_t height = b.rows;
  const Band<kSources> rows = b;
  std::size_t units[kSources + 1];
  for (std::size_t& unit : units) unit = unitBytes;
  layOut(b, units);
  if constexpr (kTeam == Team::kThreads) {
    static_assert(std::is_void_v<Result>);
    const std::size_t moved = (kSources + 1) * unitBytes * rows.n * height;
    const int team = core::teamSize(static_cast<int>(height), moved);
    if (team > 1) {
      const bool contiguous = b.rows != height;
      core::runRows(core::Split::kStatic, static_cast<int>(height), team, 0,
                    [&](const core::RowBlock& block) {
                      Band<kSources> part = rowsOf(rows, block);
                      part.streams = b.streams;
                      if (contiguous) {
                        part.n *= part.rows;
                        part.rows = 1;
                      }
                      kernel(part, arguments...);
                    });
      return;
    }
  }
  return kernel(b, arguments...);
}

}  // namespace keli
