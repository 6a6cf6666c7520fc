// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "math/unary.h"

using namespace keli;

KelStatus keliAbs_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Abs, Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliAbs_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Abs, Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliAbs_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Abs, Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliAbs_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Abs, Kel16s, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAbs_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Abs, Kel16s, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAbs_16s_C4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Abs, Kel16s, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAbs_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Abs, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliAbs_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Abs, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliAbs_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Abs, Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliAbs_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Abs, Kel32f, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAbs_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Abs, Kel32f, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAbs_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Abs, Kel32f, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAbs_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::absAC4<Kel16s>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliAbs_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::absAC4<Kel16s>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAbs_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::absAC4<Kel32f>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliAbs_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::absAC4<Kel32f>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSqr_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_8u_C3RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_8u_C4RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_8u_AC4RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_8u_C1IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel8u, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_8u_C3IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel8u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_8u_C4IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel8u, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_8u_AC4IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel8u, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16u_C1RSfs(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16u_C3RSfs(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16u_C4RSfs(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16u_AC4RSfs(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16u_C1IRSfs(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16u, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16u_C3IRSfs(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16u_C4IRSfs(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16u, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16u_AC4IRSfs(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16u, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16s_C3RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16s_C4RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16s_AC4RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16s_C1IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16s, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16s_C3IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16s, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16s_C4IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16s, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_16s_AC4IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel16s, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqr_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliSqr_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliSqr_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliSqr_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliSqr_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel32f, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSqr_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel32f, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSqr_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel32f, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSqr_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqr, Kel32f, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSqrt_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_8u_C3RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_8u_AC4RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_8u_C1IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel8u, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_8u_C3IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel8u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_8u_AC4IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel8u, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_16u_C1RSfs(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel16u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_16u_C3RSfs(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel16u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_16u_AC4RSfs(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel16u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_16u_C1IRSfs(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel16u, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_16u_C3IRSfs(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel16u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_16u_AC4IRSfs(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel16u, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_16s_C3RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_16s_AC4RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_16s_C1IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel16s, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_16s_C3IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel16s, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_16s_AC4IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel16s, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSqrt_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliSqrt_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliSqrt_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel32f, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSqrt_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel32f, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSqrt_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel32f, Layout::C4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSqrt_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Sqrt, Kel32f, Layout::AC4>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSqrt_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::sqrtOfWholeSteps(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliLn_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Ln, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliLn_8u_C3RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Ln, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliLn_8u_C1IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Ln, Kel8u, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliLn_8u_C3IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Ln, Kel8u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliLn_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Ln, Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliLn_16s_C3RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Ln, Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliLn_16s_C1IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Ln, Kel16s, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliLn_16s_C3IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Ln, Kel16s, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliLn_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Ln, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliLn_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Ln, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliLn_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Ln, Kel32f, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliLn_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Ln, Kel32f, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliExp_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Exp, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliExp_8u_C3RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Exp, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliExp_8u_C1IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Exp, Kel8u, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliExp_8u_C3IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Exp, Kel8u, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliExp_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Exp, Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliExp_16s_C3RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Exp, Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliExp_16s_C1IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Exp, Kel16s, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliExp_16s_C3IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Exp, Kel16s, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliExp_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Exp, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliExp_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return math::unary<math::Exp, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliExp_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Exp, Kel32f, Layout::C1>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliExp_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return math::unary<math::Exp, Kel32f, Layout::C3>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
