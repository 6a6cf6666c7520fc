// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "color/convert.h"
#include "luma/conversions.h"
#include "luma/gray.h"

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
KelStatus keliRGBToYCbCr_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::RGBToYCbCr, Kel8u, Layout::C3, Layout::C3, Team::kCaller>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToYCbCr_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::RGBToYCbCr, Kel8u, Layout::AC4, Layout::AC4, Team::kCaller>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToYCbCr_8u_P3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pSrc) || anyPlaneNull<3>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::RGBToYCbCr, Kel8u, Layout::P3, Layout::P3, Team::kCaller>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYCbCrToRGB_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YCbCrToRGB, Kel8u, Layout::C3, Layout::C3, Team::kCaller>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYCbCrToRGB_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YCbCrToRGB, Kel8u, Layout::AC4, Layout::AC4, Team::kCaller>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYCbCrToRGB_8u_P3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pSrc) || anyPlaneNull<3>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YCbCrToRGB, Kel8u, Layout::P3, Layout::P3, Team::kCaller>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYCbCrToRGB_8u_P3C3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pSrc)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YCbCrToRGB, Kel8u, Layout::P3, Layout::C3, Team::kCaller>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToYUV_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::RGBToYUV, Kel8u, Layout::C3, Layout::C3, Team::kCaller>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToYUV_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::RGBToYUV, Kel8u, Layout::AC4, Layout::AC4, Team::kCaller>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToYUV_8u_P3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pSrc) || anyPlaneNull<3>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::RGBToYUV, Kel8u, Layout::P3, Layout::P3, Team::kCaller>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToYUV_8u_C3P3R(const Kel8u* pSrc, int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::RGBToYUV, Kel8u, Layout::C3, Layout::P3, Team::kCaller>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYUVToRGB_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YUVToRGB, Kel8u, Layout::C3, Layout::C3, Team::kCaller>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYUVToRGB_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YUVToRGB, Kel8u, Layout::AC4, Layout::AC4, Team::kCaller>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYUVToRGB_8u_P3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pSrc) || anyPlaneNull<3>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YUVToRGB, Kel8u, Layout::P3, Layout::P3, Team::kCaller>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliYUVToRGB_8u_P3C3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pSrc)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<luma::YUVToRGB, Kel8u, Layout::P3, Layout::C3, Team::kCaller>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToGray_8u_C3C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return luma::rgbToGray<Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToGray_8u_AC4C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return luma::rgbToGray<Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToGray_16u_C3C1R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return luma::rgbToGray<Kel16u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToGray_16u_AC4C1R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return luma::rgbToGray<Kel16u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToGray_16s_C3C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return luma::rgbToGray<Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToGray_16s_AC4C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return luma::rgbToGray<Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToGray_32f_C3C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return luma::rgbToGray<Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToGray_32f_AC4C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return luma::rgbToGray<Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliColorToGray_8u_C3C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(weights)) return kelStatusNullPointer;
  return luma::colorToGray<Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, weights);
}
KelStatus keliColorToGray_8u_AC4C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(weights)) return kelStatusNullPointer;
  return luma::colorToGray<Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, weights);
}
KelStatus keliColorToGray_16u_C3C1R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(weights)) return kelStatusNullPointer;
  return luma::colorToGray<Kel16u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, weights);
}
KelStatus keliColorToGray_16u_AC4C1R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(weights)) return kelStatusNullPointer;
  return luma::colorToGray<Kel16u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, weights);
}
KelStatus keliColorToGray_16s_C3C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(weights)) return kelStatusNullPointer;
  return luma::colorToGray<Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, weights);
}
KelStatus keliColorToGray_16s_AC4C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(weights)) return kelStatusNullPointer;
  return luma::colorToGray<Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, weights);
}
KelStatus keliColorToGray_32f_C3C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(weights)) return kelStatusNullPointer;
  return luma::colorToGray<Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, weights);
}
KelStatus keliColorToGray_32f_AC4C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyNull(weights)) return kelStatusNullPointer;
  return luma::colorToGray<Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, weights);
}
