// Rows of the minimum and maximum filters and of morphology.
#include "tables.h"

namespace keli::bench {
namespace {

std::vector<Row> morphologyRows() {
  std::vector<Row> rows;
  for (const KeliSize mask : {KeliSize{3, 3}, {5, 5}, {15, 15}, {31, 31}}) {
    Choices choices;
    choices.mask = mask;
    rows.push_back({"keliFilterMax_{8u,16s,32f}_C1R", Limit::kMove, choices});
    if (mask.width == 3 || mask.width == 15)
      rows.push_back({"keliFilterMin_{8u,16s,32f}_{C3R,AC4R,C4R}", Limit::kMove, choices});
  }
  rows.push_back({"keli{Erode3x3,Dilate3x3}_{8u,32f}_{C1R,C3R,AC4R,C4R}", Limit::kMove});
  Choices choices;
  choices.mask = {7, 7};
  rows.push_back({"keliErode_{8u,32f}_{C1R,C3R,AC4R,C4R}", Limit::kMove, choices});
  choices.mask = {31, 31};
  rows.push_back({"keliDilate_{8u,32f}_C1R", Limit::kMove, choices});
  choices.mask = {3, 3};
  choices.element = Element::kAll;
  rows.push_back({"keliDilate_{8u,32f}_C1R", Limit::kMove, choices});
  return rows;
}

const AddFamily kMorphology({"morphology", "Minimum and maximum filters, morphology",
                             morphologyRows()});

}  // namespace
}  // namespace keli::bench
