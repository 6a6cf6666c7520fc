// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "mirror/mirror.h"

using namespace keli;

KelStatus keliMirror_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::copyMirrored<Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, flip);
}
KelStatus keliMirror_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::copyMirrored<Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, flip);
}
KelStatus keliMirror_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::copyMirrored<Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, flip);
}
KelStatus keliMirror_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::copyMirrored<Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, flip);
}
KelStatus keliMirror_16u_C1R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::copyMirrored<Kel16u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, flip);
}
KelStatus keliMirror_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::copyMirrored<Kel16u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, flip);
}
KelStatus keliMirror_16u_C4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::copyMirrored<Kel16u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, flip);
}
KelStatus keliMirror_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::copyMirrored<Kel16u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, flip);
}
KelStatus keliMirror_32s_C1R(const Kel32s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::copyMirrored<Kel32s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, flip);
}
KelStatus keliMirror_32s_C3R(const Kel32s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::copyMirrored<Kel32s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, flip);
}
KelStatus keliMirror_32s_C4R(const Kel32s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::copyMirrored<Kel32s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, flip);
}
KelStatus keliMirror_32s_AC4R(const Kel32s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::copyMirrored<Kel32s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, flip);
}
KelStatus keliMirror_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::mirrorInPlace<Kel8u, Layout::C1>(pSrcDst, srcDstStep, roiSize, flip);
}
KelStatus keliMirror_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::mirrorInPlace<Kel8u, Layout::C3>(pSrcDst, srcDstStep, roiSize, flip);
}
KelStatus keliMirror_8u_C4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::mirrorInPlace<Kel8u, Layout::C4>(pSrcDst, srcDstStep, roiSize, flip);
}
KelStatus keliMirror_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::mirrorInPlace<Kel8u, Layout::AC4>(pSrcDst, srcDstStep, roiSize, flip);
}
KelStatus keliMirror_16u_C1IR(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::mirrorInPlace<Kel16u, Layout::C1>(pSrcDst, srcDstStep, roiSize, flip);
}
KelStatus keliMirror_16u_C3IR(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::mirrorInPlace<Kel16u, Layout::C3>(pSrcDst, srcDstStep, roiSize, flip);
}
KelStatus keliMirror_16u_C4IR(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::mirrorInPlace<Kel16u, Layout::C4>(pSrcDst, srcDstStep, roiSize, flip);
}
KelStatus keliMirror_16u_AC4IR(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::mirrorInPlace<Kel16u, Layout::AC4>(pSrcDst, srcDstStep, roiSize, flip);
}
KelStatus keliMirror_32s_C1IR(Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::mirrorInPlace<Kel32s, Layout::C1>(pSrcDst, srcDstStep, roiSize, flip);
}
KelStatus keliMirror_32s_C3IR(Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::mirrorInPlace<Kel32s, Layout::C3>(pSrcDst, srcDstStep, roiSize, flip);
}
KelStatus keliMirror_32s_C4IR(Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::mirrorInPlace<Kel32s, Layout::C4>(pSrcDst, srcDstStep, roiSize, flip);
}
KelStatus keliMirror_32s_AC4IR(Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badAxis(flip)) return kelStatusBadAxis;
  return mirror::mirrorInPlace<Kel32s, Layout::AC4>(pSrcDst, srcDstStep, roiSize, flip);
}
