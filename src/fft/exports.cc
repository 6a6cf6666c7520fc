// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "fft/transform.h"

using namespace keli;

KelStatus keliFFTInitAlloc_C_32fc(KeliFFTSpec_C_32fc** ppSpec, int orderX, int orderY, int flag, KelHintAlgorithm hint) {
  return fft::initAlloc(ppSpec, orderX, orderY, flag, hint);
}
KelStatus keliFFTInitAlloc_R_32f(KeliFFTSpec_R_32f** ppSpec, int orderX, int orderY, int flag, KelHintAlgorithm hint) {
  return fft::initAlloc(ppSpec, orderX, orderY, flag, hint);
}
KelStatus keliFFTInitAlloc_R_32s(KeliFFTSpec_R_32s** ppSpec, int orderX, int orderY, int flag, KelHintAlgorithm hint) {
  return fft::initAlloc(ppSpec, orderX, orderY, flag, hint);
}
KelStatus keliFFTGetBufSize_C_32fc(const KeliFFTSpec_C_32fc* pSpec, int* pSize) {
  return fft::getBufSize(pSpec, pSize);
}
KelStatus keliFFTGetBufSize_R_32f(const KeliFFTSpec_R_32f* pSpec, int* pSize) {
  return fft::getBufSize(pSpec, pSize);
}
KelStatus keliFFTGetBufSize_R_32s(const KeliFFTSpec_R_32s* pSpec, int* pSize) {
  return fft::getBufSize(pSpec, pSize);
}
KelStatus keliFFTFree_C_32fc(KeliFFTSpec_C_32fc* pSpec) {
  return fft::free(pSpec);
}
KelStatus keliFFTFree_R_32f(KeliFFTSpec_R_32f* pSpec) {
  return fft::free(pSpec);
}
KelStatus keliFFTFree_R_32s(KeliFFTSpec_R_32s* pSpec) {
  return fft::free(pSpec);
}
KelStatus keliDFTInitAlloc_C_32fc(KeliDFTSpec_C_32fc** ppSpec, KeliSize roiSize, int flag, KelHintAlgorithm hint) {
  return fft::initAlloc(ppSpec, roiSize, flag, hint);
}
KelStatus keliDFTInitAlloc_R_32f(KeliDFTSpec_R_32f** ppSpec, KeliSize roiSize, int flag, KelHintAlgorithm hint) {
  return fft::initAlloc(ppSpec, roiSize, flag, hint);
}
KelStatus keliDFTInitAlloc_R_32s(KeliDFTSpec_R_32s** ppSpec, KeliSize roiSize, int flag, KelHintAlgorithm hint) {
  return fft::initAlloc(ppSpec, roiSize, flag, hint);
}
KelStatus keliDFTGetBufSize_C_32fc(const KeliDFTSpec_C_32fc* pSpec, int* pSize) {
  return fft::getBufSize(pSpec, pSize);
}
KelStatus keliDFTGetBufSize_R_32f(const KeliDFTSpec_R_32f* pSpec, int* pSize) {
  return fft::getBufSize(pSpec, pSize);
}
KelStatus keliDFTGetBufSize_R_32s(const KeliDFTSpec_R_32s* pSpec, int* pSize) {
  return fft::getBufSize(pSpec, pSize);
}
KelStatus keliDFTFree_C_32fc(KeliDFTSpec_C_32fc* pSpec) {
  return fft::free(pSpec);
}
KelStatus keliDFTFree_R_32f(KeliDFTSpec_R_32f* pSpec) {
  return fft::free(pSpec);
}
KelStatus keliDFTFree_R_32s(KeliDFTSpec_R_32s* pSpec) {
  return fft::free(pSpec);
}
KelStatus keliFFTFwd_CToC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc* pDst, int dstStep, const KeliFFTSpec_C_32fc* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C1, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliFFTFwd_RToPack_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C1, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliFFTFwd_RToPack_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C3, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliFFTFwd_RToPack_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C4, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliFFTFwd_RToPack_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::AC4, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliFFTFwd_RToPack_8u32s_C1RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C1, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
KelStatus keliFFTFwd_RToPack_8u32s_C3RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C3, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
KelStatus keliFFTFwd_RToPack_8u32s_C4RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C4, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
KelStatus keliFFTFwd_RToPack_8u32s_AC4RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::AC4, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
KelStatus keliFFTInv_CToC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc* pDst, int dstStep, const KeliFFTSpec_C_32fc* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C1, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliFFTInv_PackToR_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C1, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliFFTInv_PackToR_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C3, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliFFTInv_PackToR_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C4, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliFFTInv_PackToR_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::AC4, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliFFTInv_PackToR_32s8u_C1RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C1, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
KelStatus keliFFTInv_PackToR_32s8u_C3RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C3, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
KelStatus keliFFTInv_PackToR_32s8u_C4RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C4, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
KelStatus keliFFTInv_PackToR_32s8u_AC4RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::AC4, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
KelStatus keliDFTFwd_CToC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc* pDst, int dstStep, const KeliDFTSpec_C_32fc* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C1, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDFTFwd_RToPack_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C1, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDFTFwd_RToPack_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C3, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDFTFwd_RToPack_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C4, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDFTFwd_RToPack_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::AC4, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDFTFwd_RToPack_8u32s_C1RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C1, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
KelStatus keliDFTFwd_RToPack_8u32s_C3RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C3, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
KelStatus keliDFTFwd_RToPack_8u32s_C4RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C4, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
KelStatus keliDFTFwd_RToPack_8u32s_AC4RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::AC4, fft::Direction::kForward>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
KelStatus keliDFTInv_CToC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc* pDst, int dstStep, const KeliDFTSpec_C_32fc* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C1, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDFTInv_PackToR_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C1, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDFTInv_PackToR_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C3, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDFTInv_PackToR_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C4, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDFTInv_PackToR_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::AC4, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, pBuffer);
}
KelStatus keliDFTInv_PackToR_32s8u_C1RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C1, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
KelStatus keliDFTInv_PackToR_32s8u_C3RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C3, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
KelStatus keliDFTInv_PackToR_32s8u_C4RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::C4, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
KelStatus keliDFTInv_PackToR_32s8u_AC4RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer) {
  if (anyNull(pSpec)) return kelStatusNullPointer;
  if (fft::badSpec(pSpec)) return kelStatusBadSpec;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return fft::transform<Layout::AC4, fft::Direction::kInverse>(pSrc, srcStep, pDst, dstStep, pSpec, scaleFactor, pBuffer);
}
