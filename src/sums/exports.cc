// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "sums/sum.h"
#include "sums/quality.h"

using namespace keli;

KelStatus keliSum_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f* pSum) {
  if (anyNull(pSrc, pSum)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::sum<Kel8u, Layout::C1>(pSrc, srcStep, roiSize, pSum);
}
KelStatus keliSum_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[3]) {
  if (anyNull(pSrc, pSum)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::sum<Kel8u, Layout::C3>(pSrc, srcStep, roiSize, pSum);
}
KelStatus keliSum_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[3]) {
  if (anyNull(pSrc, pSum)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::sum<Kel8u, Layout::AC4>(pSrc, srcStep, roiSize, pSum);
}
KelStatus keliSum_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[4]) {
  if (anyNull(pSrc, pSum)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::sum<Kel8u, Layout::C4>(pSrc, srcStep, roiSize, pSum);
}
KelStatus keliSum_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f* pSum) {
  if (anyNull(pSrc, pSum)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::sum<Kel16s, Layout::C1>(pSrc, srcStep, roiSize, pSum);
}
KelStatus keliSum_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[3]) {
  if (anyNull(pSrc, pSum)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::sum<Kel16s, Layout::C3>(pSrc, srcStep, roiSize, pSum);
}
KelStatus keliSum_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[3]) {
  if (anyNull(pSrc, pSum)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::sum<Kel16s, Layout::AC4>(pSrc, srcStep, roiSize, pSum);
}
KelStatus keliSum_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[4]) {
  if (anyNull(pSrc, pSum)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::sum<Kel16s, Layout::C4>(pSrc, srcStep, roiSize, pSum);
}
KelStatus keliSum_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f* pSum, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pSum)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::sum<Kel32f, Layout::C1>(pSrc, srcStep, roiSize, pSum, hint);
}
KelStatus keliSum_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc, pSum)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::sum<Kel32f, Layout::C3>(pSrc, srcStep, roiSize, pSum, hint);
}
KelStatus keliSum_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc, pSum)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::sum<Kel32f, Layout::AC4>(pSrc, srcStep, roiSize, pSum, hint);
}
KelStatus keliSum_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[4], KelHintAlgorithm hint) {
  if (anyNull(pSrc, pSum)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::sum<Kel32f, Layout::C4>(pSrc, srcStep, roiSize, pSum, hint);
}
KelStatus keliMean_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f* pMean) {
  if (anyNull(pSrc, pMean)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::mean<Kel8u, Layout::C1>(pSrc, srcStep, roiSize, pMean);
}
KelStatus keliMean_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[3]) {
  if (anyNull(pSrc, pMean)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::mean<Kel8u, Layout::C3>(pSrc, srcStep, roiSize, pMean);
}
KelStatus keliMean_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[3]) {
  if (anyNull(pSrc, pMean)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::mean<Kel8u, Layout::AC4>(pSrc, srcStep, roiSize, pMean);
}
KelStatus keliMean_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[4]) {
  if (anyNull(pSrc, pMean)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::mean<Kel8u, Layout::C4>(pSrc, srcStep, roiSize, pMean);
}
KelStatus keliMean_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f* pMean) {
  if (anyNull(pSrc, pMean)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::mean<Kel16s, Layout::C1>(pSrc, srcStep, roiSize, pMean);
}
KelStatus keliMean_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[3]) {
  if (anyNull(pSrc, pMean)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::mean<Kel16s, Layout::C3>(pSrc, srcStep, roiSize, pMean);
}
KelStatus keliMean_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[3]) {
  if (anyNull(pSrc, pMean)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::mean<Kel16s, Layout::AC4>(pSrc, srcStep, roiSize, pMean);
}
KelStatus keliMean_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[4]) {
  if (anyNull(pSrc, pMean)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::mean<Kel16s, Layout::C4>(pSrc, srcStep, roiSize, pMean);
}
KelStatus keliMean_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f* pMean, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pMean)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::mean<Kel32f, Layout::C1>(pSrc, srcStep, roiSize, pMean, hint);
}
KelStatus keliMean_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc, pMean)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::mean<Kel32f, Layout::C3>(pSrc, srcStep, roiSize, pMean, hint);
}
KelStatus keliMean_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[3], KelHintAlgorithm hint) {
  if (anyNull(pSrc, pMean)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::mean<Kel32f, Layout::AC4>(pSrc, srcStep, roiSize, pMean, hint);
}
KelStatus keliMean_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[4], KelHintAlgorithm hint) {
  if (anyNull(pSrc, pMean)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return sums::mean<Kel32f, Layout::C4>(pSrc, srcStep, roiSize, pMean, hint);
}
KelStatus keliQualityIndex_8u32f_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel32f* pQualityIndex) {
  if (anyNull(pSrc1, pSrc2, pQualityIndex)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return sums::qualityIndex<Kel8u, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pQualityIndex);
}
KelStatus keliQualityIndex_8u32f_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel32f pQualityIndex[3]) {
  if (anyNull(pSrc1, pSrc2, pQualityIndex)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return sums::qualityIndex<Kel8u, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pQualityIndex);
}
KelStatus keliQualityIndex_8u32f_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel32f pQualityIndex[3]) {
  if (anyNull(pSrc1, pSrc2, pQualityIndex)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return sums::qualityIndex<Kel8u, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pQualityIndex);
}
KelStatus keliQualityIndex_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel32f* pQualityIndex) {
  if (anyNull(pSrc1, pSrc2, pQualityIndex)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return sums::qualityIndex<Kel32f, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pQualityIndex);
}
KelStatus keliQualityIndex_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel32f pQualityIndex[3]) {
  if (anyNull(pSrc1, pSrc2, pQualityIndex)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return sums::qualityIndex<Kel32f, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pQualityIndex);
}
KelStatus keliQualityIndex_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel32f pQualityIndex[3]) {
  if (anyNull(pSrc1, pSrc2, pQualityIndex)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step)) return kelStatusBadStep;
  return sums::qualityIndex<Kel32f, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, roiSize, pQualityIndex);
}
