// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "arith/binary.h"
#include "arith/constant.h"

using namespace keli;

KelStatus keliAdd_8u_C1RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel8u, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_8u_C3RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel8u, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_8u_C4RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel8u, Layout::C4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_8u_AC4RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel8u, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_8u_C1IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel8u, Layout::C1, Team::kThreads>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_8u_C3IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel8u, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_8u_C4IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel8u, Layout::C4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_8u_AC4IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel8u, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_16s_C1RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel16s, Layout::C1, Team::kThreads>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_16s_C3RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel16s, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_16s_C4RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel16s, Layout::C4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_16s_AC4RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel16s, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_16s_C1IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel16s, Layout::C1, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_16s_C3IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel16s, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_16s_C4IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel16s, Layout::C4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_16s_AC4IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel16s, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32f, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAdd_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32f, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAdd_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32f, Layout::C4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAdd_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32f, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAdd_32f_C1IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32f, Layout::C1, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAdd_32f_C3IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32f, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAdd_32f_C4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32f, Layout::C4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAdd_32f_AC4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32f, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSub_8u_C1RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel8u, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSub_8u_C3RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel8u, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSub_8u_C4RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel8u, Layout::C4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSub_8u_AC4RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel8u, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSub_8u_C1IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel8u, Layout::C1, Team::kThreads>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSub_8u_C3IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel8u, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSub_8u_C4IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel8u, Layout::C4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSub_8u_AC4IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel8u, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSub_16s_C1RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel16s, Layout::C1, Team::kThreads>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSub_16s_C3RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel16s, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSub_16s_C4RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel16s, Layout::C4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSub_16s_AC4RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel16s, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSub_16s_C1IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel16s, Layout::C1, Team::kThreads>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSub_16s_C3IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel16s, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSub_16s_C4IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel16s, Layout::C4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSub_16s_AC4IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel16s, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSub_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32f, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliSub_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32f, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliSub_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32f, Layout::C4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliSub_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32f, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliSub_32f_C1IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32f, Layout::C1, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSub_32f_C3IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32f, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSub_32f_C4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32f, Layout::C4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSub_32f_AC4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32f, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMul_8u_C1RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel8u, Layout::C1, Team::kThreads>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMul_8u_C3RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel8u, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMul_8u_C4RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel8u, Layout::C4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMul_8u_AC4RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel8u, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMul_8u_C1IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel8u, Layout::C1, Team::kThreads>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMul_8u_C3IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel8u, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMul_8u_C4IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel8u, Layout::C4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMul_8u_AC4IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel8u, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMul_16s_C1RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel16s, Layout::C1, Team::kThreads>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMul_16s_C3RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel16s, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMul_16s_C4RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel16s, Layout::C4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMul_16s_AC4RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel16s, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMul_16s_C1IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel16s, Layout::C1, Team::kThreads>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMul_16s_C3IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel16s, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMul_16s_C4IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel16s, Layout::C4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMul_16s_AC4IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel16s, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMul_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32f, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliMul_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32f, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliMul_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32f, Layout::C4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliMul_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32f, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliMul_32f_C1IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32f, Layout::C1, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMul_32f_C3IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32f, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMul_32f_C4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (badWidth(roiSize)) return kelStatusBadSize;
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32f, Layout::C4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMul_32f_AC4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32f, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAddC_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel8u, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_8u_C3RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel8u, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_8u_C4RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel8u, Layout::C4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_8u_AC4RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel8u, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_8u_C1IRSfs(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel8u, Layout::C1, Team::kThreads>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_8u_C3IRSfs(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel8u, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_8u_C4IRSfs(const Kel8u value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel8u, Layout::C4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_8u_AC4IRSfs(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel8u, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel16s, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_16s_C3RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel16s, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_16s_C4RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[4], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel16s, Layout::C4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_16s_AC4RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel16s, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_16s_C1IRSfs(Kel16s value, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel16s, Layout::C1, Team::kThreads>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_16s_C3IRSfs(const Kel16s value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel16s, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_16s_C4IRSfs(const Kel16s value[4], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel16s, Layout::C4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_16s_AC4IRSfs(const Kel16s value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel16s, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32f, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAddC_32f_C3R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32f, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAddC_32f_C4R(const Kel32f* pSrc, int srcStep, const Kel32f value[4], Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32f, Layout::C4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAddC_32f_AC4R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32f, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAddC_32f_C1IR(Kel32f value, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32f, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAddC_32f_C3IR(const Kel32f value[3], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32f, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAddC_32f_C4IR(const Kel32f value[4], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32f, Layout::C4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAddC_32f_AC4IR(const Kel32f value[3], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32f, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSubC_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel8u, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_8u_C3RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel8u, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_8u_C4RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel8u, Layout::C4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_8u_AC4RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel8u, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_8u_C1IRSfs(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel8u, Layout::C1, Team::kThreads>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_8u_C3IRSfs(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel8u, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_8u_C4IRSfs(const Kel8u value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel8u, Layout::C4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_8u_AC4IRSfs(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel8u, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel16s, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_16s_C3RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel16s, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_16s_C4RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[4], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel16s, Layout::C4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_16s_AC4RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel16s, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_16s_C1IRSfs(Kel16s value, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel16s, Layout::C1, Team::kThreads>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_16s_C3IRSfs(const Kel16s value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel16s, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_16s_C4IRSfs(const Kel16s value[4], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel16s, Layout::C4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_16s_AC4IRSfs(const Kel16s value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel16s, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32f, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliSubC_32f_C3R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32f, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliSubC_32f_C4R(const Kel32f* pSrc, int srcStep, const Kel32f value[4], Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32f, Layout::C4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliSubC_32f_AC4R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32f, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliSubC_32f_C1IR(Kel32f value, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32f, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSubC_32f_C3IR(const Kel32f value[3], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32f, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSubC_32f_C4IR(const Kel32f value[4], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32f, Layout::C4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSubC_32f_AC4IR(const Kel32f value[3], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32f, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulC_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel8u, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_8u_C3RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel8u, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_8u_C4RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel8u, Layout::C4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_8u_AC4RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel8u, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_8u_C1IRSfs(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel8u, Layout::C1, Team::kThreads>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_8u_C3IRSfs(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel8u, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_8u_C4IRSfs(const Kel8u value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel8u, Layout::C4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_8u_AC4IRSfs(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel8u, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel16s, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_16s_C3RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel16s, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_16s_C4RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[4], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel16s, Layout::C4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_16s_AC4RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel16s, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_16s_C1IRSfs(Kel16s value, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel16s, Layout::C1, Team::kThreads>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_16s_C3IRSfs(const Kel16s value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel16s, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_16s_C4IRSfs(const Kel16s value[4], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel16s, Layout::C4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_16s_AC4IRSfs(const Kel16s value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel16s, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32f, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliMulC_32f_C3R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32f, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliMulC_32f_C4R(const Kel32f* pSrc, int srcStep, const Kel32f value[4], Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32f, Layout::C4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliMulC_32f_AC4R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32f, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliMulC_32f_C1IR(Kel32f value, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32f, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulC_32f_C3IR(const Kel32f value[3], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32f, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulC_32f_C4IR(const Kel32f value[4], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32f, Layout::C4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulC_32f_AC4IR(const Kel32f value[3], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32f, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulScale_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel8u, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliMulScale_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel8u, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliMulScale_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel8u, Layout::C4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliMulScale_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel8u, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliMulScale_8u_C1IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel8u, Layout::C1, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulScale_8u_C3IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel8u, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulScale_8u_C4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel8u, Layout::C4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulScale_8u_AC4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel8u, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulScale_16u_C1R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel16u, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliMulScale_16u_C3R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel16u, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliMulScale_16u_C4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel16u, Layout::C4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliMulScale_16u_AC4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel16u, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliMulScale_16u_C1IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel16u, Layout::C1, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulScale_16u_C3IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel16u, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulScale_16u_C4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel16u, Layout::C4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulScale_16u_AC4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::binary<arith::MulScale, Kel16u, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulCScale_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel8u, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliMulCScale_8u_C3R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel8u, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliMulCScale_8u_C4R(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel8u, Layout::C4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliMulCScale_8u_AC4R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel8u, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliMulCScale_8u_C1IR(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel8u, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulCScale_8u_C3IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel8u, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulCScale_8u_C4IR(const Kel8u value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel8u, Layout::C4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulCScale_8u_AC4IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel8u, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulCScale_16u_C1R(const Kel16u* pSrc, int srcStep, Kel16u value, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel16u, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliMulCScale_16u_C3R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel16u, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliMulCScale_16u_C4R(const Kel16u* pSrc, int srcStep, const Kel16u value[4], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel16u, Layout::C4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliMulCScale_16u_AC4R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel16u, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliMulCScale_16u_C1IR(Kel16u value, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel16u, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulCScale_16u_C3IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel16u, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulCScale_16u_C4IR(const Kel16u value[4], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel16u, Layout::C4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulCScale_16u_AC4IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (badSize(roiSize)) return kelStatusBadSize;
  return arith::constant<arith::MulScale, Kel16u, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
