// Rows of Remap: a smooth map and a random one, in each interpolation. The images are smooth for
// results to be comparable with those of libraries that round coordinates.
#include "tables.h"

namespace keli::bench {
namespace {

std::vector<Row> remapRows() {
  std::vector<Row> rows;
  for (const int mode : {kelInterpolationNearest, kelInterpolationLinear, kelInterpolationCubic}) {
    Choices choices;
    choices.interpolation = mode;
    choices.content = Content::kPhotograph;
    for (const Map map : {Map::kRotation, Map::kRandom}) {
      choices.map = map;
      rows.push_back({"keliRemap_8u_C1R", Limit::kMove, choices});
    }
    choices.map = Map::kRotation;
    rows.push_back({"keliRemap_8u_{C3R,C4R,AC4R}", Limit::kMove, choices});
    rows.push_back({"keliRemap_32f_{C1R,C3R,C4R}", Limit::kMove, choices});
  }
  return rows;
}

const AddFamily kRemap({"remap", "Remap", remapRows()});

}  // namespace
}  // namespace keli::bench
