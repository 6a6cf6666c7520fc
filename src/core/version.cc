// The version record.
#include "core/version.h"

namespace keli::core {

const KelLibraryVersion* libraryVersion() {
  static const KelLibraryVersion record = {
      kMajor, kMinor, kMajorBuild, kBuild, {'z', '4', 0, 0}, "keliz4.dll", "v4.0", "Oct 14 2003",
  };
  return &record;
}

}  // namespace keli::core
