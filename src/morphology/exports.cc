// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "morphology/filter.h"

using namespace keli;

KelStatus keliFilterMin_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMin, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMin_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMin, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMin_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMin, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMin_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMin, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMin_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMin, Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMin_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMin, Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMin_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMin, Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMin_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMin, Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMin_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMin, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMin_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMin, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMin_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMin, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMin_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMin, Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMax_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMax, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMax_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMax, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMax_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMax, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMax_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMax, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMax_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMax, Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMax_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMax, Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMax_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMax, Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMax_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMax, Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMax_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMax, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMax_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMax, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMax_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMax, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterMax_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return morphology::rectangle<morphology::FilterMax, Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliErode3x3_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 1 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 1 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliErode3x3_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 3 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 3 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliErode3x3_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 4 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliErode3x3_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 4 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliErode3x3_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 1 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel8u, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliErode3x3_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 3 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel8u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliErode3x3_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 4 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel8u, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliErode3x3_8u_C4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 4 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel8u, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliErode3x3_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 1 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 1 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliErode3x3_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 3 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 3 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliErode3x3_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 4 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliErode3x3_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 4 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliErode3x3_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 1 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel32f, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliErode3x3_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 3 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel32f, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliErode3x3_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 4 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel32f, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliErode3x3_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 4 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Erode3x3, Kel32f, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDilate3x3_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 1 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 1 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliDilate3x3_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 3 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 3 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliDilate3x3_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 4 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliDilate3x3_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 4 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliDilate3x3_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 1 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel8u, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDilate3x3_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 3 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel8u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDilate3x3_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 4 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel8u, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDilate3x3_8u_C4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 4 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel8u, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDilate3x3_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 1 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 1 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliDilate3x3_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 3 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 3 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliDilate3x3_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 4 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliDilate3x3_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcStep, roiSize, 2, 4 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliDilate3x3_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 1 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel32f, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDilate3x3_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 3 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel32f, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDilate3x3_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 4 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel32f, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDilate3x3_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (shortStep(srcDstStep, roiSize, 2, 4 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::square<morphology::Dilate3x3, Kel32f, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliErode_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 1 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 1 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Erode, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
KelStatus keliErode_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 3 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 3 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Erode, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
KelStatus keliErode_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 4 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Erode, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
KelStatus keliErode_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 4 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Erode, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
KelStatus keliErode_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 1 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 1 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Erode, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
KelStatus keliErode_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 3 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 3 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Erode, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
KelStatus keliErode_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 4 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Erode, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
KelStatus keliErode_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 4 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Erode, Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
KelStatus keliDilate_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 1 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 1 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Dilate, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
KelStatus keliDilate_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 3 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 3 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Dilate, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
KelStatus keliDilate_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 4 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Dilate, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
KelStatus keliDilate_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 4 * sizeof(Kel8u)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel8u))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Dilate, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
KelStatus keliDilate_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 1 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 1 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Dilate, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
KelStatus keliDilate_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 3 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 3 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Dilate, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
KelStatus keliDilate_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 4 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Dilate, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
KelStatus keliDilate_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst, pMask)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badSize(maskSize)) return kelStatusBadMaskSize;
  if (allZero(pMask, maskSize)) return kelStatusZeroMask;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  if (shortStep(srcStep, roiSize, maskSize.width - 1, 4 * sizeof(Kel32f)) || shortStep(dstStep, roiSize, 0, 4 * sizeof(Kel32f))) return kelStatusStepTooSmall;
  return morphology::element<morphology::Dilate, Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, pMask, maskSize, anchor);
}
