// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "division/div.h"
#include "division/div_constant.h"

using namespace keli;

KelStatus keliDiv_8u_C1RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return division::divide<Kel8u, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_8u_C3RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return division::divide<Kel8u, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_8u_C1IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return division::divide<Kel8u, Layout::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_8u_C3IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return division::divide<Kel8u, Layout::C3>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_16s_C1RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return division::divide<Kel16s, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_16s_C3RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return division::divide<Kel16s, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_16s_C1IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return division::divide<Kel16s, Layout::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_16s_C3IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return division::divide<Kel16s, Layout::C3>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return division::divide<Kel32f, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliDiv_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return division::divide<Kel32f, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliDiv_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return division::divide<Kel32f, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliDiv_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return division::divide<Kel32f, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliDiv_32f_C1IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return division::divide<Kel32f, Layout::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDiv_32f_C3IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return division::divide<Kel32f, Layout::C3>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDiv_32f_C4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return division::divide<Kel32f, Layout::C4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDiv_32f_AC4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return division::divide<Kel32f, Layout::AC4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDivC_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (isZero(value)) return kelStatusDivisorZero;
  return division::divideByConstant<Kel8u, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_8u_C3RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return division::divideByConstant<Kel8u, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_8u_C1IRSfs(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (isZero(value)) return kelStatusDivisorZero;
  return division::divideByConstant<Kel8u, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_8u_C3IRSfs(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return division::divideByConstant<Kel8u, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (isZero(value)) return kelStatusDivisorZero;
  return division::divideByConstant<Kel16s, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_16s_C3RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return division::divideByConstant<Kel16s, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_16s_C1IRSfs(Kel16s value, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (isZero(value)) return kelStatusDivisorZero;
  return division::divideByConstant<Kel16s, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_16s_C3IRSfs(const Kel16s value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return division::divideByConstant<Kel16s, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (isZero(value)) return kelStatusDivisorZero;
  return division::divideByConstant<Kel32f, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliDivC_32f_C3R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return division::divideByConstant<Kel32f, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliDivC_32f_C1IR(Kel32f value, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (isZero(value)) return kelStatusDivisorZero;
  return division::divideByConstant<Kel32f, Layout::C1>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDivC_32f_C3IR(const Kel32f value[3], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return division::divideByConstant<Kel32f, Layout::C3>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
