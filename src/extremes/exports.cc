// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "extremes/count.h"
#include "extremes/extremes.h"
#include "extremes/places.h"

using namespace keli;

KelStatus keliMin_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u* pMin) {
  if (anyNull(pSrc, pMin)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Min, Kel8u, Layout::C1>(pSrc, srcStep, roiSize, pMin);
}
KelStatus keliMin_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[3]) {
  if (anyNull(pSrc, pMin)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Min, Kel8u, Layout::C3>(pSrc, srcStep, roiSize, pMin);
}
KelStatus keliMin_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[3]) {
  if (anyNull(pSrc, pMin)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Min, Kel8u, Layout::AC4>(pSrc, srcStep, roiSize, pMin);
}
KelStatus keliMin_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[4]) {
  if (anyNull(pSrc, pMin)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Min, Kel8u, Layout::C4>(pSrc, srcStep, roiSize, pMin);
}
KelStatus keliMin_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s* pMin) {
  if (anyNull(pSrc, pMin)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Min, Kel16s, Layout::C1>(pSrc, srcStep, roiSize, pMin);
}
KelStatus keliMin_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[3]) {
  if (anyNull(pSrc, pMin)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Min, Kel16s, Layout::C3>(pSrc, srcStep, roiSize, pMin);
}
KelStatus keliMin_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[3]) {
  if (anyNull(pSrc, pMin)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Min, Kel16s, Layout::AC4>(pSrc, srcStep, roiSize, pMin);
}
KelStatus keliMin_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[4]) {
  if (anyNull(pSrc, pMin)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Min, Kel16s, Layout::C4>(pSrc, srcStep, roiSize, pMin);
}
KelStatus keliMin_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f* pMin) {
  if (anyNull(pSrc, pMin)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Min, Kel32f, Layout::C1>(pSrc, srcStep, roiSize, pMin);
}
KelStatus keliMin_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[3]) {
  if (anyNull(pSrc, pMin)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Min, Kel32f, Layout::C3>(pSrc, srcStep, roiSize, pMin);
}
KelStatus keliMin_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[3]) {
  if (anyNull(pSrc, pMin)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Min, Kel32f, Layout::AC4>(pSrc, srcStep, roiSize, pMin);
}
KelStatus keliMin_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[4]) {
  if (anyNull(pSrc, pMin)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Min, Kel32f, Layout::C4>(pSrc, srcStep, roiSize, pMin);
}
KelStatus keliMax_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u* pMax) {
  if (anyNull(pSrc, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Max, Kel8u, Layout::C1>(pSrc, srcStep, roiSize, pMax);
}
KelStatus keliMax_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMax[3]) {
  if (anyNull(pSrc, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Max, Kel8u, Layout::C3>(pSrc, srcStep, roiSize, pMax);
}
KelStatus keliMax_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMax[3]) {
  if (anyNull(pSrc, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Max, Kel8u, Layout::AC4>(pSrc, srcStep, roiSize, pMax);
}
KelStatus keliMax_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMax[4]) {
  if (anyNull(pSrc, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Max, Kel8u, Layout::C4>(pSrc, srcStep, roiSize, pMax);
}
KelStatus keliMax_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s* pMax) {
  if (anyNull(pSrc, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Max, Kel16s, Layout::C1>(pSrc, srcStep, roiSize, pMax);
}
KelStatus keliMax_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMax[3]) {
  if (anyNull(pSrc, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Max, Kel16s, Layout::C3>(pSrc, srcStep, roiSize, pMax);
}
KelStatus keliMax_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMax[3]) {
  if (anyNull(pSrc, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Max, Kel16s, Layout::AC4>(pSrc, srcStep, roiSize, pMax);
}
KelStatus keliMax_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMax[4]) {
  if (anyNull(pSrc, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Max, Kel16s, Layout::C4>(pSrc, srcStep, roiSize, pMax);
}
KelStatus keliMax_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f* pMax) {
  if (anyNull(pSrc, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Max, Kel32f, Layout::C1>(pSrc, srcStep, roiSize, pMax);
}
KelStatus keliMax_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMax[3]) {
  if (anyNull(pSrc, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Max, Kel32f, Layout::C3>(pSrc, srcStep, roiSize, pMax);
}
KelStatus keliMax_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMax[3]) {
  if (anyNull(pSrc, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Max, Kel32f, Layout::AC4>(pSrc, srcStep, roiSize, pMax);
}
KelStatus keliMax_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMax[4]) {
  if (anyNull(pSrc, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::extreme<extremes::Max, Kel32f, Layout::C4>(pSrc, srcStep, roiSize, pMax);
}
KelStatus keliMinMax_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u* pMin, Kel8u* pMax) {
  if (anyNull(pSrc, pMin, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::minMax<Kel8u, Layout::C1>(pSrc, srcStep, roiSize, pMin, pMax);
}
KelStatus keliMinMax_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[3], Kel8u pMax[3]) {
  if (anyNull(pSrc, pMin, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::minMax<Kel8u, Layout::C3>(pSrc, srcStep, roiSize, pMin, pMax);
}
KelStatus keliMinMax_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[3], Kel8u pMax[3]) {
  if (anyNull(pSrc, pMin, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::minMax<Kel8u, Layout::AC4>(pSrc, srcStep, roiSize, pMin, pMax);
}
KelStatus keliMinMax_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[4], Kel8u pMax[4]) {
  if (anyNull(pSrc, pMin, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::minMax<Kel8u, Layout::C4>(pSrc, srcStep, roiSize, pMin, pMax);
}
KelStatus keliMinMax_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s* pMin, Kel16s* pMax) {
  if (anyNull(pSrc, pMin, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::minMax<Kel16s, Layout::C1>(pSrc, srcStep, roiSize, pMin, pMax);
}
KelStatus keliMinMax_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[3], Kel16s pMax[3]) {
  if (anyNull(pSrc, pMin, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::minMax<Kel16s, Layout::C3>(pSrc, srcStep, roiSize, pMin, pMax);
}
KelStatus keliMinMax_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[3], Kel16s pMax[3]) {
  if (anyNull(pSrc, pMin, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::minMax<Kel16s, Layout::AC4>(pSrc, srcStep, roiSize, pMin, pMax);
}
KelStatus keliMinMax_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[4], Kel16s pMax[4]) {
  if (anyNull(pSrc, pMin, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::minMax<Kel16s, Layout::C4>(pSrc, srcStep, roiSize, pMin, pMax);
}
KelStatus keliMinMax_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f* pMin, Kel32f* pMax) {
  if (anyNull(pSrc, pMin, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::minMax<Kel32f, Layout::C1>(pSrc, srcStep, roiSize, pMin, pMax);
}
KelStatus keliMinMax_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[3], Kel32f pMax[3]) {
  if (anyNull(pSrc, pMin, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::minMax<Kel32f, Layout::C3>(pSrc, srcStep, roiSize, pMin, pMax);
}
KelStatus keliMinMax_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[3], Kel32f pMax[3]) {
  if (anyNull(pSrc, pMin, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::minMax<Kel32f, Layout::AC4>(pSrc, srcStep, roiSize, pMin, pMax);
}
KelStatus keliMinMax_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[4], Kel32f pMax[4]) {
  if (anyNull(pSrc, pMin, pMax)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::minMax<Kel32f, Layout::C4>(pSrc, srcStep, roiSize, pMin, pMax);
}
KelStatus keliMinIndx_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u* pMin, int* pIndexX, int* pIndexY) {
  if (anyNull(pSrc, pMin, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Min, Kel8u, Layout::C1>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);
}
KelStatus keliMinIndx_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[3], int pIndexX[3], int pIndexY[3]) {
  if (anyNull(pSrc, pMin, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Min, Kel8u, Layout::C3>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);
}
KelStatus keliMinIndx_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[3], int pIndexX[3], int pIndexY[3]) {
  if (anyNull(pSrc, pMin, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Min, Kel8u, Layout::AC4>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);
}
KelStatus keliMinIndx_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[4], int pIndexX[4], int pIndexY[4]) {
  if (anyNull(pSrc, pMin, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Min, Kel8u, Layout::C4>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);
}
KelStatus keliMinIndx_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s* pMin, int* pIndexX, int* pIndexY) {
  if (anyNull(pSrc, pMin, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Min, Kel16s, Layout::C1>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);
}
KelStatus keliMinIndx_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[3], int pIndexX[3], int pIndexY[3]) {
  if (anyNull(pSrc, pMin, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Min, Kel16s, Layout::C3>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);
}
KelStatus keliMinIndx_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[3], int pIndexX[3], int pIndexY[3]) {
  if (anyNull(pSrc, pMin, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Min, Kel16s, Layout::AC4>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);
}
KelStatus keliMinIndx_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[4], int pIndexX[4], int pIndexY[4]) {
  if (anyNull(pSrc, pMin, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Min, Kel16s, Layout::C4>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);
}
KelStatus keliMinIndx_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f* pMin, int* pIndexX, int* pIndexY) {
  if (anyNull(pSrc, pMin, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Min, Kel32f, Layout::C1>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);
}
KelStatus keliMinIndx_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[3], int pIndexX[3], int pIndexY[3]) {
  if (anyNull(pSrc, pMin, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Min, Kel32f, Layout::C3>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);
}
KelStatus keliMinIndx_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[3], int pIndexX[3], int pIndexY[3]) {
  if (anyNull(pSrc, pMin, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Min, Kel32f, Layout::AC4>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);
}
KelStatus keliMinIndx_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[4], int pIndexX[4], int pIndexY[4]) {
  if (anyNull(pSrc, pMin, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Min, Kel32f, Layout::C4>(pSrc, srcStep, roiSize, pMin, pIndexX, pIndexY);
}
KelStatus keliMaxIndx_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u* pMax, int* pIndexX, int* pIndexY) {
  if (anyNull(pSrc, pMax, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Max, Kel8u, Layout::C1>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);
}
KelStatus keliMaxIndx_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMax[3], int pIndexX[3], int pIndexY[3]) {
  if (anyNull(pSrc, pMax, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Max, Kel8u, Layout::C3>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);
}
KelStatus keliMaxIndx_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMax[3], int pIndexX[3], int pIndexY[3]) {
  if (anyNull(pSrc, pMax, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Max, Kel8u, Layout::AC4>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);
}
KelStatus keliMaxIndx_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMax[4], int pIndexX[4], int pIndexY[4]) {
  if (anyNull(pSrc, pMax, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Max, Kel8u, Layout::C4>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);
}
KelStatus keliMaxIndx_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s* pMax, int* pIndexX, int* pIndexY) {
  if (anyNull(pSrc, pMax, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Max, Kel16s, Layout::C1>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);
}
KelStatus keliMaxIndx_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMax[3], int pIndexX[3], int pIndexY[3]) {
  if (anyNull(pSrc, pMax, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Max, Kel16s, Layout::C3>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);
}
KelStatus keliMaxIndx_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMax[3], int pIndexX[3], int pIndexY[3]) {
  if (anyNull(pSrc, pMax, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Max, Kel16s, Layout::AC4>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);
}
KelStatus keliMaxIndx_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMax[4], int pIndexX[4], int pIndexY[4]) {
  if (anyNull(pSrc, pMax, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Max, Kel16s, Layout::C4>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);
}
KelStatus keliMaxIndx_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f* pMax, int* pIndexX, int* pIndexY) {
  if (anyNull(pSrc, pMax, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Max, Kel32f, Layout::C1>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);
}
KelStatus keliMaxIndx_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMax[3], int pIndexX[3], int pIndexY[3]) {
  if (anyNull(pSrc, pMax, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Max, Kel32f, Layout::C3>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);
}
KelStatus keliMaxIndx_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMax[3], int pIndexX[3], int pIndexY[3]) {
  if (anyNull(pSrc, pMax, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Max, Kel32f, Layout::AC4>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);
}
KelStatus keliMaxIndx_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMax[4], int pIndexX[4], int pIndexY[4]) {
  if (anyNull(pSrc, pMax, pIndexX, pIndexY)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  return extremes::place<extremes::Max, Kel32f, Layout::C4>(pSrc, srcStep, roiSize, pMax, pIndexX, pIndexY);
}
KelStatus keliCountInRange_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* counts, Kel8u lowerBound, Kel8u upperBound) {
  if (anyNull(pSrc, counts)) return kelStatusNullPointer;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badRange(lowerBound, upperBound)) return kelStatusBadRange;
  return extremes::countInRange<Kel8u, Layout::C1>(pSrc, srcStep, roiSize, counts, lowerBound, upperBound);
}
KelStatus keliCountInRange_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int counts[3], const Kel8u lowerBound[3], const Kel8u upperBound[3]) {
  if (anyNull(pSrc, counts, lowerBound, upperBound)) return kelStatusNullPointer;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badRange(lowerBound, upperBound, 3)) return kelStatusBadRange;
  return extremes::countInRange<Kel8u, Layout::C3>(pSrc, srcStep, roiSize, counts, lowerBound, upperBound);
}
KelStatus keliCountInRange_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int counts[3], const Kel8u lowerBound[3], const Kel8u upperBound[3]) {
  if (anyNull(pSrc, counts, lowerBound, upperBound)) return kelStatusNullPointer;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badRange(lowerBound, upperBound, 3)) return kelStatusBadRange;
  return extremes::countInRange<Kel8u, Layout::AC4>(pSrc, srcStep, roiSize, counts, lowerBound, upperBound);
}
KelStatus keliCountInRange_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, int* counts, Kel32f lowerBound, Kel32f upperBound) {
  if (anyNull(pSrc, counts)) return kelStatusNullPointer;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badRange(lowerBound, upperBound)) return kelStatusBadRange;
  return extremes::countInRange<Kel32f, Layout::C1>(pSrc, srcStep, roiSize, counts, lowerBound, upperBound);
}
KelStatus keliCountInRange_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, int counts[3], const Kel32f lowerBound[3], const Kel32f upperBound[3]) {
  if (anyNull(pSrc, counts, lowerBound, upperBound)) return kelStatusNullPointer;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badRange(lowerBound, upperBound, 3)) return kelStatusBadRange;
  return extremes::countInRange<Kel32f, Layout::C3>(pSrc, srcStep, roiSize, counts, lowerBound, upperBound);
}
KelStatus keliCountInRange_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, int counts[3], const Kel32f lowerBound[3], const Kel32f upperBound[3]) {
  if (anyNull(pSrc, counts, lowerBound, upperBound)) return kelStatusNullPointer;
  if (anyBadStep(srcStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (badRange(lowerBound, upperBound, 3)) return kelStatusBadRange;
  return extremes::countInRange<Kel32f, Layout::AC4>(pSrc, srcStep, roiSize, counts, lowerBound, upperBound);
}
