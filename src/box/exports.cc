// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "box/box.h"

using namespace keli;

KelStatus keliFilterBox_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filter<Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filter<Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filter<Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filter<Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filter<Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filter<Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filter<Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filter<Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filter<Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filter<Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filter<Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filter<Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filterInPlace<Kel8u, Layout::C1>(pSrcDst, srcDstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filterInPlace<Kel8u, Layout::C3>(pSrcDst, srcDstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_8u_C4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filterInPlace<Kel8u, Layout::C4>(pSrcDst, srcDstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filterInPlace<Kel8u, Layout::AC4>(pSrcDst, srcDstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filterInPlace<Kel16s, Layout::C1>(pSrcDst, srcDstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filterInPlace<Kel16s, Layout::C3>(pSrcDst, srcDstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_16s_C4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filterInPlace<Kel16s, Layout::C4>(pSrcDst, srcDstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filterInPlace<Kel16s, Layout::AC4>(pSrcDst, srcDstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filterInPlace<Kel32f, Layout::C1>(pSrcDst, srcDstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filterInPlace<Kel32f, Layout::C3>(pSrcDst, srcDstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filterInPlace<Kel32f, Layout::C4>(pSrcDst, srcDstStep, roiSize, maskSize, anchor);
}
KelStatus keliFilterBox_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badBoxSize(maskSize)) return kelStatusBadMaskSize;
  if (badAnchor(anchor, maskSize)) return kelStatusBadAnchor;
  return box::filterInPlace<Kel32f, Layout::AC4>(pSrcDst, srcDstStep, roiSize, maskSize, anchor);
}
