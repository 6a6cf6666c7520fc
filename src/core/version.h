// The library's identity.
#pragma once

#include "core/types.h"

namespace keli::core {

constexpr int kMajor = 4;
constexpr int kMinor = 0;
constexpr int kMajorBuild = 19;
constexpr int kBuild = 73;

const KelLibraryVersion* libraryVersion();

// Text drawing is reserved: the name is exported and answers with a warning.
inline KelStatus drawText() { return kelStatusWarning; }

}  // namespace keli::core
