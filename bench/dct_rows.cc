// Rows of cosine transforms: of images, whose limit is that of moving them once, and of one 8 x 8
// block, which stays in the first-level cache. Calls for blocks are direct, as the uniform one
// takes as long as half a transform.
#include "tables.h"

namespace keli::bench {
namespace {

const std::vector<Size> kBlock = {{8, 8, 0}};
const std::vector<Size> kImages = {{64, 64, 0}, {512, 512, 0}, {509, 509, 0}};

template <class S, class D, KelStatus (*kFunction)(const S*, D*)>
Work block(const Frame& f) {
  const auto* const src = reinterpret_cast<const S*>(f.source().data());
  auto* const dst = reinterpret_cast<D*>(f.destination().data());
  return [src, dst] { kFunction(src, dst); };
}

template <class S, class D, KelStatus (*kFunction)(const S*, int, D*)>
Work fromImage(const Frame& f) {
  const auto* const src = reinterpret_cast<const S*>(f.source().data());
  auto* const dst = reinterpret_cast<D*>(f.destination().data());
  return [src, step = f.source().step(), dst] { kFunction(src, step, dst); };
}

template <class S, class D, KelStatus (*kFunction)(const S*, D*, int)>
Work toImage(const Frame& f) {
  const auto* const src = reinterpret_cast<const S*>(f.source().data());
  auto* const dst = reinterpret_cast<D*>(f.destination().data());
  return [src, dst, step = f.destination().step()] { kFunction(src, dst, step); };
}

Work forwardShifted(const Frame& f) {
  auto* const dst = reinterpret_cast<Kel16s*>(f.destination().data());
  return [src = f.source().data(), step = f.source().step(), dst] {
    keliDCT8x8FwdLS_8u16s_C1R(src, step, dst, -128);
  };
}

Work inverseShifted(const Frame& f) {
  const auto* const src = reinterpret_cast<const Kel16s*>(f.source().data());
  return [src, dst = f.destination().data(), step = f.destination().step()] {
    keliDCT8x8InvLSClip_16s8u_C1R(src, dst, step, 128, 0, 255);
  };
}

template <KelStatus (*kFunction)(const Kel16s*, Kel16s*)>
constexpr auto kWords = block<Kel16s, Kel16s, kFunction>;
template <KelStatus (*kFunction)(const Kel32f*, Kel32f*)>
constexpr auto kFloats = block<Kel32f, Kel32f, kFunction>;

const AddFamily kDct(
    {"dct",
     "Cosine transforms",
     {
         {"keliDCT{Fwd,Inv}_32f_{C1R,C3R,C4R,AC4R}", Limit::kMove, {}, kImages},
         {"keliDCT8x8Fwd_16s_C1", Limit::kMove, {}, kBlock, kWords<keliDCT8x8Fwd_16s_C1>},
         {"keliDCT8x8Inv_16s_C1", Limit::kMove, {}, kBlock, kWords<keliDCT8x8Inv_16s_C1>},
         {"keliDCT8x8Inv_4x4_16s_C1", Limit::kMove, {}, kBlock, kWords<keliDCT8x8Inv_4x4_16s_C1>},
         {"keliDCT8x8Inv_2x2_16s_C1", Limit::kMove, {}, kBlock, kWords<keliDCT8x8Inv_2x2_16s_C1>},
         {"keliDCT8x8Fwd_32f_C1", Limit::kMove, {}, kBlock, kFloats<keliDCT8x8Fwd_32f_C1>},
         {"keliDCT8x8Inv_32f_C1", Limit::kMove, {}, kBlock, kFloats<keliDCT8x8Inv_32f_C1>},
         {"keliDCT8x8Fwd_16s_C1R",
          Limit::kFill,
          {},
          kBlock,
          fromImage<Kel16s, Kel16s, keliDCT8x8Fwd_16s_C1R>},
         {"keliDCT8x8Fwd_8u16s_C1R",
          Limit::kFill,
          {},
          kBlock,
          fromImage<Kel8u, Kel16s, keliDCT8x8Fwd_8u16s_C1R>},
         {"keliDCT8x8FwdLS_8u16s_C1R", Limit::kFill, {}, kBlock, forwardShifted},
         {"keliDCT8x8Inv_16s_C1R",
          Limit::kFill,
          {},
          kBlock,
          toImage<Kel16s, Kel16s, keliDCT8x8Inv_16s_C1R>},
         {"keliDCT8x8Inv_16s8u_C1R",
          Limit::kFill,
          {},
          kBlock,
          toImage<Kel16s, Kel8u, keliDCT8x8Inv_16s8u_C1R>},
         {"keliDCT8x8InvLSClip_16s8u_C1R", Limit::kFill, {}, kBlock, inverseShifted},
         {"keliZigzag{Fwd,Inv}8x8_16s_C1", Limit::kMove, {}, kBlock},
     }});

}  // namespace
}  // namespace keli::bench
