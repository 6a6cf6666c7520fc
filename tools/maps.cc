// From the word of an option to coordinates.
#include "maps.h"

#include <cmath>

#include "options.h"

namespace keli::tool {
namespace {

constexpr double kPi = 3.14159265358979323846;

// To 1/4096 of a pixel: what rounding errors leave of a coordinate on the edge is on the edge.
float settled(double at) { return static_cast<float>(std::nearbyint(at * 4096) / 4096); }

}  // namespace

Maps makeMaps(const std::string& text, KeliSize src, KeliSize dst) {
  std::vector<std::string> parts = split(text, ':');
  bool rotates = parts[0] == "rotate" && parts.size() == 2;
  if (!rotates && !(parts[0] == "wave" && parts.size() == 3)) {
    throw UsageError("--map: '" + text + "' is neither rotate:DEGREES nor wave:AMPLITUDE:LENGTH");
  }
  std::vector<double> n;
  for (std::size_t i = 1; i < parts.size(); ++i)
    n.push_back(parseNumbers("--map", parts[i], registry::Type::k64f, 1)[0].f);
  Maps maps;
  for (int y = 0; y < dst.height; ++y) {
    for (int x = 0; x < dst.width; ++x) {
      double u = x - 0.5 * (dst.width - 1), v = y - 0.5 * (dst.height - 1);
      double angle = rotates ? n[0] * kPi / 180 : 0;
      double along = u * std::cos(angle) - v * std::sin(angle);
      double down = u * std::sin(angle) + v * std::cos(angle);
      if (!rotates) down += n[0] * std::sin(2 * kPi * u / n[1]);
      maps.x.push_back(settled(along + 0.5 * (src.width - 1)));
      maps.y.push_back(settled(down + 0.5 * (src.height - 1)));
    }
  }
  return maps;
}

}  // namespace keli::tool
