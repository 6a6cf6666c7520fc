// The exported functions: checks in their order, then one call of the frame. Written by api/generate.py from the tables in api/; do not edit.
#include "core/checks.h"
#include "keli.h"
#include "core/memory.h"
#include "core/version.h"

using namespace keli;

Kel8u* keliMalloc_8u_C1(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel8u, Layout::C1>(widthPixels, heightPixels, pStepBytes);
}
Kel8u* keliMalloc_8u_C2(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel8u, Layout::C2>(widthPixels, heightPixels, pStepBytes);
}
Kel8u* keliMalloc_8u_C3(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel8u, Layout::C3>(widthPixels, heightPixels, pStepBytes);
}
Kel8u* keliMalloc_8u_C4(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel8u, Layout::C4>(widthPixels, heightPixels, pStepBytes);
}
Kel8u* keliMalloc_8u_AC4(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel8u, Layout::AC4>(widthPixels, heightPixels, pStepBytes);
}
Kel8u* keliMalloc_8u_P3(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel8u, Layout::P3>(widthPixels, heightPixels, pStepBytes);
}
Kel16u* keliMalloc_16u_C1(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel16u, Layout::C1>(widthPixels, heightPixels, pStepBytes);
}
Kel16u* keliMalloc_16u_C2(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel16u, Layout::C2>(widthPixels, heightPixels, pStepBytes);
}
Kel16u* keliMalloc_16u_C3(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel16u, Layout::C3>(widthPixels, heightPixels, pStepBytes);
}
Kel16u* keliMalloc_16u_C4(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel16u, Layout::C4>(widthPixels, heightPixels, pStepBytes);
}
Kel16u* keliMalloc_16u_AC4(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel16u, Layout::AC4>(widthPixels, heightPixels, pStepBytes);
}
Kel16u* keliMalloc_16u_P3(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel16u, Layout::P3>(widthPixels, heightPixels, pStepBytes);
}
Kel16s* keliMalloc_16s_C1(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel16s, Layout::C1>(widthPixels, heightPixels, pStepBytes);
}
Kel16s* keliMalloc_16s_C2(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel16s, Layout::C2>(widthPixels, heightPixels, pStepBytes);
}
Kel16s* keliMalloc_16s_C3(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel16s, Layout::C3>(widthPixels, heightPixels, pStepBytes);
}
Kel16s* keliMalloc_16s_C4(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel16s, Layout::C4>(widthPixels, heightPixels, pStepBytes);
}
Kel16s* keliMalloc_16s_AC4(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel16s, Layout::AC4>(widthPixels, heightPixels, pStepBytes);
}
Kel16s* keliMalloc_16s_P3(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel16s, Layout::P3>(widthPixels, heightPixels, pStepBytes);
}
Kel32s* keliMalloc_32s_C1(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32s, Layout::C1>(widthPixels, heightPixels, pStepBytes);
}
Kel32s* keliMalloc_32s_C2(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32s, Layout::C2>(widthPixels, heightPixels, pStepBytes);
}
Kel32s* keliMalloc_32s_C3(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32s, Layout::C3>(widthPixels, heightPixels, pStepBytes);
}
Kel32s* keliMalloc_32s_C4(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32s, Layout::C4>(widthPixels, heightPixels, pStepBytes);
}
Kel32s* keliMalloc_32s_AC4(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32s, Layout::AC4>(widthPixels, heightPixels, pStepBytes);
}
Kel32s* keliMalloc_32s_P3(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32s, Layout::P3>(widthPixels, heightPixels, pStepBytes);
}
Kel32f* keliMalloc_32f_C1(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32f, Layout::C1>(widthPixels, heightPixels, pStepBytes);
}
Kel32f* keliMalloc_32f_C2(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32f, Layout::C2>(widthPixels, heightPixels, pStepBytes);
}
Kel32f* keliMalloc_32f_C3(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32f, Layout::C3>(widthPixels, heightPixels, pStepBytes);
}
Kel32f* keliMalloc_32f_C4(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32f, Layout::C4>(widthPixels, heightPixels, pStepBytes);
}
Kel32f* keliMalloc_32f_AC4(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32f, Layout::AC4>(widthPixels, heightPixels, pStepBytes);
}
Kel32f* keliMalloc_32f_P3(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32f, Layout::P3>(widthPixels, heightPixels, pStepBytes);
}
Kel32sc* keliMalloc_32sc_C1(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32sc, Layout::C1>(widthPixels, heightPixels, pStepBytes);
}
Kel32sc* keliMalloc_32sc_C2(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32sc, Layout::C2>(widthPixels, heightPixels, pStepBytes);
}
Kel32sc* keliMalloc_32sc_C3(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32sc, Layout::C3>(widthPixels, heightPixels, pStepBytes);
}
Kel32sc* keliMalloc_32sc_C4(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32sc, Layout::C4>(widthPixels, heightPixels, pStepBytes);
}
Kel32sc* keliMalloc_32sc_AC4(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32sc, Layout::AC4>(widthPixels, heightPixels, pStepBytes);
}
Kel32sc* keliMalloc_32sc_P3(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32sc, Layout::P3>(widthPixels, heightPixels, pStepBytes);
}
Kel32fc* keliMalloc_32fc_C1(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32fc, Layout::C1>(widthPixels, heightPixels, pStepBytes);
}
Kel32fc* keliMalloc_32fc_C2(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32fc, Layout::C2>(widthPixels, heightPixels, pStepBytes);
}
Kel32fc* keliMalloc_32fc_C3(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32fc, Layout::C3>(widthPixels, heightPixels, pStepBytes);
}
Kel32fc* keliMalloc_32fc_C4(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32fc, Layout::C4>(widthPixels, heightPixels, pStepBytes);
}
Kel32fc* keliMalloc_32fc_AC4(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32fc, Layout::AC4>(widthPixels, heightPixels, pStepBytes);
}
Kel32fc* keliMalloc_32fc_P3(int widthPixels, int heightPixels, int* pStepBytes) {
  return core::mallocImage<Kel32fc, Layout::P3>(widthPixels, heightPixels, pStepBytes);
}
void keliFree(void* ptr) {
  core::freeImage(ptr);
}
const KelLibraryVersion* keliGetLibVersion() {
  return core::libraryVersion();
}
KelStatus keliDrawText_8u_C3R(const Kel8u*, int, Kel8u*, int, KeliSize, const char*, KeliPoint, const Kel8u*, int) {
  return core::drawText();
}
