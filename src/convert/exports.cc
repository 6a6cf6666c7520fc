// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "convert/bits.h"
#include "convert/convert.h"

using namespace keli;

KelStatus keliConvert_8u16u_C1R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel16u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u16u_C3R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel16u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u16u_C4R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel16u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u16u_AC4R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel16u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u16s_C1R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u16s_C3R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u16s_C4R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u16s_AC4R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u32s_C1R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel32s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u32s_C3R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel32s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u32s_C4R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel32s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u32s_AC4R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel32s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8s32s_C1R(const Kel8s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8s, Kel32s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8s32s_C3R(const Kel8s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8s, Kel32s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8s32s_C4R(const Kel8s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8s, Kel32s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8s32s_AC4R(const Kel8s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8s, Kel32s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u32f_C1R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u32f_C3R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u32f_C4R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u32f_AC4R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8u, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8s32f_C1R(const Kel8s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8s, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8s32f_C3R(const Kel8s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8s, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8s32f_C4R(const Kel8s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8s, Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8s32f_AC4R(const Kel8s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel8s, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16u32f_C1R(const Kel16u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16u, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16u32f_C3R(const Kel16u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16u, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16u32f_C4R(const Kel16u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16u, Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16u32f_AC4R(const Kel16u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16u, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16s32f_C1R(const Kel16s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16s, Kel32f, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16s32f_C3R(const Kel16s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16s, Kel32f, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16s32f_C4R(const Kel16s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16s, Kel32f, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16s32f_AC4R(const Kel16s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16s, Kel32f, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16u8u_C1R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16u, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16u8u_C3R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16u, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16u8u_C4R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16u, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16u8u_AC4R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16u, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16s8u_C1R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16s, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16s8u_C3R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16s, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16s8u_C4R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16s, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_16s8u_AC4R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel16s, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_32s8u_C1R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel32s, Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_32s8u_C3R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel32s, Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_32s8u_C4R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel32s, Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_32s8u_AC4R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel32s, Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_32s8s_C1R(const Kel32s* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel32s, Kel8s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_32s8s_C3R(const Kel32s* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel32s, Kel8s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_32s8s_C4R(const Kel32s* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel32s, Kel8s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_32s8s_AC4R(const Kel32s* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convert<Kel32s, Kel8s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliConvert_32f8u_C1R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel8u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_32f8u_C3R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel8u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_32f8u_C4R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel8u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_32f8u_AC4R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel8u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_32f8s_C1R(const Kel32f* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel8s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_32f8s_C3R(const Kel32f* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel8s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_32f8s_C4R(const Kel32f* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel8s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_32f8s_AC4R(const Kel32f* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel8s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_32f16u_C1R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel16u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_32f16u_C3R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel16u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_32f16u_C4R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel16u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_32f16u_AC4R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel16u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_32f16s_C1R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_32f16s_C3R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_32f16s_C4R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_32f16s_AC4R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::convertRounded<Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, roundMode);
}
KelStatus keliConvert_1u8u_C1R(const Kel8u* pSrc, int srcStep, int srcBitOffset, Kel8u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBitOffset(srcBitOffset)) return kelStatusBadRange;
  return convert::bitsToBytes(pSrc, srcStep, srcBitOffset, pDst, dstStep, roiSize);
}
KelStatus keliConvert_8u1u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, int dstBitOffset, KeliSize roiSize, Kel8u threshold) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  if (badBitOffset(dstBitOffset)) return kelStatusBadRange;
  return convert::bytesToBits(pSrc, srcStep, pDst, dstStep, dstBitOffset, roiSize, threshold);
}
KelStatus keliScale_8u16u_C1R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scale<Kel8u, Kel16u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliScale_8u16u_C3R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scale<Kel8u, Kel16u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliScale_8u16u_C4R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scale<Kel8u, Kel16u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliScale_8u16u_AC4R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scale<Kel8u, Kel16u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliScale_8u16s_C1R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scale<Kel8u, Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliScale_8u16s_C3R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scale<Kel8u, Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliScale_8u16s_C4R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scale<Kel8u, Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliScale_8u16s_AC4R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scale<Kel8u, Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliScale_8u32s_C1R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scale<Kel8u, Kel32s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliScale_8u32s_C3R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scale<Kel8u, Kel32s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliScale_8u32s_C4R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scale<Kel8u, Kel32s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliScale_8u32s_AC4R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scale<Kel8u, Kel32s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize);
}
KelStatus keliScale_16u8u_C1R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleDown<Kel16u, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, hint);
}
KelStatus keliScale_16u8u_C3R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleDown<Kel16u, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, hint);
}
KelStatus keliScale_16u8u_C4R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleDown<Kel16u, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, hint);
}
KelStatus keliScale_16u8u_AC4R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleDown<Kel16u, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, hint);
}
KelStatus keliScale_16s8u_C1R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleDown<Kel16s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, hint);
}
KelStatus keliScale_16s8u_C3R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleDown<Kel16s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, hint);
}
KelStatus keliScale_16s8u_C4R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleDown<Kel16s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, hint);
}
KelStatus keliScale_16s8u_AC4R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleDown<Kel16s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, hint);
}
KelStatus keliScale_32s8u_C1R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleDown<Kel32s, Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, hint);
}
KelStatus keliScale_32s8u_C3R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleDown<Kel32s, Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, hint);
}
KelStatus keliScale_32s8u_C4R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleDown<Kel32s, Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, hint);
}
KelStatus keliScale_32s8u_AC4R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint) {
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleDown<Kel32s, Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, hint);
}
KelStatus keliScale_8u32f_C1R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax) {
  if (!(vMax - vMin > 0)) return kelStatusEmptyRange;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleToRange<Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax);
}
KelStatus keliScale_8u32f_C3R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax) {
  if (!(vMax - vMin > 0)) return kelStatusEmptyRange;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleToRange<Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax);
}
KelStatus keliScale_8u32f_C4R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax) {
  if (!(vMax - vMin > 0)) return kelStatusEmptyRange;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleToRange<Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax);
}
KelStatus keliScale_8u32f_AC4R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax) {
  if (!(vMax - vMin > 0)) return kelStatusEmptyRange;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleToRange<Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax);
}
KelStatus keliScale_32f8u_C1R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax) {
  if (!(vMax - vMin > 0)) return kelStatusEmptyRange;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleFromRange<Layout::C1>(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax);
}
KelStatus keliScale_32f8u_C3R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax) {
  if (!(vMax - vMin > 0)) return kelStatusEmptyRange;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleFromRange<Layout::C3>(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax);
}
KelStatus keliScale_32f8u_C4R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax) {
  if (!(vMax - vMin > 0)) return kelStatusEmptyRange;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleFromRange<Layout::C4>(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax);
}
KelStatus keliScale_32f8u_AC4R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax) {
  if (!(vMax - vMin > 0)) return kelStatusEmptyRange;
  if (anyNull(pSrc, pDst)) return kelStatusNullPointer;
  if (badSize(roiSize)) return kelStatusBadSize;
  if (anyBadStep(srcStep, dstStep)) return kelStatusBadStep;
  return convert::scaleFromRange<Layout::AC4>(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax);
}
