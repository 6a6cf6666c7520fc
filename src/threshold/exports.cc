// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "threshold/threshold.h"

using namespace keli;

KelStatus keliThreshold_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel8u threshold, KelCmpOp cmpOp) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], KelCmpOp cmpOp) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], KelCmpOp cmpOp) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, Kel8u threshold, KelCmpOp cmpOp) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel8u, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], KelCmpOp cmpOp) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel8u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], KelCmpOp cmpOp) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel8u, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, Kel16s threshold, KelCmpOp cmpOp) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], KelCmpOp cmpOp) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], KelCmpOp cmpOp) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, Kel16s threshold, KelCmpOp cmpOp) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel16s, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], KelCmpOp cmpOp) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel16s, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], KelCmpOp cmpOp) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel16s, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f threshold, KelCmpOp cmpOp) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], KelCmpOp cmpOp) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], KelCmpOp cmpOp) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, Kel32f threshold, KelCmpOp cmpOp) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel32f, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], KelCmpOp cmpOp) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel32f, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], KelCmpOp cmpOp) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  return threshold::clamp<Kel32f, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, cmpOp);
}
KelStatus keliThreshold_LT_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel8u threshold) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return threshold::clampBy<kelCmpLess, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpLess, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpLess, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, Kel8u threshold) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return threshold::clampBy<kelCmpLess, Kel8u, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpLess, Kel8u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpLess, Kel8u, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, Kel16s threshold) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return threshold::clampBy<kelCmpLess, Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpLess, Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpLess, Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, Kel16s threshold) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return threshold::clampBy<kelCmpLess, Kel16s, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpLess, Kel16s, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpLess, Kel16s, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f threshold) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return threshold::clampBy<kelCmpLess, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpLess, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpLess, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, Kel32f threshold) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return threshold::clampBy<kelCmpLess, Kel32f, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpLess, Kel32f, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_LT_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpLess, Kel32f, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel8u threshold) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return threshold::clampBy<kelCmpGreater, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpGreater, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpGreater, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, Kel8u threshold) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return threshold::clampBy<kelCmpGreater, Kel8u, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpGreater, Kel8u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpGreater, Kel8u, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, Kel16s threshold) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return threshold::clampBy<kelCmpGreater, Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpGreater, Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpGreater, Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, Kel16s threshold) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return threshold::clampBy<kelCmpGreater, Kel16s, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpGreater, Kel16s, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpGreater, Kel16s, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f threshold) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return threshold::clampBy<kelCmpGreater, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpGreater, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpGreater, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, Kel32f threshold) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return threshold::clampBy<kelCmpGreater, Kel32f, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpGreater, Kel32f, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_GT_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold)) return kelStatusNullPointer;
  return threshold::clampBy<kelCmpGreater, Kel32f, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold);
}
KelStatus keliThreshold_Val_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel8u threshold, Kel8u value, KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return threshold::replace<Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3], KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replace<Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3], KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replace<Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, Kel8u threshold, Kel8u value, KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return threshold::replace<Kel8u, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3], KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replace<Kel8u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3], KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replace<Kel8u, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, Kel16s threshold, Kel16s value, KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return threshold::replace<Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3], KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replace<Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3], KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replace<Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, Kel16s threshold, Kel16s value, KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return threshold::replace<Kel16s, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3], KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replace<Kel16s, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3], KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replace<Kel16s, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f threshold, Kel32f value, KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return threshold::replace<Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3], KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replace<Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3], KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replace<Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, Kel32f threshold, Kel32f value, KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return threshold::replace<Kel32f, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3], KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replace<Kel32f, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_Val_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3], KelCmpOp cmpOp) {
  if (badThresholdOp(cmpOp)) return kelStatusBadCompareOp;
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replace<Kel32f, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value, cmpOp);
}
KelStatus keliThreshold_LTVal_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel8u threshold, Kel8u value) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return threshold::replaceBy<kelCmpLess, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[4], const Kel8u value[4]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, Kel8u threshold, Kel8u value) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return threshold::replaceBy<kelCmpLess, Kel8u, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel8u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel8u, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_8u_C4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[4], const Kel8u value[4]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel8u, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, Kel16s threshold, Kel16s value) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return threshold::replaceBy<kelCmpLess, Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[4], const Kel16s value[4]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, Kel16s threshold, Kel16s value) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return threshold::replaceBy<kelCmpLess, Kel16s, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel16s, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel16s, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_16s_C4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[4], const Kel16s value[4]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel16s, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f threshold, Kel32f value) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return threshold::replaceBy<kelCmpLess, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[4], const Kel32f value[4]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, Kel32f threshold, Kel32f value) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return threshold::replaceBy<kelCmpLess, Kel32f, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel32f, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel32f, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTVal_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[4], const Kel32f value[4]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpLess, Kel32f, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel8u threshold, Kel8u value) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return threshold::replaceBy<kelCmpGreater, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[4], const Kel8u value[4]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, Kel8u threshold, Kel8u value) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return threshold::replaceBy<kelCmpGreater, Kel8u, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel8u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel8u, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_8u_C4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[4], const Kel8u value[4]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel8u, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, Kel16s threshold, Kel16s value) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return threshold::replaceBy<kelCmpGreater, Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[4], const Kel16s value[4]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, Kel16s threshold, Kel16s value) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return threshold::replaceBy<kelCmpGreater, Kel16s, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel16s, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel16s, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_16s_C4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[4], const Kel16s value[4]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel16s, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f threshold, Kel32f value) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return threshold::replaceBy<kelCmpGreater, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[4], const Kel32f value[4]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, Kel32f threshold, Kel32f value) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return threshold::replaceBy<kelCmpGreater, Kel32f, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel32f, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel32f, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_GTVal_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[4], const Kel32f value[4]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(threshold, value)) return kelStatusNullPointer;
  return threshold::replaceBy<kelCmpGreater, Kel32f, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, threshold, value);
}
KelStatus keliThreshold_LTValGTVal_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel8u thresholdLT, Kel8u valueLT, Kel8u thresholdGT, Kel8u valueGT) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badThresholds(thresholdLT, thresholdGT)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u thresholdLT[3], const Kel8u valueLT[3], const Kel8u thresholdGT[3], const Kel8u valueGT[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(thresholdLT, valueLT, thresholdGT, valueGT)) return kelStatusNullPointer;
  if (badThresholds(thresholdLT, thresholdGT, 3)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u thresholdLT[3], const Kel8u valueLT[3], const Kel8u thresholdGT[3], const Kel8u valueGT[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(thresholdLT, valueLT, thresholdGT, valueGT)) return kelStatusNullPointer;
  if (badThresholds(thresholdLT, thresholdGT, 3)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, Kel8u thresholdLT, Kel8u valueLT, Kel8u thresholdGT, Kel8u valueGT) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badThresholds(thresholdLT, thresholdGT)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel8u, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u thresholdLT[3], const Kel8u valueLT[3], const Kel8u thresholdGT[3], const Kel8u valueGT[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(thresholdLT, valueLT, thresholdGT, valueGT)) return kelStatusNullPointer;
  if (badThresholds(thresholdLT, thresholdGT, 3)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel8u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u thresholdLT[3], const Kel8u valueLT[3], const Kel8u thresholdGT[3], const Kel8u valueGT[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(thresholdLT, valueLT, thresholdGT, valueGT)) return kelStatusNullPointer;
  if (badThresholds(thresholdLT, thresholdGT, 3)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel8u, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, Kel16s thresholdLT, Kel16s valueLT, Kel16s thresholdGT, Kel16s valueGT) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badThresholds(thresholdLT, thresholdGT)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s thresholdLT[3], const Kel16s valueLT[3], const Kel16s thresholdGT[3], const Kel16s valueGT[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(thresholdLT, valueLT, thresholdGT, valueGT)) return kelStatusNullPointer;
  if (badThresholds(thresholdLT, thresholdGT, 3)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s thresholdLT[3], const Kel16s valueLT[3], const Kel16s thresholdGT[3], const Kel16s valueGT[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(thresholdLT, valueLT, thresholdGT, valueGT)) return kelStatusNullPointer;
  if (badThresholds(thresholdLT, thresholdGT, 3)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, Kel16s thresholdLT, Kel16s valueLT, Kel16s thresholdGT, Kel16s valueGT) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badThresholds(thresholdLT, thresholdGT)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel16s, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s thresholdLT[3], const Kel16s valueLT[3], const Kel16s thresholdGT[3], const Kel16s valueGT[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(thresholdLT, valueLT, thresholdGT, valueGT)) return kelStatusNullPointer;
  if (badThresholds(thresholdLT, thresholdGT, 3)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel16s, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s thresholdLT[3], const Kel16s valueLT[3], const Kel16s thresholdGT[3], const Kel16s valueGT[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(thresholdLT, valueLT, thresholdGT, valueGT)) return kelStatusNullPointer;
  if (badThresholds(thresholdLT, thresholdGT, 3)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel16s, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f thresholdLT, Kel32f valueLT, Kel32f thresholdGT, Kel32f valueGT) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badThresholds(thresholdLT, thresholdGT)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f thresholdLT[3], const Kel32f valueLT[3], const Kel32f thresholdGT[3], const Kel32f valueGT[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(thresholdLT, valueLT, thresholdGT, valueGT)) return kelStatusNullPointer;
  if (badThresholds(thresholdLT, thresholdGT, 3)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f thresholdLT[3], const Kel32f valueLT[3], const Kel32f thresholdGT[3], const Kel32f valueGT[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(thresholdLT, valueLT, thresholdGT, valueGT)) return kelStatusNullPointer;
  if (badThresholds(thresholdLT, thresholdGT, 3)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, Kel32f thresholdLT, Kel32f valueLT, Kel32f thresholdGT, Kel32f valueGT) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badThresholds(thresholdLT, thresholdGT)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel32f, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f thresholdLT[3], const Kel32f valueLT[3], const Kel32f thresholdGT[3], const Kel32f valueGT[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(thresholdLT, valueLT, thresholdGT, valueGT)) return kelStatusNullPointer;
  if (badThresholds(thresholdLT, thresholdGT, 3)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel32f, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
KelStatus keliThreshold_LTValGTVal_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f thresholdLT[3], const Kel32f valueLT[3], const Kel32f thresholdGT[3], const Kel32f valueGT[3]) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyNull(thresholdLT, valueLT, thresholdGT, valueGT)) return kelStatusNullPointer;
  if (badThresholds(thresholdLT, thresholdGT, 3)) return kelStatusBadThresholds;
  return threshold::replaceOutside<Kel32f, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, thresholdLT, valueLT, thresholdGT, valueGT);
}
