// Rows of conversions and scalings. Those that make smaller samples are bound by reading large ones
// and writing small ones, those that make larger ones by the opposite. AC4 must also bring in the
// lines of which it keeps a quarter, which the limit does not know.
#include "tables.h"

namespace keli::bench {
namespace {

std::vector<Row> convertRows() {
  const char* const kWidening =
      "keliConvert_{8u16u,8u16s,8u32s,8s32s,8u32f,8s32f,16u32f,16s32f}_{C1R,AC4R}";
  std::vector<Row> rows = {
      {kWidening, Limit::kMove},
      {"keliConvert_8u32f_{C3R,C4R}", Limit::kMove},
      {"keliConvert_{16u8u,16s8u,32s8u,32s8s}_{C1R,AC4R}", Limit::kFold},
      {"keliScale_{8u16u,8u16s,8u32s,8u32f}_{C1R,AC4R}", Limit::kMove},
      {"keliScale_{16u8u,16s8u,32s8u,32f8u}_{C1R,AC4R}", Limit::kFold},
      {"keliConvert_32f8u_{C3R,C4R}", Limit::kFold},
  };
  for (const int mode : {kelRoundNearest, kelRoundZero}) {
    Choices choices;
    choices.roundMode = mode;
    rows.push_back({"keliConvert_{32f8u,32f8s,32f16u,32f16s}_C1R", Limit::kFold, choices});
  }
  rows.push_back({"keliConvert_{32f8u,32f8s,32f16u,32f16s}_AC4R", Limit::kFold});
  for (const int offset : {0, 3}) {
    Choices choices;
    choices.bitOffset = offset;
    rows.push_back({"keliConvert_1u8u_C1R", Limit::kMove, choices});
    rows.push_back({"keliConvert_8u1u_C1R", Limit::kRead, choices});
  }
  return rows;
}

const AddFamily kConvert({"convert", "Conversion and scaling", convertRows()});

}  // namespace
}  // namespace keli::bench
