// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "logic/bitwise.h"
#include "logic/shift.h"

using namespace keli;

KelStatus keliAnd_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel8u, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAnd_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel8u, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAnd_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel8u, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAnd_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel8u, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAnd_8u_C1IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel8u, Layout::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAnd_8u_C3IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel8u, Layout::C3>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAnd_8u_C4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel8u, Layout::C4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAnd_8u_AC4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel8u, Layout::AC4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAnd_16u_C1R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel16u, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAnd_16u_C3R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel16u, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAnd_16u_C4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel16u, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAnd_16u_AC4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel16u, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAnd_16u_C1IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel16u, Layout::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAnd_16u_C3IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel16u, Layout::C3>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAnd_16u_C4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel16u, Layout::C4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAnd_16u_AC4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel16u, Layout::AC4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAnd_32s_C1R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel32s, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAnd_32s_C3R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel32s, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAnd_32s_C4R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel32s, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAnd_32s_AC4R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel32s, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAnd_32s_C1IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel32s, Layout::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAnd_32s_C3IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel32s, Layout::C3>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAnd_32s_C4IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel32s, Layout::C4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAnd_32s_AC4IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::And, Kel32s, Layout::AC4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOr_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel8u, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliOr_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel8u, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliOr_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel8u, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliOr_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel8u, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliOr_8u_C1IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel8u, Layout::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOr_8u_C3IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel8u, Layout::C3>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOr_8u_C4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel8u, Layout::C4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOr_8u_AC4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel8u, Layout::AC4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOr_16u_C1R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel16u, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliOr_16u_C3R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel16u, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliOr_16u_C4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel16u, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliOr_16u_AC4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel16u, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliOr_16u_C1IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel16u, Layout::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOr_16u_C3IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel16u, Layout::C3>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOr_16u_C4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel16u, Layout::C4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOr_16u_AC4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel16u, Layout::AC4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOr_32s_C1R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel32s, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliOr_32s_C3R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel32s, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliOr_32s_C4R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel32s, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliOr_32s_AC4R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel32s, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliOr_32s_C1IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel32s, Layout::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOr_32s_C3IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel32s, Layout::C3>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOr_32s_C4IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel32s, Layout::C4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOr_32s_AC4IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Or, Kel32s, Layout::AC4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXor_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel8u, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliXor_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel8u, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliXor_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel8u, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliXor_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel8u, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliXor_8u_C1IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel8u, Layout::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXor_8u_C3IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel8u, Layout::C3>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXor_8u_C4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel8u, Layout::C4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXor_8u_AC4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel8u, Layout::AC4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXor_16u_C1R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel16u, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliXor_16u_C3R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel16u, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliXor_16u_C4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel16u, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliXor_16u_AC4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel16u, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliXor_16u_C1IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel16u, Layout::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXor_16u_C3IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel16u, Layout::C3>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXor_16u_C4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel16u, Layout::C4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXor_16u_AC4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel16u, Layout::AC4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXor_32s_C1R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel32s, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliXor_32s_C3R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel32s, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliXor_32s_C4R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel32s, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliXor_32s_AC4R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel32s, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliXor_32s_C1IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel32s, Layout::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXor_32s_C3IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel32s, Layout::C3>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXor_32s_C4IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel32s, Layout::C4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXor_32s_AC4IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwise<logic::Xor, Kel32s, Layout::AC4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAndC_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel8u, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAndC_8u_C3R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel8u, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAndC_8u_C4R(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel8u, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAndC_8u_AC4R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel8u, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAndC_8u_C1IR(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel8u, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAndC_8u_C3IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel8u, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAndC_8u_C4IR(const Kel8u value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel8u, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAndC_8u_AC4IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel8u, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAndC_16u_C1R(const Kel16u* pSrc, int srcStep, Kel16u value, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel16u, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAndC_16u_C3R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel16u, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAndC_16u_C4R(const Kel16u* pSrc, int srcStep, const Kel16u value[4], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel16u, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAndC_16u_AC4R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel16u, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAndC_16u_C1IR(Kel16u value, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel16u, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAndC_16u_C3IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel16u, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAndC_16u_C4IR(const Kel16u value[4], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel16u, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAndC_16u_AC4IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel16u, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAndC_32s_C1R(const Kel32s* pSrc, int srcStep, Kel32s value, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel32s, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAndC_32s_C3R(const Kel32s* pSrc, int srcStep, const Kel32s value[3], Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel32s, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAndC_32s_C4R(const Kel32s* pSrc, int srcStep, const Kel32s value[4], Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel32s, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAndC_32s_AC4R(const Kel32s* pSrc, int srcStep, const Kel32s value[3], Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel32s, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAndC_32s_C1IR(Kel32s value, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel32s, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAndC_32s_C3IR(const Kel32s value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel32s, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAndC_32s_C4IR(const Kel32s value[4], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel32s, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAndC_32s_AC4IR(const Kel32s value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::And, Kel32s, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOrC_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel8u, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliOrC_8u_C3R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel8u, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliOrC_8u_C4R(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel8u, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliOrC_8u_AC4R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel8u, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliOrC_8u_C1IR(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel8u, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOrC_8u_C3IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel8u, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOrC_8u_C4IR(const Kel8u value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel8u, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOrC_8u_AC4IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel8u, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOrC_16u_C1R(const Kel16u* pSrc, int srcStep, Kel16u value, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel16u, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliOrC_16u_C3R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel16u, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliOrC_16u_C4R(const Kel16u* pSrc, int srcStep, const Kel16u value[4], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel16u, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliOrC_16u_AC4R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel16u, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliOrC_16u_C1IR(Kel16u value, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel16u, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOrC_16u_C3IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel16u, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOrC_16u_C4IR(const Kel16u value[4], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel16u, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOrC_16u_AC4IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel16u, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOrC_32s_C1R(const Kel32s* pSrc, int srcStep, Kel32s value, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel32s, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliOrC_32s_C3R(const Kel32s* pSrc, int srcStep, const Kel32s value[3], Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel32s, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliOrC_32s_C4R(const Kel32s* pSrc, int srcStep, const Kel32s value[4], Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel32s, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliOrC_32s_AC4R(const Kel32s* pSrc, int srcStep, const Kel32s value[3], Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel32s, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliOrC_32s_C1IR(Kel32s value, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel32s, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOrC_32s_C3IR(const Kel32s value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel32s, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOrC_32s_C4IR(const Kel32s value[4], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel32s, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliOrC_32s_AC4IR(const Kel32s value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Or, Kel32s, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXorC_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel8u, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliXorC_8u_C3R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel8u, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliXorC_8u_C4R(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel8u, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliXorC_8u_AC4R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel8u, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliXorC_8u_C1IR(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel8u, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXorC_8u_C3IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel8u, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXorC_8u_C4IR(const Kel8u value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel8u, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXorC_8u_AC4IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel8u, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXorC_16u_C1R(const Kel16u* pSrc, int srcStep, Kel16u value, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel16u, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliXorC_16u_C3R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel16u, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliXorC_16u_C4R(const Kel16u* pSrc, int srcStep, const Kel16u value[4], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel16u, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliXorC_16u_AC4R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel16u, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliXorC_16u_C1IR(Kel16u value, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel16u, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXorC_16u_C3IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel16u, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXorC_16u_C4IR(const Kel16u value[4], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel16u, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXorC_16u_AC4IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel16u, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXorC_32s_C1R(const Kel32s* pSrc, int srcStep, Kel32s value, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel32s, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliXorC_32s_C3R(const Kel32s* pSrc, int srcStep, const Kel32s value[3], Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel32s, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliXorC_32s_C4R(const Kel32s* pSrc, int srcStep, const Kel32s value[4], Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel32s, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliXorC_32s_AC4R(const Kel32s* pSrc, int srcStep, const Kel32s value[3], Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel32s, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliXorC_32s_C1IR(Kel32s value, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel32s, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXorC_32s_C3IR(const Kel32s value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel32s, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXorC_32s_C4IR(const Kel32s value[4], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel32s, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliXorC_32s_AC4IR(const Kel32s value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::bitwiseConstant<logic::Xor, Kel32s, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliNot_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::invert<Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliNot_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::invert<Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliNot_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::invert<Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliNot_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::invert<Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliNot_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::invert<Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliNot_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::invert<Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliNot_8u_C4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::invert<Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliNot_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::invert<Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliLShiftC_8u_C1R(const Kel8u* pSrc, int srcStep, uint32_t value, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel8u, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliLShiftC_8u_C3R(const Kel8u* pSrc, int srcStep, const uint32_t value[3], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel8u, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliLShiftC_8u_C4R(const Kel8u* pSrc, int srcStep, const uint32_t value[4], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel8u, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliLShiftC_8u_AC4R(const Kel8u* pSrc, int srcStep, const uint32_t value[3], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel8u, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliLShiftC_8u_C1IR(uint32_t value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel8u, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliLShiftC_8u_C3IR(const uint32_t value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel8u, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliLShiftC_8u_C4IR(const uint32_t value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel8u, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliLShiftC_8u_AC4IR(const uint32_t value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel8u, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliLShiftC_16u_C1R(const Kel16u* pSrc, int srcStep, uint32_t value, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel16u, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliLShiftC_16u_C3R(const Kel16u* pSrc, int srcStep, const uint32_t value[3], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel16u, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliLShiftC_16u_C4R(const Kel16u* pSrc, int srcStep, const uint32_t value[4], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel16u, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliLShiftC_16u_AC4R(const Kel16u* pSrc, int srcStep, const uint32_t value[3], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel16u, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliLShiftC_16u_C1IR(uint32_t value, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel16u, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliLShiftC_16u_C3IR(const uint32_t value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel16u, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliLShiftC_16u_C4IR(const uint32_t value[4], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel16u, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliLShiftC_16u_AC4IR(const uint32_t value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel16u, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliLShiftC_32s_C1R(const Kel32s* pSrc, int srcStep, uint32_t value, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel32s, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliLShiftC_32s_C3R(const Kel32s* pSrc, int srcStep, const uint32_t value[3], Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel32s, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliLShiftC_32s_C4R(const Kel32s* pSrc, int srcStep, const uint32_t value[4], Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel32s, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliLShiftC_32s_AC4R(const Kel32s* pSrc, int srcStep, const uint32_t value[3], Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel32s, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliLShiftC_32s_C1IR(uint32_t value, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel32s, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliLShiftC_32s_C3IR(const uint32_t value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel32s, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliLShiftC_32s_C4IR(const uint32_t value[4], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel32s, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliLShiftC_32s_AC4IR(const uint32_t value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftLeft<Kel32s, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_8u_C1R(const Kel8u* pSrc, int srcStep, uint32_t value, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8u, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_8u_C3R(const Kel8u* pSrc, int srcStep, const uint32_t value[3], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8u, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_8u_C4R(const Kel8u* pSrc, int srcStep, const uint32_t value[4], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8u, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_8u_AC4R(const Kel8u* pSrc, int srcStep, const uint32_t value[3], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8u, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_8u_C1IR(uint32_t value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8u, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_8u_C3IR(const uint32_t value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8u, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_8u_C4IR(const uint32_t value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8u, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_8u_AC4IR(const uint32_t value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8u, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_8s_C1R(const Kel8s* pSrc, int srcStep, uint32_t value, Kel8s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8s, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_8s_C3R(const Kel8s* pSrc, int srcStep, const uint32_t value[3], Kel8s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8s, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_8s_C4R(const Kel8s* pSrc, int srcStep, const uint32_t value[4], Kel8s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8s, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_8s_AC4R(const Kel8s* pSrc, int srcStep, const uint32_t value[3], Kel8s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8s, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_8s_C1IR(uint32_t value, Kel8s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8s, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_8s_C3IR(const uint32_t value[3], Kel8s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8s, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_8s_C4IR(const uint32_t value[4], Kel8s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8s, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_8s_AC4IR(const uint32_t value[3], Kel8s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel8s, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_16u_C1R(const Kel16u* pSrc, int srcStep, uint32_t value, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16u, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_16u_C3R(const Kel16u* pSrc, int srcStep, const uint32_t value[3], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16u, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_16u_C4R(const Kel16u* pSrc, int srcStep, const uint32_t value[4], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16u, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_16u_AC4R(const Kel16u* pSrc, int srcStep, const uint32_t value[3], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16u, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_16u_C1IR(uint32_t value, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16u, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_16u_C3IR(const uint32_t value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16u, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_16u_C4IR(const uint32_t value[4], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16u, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_16u_AC4IR(const uint32_t value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16u, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_16s_C1R(const Kel16s* pSrc, int srcStep, uint32_t value, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16s, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_16s_C3R(const Kel16s* pSrc, int srcStep, const uint32_t value[3], Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16s, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_16s_C4R(const Kel16s* pSrc, int srcStep, const uint32_t value[4], Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16s, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_16s_AC4R(const Kel16s* pSrc, int srcStep, const uint32_t value[3], Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16s, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_16s_C1IR(uint32_t value, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16s, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_16s_C3IR(const uint32_t value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16s, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_16s_C4IR(const uint32_t value[4], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16s, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_16s_AC4IR(const uint32_t value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel16s, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_32s_C1R(const Kel32s* pSrc, int srcStep, uint32_t value, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel32s, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_32s_C3R(const Kel32s* pSrc, int srcStep, const uint32_t value[3], Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel32s, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_32s_C4R(const Kel32s* pSrc, int srcStep, const uint32_t value[4], Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel32s, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_32s_AC4R(const Kel32s* pSrc, int srcStep, const uint32_t value[3], Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel32s, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliRShiftC_32s_C1IR(uint32_t value, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel32s, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_32s_C3IR(const uint32_t value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel32s, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_32s_C4IR(const uint32_t value[4], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel32s, Layout::C4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliRShiftC_32s_AC4IR(const uint32_t value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return logic::shiftRight<Kel32s, Layout::AC4>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
