// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "dct/blocks.h"
#include "dct/transform.h"

using namespace keli;

KelStatus keliDCT8x8Fwd_16s_C1(const Kel16s* pSrc, Kel16s* pDst) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  return dct::forward(pSrc, pDst);
}
KelStatus keliDCT8x8Fwd_16s_C1I(Kel16s* pSrcDst) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  return dct::forward(pSrcDst, pSrcDst);
}
KelStatus keliDCT8x8Fwd_32f_C1(const Kel32f* pSrc, Kel32f* pDst) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  return dct::forward(pSrc, pDst);
}
KelStatus keliDCT8x8Fwd_32f_C1I(Kel32f* pSrcDst) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  return dct::forward(pSrcDst, pSrcDst);
}
KelStatus keliDCT8x8Fwd_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return dct::forward(pSrc, srcStep, pDst);
}
KelStatus keliDCT8x8Fwd_8u16s_C1R(const Kel8u* pSrc, int srcStep, Kel16s* pDst) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return dct::forward(pSrc, srcStep, pDst);
}
KelStatus keliDCT8x8FwdLS_8u16s_C1R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, Kel16s levelShift) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return dct::forward(pSrc, srcStep, pDst, levelShift);
}
KelStatus keliDCT8x8Inv_16s_C1(const Kel16s* pSrc, Kel16s* pDst) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  return dct::inverse(pSrc, pDst);
}
KelStatus keliDCT8x8Inv_16s_C1I(Kel16s* pSrcDst) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  return dct::inverse(pSrcDst, pSrcDst);
}
KelStatus keliDCT8x8Inv_32f_C1(const Kel32f* pSrc, Kel32f* pDst) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  return dct::inverse(pSrc, pDst);
}
KelStatus keliDCT8x8Inv_32f_C1I(Kel32f* pSrcDst) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  return dct::inverse(pSrcDst, pSrcDst);
}
KelStatus keliDCT8x8Inv_16s_C1R(const Kel16s* pSrc, Kel16s* pDst, int dstStep) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  return dct::inverse(pSrc, pDst, dstStep);
}
KelStatus keliDCT8x8Inv_16s8u_C1R(const Kel16s* pSrc, Kel8u* pDst, int dstStep) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  return dct::inverse(pSrc, pDst, dstStep);
}
KelStatus keliDCT8x8InvLSClip_16s8u_C1R(const Kel16s* pSrc, Kel8u* pDst, int dstStep, Kel16s levelShift, Kel8u clipDown, Kel8u clipUp) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  return dct::inverse(pSrc, pDst, dstStep, levelShift, clipDown, clipUp);
}
KelStatus keliDCT8x8Inv_4x4_16s_C1(const Kel16s* pSrc, Kel16s* pDst) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  return dct::inverseCorner<4>(pSrc, pDst);
}
KelStatus keliDCT8x8Inv_4x4_16s_C1I(Kel16s* pSrcDst) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  return dct::inverseCorner<4>(pSrcDst, pSrcDst);
}
KelStatus keliDCT8x8Inv_2x2_16s_C1(const Kel16s* pSrc, Kel16s* pDst) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  return dct::inverseCorner<2>(pSrc, pDst);
}
KelStatus keliDCT8x8Inv_2x2_16s_C1I(Kel16s* pSrcDst) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  return dct::inverseCorner<2>(pSrcDst, pSrcDst);
}
KelStatus keliZigzagFwd8x8_16s_C1(const Kel16s* pSrc, Kel16s* pDst) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  return dct::toZigzag(pSrc, pDst);
}
KelStatus keliZigzagInv8x8_16s_C1(const Kel16s* pSrc, Kel16s* pDst) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  return dct::fromZigzag(pSrc, pDst);
}
KelStatus keliDCTFwdInitAlloc_32f(KeliDCTFwdSpec_32f** ppSpec, KeliSize roiSize, KelHintAlgorithm hint) {
  return dct::initAlloc(ppSpec, roiSize, hint);
}
KelStatus keliDCTInvInitAlloc_32f(KeliDCTInvSpec_32f** ppSpec, KeliSize roiSize, KelHintAlgorithm hint) {
  return dct::initAlloc(ppSpec, roiSize, hint);
}
KelStatus keliDCTFwdGetBufSize_32f(const KeliDCTFwdSpec_32f* pSpec, int* pSize) {
  return dct::getBufSize(pSpec, pSize);
}
KelStatus keliDCTInvGetBufSize_32f(const KeliDCTInvSpec_32f* pSpec, int* pSize) {
  return dct::getBufSize(pSpec, pSize);
}
KelStatus keliDCTFwdFree_32f(KeliDCTFwdSpec_32f* pSpec) {
  return dct::free(pSpec);
}
KelStatus keliDCTInvFree_32f(KeliDCTInvSpec_32f* pSpec) {
  return dct::free(pSpec);
}
KelStatus keliDCTFwd_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTFwdSpec_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return dct::transform<Layout::C1>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDCTFwd_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTFwdSpec_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return dct::transform<Layout::C3>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDCTFwd_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTFwdSpec_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return dct::transform<Layout::C4>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDCTFwd_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTFwdSpec_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return dct::transform<Layout::AC4>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDCTInv_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTInvSpec_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return dct::transform<Layout::C1>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDCTInv_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTInvSpec_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return dct::transform<Layout::C3>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDCTInv_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTInvSpec_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return dct::transform<Layout::C4>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDCTInv_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTInvSpec_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return dct::transform<Layout::AC4>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
