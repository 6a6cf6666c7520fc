// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "cie/conversions.h"
#include "cie/xyz.h"
#include "color/convert.h"

using namespace keli;

KelStatus keliRGBToXYZ_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::RGBToXYZ, Kel16u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToXYZ_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::RGBToXYZ, Kel16u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToXYZ_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::RGBToXYZ, Kel16s, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToXYZ_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::RGBToXYZ, Kel16s, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToXYZ_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::RGBToXYZ, Kel32f, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToXYZ_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::RGBToXYZ, Kel32f, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToXYZ_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return cie::bytesToXyz<Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToXYZ_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return cie::bytesToXyz<Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliXYZToRGB_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::XYZToRGB, Kel8u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliXYZToRGB_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::XYZToRGB, Kel8u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliXYZToRGB_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::XYZToRGB, Kel16u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliXYZToRGB_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::XYZToRGB, Kel16u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliXYZToRGB_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::XYZToRGB, Kel16s, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliXYZToRGB_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::XYZToRGB, Kel16s, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliXYZToRGB_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::XYZToRGB, Kel32f, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliXYZToRGB_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::XYZToRGB, Kel32f, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToLUV_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::RGBToLUV, Kel8u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToLUV_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::RGBToLUV, Kel8u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToLUV_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::RGBToLUV, Kel16u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToLUV_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::RGBToLUV, Kel16u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToLUV_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::RGBToLUV, Kel16s, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToLUV_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::RGBToLUV, Kel16s, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToLUV_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::RGBToLUV, Kel32f, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToLUV_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::RGBToLUV, Kel32f, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliLUVToRGB_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::LUVToRGB, Kel8u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliLUVToRGB_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::LUVToRGB, Kel8u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliLUVToRGB_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::LUVToRGB, Kel16u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliLUVToRGB_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::LUVToRGB, Kel16u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliLUVToRGB_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::LUVToRGB, Kel16s, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliLUVToRGB_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::LUVToRGB, Kel16s, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliLUVToRGB_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::LUVToRGB, Kel32f, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliLUVToRGB_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<cie::LUVToRGB, Kel32f, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
