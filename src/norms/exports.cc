// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "norms/norm.h"

using namespace keli;

KelStatus keliNorm_Inf_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kInf, Kel8u, Layout::C1>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_Inf_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kInf, Kel8u, Layout::C3>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_Inf_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kInf, Kel8u, Layout::AC4>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_Inf_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kInf, Kel8u, Layout::C4>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_Inf_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kInf, Kel16s, Layout::C1>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_Inf_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kInf, Kel16s, Layout::C3>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_Inf_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kInf, Kel16s, Layout::AC4>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_Inf_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kInf, Kel16s, Layout::C4>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_Inf_32s_C1R(const Kel32s* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kInf, Kel32s, Layout::C1>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_Inf_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kInf, Kel32f, Layout::C1>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_Inf_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kInf, Kel32f, Layout::C3>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_Inf_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kInf, Kel32f, Layout::AC4>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_Inf_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kInf, Kel32f, Layout::C4>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L1_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL1, Kel8u, Layout::C1>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L1_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL1, Kel8u, Layout::C3>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L1_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL1, Kel8u, Layout::AC4>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L1_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL1, Kel8u, Layout::C4>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L1_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL1, Kel16s, Layout::C1>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L1_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL1, Kel16s, Layout::C3>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L1_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL1, Kel16s, Layout::AC4>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L1_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL1, Kel16s, Layout::C4>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L1_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL1, Kel32f, Layout::C1>(pSrc, srcStep, roiSize, pValue, hint);
}
KelStatus keliNorm_L1_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL1, Kel32f, Layout::C3>(pSrc, srcStep, roiSize, pValue, hint);
}
KelStatus keliNorm_L1_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL1, Kel32f, Layout::AC4>(pSrc, srcStep, roiSize, pValue, hint);
}
KelStatus keliNorm_L1_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4], KelHintAlgorithm hint) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL1, Kel32f, Layout::C4>(pSrc, srcStep, roiSize, pValue, hint);
}
KelStatus keliNorm_L2_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL2, Kel8u, Layout::C1>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L2_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL2, Kel8u, Layout::C3>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L2_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL2, Kel8u, Layout::AC4>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L2_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL2, Kel8u, Layout::C4>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L2_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL2, Kel16s, Layout::C1>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L2_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL2, Kel16s, Layout::C3>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L2_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL2, Kel16s, Layout::AC4>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L2_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL2, Kel16s, Layout::C4>(pSrc, srcStep, roiSize, pValue);
}
KelStatus keliNorm_L2_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL2, Kel32f, Layout::C1>(pSrc, srcStep, roiSize, pValue, hint);
}
KelStatus keliNorm_L2_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL2, Kel32f, Layout::C3>(pSrc, srcStep, roiSize, pValue, hint);
}
KelStatus keliNorm_L2_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL2, Kel32f, Layout::AC4>(pSrc, srcStep, roiSize, pValue, hint);
}
KelStatus keliNorm_L2_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4], KelHintAlgorithm hint) {
  if (anyNull(pSrc, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return norms::norm<norms::kL2, Kel32f, Layout::C4>(pSrc, srcStep, roiSize, pValue, hint);
}
KelStatus keliNormDiff_Inf_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kInf, Kel8u, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_Inf_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kInf, Kel8u, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_Inf_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kInf, Kel8u, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_Inf_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kInf, Kel8u, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_Inf_16s_C1R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kInf, Kel16s, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_Inf_16s_C3R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kInf, Kel16s, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_Inf_16s_AC4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kInf, Kel16s, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_Inf_16s_C4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kInf, Kel16s, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_Inf_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kInf, Kel32f, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_Inf_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kInf, Kel32f, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_Inf_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kInf, Kel32f, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_Inf_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kInf, Kel32f, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L1_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL1, Kel8u, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L1_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL1, Kel8u, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L1_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL1, Kel8u, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L1_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL1, Kel8u, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L1_16s_C1R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL1, Kel16s, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L1_16s_C3R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL1, Kel16s, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L1_16s_AC4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL1, Kel16s, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L1_16s_C4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL1, Kel16s, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L1_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue, KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL1, Kel32f, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
KelStatus keliNormDiff_L1_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL1, Kel32f, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
KelStatus keliNormDiff_L1_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL1, Kel32f, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
KelStatus keliNormDiff_L1_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4], KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL1, Kel32f, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
KelStatus keliNormDiff_L2_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL2, Kel8u, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L2_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL2, Kel8u, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L2_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL2, Kel8u, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L2_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL2, Kel8u, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L2_16s_C1R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL2, Kel16s, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L2_16s_C3R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL2, Kel16s, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L2_16s_AC4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL2, Kel16s, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L2_16s_C4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL2, Kel16s, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormDiff_L2_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue, KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL2, Kel32f, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
KelStatus keliNormDiff_L2_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL2, Kel32f, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
KelStatus keliNormDiff_L2_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL2, Kel32f, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
KelStatus keliNormDiff_L2_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4], KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::difference<norms::kL2, Kel32f, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
KelStatus keliNormRel_Inf_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kInf, Kel8u, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_Inf_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kInf, Kel8u, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_Inf_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kInf, Kel8u, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_Inf_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kInf, Kel8u, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_Inf_16s_C1R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kInf, Kel16s, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_Inf_16s_C3R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kInf, Kel16s, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_Inf_16s_AC4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kInf, Kel16s, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_Inf_16s_C4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kInf, Kel16s, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_Inf_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kInf, Kel32f, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_Inf_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kInf, Kel32f, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_Inf_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kInf, Kel32f, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_Inf_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kInf, Kel32f, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L1_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL1, Kel8u, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L1_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL1, Kel8u, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L1_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL1, Kel8u, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L1_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL1, Kel8u, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L1_16s_C1R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL1, Kel16s, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L1_16s_C3R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL1, Kel16s, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L1_16s_AC4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL1, Kel16s, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L1_16s_C4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL1, Kel16s, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L1_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue, KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL1, Kel32f, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
KelStatus keliNormRel_L1_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL1, Kel32f, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
KelStatus keliNormRel_L1_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL1, Kel32f, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
KelStatus keliNormRel_L1_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4], KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL1, Kel32f, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
KelStatus keliNormRel_L2_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL2, Kel8u, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L2_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL2, Kel8u, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L2_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL2, Kel8u, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L2_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL2, Kel8u, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L2_16s_C1R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL2, Kel16s, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L2_16s_C3R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL2, Kel16s, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L2_16s_AC4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL2, Kel16s, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L2_16s_C4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL2, Kel16s, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue);
}
KelStatus keliNormRel_L2_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue, KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL2, Kel32f, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
KelStatus keliNormRel_L2_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL2, Kel32f, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
KelStatus keliNormRel_L2_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL2, Kel32f, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
KelStatus keliNormRel_L2_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4], KelHintAlgorithm hint) {
  if (anyNull(pSrc1, pSrc2, pValue)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return norms::relative<norms::kL2, Kel32f, Layout::C4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pValue, hint);
}
