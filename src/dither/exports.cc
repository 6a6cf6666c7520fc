// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "dither/reduce.h"

using namespace keli;

KelStatus keliReduceBits_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel8u, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel8u, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel8u, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel8u, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16u_C1R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16u, Kel16u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16u, Kel16u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16u_C4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16u, Kel16u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16u, Kel16u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16u8u_C1R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16u, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16u8u_C3R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16u, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16u8u_C4R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16u, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16u8u_AC4R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16u, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16s8u_C1R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16s, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16s8u_C3R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16s, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16s8u_C4R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16s, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16s8u_AC4R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16s, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16s>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16s, Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16s>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16s, Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16s>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16s, Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16s>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel16s, Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_32f8u_C1R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel32f, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_32f8u_C3R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel32f, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_32f8u_C4R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel32f, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_32f8u_AC4R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel8u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel32f, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_32f16u_C1R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel32f, Kel16u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_32f16u_C3R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel32f, Kel16u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_32f16u_C4R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel32f, Kel16u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_32f16u_AC4R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16u>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel32f, Kel16u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_32f16s_C1R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16s>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel32f, Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_32f16s_C3R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16s>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel32f, Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_32f16s_C4R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16s>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel32f, Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
KelStatus keliReduceBits_32f16s_AC4R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badNoise(dither, noise)) return kelStatusBadNoise;
  if (badGrayLevels<Kel16s>(dither, levels)) return kelStatusBadLevelCount;
  return dither::reduceBits<Kel32f, Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, noise, dither, levels);
}
