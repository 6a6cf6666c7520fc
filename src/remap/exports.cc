// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "remap/remap.h"

using namespace keli;

KelStatus keliRemap_8u_C1R(const Kel8u* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation) {
  if (anyNull(pSrc, pxMap, pyMap, pDst)) return kelStatusNullPointer;
  if (badRemapSizes(srcSize, srcROI, dstRoiSize)) return kelStatusBadSize;
  if (badInterpolation(interpolation)) return kelStatusBadInterpolation;
  if (anyBadStep(srcStep, xMapStep, yMapStep, dstStep)) return kelStatusBadStep;
  return remap::remap<Kel8u, Layout::C1>(pSrc, srcSize, srcStep, srcROI, pxMap, xMapStep, pyMap, yMapStep, pDst, dstStep, dstRoiSize, interpolation);
}
KelStatus keliRemap_8u_C3R(const Kel8u* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation) {
  if (anyNull(pSrc, pxMap, pyMap, pDst)) return kelStatusNullPointer;
  if (badRemapSizes(srcSize, srcROI, dstRoiSize)) return kelStatusBadSize;
  if (badInterpolation(interpolation)) return kelStatusBadInterpolation;
  if (anyBadStep(srcStep, xMapStep, yMapStep, dstStep)) return kelStatusBadStep;
  return remap::remap<Kel8u, Layout::C3>(pSrc, srcSize, srcStep, srcROI, pxMap, xMapStep, pyMap, yMapStep, pDst, dstStep, dstRoiSize, interpolation);
}
KelStatus keliRemap_8u_C4R(const Kel8u* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation) {
  if (anyNull(pSrc, pxMap, pyMap, pDst)) return kelStatusNullPointer;
  if (badRemapSizes(srcSize, srcROI, dstRoiSize)) return kelStatusBadSize;
  if (badInterpolation(interpolation)) return kelStatusBadInterpolation;
  if (anyBadStep(srcStep, xMapStep, yMapStep, dstStep)) return kelStatusBadStep;
  return remap::remap<Kel8u, Layout::C4>(pSrc, srcSize, srcStep, srcROI, pxMap, xMapStep, pyMap, yMapStep, pDst, dstStep, dstRoiSize, interpolation);
}
KelStatus keliRemap_8u_AC4R(const Kel8u* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation) {
  if (anyNull(pSrc, pxMap, pyMap, pDst)) return kelStatusNullPointer;
  if (badRemapSizes(srcSize, srcROI, dstRoiSize)) return kelStatusBadSize;
  if (badInterpolation(interpolation)) return kelStatusBadInterpolation;
  if (anyBadStep(srcStep, xMapStep, yMapStep, dstStep)) return kelStatusBadStep;
  return remap::remap<Kel8u, Layout::AC4>(pSrc, srcSize, srcStep, srcROI, pxMap, xMapStep, pyMap, yMapStep, pDst, dstStep, dstRoiSize, interpolation);
}
KelStatus keliRemap_8u_P3R(const Kel8u* const pSrc[3], KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel8u* const pDst[3], int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation) {
  if (anyNull(pSrc, pxMap, pyMap, pDst) || anyPlaneNull<3>(pSrc) || anyPlaneNull<3>(pDst)) return kelStatusNullPointer;
  if (badRemapSizes(srcSize, srcROI, dstRoiSize)) return kelStatusBadSize;
  if (badInterpolation(interpolation)) return kelStatusBadInterpolation;
  if (anyBadStep(srcStep, xMapStep, yMapStep, dstStep)) return kelStatusBadStep;
  return remap::remap<Kel8u, Layout::P3>(pSrc, srcSize, srcStep, srcROI, pxMap, xMapStep, pyMap, yMapStep, pDst, dstStep, dstRoiSize, interpolation);
}
KelStatus keliRemap_8u_P4R(const Kel8u* const pSrc[4], KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel8u* const pDst[4], int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation) {
  if (anyNull(pSrc, pxMap, pyMap, pDst) || anyPlaneNull<4>(pSrc) || anyPlaneNull<4>(pDst)) return kelStatusNullPointer;
  if (badRemapSizes(srcSize, srcROI, dstRoiSize)) return kelStatusBadSize;
  if (badInterpolation(interpolation)) return kelStatusBadInterpolation;
  if (anyBadStep(srcStep, xMapStep, yMapStep, dstStep)) return kelStatusBadStep;
  return remap::remap<Kel8u, Layout::P4>(pSrc, srcSize, srcStep, srcROI, pxMap, xMapStep, pyMap, yMapStep, pDst, dstStep, dstRoiSize, interpolation);
}
KelStatus keliRemap_32f_C1R(const Kel32f* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel32f* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation) {
  if (anyNull(pSrc, pxMap, pyMap, pDst)) return kelStatusNullPointer;
  if (badRemapSizes(srcSize, srcROI, dstRoiSize)) return kelStatusBadSize;
  if (badInterpolation(interpolation)) return kelStatusBadInterpolation;
  if (anyBadStep(srcStep, xMapStep, yMapStep, dstStep)) return kelStatusBadStep;
  return remap::remap<Kel32f, Layout::C1>(pSrc, srcSize, srcStep, srcROI, pxMap, xMapStep, pyMap, yMapStep, pDst, dstStep, dstRoiSize, interpolation);
}
KelStatus keliRemap_32f_C3R(const Kel32f* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel32f* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation) {
  if (anyNull(pSrc, pxMap, pyMap, pDst)) return kelStatusNullPointer;
  if (badRemapSizes(srcSize, srcROI, dstRoiSize)) return kelStatusBadSize;
  if (badInterpolation(interpolation)) return kelStatusBadInterpolation;
  if (anyBadStep(srcStep, xMapStep, yMapStep, dstStep)) return kelStatusBadStep;
  return remap::remap<Kel32f, Layout::C3>(pSrc, srcSize, srcStep, srcROI, pxMap, xMapStep, pyMap, yMapStep, pDst, dstStep, dstRoiSize, interpolation);
}
KelStatus keliRemap_32f_C4R(const Kel32f* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel32f* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation) {
  if (anyNull(pSrc, pxMap, pyMap, pDst)) return kelStatusNullPointer;
  if (badRemapSizes(srcSize, srcROI, dstRoiSize)) return kelStatusBadSize;
  if (badInterpolation(interpolation)) return kelStatusBadInterpolation;
  if (anyBadStep(srcStep, xMapStep, yMapStep, dstStep)) return kelStatusBadStep;
  return remap::remap<Kel32f, Layout::C4>(pSrc, srcSize, srcStep, srcROI, pxMap, xMapStep, pyMap, yMapStep, pDst, dstStep, dstRoiSize, interpolation);
}
KelStatus keliRemap_32f_AC4R(const Kel32f* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel32f* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation) {
  if (anyNull(pSrc, pxMap, pyMap, pDst)) return kelStatusNullPointer;
  if (badRemapSizes(srcSize, srcROI, dstRoiSize)) return kelStatusBadSize;
  if (badInterpolation(interpolation)) return kelStatusBadInterpolation;
  if (anyBadStep(srcStep, xMapStep, yMapStep, dstStep)) return kelStatusBadStep;
  return remap::remap<Kel32f, Layout::AC4>(pSrc, srcSize, srcStep, srcROI, pxMap, xMapStep, pyMap, yMapStep, pDst, dstStep, dstRoiSize, interpolation);
}
KelStatus keliRemap_32f_P3R(const Kel32f* const pSrc[3], KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel32f* const pDst[3], int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation) {
  if (anyNull(pSrc, pxMap, pyMap, pDst) || anyPlaneNull<3>(pSrc) || anyPlaneNull<3>(pDst)) return kelStatusNullPointer;
  if (badRemapSizes(srcSize, srcROI, dstRoiSize)) return kelStatusBadSize;
  if (badInterpolation(interpolation)) return kelStatusBadInterpolation;
  if (anyBadStep(srcStep, xMapStep, yMapStep, dstStep)) return kelStatusBadStep;
  return remap::remap<Kel32f, Layout::P3>(pSrc, srcSize, srcStep, srcROI, pxMap, xMapStep, pyMap, yMapStep, pDst, dstStep, dstRoiSize, interpolation);
}
KelStatus keliRemap_32f_P4R(const Kel32f* const pSrc[4], KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel32f* const pDst[4], int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation) {
  if (anyNull(pSrc, pxMap, pyMap, pDst) || anyPlaneNull<4>(pSrc) || anyPlaneNull<4>(pDst)) return kelStatusNullPointer;
  if (badRemapSizes(srcSize, srcROI, dstRoiSize)) return kelStatusBadSize;
  if (badInterpolation(interpolation)) return kelStatusBadInterpolation;
  if (anyBadStep(srcStep, xMapStep, yMapStep, dstStep)) return kelStatusBadStep;
  return remap::remap<Kel32f, Layout::P4>(pSrc, srcSize, srcStep, srcROI, pxMap, xMapStep, pyMap, yMapStep, pDst, dstStep, dstRoiSize, interpolation);
}
