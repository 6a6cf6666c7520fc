// Rows of Fourier transforms. The limit is that of moving the image once; a transform reads and
// writes it at least twice.
#include "tables.h"

namespace keli::bench {
namespace {

const std::vector<Size> kPowers = {{64, 64, 0}, {256, 256, 0}, {1024, 1024, 0}, {2048, 2048, 0}};
const std::vector<Size> kOthers = {{64, 64, 0}, {240, 320, 0}, {509, 509, 0}, {1000, 1000, 0}};

const AddFamily kFft(
    {"fft",
     "Fourier transforms",
     {
         {"keliFFT{Fwd,Inv}_CToC_32fc_C1R", Limit::kMove, {}, kPowers},
         {"keliFFTFwd_RToPack_32f_{C1R,C3R,C4R,AC4R}", Limit::kMove, {}, kPowers},
         {"keliFFTInv_PackToR_32f_{C1R,C3R,C4R,AC4R}", Limit::kMove, {}, kPowers},
         {"keliFFTFwd_RToPack_8u32s_{C1RSfs,C3RSfs,C4RSfs,AC4RSfs}", Limit::kMove, {}, kPowers},
         {"keliFFTInv_PackToR_32s8u_{C1RSfs,C3RSfs,C4RSfs,AC4RSfs}", Limit::kMove, {}, kPowers},
         {"keliDFT{Fwd,Inv}_CToC_32fc_C1R", Limit::kMove, {}, kOthers},
         {"keliDFTFwd_RToPack_32f_{C1R,C3R,C4R,AC4R}", Limit::kMove, {}, kOthers},
         {"keliDFTInv_PackToR_32f_{C1R,C3R,C4R,AC4R}", Limit::kMove, {}, kOthers},
         {"keliDFTFwd_RToPack_8u32s_{C1RSfs,C3RSfs,C4RSfs,AC4RSfs}", Limit::kMove, {}, kOthers},
         {"keliDFTInv_PackToR_32s8u_{C1RSfs,C3RSfs,C4RSfs,AC4RSfs}", Limit::kMove, {}, kOthers},
     }});

}  // namespace
}  // namespace keli::bench
