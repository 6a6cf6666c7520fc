// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "data/copy.h"
#include "data/set.h"
#include "data/swap_channels.h"

using namespace keli;

KelStatus keliCopy_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copy<Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copy<Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copy<Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copy<Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copy<Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copy<Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copy<Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copy<Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copy<Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copy<Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copy<Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copy<Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_8u_C1MR(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep, maskStep)) return kelStatusBadStep;
  return data::copyMasked<Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliCopy_8u_C3MR(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep, maskStep)) return kelStatusBadStep;
  return data::copyMasked<Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliCopy_8u_C4MR(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep, maskStep)) return kelStatusBadStep;
  return data::copyMasked<Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliCopy_8u_AC4MR(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep, maskStep)) return kelStatusBadStep;
  return data::copyMasked<Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliCopy_16s_C1MR(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep, maskStep)) return kelStatusBadStep;
  return data::copyMasked<Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliCopy_16s_C3MR(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep, maskStep)) return kelStatusBadStep;
  return data::copyMasked<Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliCopy_16s_C4MR(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep, maskStep)) return kelStatusBadStep;
  return data::copyMasked<Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliCopy_16s_AC4MR(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep, maskStep)) return kelStatusBadStep;
  return data::copyMasked<Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliCopy_32f_C1MR(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep, maskStep)) return kelStatusBadStep;
  return data::copyMasked<Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliCopy_32f_C3MR(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep, maskStep)) return kelStatusBadStep;
  return data::copyMasked<Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliCopy_32f_C4MR(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep, maskStep)) return kelStatusBadStep;
  return data::copyMasked<Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliCopy_32f_AC4MR(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep, maskStep)) return kelStatusBadStep;
  return data::copyMasked<Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliCopy_8u_C3C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::extractChannel<Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_8u_C4C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::extractChannel<Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_C3C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::extractChannel<Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_C4C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::extractChannel<Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_C3C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::extractChannel<Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_C4C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::extractChannel<Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_8u_C1C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::insertChannel<Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_8u_C1C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::insertChannel<Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_C1C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::insertChannel<Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_C1C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::insertChannel<Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_C1C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::insertChannel<Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_C1C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::insertChannel<Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_8u_C3CR(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyChannel<Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_8u_C4CR(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyChannel<Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_C3CR(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyChannel<Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_C4CR(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyChannel<Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_C3CR(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyChannel<Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_C4CR(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyChannel<Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_8u_AC4C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel8u, Layout::AC4, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_8u_C3AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel8u, Layout::C3, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_AC4C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel16s, Layout::AC4, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_C3AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel16s, Layout::C3, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_AC4C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel32f, Layout::AC4, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_C3AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel32f, Layout::C3, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_8u_C3P3R(const Kel8u* pSrc, int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel8u, Layout::C3, Layout::P3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_8u_C4P4R(const Kel8u* pSrc, int srcStep, Kel8u* const pDst[4], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<4>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel8u, Layout::C4, Layout::P4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_8u_P3C3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pSrc)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel8u, Layout::P3, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_8u_P4C4R(const Kel8u* const pSrc[4], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<4>(pSrc)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel8u, Layout::P4, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_C3P3R(const Kel16s* pSrc, int srcStep, Kel16s* const pDst[3], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel16s, Layout::C3, Layout::P3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_C4P4R(const Kel16s* pSrc, int srcStep, Kel16s* const pDst[4], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<4>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel16s, Layout::C4, Layout::P4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_P3C3R(const Kel16s* const pSrc[3], int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pSrc)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel16s, Layout::P3, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_16s_P4C4R(const Kel16s* const pSrc[4], int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<4>(pSrc)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel16s, Layout::P4, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_C3P3R(const Kel32f* pSrc, int srcStep, Kel32f* const pDst[3], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel32f, Layout::C3, Layout::P3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_C4P4R(const Kel32f* pSrc, int srcStep, Kel32f* const pDst[4], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<4>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel32f, Layout::C4, Layout::P4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_P3C3R(const Kel32f* const pSrc[3], int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pSrc)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel32f, Layout::P3, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliCopy_32f_P4C4R(const Kel32f* const pSrc[4], int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<4>(pSrc)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return data::copyLayout<Kel32f, Layout::P4, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliSet_8u_C1R(Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  return data::set<Kel8u, Layout::C1>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_8u_C3R(const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::set<Kel8u, Layout::C3>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_8u_C4R(const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::set<Kel8u, Layout::C4>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_8u_AC4R(const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::set<Kel8u, Layout::AC4>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_16s_C1R(Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  return data::set<Kel16s, Layout::C1>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_16s_C3R(const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::set<Kel16s, Layout::C3>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_16s_C4R(const Kel16s value[4], Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::set<Kel16s, Layout::C4>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_16s_AC4R(const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::set<Kel16s, Layout::AC4>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_32f_C1R(Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  return data::set<Kel32f, Layout::C1>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_32f_C3R(const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::set<Kel32f, Layout::C3>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_32f_C4R(const Kel32f value[4], Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::set<Kel32f, Layout::C4>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_32f_AC4R(const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::set<Kel32f, Layout::AC4>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_8u_C1MR(Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep, maskStep)) return kelStatusBadStep;
  return data::setMasked<Kel8u, Layout::C1>(value, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliSet_8u_C3MR(const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep, maskStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::setMasked<Kel8u, Layout::C3>(value, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliSet_8u_C4MR(const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep, maskStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::setMasked<Kel8u, Layout::C4>(value, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliSet_8u_AC4MR(const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep, maskStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::setMasked<Kel8u, Layout::AC4>(value, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliSet_16s_C1MR(Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep, maskStep)) return kelStatusBadStep;
  return data::setMasked<Kel16s, Layout::C1>(value, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliSet_16s_C3MR(const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep, maskStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::setMasked<Kel16s, Layout::C3>(value, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliSet_16s_C4MR(const Kel16s value[4], Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep, maskStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::setMasked<Kel16s, Layout::C4>(value, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliSet_16s_AC4MR(const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep, maskStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::setMasked<Kel16s, Layout::AC4>(value, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliSet_32f_C1MR(Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep, maskStep)) return kelStatusBadStep;
  return data::setMasked<Kel32f, Layout::C1>(value, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliSet_32f_C3MR(const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep, maskStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::setMasked<Kel32f, Layout::C3>(value, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliSet_32f_C4MR(const Kel32f value[4], Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep, maskStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::setMasked<Kel32f, Layout::C4>(value, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliSet_32f_AC4MR(const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep) {
  if (anyNull(pDst, pMask)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep, maskStep)) return kelStatusBadStep;
  if (anyNull(value)) return kelStatusNullPointer;
  return data::setMasked<Kel32f, Layout::AC4>(value, pDst, dstStep, roiSize, pMask, maskStep);
}
KelStatus keliSet_8u_C3CR(Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  return data::setChannel<Kel8u, Layout::C3>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_8u_C4CR(Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  return data::setChannel<Kel8u, Layout::C4>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_16s_C3CR(Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  return data::setChannel<Kel16s, Layout::C3>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_16s_C4CR(Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  return data::setChannel<Kel16s, Layout::C4>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_32f_C3CR(Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  return data::setChannel<Kel32f, Layout::C3>(value, pDst, dstStep, roiSize);
}
KelStatus keliSet_32f_C4CR(Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(dstStep)) return kelStatusBadStep;
  return data::setChannel<Kel32f, Layout::C4>(value, pDst, dstStep, roiSize);
}
KelStatus keliSwapChannels_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]) {
  if (anyNull(pSrc, pDst, dstOrder)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badChannelOrder(dstOrder)) return kelStatusBadChannelOrder;
  return data::swapChannels<Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, dstOrder);
}
KelStatus keliSwapChannels_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const int dstOrder[3]) {
  if (anyNull(pSrcDst, dstOrder)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badChannelOrder(dstOrder)) return kelStatusBadChannelOrder;
  return data::swapChannels<Kel8u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, dstOrder);
}
KelStatus keliSwapChannels_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]) {
  if (anyNull(pSrc, pDst, dstOrder)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badChannelOrder(dstOrder)) return kelStatusBadChannelOrder;
  return data::swapChannels<Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, dstOrder);
}
KelStatus keliSwapChannels_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]) {
  if (anyNull(pSrc, pDst, dstOrder)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badChannelOrder(dstOrder)) return kelStatusBadChannelOrder;
  return data::swapChannels<Kel16u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, dstOrder);
}
KelStatus keliSwapChannels_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]) {
  if (anyNull(pSrc, pDst, dstOrder)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badChannelOrder(dstOrder)) return kelStatusBadChannelOrder;
  return data::swapChannels<Kel16u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, dstOrder);
}
KelStatus keliSwapChannels_32s_C3R(const Kel32s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]) {
  if (anyNull(pSrc, pDst, dstOrder)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badChannelOrder(dstOrder)) return kelStatusBadChannelOrder;
  return data::swapChannels<Kel32s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, dstOrder);
}
KelStatus keliSwapChannels_32s_AC4R(const Kel32s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]) {
  if (anyNull(pSrc, pDst, dstOrder)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badChannelOrder(dstOrder)) return kelStatusBadChannelOrder;
  return data::swapChannels<Kel32s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, dstOrder);
}
KelStatus keliSwapChannels_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]) {
  if (anyNull(pSrc, pDst, dstOrder)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badChannelOrder(dstOrder)) return kelStatusBadChannelOrder;
  return data::swapChannels<Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, dstOrder);
}
KelStatus keliSwapChannels_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]) {
  if (anyNull(pSrc, pDst, dstOrder)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badChannelOrder(dstOrder)) return kelStatusBadChannelOrder;
  return data::swapChannels<Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, dstOrder);
}
