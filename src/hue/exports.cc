// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "color/convert.h"
#include "hue/conversions.h"

using namespace keli;

KelStatus keliRGBToHSV_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::RGBToHSV, Kel8u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToHSV_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::RGBToHSV, Kel8u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToHSV_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::RGBToHSV, Kel16u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToHSV_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::RGBToHSV, Kel16u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHSVToRGB_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HSVToRGB, Kel8u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHSVToRGB_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HSVToRGB, Kel8u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHSVToRGB_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HSVToRGB, Kel16u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHSVToRGB_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HSVToRGB, Kel16u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToHLS_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::RGBToHLS, Kel8u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToHLS_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::RGBToHLS, Kel8u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToHLS_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::RGBToHLS, Kel16u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToHLS_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::RGBToHLS, Kel16u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToHLS_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::RGBToHLS, Kel16s, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToHLS_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::RGBToHLS, Kel16s, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToHLS_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::RGBToHLS, Kel32f, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliRGBToHLS_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::RGBToHLS, Kel32f, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHLSToRGB_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HLSToRGB, Kel8u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHLSToRGB_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HLSToRGB, Kel8u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHLSToRGB_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HLSToRGB, Kel16u, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHLSToRGB_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HLSToRGB, Kel16u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHLSToRGB_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HLSToRGB, Kel16s, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHLSToRGB_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HLSToRGB, Kel16s, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHLSToRGB_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HLSToRGB, Kel32f, Layout::C3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHLSToRGB_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HLSToRGB, Kel32f, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliBGRToHLS_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::BGRToHLS, Kel8u, Layout::AC4, Layout::AC4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliBGRToHLS_8u_AP4R(const Kel8u* const pSrc[4], int srcStep, Kel8u* const pDst[4], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<4>(pSrc) || anyPlaneNull<4>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::BGRToHLS, Kel8u, Layout::AP4, Layout::AP4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliBGRToHLS_8u_C3P3R(const Kel8u* pSrc, int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::BGRToHLS, Kel8u, Layout::C3, Layout::P3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliBGRToHLS_8u_P3C3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pSrc)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::BGRToHLS, Kel8u, Layout::P3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliBGRToHLS_8u_P3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pSrc) || anyPlaneNull<3>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::BGRToHLS, Kel8u, Layout::P3, Layout::P3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliBGRToHLS_8u_AC4P4R(const Kel8u* pSrc, int srcStep, Kel8u* const pDst[4], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<4>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::BGRToHLS, Kel8u, Layout::AC4, Layout::P4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliBGRToHLS_8u_AP4C4R(const Kel8u* const pSrc[4], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<4>(pSrc)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::BGRToHLS, Kel8u, Layout::AP4, Layout::C4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHLSToBGR_8u_AP4R(const Kel8u* const pSrc[4], int srcStep, Kel8u* const pDst[4], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<4>(pSrc) || anyPlaneNull<4>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HLSToBGR, Kel8u, Layout::AP4, Layout::AP4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHLSToBGR_8u_C3P3R(const Kel8u* pSrc, int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HLSToBGR, Kel8u, Layout::C3, Layout::P3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHLSToBGR_8u_P3C3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pSrc)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HLSToBGR, Kel8u, Layout::P3, Layout::C3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHLSToBGR_8u_P3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<3>(pSrc) || anyPlaneNull<3>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HLSToBGR, Kel8u, Layout::P3, Layout::P3, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHLSToBGR_8u_AC4P4R(const Kel8u* pSrc, int srcStep, Kel8u* const pDst[4], int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<4>(pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HLSToBGR, Kel8u, Layout::AC4, Layout::P4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliHLSToBGR_8u_AP4C4R(const Kel8u* const pSrc[4], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst) || anyPlaneNull<4>(pSrc)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return color::convert<hue::HLSToBGR, Kel8u, Layout::AP4, Layout::C4, Team::kThreads>(pSrc, srcStep, pDst, dstStep, roiSize);
}
