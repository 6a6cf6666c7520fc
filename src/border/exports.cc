// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "border/border.h"

using namespace keli;

KelStatus keliCopyConstBorder_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kel8u value) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyConst<Kel8u, Layout::C1>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth, value);
}
KelStatus keliCopyConstBorder_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel8u value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  if (anyNull(value)) return kelStatusNullPointer;
  return border::copyConst<Kel8u, Layout::C3>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth, value);
}
KelStatus keliCopyConstBorder_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel8u value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  if (anyNull(value)) return kelStatusNullPointer;
  return border::copyConst<Kel8u, Layout::AC4>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth, value);
}
KelStatus keliCopyConstBorder_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel8u value[4]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  if (anyNull(value)) return kelStatusNullPointer;
  return border::copyConst<Kel8u, Layout::C4>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth, value);
}
KelStatus keliCopyConstBorder_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kel16s value) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyConst<Kel16s, Layout::C1>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth, value);
}
KelStatus keliCopyConstBorder_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel16s value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  if (anyNull(value)) return kelStatusNullPointer;
  return border::copyConst<Kel16s, Layout::C3>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth, value);
}
KelStatus keliCopyConstBorder_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel16s value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  if (anyNull(value)) return kelStatusNullPointer;
  return border::copyConst<Kel16s, Layout::AC4>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth, value);
}
KelStatus keliCopyConstBorder_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel16s value[4]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  if (anyNull(value)) return kelStatusNullPointer;
  return border::copyConst<Kel16s, Layout::C4>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth, value);
}
KelStatus keliCopyConstBorder_32s_C1R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kel32s value) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyConst<Kel32s, Layout::C1>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth, value);
}
KelStatus keliCopyConstBorder_32s_C3R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel32s value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  if (anyNull(value)) return kelStatusNullPointer;
  return border::copyConst<Kel32s, Layout::C3>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth, value);
}
KelStatus keliCopyConstBorder_32s_AC4R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel32s value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  if (anyNull(value)) return kelStatusNullPointer;
  return border::copyConst<Kel32s, Layout::AC4>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth, value);
}
KelStatus keliCopyConstBorder_32s_C4R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel32s value[4]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  if (anyNull(value)) return kelStatusNullPointer;
  return border::copyConst<Kel32s, Layout::C4>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth, value);
}
KelStatus keliCopyReplicateBorder_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyReplicate<Kel8u, Layout::C1>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth);
}
KelStatus keliCopyReplicateBorder_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyReplicate<Kel8u, Layout::C3>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth);
}
KelStatus keliCopyReplicateBorder_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyReplicate<Kel8u, Layout::AC4>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth);
}
KelStatus keliCopyReplicateBorder_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyReplicate<Kel8u, Layout::C4>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth);
}
KelStatus keliCopyReplicateBorder_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyReplicate<Kel16s, Layout::C1>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth);
}
KelStatus keliCopyReplicateBorder_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyReplicate<Kel16s, Layout::C3>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth);
}
KelStatus keliCopyReplicateBorder_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyReplicate<Kel16s, Layout::AC4>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth);
}
KelStatus keliCopyReplicateBorder_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyReplicate<Kel16s, Layout::C4>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth);
}
KelStatus keliCopyReplicateBorder_32s_C1R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyReplicate<Kel32s, Layout::C1>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth);
}
KelStatus keliCopyReplicateBorder_32s_C3R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyReplicate<Kel32s, Layout::C3>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth);
}
KelStatus keliCopyReplicateBorder_32s_AC4R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyReplicate<Kel32s, Layout::AC4>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth);
}
KelStatus keliCopyReplicateBorder_32s_C4R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyReplicate<Kel32s, Layout::C4>(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth);
}
KelStatus keliCopyWrapBorder_32s_C1R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::copyWrap(pSrc, srcStep, srcRoiSize, pDst, dstStep, dstRoiSize, topBorderHeight, leftBorderWidth);
}
KelStatus keliCopyWrapBorder_32s_C1IR(Kel32s* pSrcDst, int srcDstStep, KeliSize srcRoiSize, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badBorders(srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth)) return kelStatusBadSize;
  return border::wrapMargins(pSrcDst, srcDstStep, srcRoiSize, dstRoiSize, topBorderHeight, leftBorderWidth);
}
