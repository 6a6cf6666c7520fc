// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "color/convert.h"
#include "luma/conversions.h"

using namespace keli;

KelStatus keliRGBToYCC_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::RGBToYCC, Kel8u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToYCC_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::RGBToYCC, Kel8u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToYCC_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::RGBToYCC, Kel16u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToYCC_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::RGBToYCC, Kel16u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToYCC_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::RGBToYCC, Kel16s, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToYCC_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::RGBToYCC, Kel16s, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToYCC_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::RGBToYCC, Kel32f, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToYCC_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::RGBToYCC, Kel32f, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYCCToRGB_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YCCToRGB, Kel8u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYCCToRGB_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YCCToRGB, Kel8u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYCCToRGB_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YCCToRGB, Kel16u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYCCToRGB_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YCCToRGB, Kel16u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYCCToRGB_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YCCToRGB, Kel16s, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYCCToRGB_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YCCToRGB, Kel16s, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYCCToRGB_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YCCToRGB, Kel32f, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYCCToRGB_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YCCToRGB, Kel32f, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
