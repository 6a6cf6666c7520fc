// Rows of luma and chroma.
#include "tables.h"

namespace keli::bench {
namespace {

const AddFamily kLuma({"luma",
                       "Luma and chroma",
                       {
                           {"keliRGBToYCC_{8u,16u,16s,32f}_{C3R,AC4R}", Limit::kMove},
                           {"keliYCCToRGB_{8u,16u,16s,32f}_{C3R,AC4R}", Limit::kMove},
                       }});

}  // namespace
}  // namespace keli::bench
