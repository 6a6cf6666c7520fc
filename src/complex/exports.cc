// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "arith/binary.h"
#include "arith/constant.h"
#include "complex/div.h"

using namespace keli;

KelStatus keliAdd_16sc_C1RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel16sc, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_16sc_C3RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel16sc, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_16sc_AC4RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel16sc, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_16sc_C1IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel16sc, Layout::C1, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_16sc_C3IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel16sc, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_16sc_AC4IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel16sc, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_32sc_C1RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32sc, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_32sc_C3RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32sc, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_32sc_AC4RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32sc, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_32sc_C1IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32sc, Layout::C1, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_32sc_C3IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32sc, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_32sc_AC4IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32sc, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAdd_32fc_C1R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32fc, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAdd_32fc_C3R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32fc, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAdd_32fc_AC4R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32fc, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliAdd_32fc_C1IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32fc, Layout::C1, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAdd_32fc_C3IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32fc, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAdd_32fc_AC4IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Add, Kel32fc, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSub_16sc_C1RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel16sc, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSub_16sc_C3RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel16sc, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSub_16sc_AC4RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel16sc, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSub_16sc_C1IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel16sc, Layout::C1, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSub_16sc_C3IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel16sc, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSub_16sc_AC4IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel16sc, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSub_32sc_C1RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32sc, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSub_32sc_C3RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32sc, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSub_32sc_AC4RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32sc, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSub_32sc_C1IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32sc, Layout::C1, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSub_32sc_C3IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32sc, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSub_32sc_AC4IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32sc, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSub_32fc_C1R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32fc, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliSub_32fc_C3R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32fc, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliSub_32fc_AC4R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32fc, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliSub_32fc_C1IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32fc, Layout::C1, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSub_32fc_C3IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32fc, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSub_32fc_AC4IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Sub, Kel32fc, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMul_16sc_C1RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel16sc, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMul_16sc_C3RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel16sc, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMul_16sc_AC4RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel16sc, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMul_16sc_C1IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel16sc, Layout::C1, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMul_16sc_C3IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel16sc, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMul_16sc_AC4IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel16sc, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMul_32sc_C1RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32sc, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMul_32sc_C3RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32sc, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMul_32sc_AC4RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32sc, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMul_32sc_C1IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32sc, Layout::C1, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMul_32sc_C3IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32sc, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMul_32sc_AC4IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32sc, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMul_32fc_C1R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32fc, Layout::C1, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliMul_32fc_C3R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32fc, Layout::C3, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliMul_32fc_AC4R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32fc, Layout::AC4, Team::kCaller>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliMul_32fc_C1IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32fc, Layout::C1, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMul_32fc_C3IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32fc, Layout::C3, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMul_32fc_AC4IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return arith::binary<arith::Mul, Kel32fc, Layout::AC4, Team::kCaller>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDiv_16sc_C1RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return complex::div<Kel16sc, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_16sc_C3RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return complex::div<Kel16sc, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_16sc_AC4RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return complex::div<Kel16sc, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_16sc_C1IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return complex::div<Kel16sc, Layout::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_16sc_C3IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return complex::div<Kel16sc, Layout::C3>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_16sc_AC4IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return complex::div<Kel16sc, Layout::AC4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_32sc_C1RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return complex::div<Kel32sc, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_32sc_C3RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return complex::div<Kel32sc, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_32sc_AC4RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return complex::div<Kel32sc, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_32sc_C1IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return complex::div<Kel32sc, Layout::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_32sc_C3IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return complex::div<Kel32sc, Layout::C3>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_32sc_AC4IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return complex::div<Kel32sc, Layout::AC4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDiv_32fc_C1R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return complex::div<Kel32fc, Layout::C1>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliDiv_32fc_C3R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return complex::div<Kel32fc, Layout::C3>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliDiv_32fc_AC4R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc1, pSrc2, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(src1Step, src2Step, dstStep)) return kelStatusBadStep;
  return complex::div<Kel32fc, Layout::AC4>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize);
}
KelStatus keliDiv_32fc_C1IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return complex::div<Kel32fc, Layout::C1>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDiv_32fc_C3IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return complex::div<Kel32fc, Layout::C3>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDiv_32fc_AC4IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, srcDstStep)) return kelStatusBadStep;
  return complex::div<Kel32fc, Layout::AC4>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAddC_16sc_C1RSfs(const Kel16sc* pSrc, int srcStep, Kel16sc value, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel16sc, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_16sc_C3RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel16sc, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_16sc_AC4RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel16sc, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_16sc_C1IRSfs(Kel16sc value, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel16sc, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_16sc_C3IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel16sc, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_16sc_AC4IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel16sc, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_32sc_C1RSfs(const Kel32sc* pSrc, int srcStep, Kel32sc value, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32sc, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_32sc_C3RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32sc, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_32sc_AC4RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32sc, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_32sc_C1IRSfs(Kel32sc value, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32sc, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_32sc_C3IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32sc, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_32sc_AC4IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32sc, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliAddC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc value, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32fc, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAddC_32fc_C3R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32fc, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAddC_32fc_AC4R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32fc, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliAddC_32fc_C1IR(Kel32fc value, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32fc, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAddC_32fc_C3IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32fc, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliAddC_32fc_AC4IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Add, Kel32fc, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSubC_16sc_C1RSfs(const Kel16sc* pSrc, int srcStep, Kel16sc value, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel16sc, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_16sc_C3RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel16sc, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_16sc_AC4RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel16sc, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_16sc_C1IRSfs(Kel16sc value, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel16sc, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_16sc_C3IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel16sc, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_16sc_AC4IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel16sc, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_32sc_C1RSfs(const Kel32sc* pSrc, int srcStep, Kel32sc value, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32sc, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_32sc_C3RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32sc, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_32sc_AC4RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32sc, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_32sc_C1IRSfs(Kel32sc value, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32sc, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_32sc_C3IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32sc, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_32sc_AC4IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32sc, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliSubC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc value, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32fc, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliSubC_32fc_C3R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32fc, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliSubC_32fc_AC4R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32fc, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliSubC_32fc_C1IR(Kel32fc value, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32fc, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSubC_32fc_C3IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32fc, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliSubC_32fc_AC4IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Sub, Kel32fc, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulC_16sc_C1RSfs(const Kel16sc* pSrc, int srcStep, Kel16sc value, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel16sc, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_16sc_C3RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel16sc, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_16sc_AC4RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel16sc, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_16sc_C1IRSfs(Kel16sc value, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel16sc, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_16sc_C3IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel16sc, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_16sc_AC4IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel16sc, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_32sc_C1RSfs(const Kel32sc* pSrc, int srcStep, Kel32sc value, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32sc, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_32sc_C3RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32sc, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_32sc_AC4RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32sc, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_32sc_C1IRSfs(Kel32sc value, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32sc, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_32sc_C3IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32sc, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_32sc_AC4IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32sc, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliMulC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc value, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32fc, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliMulC_32fc_C3R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32fc, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliMulC_32fc_AC4R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32fc, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliMulC_32fc_C1IR(Kel32fc value, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32fc, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulC_32fc_C3IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32fc, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliMulC_32fc_AC4IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  return arith::constant<arith::Mul, Kel32fc, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDivC_16sc_C1RSfs(const Kel16sc* pSrc, int srcStep, Kel16sc value, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (isZero(value)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel16sc, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_16sc_C3RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel16sc, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_16sc_AC4RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel16sc, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_16sc_C1IRSfs(Kel16sc value, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (isZero(value)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel16sc, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_16sc_C3IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel16sc, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_16sc_AC4IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel16sc, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_32sc_C1RSfs(const Kel32sc* pSrc, int srcStep, Kel32sc value, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (isZero(value)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel32sc, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_32sc_C3RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel32sc, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_32sc_AC4RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel32sc, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_32sc_C1IRSfs(Kel32sc value, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (isZero(value)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel32sc, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_32sc_C3IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel32sc, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_32sc_AC4IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel32sc, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize, scaleFactor);
}
KelStatus keliDivC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc value, Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (isZero(value)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel32fc, Layout::C1, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliDivC_32fc_C3R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel32fc, Layout::C3, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliDivC_32fc_AC4R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, value, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel32fc, Layout::AC4, Team::kCaller>(pSrc, srcStep, value, pDst, dstStep, roiSize);
}
KelStatus keliDivC_32fc_C1IR(Kel32fc value, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (isZero(value)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel32fc, Layout::C1, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDivC_32fc_C3IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel32fc, Layout::C3, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
KelStatus keliDivC_32fc_AC4IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize) {
  if (anyNull(value, pSrcDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcDstStep)) return kelStatusBadStep;
  if (anyZero(value, 3)) return kelStatusDivisorZero;
  return arith::constant<complex::Div, Kel32fc, Layout::AC4, Team::kCaller>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roiSize);
}
