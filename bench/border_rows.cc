// Rows of copies with borders of 8 pixels on each side. Their limit is moving a whole destination.
#include "tables.h"

namespace keli::bench {
namespace {

const AddFamily kBorder({"border",
                         "Borders",
                         {
                             {"keliCopyConstBorder_{8u,16s,32s}_{C1R,C3R,AC4R,C4R}", Limit::kMove},
                             {"keliCopyReplicateBorder_{8u,16s,32s}_{C1R,C3R,AC4R,C4R}",
                              Limit::kMove},
                             {"keliCopyWrapBorder_32s_{C1R,C1IR}", Limit::kMove},
                         }});

}  // namespace
}  // namespace keli::bench
