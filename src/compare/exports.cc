// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "compare/compare.h"

using namespace keli;

KelStatus keliCompare_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::twoImages<Kel8u, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompare_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::twoImages<Kel8u, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompare_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::twoImages<Kel8u, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompare_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::twoImages<Kel8u, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompare_16s_C1R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::twoImages<Kel16s, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompare_16s_C3R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::twoImages<Kel16s, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompare_16s_C4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::twoImages<Kel16s, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompare_16s_AC4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::twoImages<Kel16s, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompare_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::twoImages<Kel32f, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompare_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::twoImages<Kel32f, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompare_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::twoImages<Kel32f, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompare_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::twoImages<Kel32f, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompareC_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::imageAndConstant<Kel8u, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompareC_8u_C3R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::imageAndConstant<Kel8u, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompareC_8u_C4R(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::imageAndConstant<Kel8u, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompareC_8u_AC4R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::imageAndConstant<Kel8u, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompareC_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s value, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::imageAndConstant<Kel16s, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompareC_16s_C3R(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::imageAndConstant<Kel16s, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompareC_16s_C4R(const Kel16s* pSrc, int srcStep, const Kel16s value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::imageAndConstant<Kel16s, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompareC_16s_AC4R(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::imageAndConstant<Kel16s, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompareC_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f value, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::imageAndConstant<Kel32f, Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompareC_32f_C3R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::imageAndConstant<Kel32f, Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompareC_32f_C4R(const Kel32f* pSrc, int srcStep, const Kel32f value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::imageAndConstant<Kel32f, Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompareC_32f_AC4R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return compare::imageAndConstant<Kel32f, Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize, cmpOp);
}
KelStatus keliCompareEqualEps_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (!(eps >= 0)) return kelStatusBadEpsilon;
  return compare::twoImagesWithin<Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, eps);
}
KelStatus keliCompareEqualEps_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (!(eps >= 0)) return kelStatusBadEpsilon;
  return compare::twoImagesWithin<Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, eps);
}
KelStatus keliCompareEqualEps_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (!(eps >= 0)) return kelStatusBadEpsilon;
  return compare::twoImagesWithin<Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, eps);
}
KelStatus keliCompareEqualEps_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (!(eps >= 0)) return kelStatusBadEpsilon;
  return compare::twoImagesWithin<Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, eps);
}
KelStatus keliCompareEqualEpsC_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f value, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (!(eps >= 0)) return kelStatusBadEpsilon;
  return compare::imageAndConstantWithin<Layout::C1>(pSrc, srcStep, value, pDst, dstStep, roiSize, eps);
}
KelStatus keliCompareEqualEpsC_32f_C3R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (!(eps >= 0)) return kelStatusBadEpsilon;
  return compare::imageAndConstantWithin<Layout::C3>(pSrc, srcStep, value, pDst, dstStep, roiSize, eps);
}
KelStatus keliCompareEqualEpsC_32f_C4R(const Kel32f* pSrc, int srcStep, const Kel32f value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (!(eps >= 0)) return kelStatusBadEpsilon;
  return compare::imageAndConstantWithin<Layout::C4>(pSrc, srcStep, value, pDst, dstStep, roiSize, eps);
}
KelStatus keliCompareEqualEpsC_32f_AC4R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (!(eps >= 0)) return kelStatusBadEpsilon;
  return compare::imageAndConstantWithin<Layout::AC4>(pSrc, srcStep, value, pDst, dstStep, roiSize, eps);
}
