// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "histogram/histogram.h"

using namespace keli;

KelStatus keliHistogramRange_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* pHist, const int* pLevels, int nLevels) {
  if (anyNull(pSrc, pHist, pLevels)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  if (nLevels < 2) return kelStatusBadHistogramLevels;
  return histogram::range<Kel8u, Layout::C1>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels);
}
KelStatus keliHistogramRange_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], const int* const pLevels[3], const int nLevels[3]) {
  if (anyNull(pSrc, pHist, pLevels, nLevels)) return kelStatusNullPointer;
  if (const KelStatus status = histogramStatus(pHist, pLevels, nLevels, 3)) return status;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return histogram::range<Kel8u, Layout::C3>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels);
}
KelStatus keliHistogramRange_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* const pHist[4], const int* const pLevels[4], const int nLevels[4]) {
  if (anyNull(pSrc, pHist, pLevels, nLevels)) return kelStatusNullPointer;
  if (const KelStatus status = histogramStatus(pHist, pLevels, nLevels, 4)) return status;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return histogram::range<Kel8u, Layout::C4>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels);
}
KelStatus keliHistogramRange_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], const int* const pLevels[3], const int nLevels[3]) {
  if (anyNull(pSrc, pHist, pLevels, nLevels)) return kelStatusNullPointer;
  if (const KelStatus status = histogramStatus(pHist, pLevels, nLevels, 3)) return status;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return histogram::range<Kel8u, Layout::AC4>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels);
}
KelStatus keliHistogramRange_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* pHist, const int* pLevels, int nLevels) {
  if (anyNull(pSrc, pHist, pLevels)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  if (nLevels < 2) return kelStatusBadHistogramLevels;
  return histogram::range<Kel16s, Layout::C1>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels);
}
KelStatus keliHistogramRange_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], const int* const pLevels[3], const int nLevels[3]) {
  if (anyNull(pSrc, pHist, pLevels, nLevels)) return kelStatusNullPointer;
  if (const KelStatus status = histogramStatus(pHist, pLevels, nLevels, 3)) return status;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return histogram::range<Kel16s, Layout::C3>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels);
}
KelStatus keliHistogramRange_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* const pHist[4], const int* const pLevels[4], const int nLevels[4]) {
  if (anyNull(pSrc, pHist, pLevels, nLevels)) return kelStatusNullPointer;
  if (const KelStatus status = histogramStatus(pHist, pLevels, nLevels, 4)) return status;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return histogram::range<Kel16s, Layout::C4>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels);
}
KelStatus keliHistogramRange_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], const int* const pLevels[3], const int nLevels[3]) {
  if (anyNull(pSrc, pHist, pLevels, nLevels)) return kelStatusNullPointer;
  if (const KelStatus status = histogramStatus(pHist, pLevels, nLevels, 3)) return status;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return histogram::range<Kel16s, Layout::AC4>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels);
}
KelStatus keliHistogramRange_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, int* pHist, const Kel32f* pLevels, int nLevels) {
  if (anyNull(pSrc, pHist, pLevels)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  if (nLevels < 2) return kelStatusBadHistogramLevels;
  return histogram::range<Kel32f, Layout::C1>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels);
}
KelStatus keliHistogramRange_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], const Kel32f* const pLevels[3], const int nLevels[3]) {
  if (anyNull(pSrc, pHist, pLevels, nLevels)) return kelStatusNullPointer;
  if (const KelStatus status = histogramStatus(pHist, pLevels, nLevels, 3)) return status;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return histogram::range<Kel32f, Layout::C3>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels);
}
KelStatus keliHistogramRange_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, int* const pHist[4], const Kel32f* const pLevels[4], const int nLevels[4]) {
  if (anyNull(pSrc, pHist, pLevels, nLevels)) return kelStatusNullPointer;
  if (const KelStatus status = histogramStatus(pHist, pLevels, nLevels, 4)) return status;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return histogram::range<Kel32f, Layout::C4>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels);
}
KelStatus keliHistogramRange_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], const Kel32f* const pLevels[3], const int nLevels[3]) {
  if (anyNull(pSrc, pHist, pLevels, nLevels)) return kelStatusNullPointer;
  if (const KelStatus status = histogramStatus(pHist, pLevels, nLevels, 3)) return status;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return histogram::range<Kel32f, Layout::AC4>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels);
}
KelStatus keliHistogramEven_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* pHist, int* pLevels, int nLevels, int lowerLevel, int upperLevel) {
  if (anyNull(pSrc, pHist, pLevels)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  if (nLevels < 2) return kelStatusBadHistogramLevels;
  return histogram::even<Kel8u, Layout::C1>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels, lowerLevel, upperLevel);
}
KelStatus keliHistogramEven_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], int* const pLevels[3], const int nLevels[3], const int lowerLevel[3], const int upperLevel[3]) {
  if (anyNull(pSrc, pHist, pLevels, nLevels, lowerLevel, upperLevel)) return kelStatusNullPointer;
  if (const KelStatus status = histogramStatus(pHist, pLevels, nLevels, 3)) return status;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return histogram::even<Kel8u, Layout::C3>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels, lowerLevel, upperLevel);
}
KelStatus keliHistogramEven_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* const pHist[4], int* const pLevels[4], const int nLevels[4], const int lowerLevel[4], const int upperLevel[4]) {
  if (anyNull(pSrc, pHist, pLevels, nLevels, lowerLevel, upperLevel)) return kelStatusNullPointer;
  if (const KelStatus status = histogramStatus(pHist, pLevels, nLevels, 4)) return status;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return histogram::even<Kel8u, Layout::C4>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels, lowerLevel, upperLevel);
}
KelStatus keliHistogramEven_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], int* const pLevels[3], const int nLevels[3], const int lowerLevel[3], const int upperLevel[3]) {
  if (anyNull(pSrc, pHist, pLevels, nLevels, lowerLevel, upperLevel)) return kelStatusNullPointer;
  if (const KelStatus status = histogramStatus(pHist, pLevels, nLevels, 3)) return status;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return histogram::even<Kel8u, Layout::AC4>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels, lowerLevel, upperLevel);
}
KelStatus keliHistogramEven_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* pHist, int* pLevels, int nLevels, int lowerLevel, int upperLevel) {
  if (anyNull(pSrc, pHist, pLevels)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  if (nLevels < 2) return kelStatusBadHistogramLevels;
  return histogram::even<Kel16s, Layout::C1>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels, lowerLevel, upperLevel);
}
KelStatus keliHistogramEven_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], int* const pLevels[3], const int nLevels[3], const int lowerLevel[3], const int upperLevel[3]) {
  if (anyNull(pSrc, pHist, pLevels, nLevels, lowerLevel, upperLevel)) return kelStatusNullPointer;
  if (const KelStatus status = histogramStatus(pHist, pLevels, nLevels, 3)) return status;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return histogram::even<Kel16s, Layout::C3>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels, lowerLevel, upperLevel);
}
KelStatus keliHistogramEven_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* const pHist[4], int* const pLevels[4], const int nLevels[4], const int lowerLevel[4], const int upperLevel[4]) {
  if (anyNull(pSrc, pHist, pLevels, nLevels, lowerLevel, upperLevel)) return kelStatusNullPointer;
  if (const KelStatus status = histogramStatus(pHist, pLevels, nLevels, 4)) return status;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return histogram::even<Kel16s, Layout::C4>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels, lowerLevel, upperLevel);
}
KelStatus keliHistogramEven_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], int* const pLevels[3], const int nLevels[3], const int lowerLevel[3], const int upperLevel[3]) {
  if (anyNull(pSrc, pHist, pLevels, nLevels, lowerLevel, upperLevel)) return kelStatusNullPointer;
  if (const KelStatus status = histogramStatus(pHist, pLevels, nLevels, 3)) return status;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return histogram::even<Kel16s, Layout::AC4>(pSrc, srcStep, roiSize, pHist, pLevels, nLevels, lowerLevel, upperLevel);
}
