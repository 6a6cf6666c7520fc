/* keli: image-processing primitives. Written by api/generate.py from the tables in api/; do not edit. */
#ifndef KELI_H
#define KELI_H

#include "keli_spec.h"
#include "keli_status.h"
#include "keli_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ==== Image memory, version ==== */

/**
 * Allocates an image whose rows start on 32-byte boundaries.
 *
 *     step = widthPixels * bytes of a pixel (P3: of a sample), rounded up to a multiple of 32
 *
 * Returns the address of the first pixel, a multiple of 32, and writes the step in bytes
 * through pStepBytes. An AC4 image is allocated as a C4 image. A P3 image is one block of three
 * planes, one after another: plane k starts k * heightPixels * step bytes after the returned
 * address. The pixels are not initialised. Release the block with keliFree.
 *
 * Returns null, and does nothing else, when pStepBytes is null; null with a step of 0 when a
 * width or height is less than 1; null with the step written (modulo 2^32) when the heap is
 * exhausted or the block's byte count does not fit a signed 32-bit integer.
 */
KELI_API Kel8u* keliMalloc_8u_C1(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel8u* keliMalloc_8u_C2(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel8u* keliMalloc_8u_C3(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel8u* keliMalloc_8u_C4(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel8u* keliMalloc_8u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel8u* keliMalloc_8u_P3(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel16u* keliMalloc_16u_C1(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel16u* keliMalloc_16u_C2(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel16u* keliMalloc_16u_C3(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel16u* keliMalloc_16u_C4(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel16u* keliMalloc_16u_AC4(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel16u* keliMalloc_16u_P3(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel16s* keliMalloc_16s_C1(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel16s* keliMalloc_16s_C2(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel16s* keliMalloc_16s_C3(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel16s* keliMalloc_16s_C4(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel16s* keliMalloc_16s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel16s* keliMalloc_16s_P3(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32s* keliMalloc_32s_C1(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32s* keliMalloc_32s_C2(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32s* keliMalloc_32s_C3(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32s* keliMalloc_32s_C4(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32s* keliMalloc_32s_AC4(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32s* keliMalloc_32s_P3(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32f* keliMalloc_32f_C1(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32f* keliMalloc_32f_C2(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32f* keliMalloc_32f_C3(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32f* keliMalloc_32f_C4(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32f* keliMalloc_32f_AC4(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32f* keliMalloc_32f_P3(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32sc* keliMalloc_32sc_C1(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32sc* keliMalloc_32sc_C2(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32sc* keliMalloc_32sc_C3(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32sc* keliMalloc_32sc_C4(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32sc* keliMalloc_32sc_AC4(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32sc* keliMalloc_32sc_P3(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32fc* keliMalloc_32fc_C1(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32fc* keliMalloc_32fc_C2(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32fc* keliMalloc_32fc_C3(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32fc* keliMalloc_32fc_C4(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32fc* keliMalloc_32fc_AC4(int widthPixels, int heightPixels, int* pStepBytes);
KELI_API Kel32fc* keliMalloc_32fc_P3(int widthPixels, int heightPixels, int* pStepBytes);

/**
 * Releases a block from any of the allocators.
 *
 * ptr is the address that the allocator returned; null is ignored.
 */
KELI_API void keliFree(void* ptr);

/**
 * Returns the library's identity: a static record, neither to be changed nor freed.
 */
KELI_API const KelLibraryVersion* keliGetLibVersion(void);

/**
 * Draws nothing: reserved for text drawing.
 *
 * Reads none of its arguments, writes nothing and always returns kelStatusWarning (1).
 */
KELI_API KelStatus keliDrawText_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const char* text, KeliPoint origin, const Kel8u* color, int height);

/* ==== Copy, set and channel exchange ==== */

/**
 * Copies a region.
 *
 *     dst = src
 *
 * AC4 leaves the fourth sample of every destination pixel as it was. Source and destination may
 * be the same image; regions that overlap otherwise give an undefined result.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliCopy_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Copies the pixels of a region that a mask selects.
 *
 *     dst = src where mask != 0
 *
 * The mask is a one-channel 8u image of the region's size; any byte other than 0 selects the
 * pixel. The other pixels keep their values, and AC4 leaves the fourth sample of every pixel as
 * it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliCopy_8u_C1MR(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliCopy_8u_C3MR(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliCopy_8u_C4MR(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliCopy_8u_AC4MR(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliCopy_16s_C1MR(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliCopy_16s_C3MR(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliCopy_16s_C4MR(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliCopy_16s_AC4MR(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliCopy_32f_C1MR(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliCopy_32f_C3MR(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliCopy_32f_C4MR(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliCopy_32f_AC4MR(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);

/**
 * Copies one channel of an interleaved image into a one-channel image.
 *
 *     dst[x] = src[channels * x]
 *
 * pSrc addresses the wanted channel of the first pixel: pSrc + 1 selects the second channel. No
 * sample after the last pixel's wanted one is read.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliCopy_8u_C3C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_8u_C4C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_C3C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_C4C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_C3C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_C4C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Copies a one-channel image into one channel of an interleaved image.
 *
 *     dst[channels * x] = src[x]
 *
 * pDst addresses the wanted channel of the first pixel. The other channels keep their values.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliCopy_8u_C1C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_8u_C1C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_C1C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_C1C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_C1C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_C1C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Copies one channel of an interleaved image into one channel of another.
 *
 *     dst[channels * x] = src[channels * x]
 *
 * Each pointer addresses the wanted channel of its first pixel; the two may differ. The other
 * channels of the destination keep their values.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliCopy_8u_C3CR(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_8u_C4CR(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_C3CR(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_C4CR(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_C3CR(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_C4CR(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Copies the three colour channels between three- and four-channel pixels.
 *
 *     dst[k] = src[k], k = 0, 1, 2
 *
 * C3AC4 leaves the fourth sample of every destination pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliCopy_8u_AC4C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_8u_C3AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_AC4C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_C3AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_AC4C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_C3AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Splits an interleaved image into planes, or interleaves planes.
 *
 *     C3P3: dst[k][x] = src[3 * x + k]; P3C3: dst[3 * x + k] = src[k][x]
 *
 * The planes are given as an array of pointers, one for each channel, and share one step. A
 * null pointer inside the array is reported as a null pointer.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliCopy_8u_C3P3R(const Kel8u* pSrc, int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_8u_C4P4R(const Kel8u* pSrc, int srcStep, Kel8u* const pDst[4], int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_8u_P3C3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_8u_P4C4R(const Kel8u* const pSrc[4], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_C3P3R(const Kel16s* pSrc, int srcStep, Kel16s* const pDst[3], int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_C4P4R(const Kel16s* pSrc, int srcStep, Kel16s* const pDst[4], int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_P3C3R(const Kel16s* const pSrc[3], int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_16s_P4C4R(const Kel16s* const pSrc[4], int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_C3P3R(const Kel32f* pSrc, int srcStep, Kel32f* const pDst[3], int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_C4P4R(const Kel32f* pSrc, int srcStep, Kel32f* const pDst[4], int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_P3C3R(const Kel32f* const pSrc[3], int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliCopy_32f_P4C4R(const Kel32f* const pSrc[4], int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Sets every pixel of a region to a constant.
 *
 *     dst = value
 *
 * The constant is one value for C1 and an array of one value for each channel set otherwise.
 * AC4 takes three values and leaves the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusNullPointer if an
 * array of values is null.
 */
KELI_API KelStatus keliSet_8u_C1R(Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_8u_C3R(const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_8u_C4R(const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_8u_AC4R(const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_16s_C1R(Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_16s_C3R(const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_16s_C4R(const Kel16s value[4], Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_16s_AC4R(const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_32f_C1R(Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_32f_C3R(const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_32f_C4R(const Kel32f value[4], Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_32f_AC4R(const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Sets the pixels of a region that a mask selects to a constant.
 *
 *     dst = value where mask != 0
 *
 * The mask is a one-channel 8u image of the region's size; any byte other than 0 selects the
 * pixel. The other pixels keep their values, and AC4 leaves the fourth sample of every pixel as
 * it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusNullPointer if an
 * array of values is null.
 */
KELI_API KelStatus keliSet_8u_C1MR(Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliSet_8u_C3MR(const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliSet_8u_C4MR(const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliSet_8u_AC4MR(const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliSet_16s_C1MR(Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliSet_16s_C3MR(const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliSet_16s_C4MR(const Kel16s value[4], Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliSet_16s_AC4MR(const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliSet_32f_C1MR(Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliSet_32f_C3MR(const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliSet_32f_C4MR(const Kel32f value[4], Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);
KELI_API KelStatus keliSet_32f_AC4MR(const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, int maskStep);

/**
 * Sets one channel of an interleaved image to a constant.
 *
 *     dst[channels * x] = value
 *
 * pDst addresses the wanted channel of the first pixel. The other channels keep their values.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSet_8u_C3CR(Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_8u_C4CR(Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_16s_C3CR(Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_16s_C4CR(Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_32f_C3CR(Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSet_32f_C4CR(Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Reorders the three colour channels of every pixel.
 *
 *     dst[k] = src[dstOrder[k]], k = 0, 1, 2
 *
 * Each entry of dstOrder lies in 0..2; a channel may be duplicated. AC4 leaves the fourth
 * sample of every destination pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusBadChannelOrder
 * if an entry of dstOrder is outside 0..2.
 */
KELI_API KelStatus keliSwapChannels_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]);
KELI_API KelStatus keliSwapChannels_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const int dstOrder[3]);
KELI_API KelStatus keliSwapChannels_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]);
KELI_API KelStatus keliSwapChannels_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]);
KELI_API KelStatus keliSwapChannels_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]);
KELI_API KelStatus keliSwapChannels_32s_C3R(const Kel32s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]);
KELI_API KelStatus keliSwapChannels_32s_AC4R(const Kel32s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]);
KELI_API KelStatus keliSwapChannels_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]);
KELI_API KelStatus keliSwapChannels_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const int dstOrder[3]);

/* ==== Conversion and scaling between types of samples ==== */

/**
 * Converts the samples of an image to a type that holds all their values.
 *
 *     dst = src
 *
 * Every result is exact. AC4 leaves the destination's fourth channel alone.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliConvert_8u16u_C1R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8u16u_C3R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8u16u_C4R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8u16u_AC4R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8u16s_C1R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8u16s_C3R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8u16s_C4R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8u16s_AC4R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8u32s_C1R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8u32s_C3R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8u32s_C4R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8u32s_AC4R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8s32s_C1R(const Kel8s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8s32s_C3R(const Kel8s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8s32s_C4R(const Kel8s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8s32s_AC4R(const Kel8s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8u32f_C1R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8u32f_C3R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8u32f_C4R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8u32f_AC4R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8s32f_C1R(const Kel8s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8s32f_C3R(const Kel8s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8s32f_C4R(const Kel8s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_8s32f_AC4R(const Kel8s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_16u32f_C1R(const Kel16u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_16u32f_C3R(const Kel16u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_16u32f_C4R(const Kel16u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_16u32f_AC4R(const Kel16u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_16s32f_C1R(const Kel16s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_16s32f_C3R(const Kel16s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_16s32f_C4R(const Kel16s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_16s32f_AC4R(const Kel16s* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Converts the samples of an image to a narrower type of integers.
 *
 *     dst = min(max(src, least), most)
 *
 * least and most are the ends of the destination type's range: 0 and 255 for 8u, -128 and 127
 * for 8s. AC4 leaves the destination's fourth channel alone.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliConvert_16u8u_C1R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_16u8u_C3R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_16u8u_C4R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_16u8u_AC4R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_16s8u_C1R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_16s8u_C3R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_16s8u_C4R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_16s8u_AC4R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_32s8u_C1R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_32s8u_C3R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_32s8u_C4R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_32s8u_AC4R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_32s8s_C1R(const Kel32s* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_32s8s_C3R(const Kel32s* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_32s8s_C4R(const Kel32s* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliConvert_32s8s_AC4R(const Kel32s* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize);

/**
 * Rounds the samples of an image to integers.
 *
 *     dst = round(max(min(src, most), least))
 *
 * least and most are the ends of the destination type's range. A NaN gives most, an infinity
 * the end on its side. With roundMode kelRoundNearest, round() is to the nearest integer and to
 * the even one of two that are as near (2.5 gives 2, 3.5 gives 4); with any other value it cuts
 * the fraction off (2.7 gives 2, -2.7 gives -2). The caller's floating-point rounding mode has
 * no influence, and is not changed. AC4 leaves the destination's fourth channel alone.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliConvert_32f8u_C1R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);
KELI_API KelStatus keliConvert_32f8u_C3R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);
KELI_API KelStatus keliConvert_32f8u_C4R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);
KELI_API KelStatus keliConvert_32f8u_AC4R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);
KELI_API KelStatus keliConvert_32f8s_C1R(const Kel32f* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);
KELI_API KelStatus keliConvert_32f8s_C3R(const Kel32f* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);
KELI_API KelStatus keliConvert_32f8s_C4R(const Kel32f* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);
KELI_API KelStatus keliConvert_32f8s_AC4R(const Kel32f* pSrc, int srcStep, Kel8s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);
KELI_API KelStatus keliConvert_32f16u_C1R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);
KELI_API KelStatus keliConvert_32f16u_C3R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);
KELI_API KelStatus keliConvert_32f16u_C4R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);
KELI_API KelStatus keliConvert_32f16u_AC4R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);
KELI_API KelStatus keliConvert_32f16s_C1R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);
KELI_API KelStatus keliConvert_32f16s_C3R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);
KELI_API KelStatus keliConvert_32f16s_C4R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);
KELI_API KelStatus keliConvert_32f16s_AC4R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KelRoundMode roundMode);

/**
 * Makes bytes of the pixels of an image of one bit each.
 *
 *     dst = src ? 255 : 0
 *
 * A byte of the source holds eight pixels, the first in its most significant bit. pSrc and
 * srcStep lead to the byte that holds the first pixel of a row, and srcBitOffset, 0..7, says in
 * which bit of it that stands, counted from the most significant one; it is the same for all
 * rows. Bytes beyond the one that holds the last pixel of a row are not read.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusBadRange if the
 * bit offset is outside 0..7.
 */
KELI_API KelStatus keliConvert_1u8u_C1R(const Kel8u* pSrc, int srcStep, int srcBitOffset, Kel8u* pDst, int dstStep, KeliSize roiSize);

/**
 * Makes an image of one bit for each pixel: set where a byte is above a threshold.
 *
 *     dst = src > threshold ? 1 : 0
 *
 * A byte of the destination holds eight pixels, the first in its most significant bit. pDst and
 * dstStep lead to the byte that holds the first pixel of a row, and dstBitOffset, 0..7, says in
 * which bit of it that stands, counted from the most significant one; it is the same for all
 * rows. The bits of a row's first and last byte that belong to no pixel of the region keep
 * their values. These two bytes are read and written as a whole: regions that share one must
 * not be worked on at the same time.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusBadRange if the
 * bit offset is outside 0..7.
 */
KELI_API KelStatus keliConvert_8u1u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, int dstBitOffset, KeliSize roiSize, Kel8u threshold);

/**
 * Maps the samples of an image from the range of their type onto that of a wider one.
 *
 *     dst = least + src * (most - least) / 255
 *
 * least and most are the ends of the destination type's range, so that 0 gives least and 255
 * gives most. The factor is an integer, 257 for 16 bits and 16843009 for 32, and every result
 * exact. AC4 leaves the destination's fourth channel alone.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliScale_8u16u_C1R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliScale_8u16u_C3R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliScale_8u16u_C4R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliScale_8u16u_AC4R(const Kel8u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliScale_8u16s_C1R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliScale_8u16s_C3R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliScale_8u16s_C4R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliScale_8u16s_AC4R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliScale_8u32s_C1R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliScale_8u32s_C3R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliScale_8u32s_C4R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliScale_8u32s_AC4R(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize);

/**
 * Maps the samples of an image from the range of their type onto that of 8u.
 *
 *     dst = round((src - least) * 255 / (most - least))
 *
 * least and most are the ends of the source type's range. The quotient is rounded to the
 * nearest integer; it never lies half-way between two, as (most - least) / 255 is odd. hint may
 * take any value: both ways of computing that it tells apart give these results. AC4 leaves the
 * destination's fourth channel alone.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliScale_16u8u_C1R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint);
KELI_API KelStatus keliScale_16u8u_C3R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint);
KELI_API KelStatus keliScale_16u8u_C4R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint);
KELI_API KelStatus keliScale_16u8u_AC4R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint);
KELI_API KelStatus keliScale_16s8u_C1R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint);
KELI_API KelStatus keliScale_16s8u_C3R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint);
KELI_API KelStatus keliScale_16s8u_C4R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint);
KELI_API KelStatus keliScale_16s8u_AC4R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint);
KELI_API KelStatus keliScale_32s8u_C1R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint);
KELI_API KelStatus keliScale_32s8u_C3R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint);
KELI_API KelStatus keliScale_32s8u_C4R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint);
KELI_API KelStatus keliScale_32s8u_AC4R(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelHintAlgorithm hint);

/**
 * Maps the samples of an image from 0..255 onto a range of floats.
 *
 *     dst = src * k + vMin, k = (vMax - vMin) / 255
 *
 * Each operation is rounded to single precision, to the nearest number, whatever the rounding
 * mode of the caller, which is kept. So 0 gives vMin, and 255 may miss vMax by a rounding. The
 * range is checked before everything else, pointers included; one with a NaN is empty. Bounds
 * that are infinite, or so far apart that their difference is, give what the formula gives in
 * IEEE 754 arithmetic: infinities and NaNs. AC4 leaves the destination's fourth channel alone.
 *
 * Checks, in order: kelStatusEmptyRange if not vMax - vMin > 0; kelStatusNullPointer if a
 * pointer is null; kelStatusBadSize if roiSize is below 1 in width or height; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliScale_8u32f_C1R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax);
KELI_API KelStatus keliScale_8u32f_C3R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax);
KELI_API KelStatus keliScale_8u32f_C4R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax);
KELI_API KelStatus keliScale_8u32f_AC4R(const Kel8u* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax);

/**
 * Maps the samples of an image from a range of floats onto 0..255.
 *
 *     dst = round(x * k + b), x = max(min(src, vMax), vMin), k = 255 / (vMax - vMin), b = -vMin * k
 *
 * Each operation is rounded to single precision, to the nearest number, and round() is to the
 * nearest integer, ties to even, whatever the rounding mode of the caller, which is kept; the
 * result saturates to 0..255. A NaN gives what vMax gives. The range is checked before
 * everything else, pointers included; one with a NaN is empty. Where x * k + b is infinite or
 * no number, which takes an infinite bound, or bounds so close that k is infinite, the result
 * is 0; bounds whose difference is infinite make k zero and so give 0 everywhere. AC4 leaves
 * the destination's fourth channel alone.
 *
 * Checks, in order: kelStatusEmptyRange if not vMax - vMin > 0; kelStatusNullPointer if a
 * pointer is null; kelStatusBadSize if roiSize is below 1 in width or height; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliScale_32f8u_C1R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax);
KELI_API KelStatus keliScale_32f8u_C3R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax);
KELI_API KelStatus keliScale_32f8u_C4R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax);
KELI_API KelStatus keliScale_32f8u_AC4R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f vMin, Kel32f vMax);

/* ==== Borders ==== */

/**
 * Copies a region into a larger one and sets the margins around it to a constant.
 *
 *     dst(x, y) = src(x - left, y - top) inside the source, else value
 *
 * The source's first pixel goes to column leftBorderWidth of row topBorderHeight, both in
 * pixels; the right and bottom margins are what is left of dstRoiSize. Any of the four margins
 * may be empty. The constant is one value for C1 and an array of one value for each channel
 * written otherwise. AC4 takes three values and leaves the fourth sample of every destination
 * pixel as it was, in the margins and in the copied part. Source and destination that overlap
 * give an undefined result.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if a width or height is below 1, a border is below 0, or the
 * destination is smaller than the source and the top and left borders together;
 * kelStatusNullPointer if an array of values is null.
 */
KELI_API KelStatus keliCopyConstBorder_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kel8u value);
KELI_API KelStatus keliCopyConstBorder_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel8u value[3]);
KELI_API KelStatus keliCopyConstBorder_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel8u value[3]);
KELI_API KelStatus keliCopyConstBorder_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel8u value[4]);
KELI_API KelStatus keliCopyConstBorder_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kel16s value);
KELI_API KelStatus keliCopyConstBorder_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel16s value[3]);
KELI_API KelStatus keliCopyConstBorder_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel16s value[3]);
KELI_API KelStatus keliCopyConstBorder_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel16s value[4]);
KELI_API KelStatus keliCopyConstBorder_32s_C1R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, Kel32s value);
KELI_API KelStatus keliCopyConstBorder_32s_C3R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel32s value[3]);
KELI_API KelStatus keliCopyConstBorder_32s_AC4R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel32s value[3]);
KELI_API KelStatus keliCopyConstBorder_32s_C4R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth, const Kel32s value[4]);

/**
 * Copies a region into a larger one and repeats its outermost pixels in the margins.
 *
 *     dst(x, y) = src(clamp(x - left, 0, width - 1), clamp(y - top, 0, height - 1))
 *
 * Width and height are those of srcRoiSize. A corner takes the source's corner pixel. Margins
 * are laid out as by CopyConstBorder. AC4 leaves the fourth sample of every destination pixel
 * as it was. Source and destination that overlap give an undefined result.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if a width or height is below 1, a border is below 0, or the
 * destination is smaller than the source and the top and left borders together.
 */
KELI_API KelStatus keliCopyReplicateBorder_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KELI_API KelStatus keliCopyReplicateBorder_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KELI_API KelStatus keliCopyReplicateBorder_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KELI_API KelStatus keliCopyReplicateBorder_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize srcRoiSize, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KELI_API KelStatus keliCopyReplicateBorder_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KELI_API KelStatus keliCopyReplicateBorder_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KELI_API KelStatus keliCopyReplicateBorder_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KELI_API KelStatus keliCopyReplicateBorder_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize srcRoiSize, Kel16s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KELI_API KelStatus keliCopyReplicateBorder_32s_C1R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KELI_API KelStatus keliCopyReplicateBorder_32s_C3R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KELI_API KelStatus keliCopyReplicateBorder_32s_AC4R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);
KELI_API KelStatus keliCopyReplicateBorder_32s_C4R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);

/**
 * Copies a region into a larger one and continues it periodically in the margins.
 *
 *     dst(x, y) = src((x - left) mod width, (y - top) mod height)
 *
 * Width and height are those of srcRoiSize, and mod is never negative: margins wider than the
 * source repeat it as often as needed. Margins are laid out as by CopyConstBorder. Source and
 * destination that overlap give an undefined result.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if a width or height is below 1, a border is below 0, or the
 * destination is smaller than the source and the top and left borders together.
 */
KELI_API KelStatus keliCopyWrapBorder_32s_C1R(const Kel32s* pSrc, int srcStep, KeliSize srcRoiSize, Kel32s* pDst, int dstStep, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);

/**
 * Continues a region periodically in the margins of the image that it lies in.
 *
 *     dst(x, y) = src((x - left) mod width, (y - top) mod height)
 *
 * pSrcDst addresses the source's first pixel; the image of dstRoiSize begins topBorderHeight
 * rows above and leftBorderWidth pixels left of it. The margins alone are written. They may be
 * wider than the source.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if a width or height is below 1, a border is below 0, or the
 * destination is smaller than the source and the top and left borders together.
 */
KELI_API KelStatus keliCopyWrapBorder_32s_C1IR(Kel32s* pSrcDst, int srcDstStep, KeliSize srcRoiSize, KeliSize dstRoiSize, int topBorderHeight, int leftBorderWidth);

/* ==== Mirror ==== */

/**
 * Mirrors a region about its horizontal axis, its vertical axis or both.
 *
 *     dst(x, y) = src(x', y'), x' = width - 1 - x and y' = height - 1 - y where mirrored
 *
 * flip kelAxisHorizontal reverses the order of the rows, kelAxisVertical every row, kelAxisBoth
 * both. The channels of a pixel keep their order. AC4 leaves the fourth sample of every
 * destination pixel as it was. Source and destination that overlap give an undefined result.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height; kelStatusBadAxis if flip
 * is none of the axes.
 */
KELI_API KelStatus keliMirror_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_16u_C1R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_16u_C4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_32s_C1R(const Kel32s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_32s_C3R(const Kel32s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_32s_C4R(const Kel32s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_32s_AC4R(const Kel32s* pSrc, int srcStep, Kel32s* pDst, int dstStep, KeliSize roiSize, KelAxis flip);

/**
 * Mirrors a region in place.
 *
 *     (x, y) and (x', y') exchanged, x' = width - 1 - x and y' = height - 1 - y where mirrored
 *
 * As the form with a destination, with the same result. A middle row or column, of an odd
 * height or width, stays where it is. AC4 leaves the fourth samples where they are.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height; kelStatusBadAxis if flip
 * is none of the axes.
 */
KELI_API KelStatus keliMirror_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_8u_C4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_16u_C1IR(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_16u_C3IR(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_16u_C4IR(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_16u_AC4IR(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_32s_C1IR(Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_32s_C3IR(Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_32s_C4IR(Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip);
KELI_API KelStatus keliMirror_32s_AC4IR(Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize, KelAxis flip);

/* ==== Addition, subtraction, multiplication ==== */

/**
 * Adds two images.
 *
 *     dst = (src1 + src2) * 2^-scaleFactor
 *
 * The exact sum is scaled, rounded to the nearest integer with ties to even, and saturated. Any
 * scale factor is valid: above 9 (8u) or 16 (16s) every result is 0, and the sources are not
 * read. In place the result replaces the second source. AC4 leaves the fourth sample of every
 * pixel as it was.
 *
 * On large regions the rows are shared out among threads, with the same results:
 * keliAdd_8u_C1IRSfs, keliAdd_16s_C1RSfs.
 *
 * Checks, in order: kelStatusBadSize if the width is below 1 (C3 and C4); kelStatusNullPointer
 * if a pointer is null; kelStatusBadSize if roiSize is below 1 in width or height;
 * kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliAdd_8u_C1RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_8u_C3RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_8u_C4RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_8u_AC4RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_8u_C1IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_8u_C3IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_8u_C4IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_8u_AC4IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_16s_C1RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_16s_C3RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_16s_C4RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_16s_AC4RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_16s_C1IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_16s_C3IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_16s_C4IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_16s_AC4IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Adds two floating-point images.
 *
 *     dst = src1 + src2
 *
 * One rounding to single precision, as IEEE 754 defines the operation; no saturation. In place
 * the result replaces the second source. AC4 leaves the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusBadSize if the width is below 1 (C3 and C4); kelStatusNullPointer
 * if a pointer is null; kelStatusBadSize if roiSize is below 1 in width or height;
 * kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliAdd_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAdd_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAdd_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAdd_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAdd_32f_C1IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAdd_32f_C3IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAdd_32f_C4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAdd_32f_AC4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Subtracts the first image from the second.
 *
 *     dst = (src2 - src1) * 2^-scaleFactor
 *
 * The exact difference, the second operand minus the first, is scaled, rounded to the nearest
 * integer with ties to even, and saturated: for 8u, negative differences give 0. Any scale
 * factor is valid: above 8 (8u) or 16 (16s) every result is 0, and the sources are not read. In
 * place the result replaces the second source: srcDst - src. AC4 leaves the fourth sample of
 * every pixel as it was.
 *
 * On large regions the rows are shared out among threads, with the same results:
 * keliSub_8u_C1IRSfs, keliSub_16s_C1RSfs, keliSub_16s_C1IRSfs.
 *
 * Checks, in order: kelStatusBadSize if the width is below 1 (C3 and C4); kelStatusNullPointer
 * if a pointer is null; kelStatusBadSize if roiSize is below 1 in width or height;
 * kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSub_8u_C1RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_8u_C3RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_8u_C4RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_8u_AC4RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_8u_C1IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_8u_C3IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_8u_C4IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_8u_AC4IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_16s_C1RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_16s_C3RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_16s_C4RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_16s_AC4RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_16s_C1IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_16s_C3IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_16s_C4IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_16s_AC4IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Subtracts the first floating-point image from the second.
 *
 *     dst = src2 - src1
 *
 * One rounding to single precision, as IEEE 754 defines the operation; no saturation. In place
 * the result replaces the second source: srcDst - src. AC4 leaves the fourth sample of every
 * pixel as it was.
 *
 * Checks, in order: kelStatusBadSize if the width is below 1 (C3 and C4); kelStatusNullPointer
 * if a pointer is null; kelStatusBadSize if roiSize is below 1 in width or height;
 * kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSub_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSub_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSub_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSub_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSub_32f_C1IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSub_32f_C3IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSub_32f_C4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSub_32f_AC4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Multiplies two images.
 *
 *     dst = src1 * src2 * 2^-scaleFactor
 *
 * The exact product is scaled, rounded to the nearest integer with ties to even, and saturated.
 * Any scale factor is valid: above 16 (8u) or 30 (16s) every result is 0, and the sources are
 * not read. In place the result replaces the second source. AC4 leaves the fourth sample of
 * every pixel as it was.
 *
 * On large regions the rows are shared out among threads, with the same results:
 * keliMul_8u_C1RSfs, keliMul_8u_C1IRSfs, keliMul_16s_C1RSfs, keliMul_16s_C1IRSfs.
 *
 * Checks, in order: kelStatusBadSize if the width is below 1 (C3 and C4); kelStatusNullPointer
 * if a pointer is null; kelStatusBadSize if roiSize is below 1 in width or height;
 * kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliMul_8u_C1RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_8u_C3RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_8u_C4RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_8u_AC4RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_8u_C1IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_8u_C3IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_8u_C4IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_8u_AC4IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_16s_C1RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_16s_C3RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_16s_C4RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_16s_AC4RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_16s_C1IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_16s_C3IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_16s_C4IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_16s_AC4IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Multiplies two floating-point images.
 *
 *     dst = src1 * src2
 *
 * One rounding to single precision, as IEEE 754 defines the operation; no saturation. In place
 * the result replaces the second source. AC4 leaves the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusBadSize if the width is below 1 (C3 and C4); kelStatusNullPointer
 * if a pointer is null; kelStatusBadSize if roiSize is below 1 in width or height;
 * kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliMul_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMul_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMul_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMul_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMul_32f_C1IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMul_32f_C3IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMul_32f_C4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMul_32f_AC4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Adds a constant to an image.
 *
 *     dst = (src + value) * 2^-scaleFactor
 *
 * The constant is one value for C1, and an array of one value for each channel otherwise (three
 * for C3 and AC4, four for C4). The exact sum is scaled, rounded to the nearest integer with
 * ties to even, and saturated. Any scale factor is valid: above 9 (8u) or 16 (16s) every result
 * is 0, and the source is not read. AC4 leaves the fourth sample of every pixel as it was.
 *
 * On large regions the rows are shared out among threads, with the same results:
 * keliAddC_8u_C1IRSfs, keliAddC_16s_C1IRSfs.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliAddC_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_8u_C3RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_8u_C4RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_8u_AC4RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_8u_C1IRSfs(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_8u_C3IRSfs(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_8u_C4IRSfs(const Kel8u value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_8u_AC4IRSfs(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_16s_C3RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_16s_C4RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[4], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_16s_AC4RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_16s_C1IRSfs(Kel16s value, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_16s_C3IRSfs(const Kel16s value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_16s_C4IRSfs(const Kel16s value[4], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_16s_AC4IRSfs(const Kel16s value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Adds a constant to a floating-point image.
 *
 *     dst = src + value
 *
 * The constant is one value for C1, and an array of one value for each channel otherwise (three
 * for C3 and AC4, four for C4). One rounding to single precision, as IEEE 754 defines the
 * operation. AC4 leaves the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliAddC_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAddC_32f_C3R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAddC_32f_C4R(const Kel32f* pSrc, int srcStep, const Kel32f value[4], Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAddC_32f_AC4R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAddC_32f_C1IR(Kel32f value, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAddC_32f_C3IR(const Kel32f value[3], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAddC_32f_C4IR(const Kel32f value[4], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAddC_32f_AC4IR(const Kel32f value[3], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Subtracts a constant from an image.
 *
 *     dst = (src - value) * 2^-scaleFactor
 *
 * The constant is one value for C1, and an array of one value for each channel otherwise (three
 * for C3 and AC4, four for C4). The exact difference is scaled, rounded to the nearest integer
 * with ties to even, and saturated: for 8u, negative differences give 0. Any scale factor is
 * valid: above 8 (8u) or 16 (16s) every result is 0, and the source is not read. AC4 leaves the
 * fourth sample of every pixel as it was.
 *
 * On large regions the rows are shared out among threads, with the same results:
 * keliSubC_8u_C1IRSfs, keliSubC_16s_C1IRSfs.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSubC_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_8u_C3RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_8u_C4RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_8u_AC4RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_8u_C1IRSfs(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_8u_C3IRSfs(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_8u_C4IRSfs(const Kel8u value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_8u_AC4IRSfs(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_16s_C3RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_16s_C4RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[4], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_16s_AC4RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_16s_C1IRSfs(Kel16s value, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_16s_C3IRSfs(const Kel16s value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_16s_C4IRSfs(const Kel16s value[4], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_16s_AC4IRSfs(const Kel16s value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Subtracts a constant from a floating-point image.
 *
 *     dst = src - value
 *
 * The constant is one value for C1, and an array of one value for each channel otherwise (three
 * for C3 and AC4, four for C4). One rounding to single precision, as IEEE 754 defines the
 * operation. AC4 leaves the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSubC_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSubC_32f_C3R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSubC_32f_C4R(const Kel32f* pSrc, int srcStep, const Kel32f value[4], Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSubC_32f_AC4R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSubC_32f_C1IR(Kel32f value, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSubC_32f_C3IR(const Kel32f value[3], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSubC_32f_C4IR(const Kel32f value[4], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSubC_32f_AC4IR(const Kel32f value[3], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Multiplies an image by a constant.
 *
 *     dst = src * value * 2^-scaleFactor
 *
 * The constant is one value for C1, and an array of one value for each channel otherwise (three
 * for C3 and AC4, four for C4). The exact product is scaled, rounded to the nearest integer
 * with ties to even, and saturated. Any scale factor is valid: above 16 (8u) or 30 (16s) every
 * result is 0, and the source is not read. AC4 leaves the fourth sample of every pixel as it
 * was.
 *
 * On large regions the rows are shared out among threads, with the same results:
 * keliMulC_8u_C1IRSfs, keliMulC_16s_C1IRSfs.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliMulC_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_8u_C3RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_8u_C4RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_8u_AC4RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_8u_C1IRSfs(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_8u_C3IRSfs(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_8u_C4IRSfs(const Kel8u value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_8u_AC4IRSfs(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_16s_C3RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_16s_C4RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[4], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_16s_AC4RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_16s_C1IRSfs(Kel16s value, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_16s_C3IRSfs(const Kel16s value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_16s_C4IRSfs(const Kel16s value[4], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_16s_AC4IRSfs(const Kel16s value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Multiplies a floating-point image by a constant.
 *
 *     dst = src * value
 *
 * The constant is one value for C1, and an array of one value for each channel otherwise (three
 * for C3 and AC4, four for C4). One rounding to single precision, as IEEE 754 defines the
 * operation. AC4 leaves the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliMulC_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulC_32f_C3R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulC_32f_C4R(const Kel32f* pSrc, int srcStep, const Kel32f value[4], Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulC_32f_AC4R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulC_32f_C1IR(Kel32f value, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulC_32f_C3IR(const Kel32f value[3], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulC_32f_C4IR(const Kel32f value[4], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulC_32f_AC4IR(const Kel32f value[3], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Multiplies two images and divides by the largest value of their type.
 *
 *     dst = floor(src1 * src2 / max), max = 255 (8u) or 65535 (16u)
 *
 * Values are fractions of max: max times a sample is that sample, and no product overflows.
 * With t = src1 * src2 the result is (t + 1 + (t >> bits)) >> bits for bits = 8 or 16, which is
 * the quotient rounded down. In place the result replaces the second source. AC4 leaves the
 * fourth sample of every pixel as it was. Steps are checked before sizes.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height.
 */
KELI_API KelStatus keliMulScale_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulScale_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulScale_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulScale_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulScale_8u_C1IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulScale_8u_C3IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulScale_8u_C4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulScale_8u_AC4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulScale_16u_C1R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulScale_16u_C3R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulScale_16u_C4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulScale_16u_AC4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulScale_16u_C1IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulScale_16u_C3IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulScale_16u_C4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulScale_16u_AC4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Multiplies an image by a constant and divides by the largest value of the type.
 *
 *     dst = floor(src * value / max), max = 255 (8u) or 65535 (16u)
 *
 * The constant is one value for C1, and an array of one value for each channel otherwise (three
 * for C3 and AC4, four for C4). With t = src * value the result is (t + 1 + (t >> bits)) >>
 * bits for bits = 8 or 16, which is the quotient rounded down. AC4 leaves the fourth sample of
 * every pixel as it was. Steps are checked before sizes.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height.
 */
KELI_API KelStatus keliMulCScale_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulCScale_8u_C3R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulCScale_8u_C4R(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulCScale_8u_AC4R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulCScale_8u_C1IR(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulCScale_8u_C3IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulCScale_8u_C4IR(const Kel8u value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulCScale_8u_AC4IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulCScale_16u_C1R(const Kel16u* pSrc, int srcStep, Kel16u value, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulCScale_16u_C3R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulCScale_16u_C4R(const Kel16u* pSrc, int srcStep, const Kel16u value[4], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulCScale_16u_AC4R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulCScale_16u_C1IR(Kel16u value, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulCScale_16u_C3IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulCScale_16u_C4IR(const Kel16u value[4], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulCScale_16u_AC4IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);

/* ==== Division ==== */

/**
 * Divides the second image by the first.
 *
 *     dst = min(255, R[src1] * src2 * 2^-scaleFactor), rounded to nearest, ties to even
 *
 * R[k] is 1/k rounded to six decimal places (ties away from zero) and then to single precision;
 * R[0] is 4290772992. The products are formed from left to right, each rounded to single
 * precision: where src2 / src1 is half an integer, the error of the reciprocal may decide (3 /
 * 6 gives 1, as R[6] = 0.166667). Any scale factor is valid: above 40 every result is 0, below
 * -15 every result but 0 is 255. A divisor of 0 is not treated apart: with R[0] it gives 0 for
 * a dividend of 0 and for others 255, where the scale factor is 24 or less; and the warning
 * kelStatusDivByZeroWarning. Every pixel is written. In place the result replaces the second
 * source: srcDst / src.
 *
 * Checks, in order: kelStatusBadSize if the width is below 1 (C3 and C4); kelStatusNullPointer
 * if a pointer is null; kelStatusBadSize if roiSize is below 1 in width or height;
 * kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliDiv_8u_C1RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_8u_C3RSfs(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_8u_C1IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_8u_C3IRSfs(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Divides the second image by the first.
 *
 *     dst = src2 / src1 * 2^-scaleFactor
 *
 * The exact quotient is scaled, rounded to the nearest integer with ties to even, and
 * saturated. Any scale factor is valid. A divisor of 0 gives 32767, -32768 or 0 for a dividend
 * above, below or equal to 0, whatever the scale factor, and the warning
 * kelStatusDivByZeroWarning; every pixel is written. In place the result replaces the second
 * source: srcDst / src.
 *
 * Checks, in order: kelStatusBadSize if the width is below 1 (C3 and C4); kelStatusNullPointer
 * if a pointer is null; kelStatusBadSize if roiSize is below 1 in width or height;
 * kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliDiv_16s_C1RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_16s_C3RSfs(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_16s_C1IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_16s_C3IRSfs(const Kel16s* pSrc, int srcStep, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Divides the second floating-point image by the first.
 *
 *     dst = src2 / src1
 *
 * One rounding to single precision, as IEEE 754 defines the operation. A divisor of 0, of
 * either sign, gives +infinity for a dividend above 0, -infinity for one below 0, and the quiet
 * NaN of the bits 0xFFC00000 for one that is 0 or a NaN, and the warning
 * kelStatusDivByZeroWarning; every pixel is written. In place the result replaces the second
 * source: srcDst / src. AC4 leaves the fourth sample of every pixel as it was; a 0 there gives
 * no warning.
 *
 * Checks, in order: kelStatusBadSize if the width is below 1 (C3 and C4); kelStatusNullPointer
 * if a pointer is null; kelStatusBadSize if roiSize is below 1 in width or height;
 * kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliDiv_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDiv_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDiv_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDiv_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDiv_32f_C1IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDiv_32f_C3IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDiv_32f_C4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDiv_32f_AC4IR(const Kel32f* pSrc, int srcStep, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Divides an image by a constant.
 *
 *     dst = src / value * 2^-scaleFactor
 *
 * The constant is one value for C1, and an array of one value for each channel for C3. The
 * exact quotient is scaled, rounded to the nearest integer with ties to even, and saturated.
 * Any scale factor is valid.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusDivisorZero if
 * the constant, or one of its channels, is 0.
 */
KELI_API KelStatus keliDivC_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_8u_C3RSfs(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_8u_C1IRSfs(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_8u_C3IRSfs(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s value, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_16s_C3RSfs(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_16s_C1IRSfs(Kel16s value, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_16s_C3IRSfs(const Kel16s value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Divides a floating-point image by a constant.
 *
 *     dst = src * (1 / value)
 *
 * The constant is one value for C1, and an array of one value for each channel for C3. Its
 * reciprocal is rounded to single precision, and so is its product with each sample: two
 * roundings, not those of a true division. C1 with a reciprocal of 1 copies the source, bit for
 * bit, and with a reciprocal of 0 (an infinite constant) gives 0 for every sample, an infinity
 * or NaN included; C3 always multiplies. A constant of 0 of either sign is an error.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusDivisorZero if
 * the constant, or one of its channels, is 0.
 */
KELI_API KelStatus keliDivC_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f value, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDivC_32f_C3R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDivC_32f_C1IR(Kel32f value, Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDivC_32f_C3IR(const Kel32f value[3], Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);

/* ==== Complex arithmetic ==== */

/**
 * Adds two complex images.
 *
 *     dst = (src1 + src2) * 2^-scaleFactor
 *
 * The sum, exact in each part, is scaled, rounded to the nearest integer with ties to even, and
 * saturated, each part by itself. Any scale factor is valid: above 16 (16sc) or 32 (32sc) every
 * result is 0, and the sources are not read. In place the result replaces the second source.
 * AC4 leaves the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliAdd_16sc_C1RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_16sc_C3RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_16sc_AC4RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_16sc_C1IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_16sc_C3IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_16sc_AC4IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_32sc_C1RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_32sc_C3RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_32sc_AC4RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_32sc_C1IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_32sc_C3IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAdd_32sc_AC4IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Adds two floating-point complex images.
 *
 *     dst = src1 + src2
 *
 * Each part is rounded once to single precision, as IEEE 754 defines the operation; no
 * saturation. In place the result replaces the second source. AC4 leaves the fourth sample of
 * every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliAdd_32fc_C1R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAdd_32fc_C3R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAdd_32fc_AC4R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAdd_32fc_C1IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAdd_32fc_C3IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAdd_32fc_AC4IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Subtracts the first complex image from the second.
 *
 *     dst = (src2 - src1) * 2^-scaleFactor
 *
 * The difference, the second operand minus the first, exact in each part, is scaled, rounded to
 * the nearest integer with ties to even, and saturated, each part by itself. Any scale factor
 * is valid: above 16 (16sc) or 32 (32sc) every result is 0, and the sources are not read. In
 * place the result replaces the second source: srcDst - src. AC4 leaves the fourth sample of
 * every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSub_16sc_C1RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_16sc_C3RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_16sc_AC4RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_16sc_C1IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_16sc_C3IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_16sc_AC4IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_32sc_C1RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_32sc_C3RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_32sc_AC4RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_32sc_C1IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_32sc_C3IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSub_32sc_AC4IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Subtracts the first floating-point complex image from the second.
 *
 *     dst = src2 - src1
 *
 * Each part is rounded once to single precision, as IEEE 754 defines the operation; no
 * saturation. In place the result replaces the second source: srcDst - src. AC4 leaves the
 * fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSub_32fc_C1R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSub_32fc_C3R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSub_32fc_AC4R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSub_32fc_C1IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSub_32fc_C3IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSub_32fc_AC4IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Multiplies two complex images.
 *
 *     dst = src1 * src2 * 2^-scaleFactor
 *
 * For a + bi and c + di the product is (a*c - b*d) + (a*d + b*c)i. The product, exact in each
 * part, is scaled, rounded to the nearest integer with ties to even, and saturated, each part
 * by itself. Any scale factor is valid: above 31 (16sc) or 63 (32sc) every result is 0, and the
 * sources are not read. In place the result replaces the second source. AC4 leaves the fourth
 * sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliMul_16sc_C1RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_16sc_C3RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_16sc_AC4RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_16sc_C1IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_16sc_C3IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_16sc_AC4IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_32sc_C1RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_32sc_C3RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_32sc_AC4RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_32sc_C1IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_32sc_C3IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMul_32sc_AC4IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Multiplies two floating-point complex images.
 *
 *     dst = src1 * src2
 *
 * For a + bi and c + di the product is (a*c - b*d) + (a*d + b*c)i. Both products, and then
 * their difference or sum, are rounded to single precision, as IEEE 754 defines the operations.
 * A part that is not a number has the bits 0xFFC00000. In place the result replaces the second
 * source. AC4 leaves the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliMul_32fc_C1R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMul_32fc_C3R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMul_32fc_AC4R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMul_32fc_C1IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMul_32fc_C3IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMul_32fc_AC4IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Divides the second complex image by the first.
 *
 *     dst = src2 / src1 * 2^-scaleFactor
 *
 * For the dividend a + bi and the divisor c + di the quotient is ((a*c + b*d) + (b*c - a*d)i) /
 * (c*c + d*d). Each part of the exact quotient is scaled, rounded once to the nearest integer
 * with ties to even, and saturated. Any scale factor is valid. Where both parts of the divisor
 * are 0, each part of the result is the largest value of its type, the least, or 0, by the sign
 * of the dividend's part and whatever the scale factor, and the function returns
 * kelStatusDivByZeroWarning; every pixel is written. In place the result replaces the second
 * source: srcDst / src. AC4 leaves the fourth sample of every pixel as it was, and a zero there
 * is no divisor.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliDiv_16sc_C1RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_16sc_C3RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_16sc_AC4RSfs(const Kel16sc* pSrc1, int src1Step, const Kel16sc* pSrc2, int src2Step, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_16sc_C1IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_16sc_C3IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_16sc_AC4IRSfs(const Kel16sc* pSrc, int srcStep, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_32sc_C1RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_32sc_C3RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_32sc_AC4RSfs(const Kel32sc* pSrc1, int src1Step, const Kel32sc* pSrc2, int src2Step, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_32sc_C1IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_32sc_C3IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDiv_32sc_AC4IRSfs(const Kel32sc* pSrc, int srcStep, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Divides the second floating-point complex image by the first.
 *
 *     dst = src2 / src1
 *
 * For the dividend a + bi and the divisor c + di the quotient is ((a*c + b*d) + (b*c - a*d)i) /
 * (c*c + d*d). Products, sums and quotients are formed in double precision, where the divisor's
 * square neither overflows nor vanishes, and each part is rounded to single precision at the
 * end. A part that is not a number has the bits 0xFFC00000. Where both parts of the divisor are
 * 0, each part of the result is +infinity, -infinity, or not a number, by the sign of the
 * dividend's part (not a number for 0), and the function returns kelStatusDivByZeroWarning;
 * every pixel is written. An infinite divisor follows the formula, which gives 0 only where it
 * stays defined. In place the result replaces the second source: srcDst / src. AC4 leaves the
 * fourth sample of every pixel as it was, and a zero there is no divisor.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliDiv_32fc_C1R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDiv_32fc_C3R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDiv_32fc_AC4R(const Kel32fc* pSrc1, int src1Step, const Kel32fc* pSrc2, int src2Step, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDiv_32fc_C1IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDiv_32fc_C3IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDiv_32fc_AC4IR(const Kel32fc* pSrc, int srcStep, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Adds a constant to a complex image.
 *
 *     dst = (src + value) * 2^-scaleFactor
 *
 * The constant is one complex value for C1, and an array of three, one for each channel, for C3
 * and AC4. The sum, exact in each part, is scaled, rounded to the nearest integer with ties to
 * even, and saturated, each part by itself. Any scale factor is valid: above 16 (16sc) or 32
 * (32sc) every result is 0, and the source is not read. AC4 leaves the fourth sample of every
 * pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliAddC_16sc_C1RSfs(const Kel16sc* pSrc, int srcStep, Kel16sc value, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_16sc_C3RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_16sc_AC4RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_16sc_C1IRSfs(Kel16sc value, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_16sc_C3IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_16sc_AC4IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_32sc_C1RSfs(const Kel32sc* pSrc, int srcStep, Kel32sc value, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_32sc_C3RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_32sc_AC4RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_32sc_C1IRSfs(Kel32sc value, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_32sc_C3IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliAddC_32sc_AC4IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Adds a constant to a floating-point complex image.
 *
 *     dst = src + value
 *
 * The constant is one complex value for C1, and an array of three, one for each channel, for C3
 * and AC4. Each part is rounded once to single precision, as IEEE 754 defines the operation.
 * AC4 leaves the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliAddC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc value, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAddC_32fc_C3R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAddC_32fc_AC4R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAddC_32fc_C1IR(Kel32fc value, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAddC_32fc_C3IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAddC_32fc_AC4IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Subtracts a constant from a complex image.
 *
 *     dst = (src - value) * 2^-scaleFactor
 *
 * The constant is one complex value for C1, and an array of three, one for each channel, for C3
 * and AC4. The difference, exact in each part, is scaled, rounded to the nearest integer with
 * ties to even, and saturated, each part by itself. Any scale factor is valid: above 16 (16sc)
 * or 32 (32sc) every result is 0, and the source is not read. AC4 leaves the fourth sample of
 * every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSubC_16sc_C1RSfs(const Kel16sc* pSrc, int srcStep, Kel16sc value, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_16sc_C3RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_16sc_AC4RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_16sc_C1IRSfs(Kel16sc value, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_16sc_C3IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_16sc_AC4IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_32sc_C1RSfs(const Kel32sc* pSrc, int srcStep, Kel32sc value, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_32sc_C3RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_32sc_AC4RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_32sc_C1IRSfs(Kel32sc value, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_32sc_C3IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSubC_32sc_AC4IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Subtracts a constant from a floating-point complex image.
 *
 *     dst = src - value
 *
 * The constant is one complex value for C1, and an array of three, one for each channel, for C3
 * and AC4. Each part is rounded once to single precision, as IEEE 754 defines the operation.
 * AC4 leaves the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSubC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc value, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSubC_32fc_C3R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSubC_32fc_AC4R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSubC_32fc_C1IR(Kel32fc value, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSubC_32fc_C3IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSubC_32fc_AC4IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Multiplies a complex image by a constant.
 *
 *     dst = src * value * 2^-scaleFactor
 *
 * The constant is one complex value for C1, and an array of three, one for each channel, for C3
 * and AC4. For a + bi and c + di the product is (a*c - b*d) + (a*d + b*c)i. The product, exact
 * in each part, is scaled, rounded to the nearest integer with ties to even, and saturated,
 * each part by itself. Any scale factor is valid: above 31 (16sc) or 63 (32sc) every result is
 * 0, and the source is not read. AC4 leaves the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliMulC_16sc_C1RSfs(const Kel16sc* pSrc, int srcStep, Kel16sc value, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_16sc_C3RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_16sc_AC4RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_16sc_C1IRSfs(Kel16sc value, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_16sc_C3IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_16sc_AC4IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_32sc_C1RSfs(const Kel32sc* pSrc, int srcStep, Kel32sc value, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_32sc_C3RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_32sc_AC4RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_32sc_C1IRSfs(Kel32sc value, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_32sc_C3IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliMulC_32sc_AC4IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Multiplies a floating-point complex image by a constant.
 *
 *     dst = src * value
 *
 * The constant is one complex value for C1, and an array of three, one for each channel, for C3
 * and AC4. For a + bi and c + di the product is (a*c - b*d) + (a*d + b*c)i. Both products, and
 * then their difference or sum, are rounded to single precision, as IEEE 754 defines the
 * operations. A part that is not a number has the bits 0xFFC00000. AC4 leaves the fourth sample
 * of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliMulC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc value, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulC_32fc_C3R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulC_32fc_AC4R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliMulC_32fc_C1IR(Kel32fc value, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulC_32fc_C3IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliMulC_32fc_AC4IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Divides a complex image by a constant.
 *
 *     dst = src / value * 2^-scaleFactor
 *
 * The constant is one complex value for C1, and an array of three, one for each channel, for C3
 * and AC4. For the dividend a + bi and the divisor c + di the quotient is ((a*c + b*d) + (b*c -
 * a*d)i) / (c*c + d*d). Each part of the exact quotient is scaled, rounded once to the nearest
 * integer with ties to even, and saturated. Any scale factor is valid: above 16 (16sc) or 32
 * (32sc) every result is 0, and the source is not read. A constant is 0 where both of its parts
 * are. AC4 leaves the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusDivisorZero if
 * the constant, or one of its channels, is 0.
 */
KELI_API KelStatus keliDivC_16sc_C1RSfs(const Kel16sc* pSrc, int srcStep, Kel16sc value, Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_16sc_C3RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_16sc_AC4RSfs(const Kel16sc* pSrc, int srcStep, const Kel16sc value[3], Kel16sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_16sc_C1IRSfs(Kel16sc value, Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_16sc_C3IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_16sc_AC4IRSfs(const Kel16sc value[3], Kel16sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_32sc_C1RSfs(const Kel32sc* pSrc, int srcStep, Kel32sc value, Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_32sc_C3RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_32sc_AC4RSfs(const Kel32sc* pSrc, int srcStep, const Kel32sc value[3], Kel32sc* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_32sc_C1IRSfs(Kel32sc value, Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_32sc_C3IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliDivC_32sc_AC4IRSfs(const Kel32sc value[3], Kel32sc* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Divides a floating-point complex image by a constant.
 *
 *     dst = src / value
 *
 * The constant is one complex value for C1, and an array of three, one for each channel, for C3
 * and AC4. For the dividend a + bi and the divisor c + di the quotient is ((a*c + b*d) + (b*c -
 * a*d)i) / (c*c + d*d). Products, sums and quotients are formed in double precision, where the
 * divisor's square neither overflows nor vanishes, and each part is rounded to single precision
 * at the end. A part that is not a number has the bits 0xFFC00000. A constant is 0 where both
 * of its parts are. AC4 leaves the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusDivisorZero if
 * the constant, or one of its channels, is 0.
 */
KELI_API KelStatus keliDivC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc value, Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDivC_32fc_C3R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDivC_32fc_AC4R(const Kel32fc* pSrc, int srcStep, const Kel32fc value[3], Kel32fc* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDivC_32fc_C1IR(Kel32fc value, Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDivC_32fc_C3IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDivC_32fc_AC4IR(const Kel32fc value[3], Kel32fc* pSrcDst, int srcDstStep, KeliSize roiSize);

/* ==== Absolute value, square, square root, logarithm, exponential ==== */

/**
 * Takes the absolute value of an image.
 *
 *     dst = |src|
 *
 * 16s: -32768 gives 32767. 32f: the sign bit is cleared, that of a NaN too.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliAbs_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAbs_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAbs_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAbs_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAbs_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAbs_16s_C4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAbs_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAbs_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAbs_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAbs_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAbs_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAbs_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Takes the absolute value of three channels of four.
 *
 *     dst = |src|
 *
 * 16s: -32768 gives 32767. 32f: the sign bit is cleared, that of a NaN too. The fourth sample
 * of every pixel is left as it was. Rows pass through a temporary one of 4 width samples;
 * kelStatusNoMemory if it cannot be allocated, and nothing is written then.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliAbs_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAbs_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAbs_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAbs_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Squares an image.
 *
 *     dst = src^2 * 2^-scaleFactor
 *
 * The exact square is scaled, rounded to the nearest integer with ties to even, and saturated.
 * Any scale factor is valid: above 16 (8u), 32 (16u) or 30 (16s) every result is 0, and the
 * source is not read. AC4 leaves the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSqr_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_8u_C3RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_8u_C4RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_8u_AC4RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_8u_C1IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_8u_C3IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_8u_C4IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_8u_AC4IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16u_C1RSfs(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16u_C3RSfs(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16u_C4RSfs(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16u_AC4RSfs(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16u_C1IRSfs(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16u_C3IRSfs(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16u_C4IRSfs(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16u_AC4IRSfs(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16s_C3RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16s_C4RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16s_AC4RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16s_C1IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16s_C3IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16s_C4IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqr_16s_AC4IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Squares a floating-point image.
 *
 *     dst = src^2
 *
 * One rounding to single precision, as IEEE 754 defines the product; no saturation. AC4 leaves
 * the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSqr_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSqr_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSqr_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSqr_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSqr_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSqr_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSqr_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSqr_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Takes the square root of an image of integers.
 *
 *     dst = sqrt(src) * 2^-scaleFactor
 *
 * The exact result is rounded to the nearest integer, ties to even, and saturated. Any scale
 * factor is valid. A negative sample of 16s gives 0, without a warning. AC4 leaves the fourth
 * sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSqrt_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_8u_C3RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_8u_AC4RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_8u_C1IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_8u_C3IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_8u_AC4IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_16u_C1RSfs(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_16u_C3RSfs(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_16u_AC4RSfs(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_16u_C1IRSfs(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_16u_C3IRSfs(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_16u_AC4IRSfs(Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_16s_C3RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_16s_AC4RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_16s_C1IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_16s_C3IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliSqrt_16s_AC4IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Takes the square root of a floating-point image.
 *
 *     dst = sqrt(src)
 *
 * Correctly rounded, as IEEE 754 defines the operation. A sample below 0 gives the NaN with the
 * bits 0xFFC00000, and the call returns kelStatusNegativeSqrtWarning after writing all of the
 * destination; -0 gives -0, and a NaN the NaN with the bits 0x7FC00000, without a warning. AC4
 * leaves the fourth sample of every pixel as it was, and that of the source raises no warning.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSqrt_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSqrt_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliSqrt_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSqrt_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSqrt_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliSqrt_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Takes the square root of a floating-point image whose rows are whole samples apart.
 *
 *     dst = sqrt(src)
 *
 * This function alone uses each step rounded down to a multiple of 4 bytes, so that one below 4
 * counts as 0. Correctly rounded, as IEEE 754 defines the operation. A sample below 0 gives the
 * NaN with the bits 0xFFC00000, and the call returns kelStatusNegativeSqrtWarning after writing
 * all of the destination; -0 gives -0, and a NaN the NaN with the bits 0x7FC00000, without a
 * warning.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSqrt_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Takes the natural logarithm of an image of bytes.
 *
 *     dst = ln(src) * 2^-scaleFactor
 *
 * The exact result is rounded to the nearest integer, ties to even, and saturated. Any scale
 * factor is valid. A sample of 0 gives 0, and the call returns kelStatusZeroLogWarning after
 * writing all of the destination.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliLn_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliLn_8u_C3RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliLn_8u_C1IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliLn_8u_C3IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Takes the natural logarithm of an image of signed integers.
 *
 *     dst = ln(src) * 2^-scaleFactor
 *
 * The exact result is rounded to the nearest integer, ties to even, and saturated. Any scale
 * factor is valid. Samples of 0 and below give 0. The call then returns, after writing all of
 * the destination, the warning of the first row that has one: kelStatusNegativeLogWarning if a
 * sample of it is below 0, else kelStatusZeroLogWarning.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliLn_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliLn_16s_C3RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliLn_16s_C1IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliLn_16s_C3IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Takes the natural logarithm of a floating-point image.
 *
 *     dst = ln(src)
 *
 * Within 1 ulp (unit in the last place), the same bits on every processor. A sample of 0 or -0
 * gives -infinity, one below 0 the NaN with the bits 0xFFC00000. The call then returns, after
 * writing all of the destination, the warning of the first row that has one:
 * kelStatusNegativeLogWarning if a sample of it is below 0, else kelStatusZeroLogWarning.
 * +infinity gives +infinity and a NaN the NaN with the bits 0x7FC00000, without a warning.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliLn_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLn_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLn_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliLn_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Takes the exponential of an image of integers.
 *
 *     dst = e^src * 2^-scaleFactor
 *
 * The exact result is rounded to the nearest integer, ties to even, and saturated. Any scale
 * factor is valid.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliExp_8u_C1RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliExp_8u_C3RSfs(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliExp_8u_C1IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliExp_8u_C3IRSfs(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliExp_16s_C1RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliExp_16s_C3RSfs(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliExp_16s_C1IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);
KELI_API KelStatus keliExp_16s_C3IRSfs(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, int scaleFactor);

/**
 * Takes the exponential of a floating-point image.
 *
 *     dst = e^src
 *
 * Within 1 ulp (unit in the last place), the same bits on every processor: +infinity beyond the
 * largest number, denormal numbers and then 0 below the smallest normal one, all without a
 * warning. A NaN gives the NaN with the bits 0x7FC00000.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliExp_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliExp_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliExp_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliExp_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);

/* ==== Bitwise operations and shifts ==== */

/**
 * Forms the bitwise conjunction of two images.
 *
 *     dst = src1 & src2
 *
 * In place the result replaces the second source. AC4 leaves the fourth sample of every pixel
 * as it was. Steps are checked before sizes.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height.
 */
KELI_API KelStatus keliAnd_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_8u_C1IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_8u_C3IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_8u_C4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_8u_AC4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_16u_C1R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_16u_C3R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_16u_C4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_16u_AC4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_16u_C1IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_16u_C3IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_16u_C4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_16u_AC4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_32s_C1R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_32s_C3R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_32s_C4R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_32s_AC4R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_32s_C1IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_32s_C3IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_32s_C4IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAnd_32s_AC4IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Forms the bitwise disjunction of two images.
 *
 *     dst = src1 | src2
 *
 * In place the result replaces the second source. AC4 leaves the fourth sample of every pixel
 * as it was. Steps are checked before sizes.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height.
 */
KELI_API KelStatus keliOr_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_8u_C1IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_8u_C3IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_8u_C4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_8u_AC4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_16u_C1R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_16u_C3R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_16u_C4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_16u_AC4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_16u_C1IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_16u_C3IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_16u_C4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_16u_AC4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_32s_C1R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_32s_C3R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_32s_C4R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_32s_AC4R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_32s_C1IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_32s_C3IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_32s_C4IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOr_32s_AC4IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Forms the bitwise exclusive disjunction of two images.
 *
 *     dst = src1 ^ src2
 *
 * In place the result replaces the second source. AC4 leaves the fourth sample of every pixel
 * as it was. Steps are checked before sizes.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height.
 */
KELI_API KelStatus keliXor_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_8u_C1IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_8u_C3IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_8u_C4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_8u_AC4IR(const Kel8u* pSrc, int srcStep, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_16u_C1R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_16u_C3R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_16u_C4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_16u_AC4R(const Kel16u* pSrc1, int src1Step, const Kel16u* pSrc2, int src2Step, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_16u_C1IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_16u_C3IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_16u_C4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_16u_AC4IR(const Kel16u* pSrc, int srcStep, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_32s_C1R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_32s_C3R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_32s_C4R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_32s_AC4R(const Kel32s* pSrc1, int src1Step, const Kel32s* pSrc2, int src2Step, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_32s_C1IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_32s_C3IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_32s_C4IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXor_32s_AC4IR(const Kel32s* pSrc, int srcStep, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Forms the bitwise conjunction of an image and a constant.
 *
 *     dst = src & value
 *
 * The constant is one value for C1, and an array of one value for each channel otherwise (three
 * for C3 and AC4, four for C4). AC4 leaves the fourth sample of every pixel as it was. Steps
 * are checked before sizes.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height.
 */
KELI_API KelStatus keliAndC_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_8u_C3R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_8u_C4R(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_8u_AC4R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_8u_C1IR(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_8u_C3IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_8u_C4IR(const Kel8u value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_8u_AC4IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_16u_C1R(const Kel16u* pSrc, int srcStep, Kel16u value, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_16u_C3R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_16u_C4R(const Kel16u* pSrc, int srcStep, const Kel16u value[4], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_16u_AC4R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_16u_C1IR(Kel16u value, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_16u_C3IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_16u_C4IR(const Kel16u value[4], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_16u_AC4IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_32s_C1R(const Kel32s* pSrc, int srcStep, Kel32s value, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_32s_C3R(const Kel32s* pSrc, int srcStep, const Kel32s value[3], Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_32s_C4R(const Kel32s* pSrc, int srcStep, const Kel32s value[4], Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_32s_AC4R(const Kel32s* pSrc, int srcStep, const Kel32s value[3], Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_32s_C1IR(Kel32s value, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_32s_C3IR(const Kel32s value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_32s_C4IR(const Kel32s value[4], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliAndC_32s_AC4IR(const Kel32s value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Forms the bitwise disjunction of an image and a constant.
 *
 *     dst = src | value
 *
 * The constant is one value for C1, and an array of one value for each channel otherwise (three
 * for C3 and AC4, four for C4). AC4 leaves the fourth sample of every pixel as it was. Steps
 * are checked before sizes.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height.
 */
KELI_API KelStatus keliOrC_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_8u_C3R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_8u_C4R(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_8u_AC4R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_8u_C1IR(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_8u_C3IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_8u_C4IR(const Kel8u value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_8u_AC4IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_16u_C1R(const Kel16u* pSrc, int srcStep, Kel16u value, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_16u_C3R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_16u_C4R(const Kel16u* pSrc, int srcStep, const Kel16u value[4], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_16u_AC4R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_16u_C1IR(Kel16u value, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_16u_C3IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_16u_C4IR(const Kel16u value[4], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_16u_AC4IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_32s_C1R(const Kel32s* pSrc, int srcStep, Kel32s value, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_32s_C3R(const Kel32s* pSrc, int srcStep, const Kel32s value[3], Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_32s_C4R(const Kel32s* pSrc, int srcStep, const Kel32s value[4], Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_32s_AC4R(const Kel32s* pSrc, int srcStep, const Kel32s value[3], Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_32s_C1IR(Kel32s value, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_32s_C3IR(const Kel32s value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_32s_C4IR(const Kel32s value[4], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliOrC_32s_AC4IR(const Kel32s value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Forms the bitwise exclusive disjunction of an image and a constant.
 *
 *     dst = src ^ value
 *
 * The constant is one value for C1, and an array of one value for each channel otherwise (three
 * for C3 and AC4, four for C4). AC4 leaves the fourth sample of every pixel as it was. Steps
 * are checked before sizes.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height.
 */
KELI_API KelStatus keliXorC_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_8u_C3R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_8u_C4R(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_8u_AC4R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_8u_C1IR(Kel8u value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_8u_C3IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_8u_C4IR(const Kel8u value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_8u_AC4IR(const Kel8u value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_16u_C1R(const Kel16u* pSrc, int srcStep, Kel16u value, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_16u_C3R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_16u_C4R(const Kel16u* pSrc, int srcStep, const Kel16u value[4], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_16u_AC4R(const Kel16u* pSrc, int srcStep, const Kel16u value[3], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_16u_C1IR(Kel16u value, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_16u_C3IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_16u_C4IR(const Kel16u value[4], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_16u_AC4IR(const Kel16u value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_32s_C1R(const Kel32s* pSrc, int srcStep, Kel32s value, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_32s_C3R(const Kel32s* pSrc, int srcStep, const Kel32s value[3], Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_32s_C4R(const Kel32s* pSrc, int srcStep, const Kel32s value[4], Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_32s_AC4R(const Kel32s* pSrc, int srcStep, const Kel32s value[3], Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_32s_C1IR(Kel32s value, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_32s_C3IR(const Kel32s value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_32s_C4IR(const Kel32s value[4], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliXorC_32s_AC4IR(const Kel32s value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Inverts every bit of an image.
 *
 *     dst = ~src = 255 - src
 *
 * AC4 leaves the fourth sample of every pixel as it was. Steps are checked before sizes, except
 * that C3 and C4 report an empty region before anything else.
 *
 * Checks, in order: kelStatusBadSize if roiSize is below 1 in width or height (C3 and C4);
 * kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is below 1;
 * kelStatusBadSize if roiSize is below 1 in width or height.
 */
KELI_API KelStatus keliNot_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliNot_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliNot_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliNot_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliNot_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliNot_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliNot_8u_C4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliNot_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Shifts the bits of every sample to the left.
 *
 *     dst = src << value
 *
 * The count is any unsigned number: one for C1, and an array of one for each channel otherwise
 * (three for C3 and AC4, four for C4). Bits that leave the sample are lost, and zeros enter:
 * nothing is saturated, and a count of the sample's width or more (8, 16, 32) gives 0. AC4
 * leaves the fourth sample of every pixel as it was. Steps are checked before sizes.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height.
 */
KELI_API KelStatus keliLShiftC_8u_C1R(const Kel8u* pSrc, int srcStep, uint32_t value, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_8u_C3R(const Kel8u* pSrc, int srcStep, const uint32_t value[3], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_8u_C4R(const Kel8u* pSrc, int srcStep, const uint32_t value[4], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_8u_AC4R(const Kel8u* pSrc, int srcStep, const uint32_t value[3], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_8u_C1IR(uint32_t value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_8u_C3IR(const uint32_t value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_8u_C4IR(const uint32_t value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_8u_AC4IR(const uint32_t value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_16u_C1R(const Kel16u* pSrc, int srcStep, uint32_t value, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_16u_C3R(const Kel16u* pSrc, int srcStep, const uint32_t value[3], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_16u_C4R(const Kel16u* pSrc, int srcStep, const uint32_t value[4], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_16u_AC4R(const Kel16u* pSrc, int srcStep, const uint32_t value[3], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_16u_C1IR(uint32_t value, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_16u_C3IR(const uint32_t value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_16u_C4IR(const uint32_t value[4], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_16u_AC4IR(const uint32_t value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_32s_C1R(const Kel32s* pSrc, int srcStep, uint32_t value, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_32s_C3R(const Kel32s* pSrc, int srcStep, const uint32_t value[3], Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_32s_C4R(const Kel32s* pSrc, int srcStep, const uint32_t value[4], Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_32s_AC4R(const Kel32s* pSrc, int srcStep, const uint32_t value[3], Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_32s_C1IR(uint32_t value, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_32s_C3IR(const uint32_t value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_32s_C4IR(const uint32_t value[4], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliLShiftC_32s_AC4IR(const uint32_t value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Shifts the bits of every sample to the right.
 *
 *     dst = src >> value = floor(src / 2^value)
 *
 * The count is any unsigned number: one for C1, and an array of one for each channel otherwise
 * (three for C3 and AC4, four for C4). Zeros enter unsigned samples; the sign is repeated into
 * signed ones. So a count of the sample's width or more (8, 16, 32) gives 0, or -1 for a
 * negative sample. AC4 leaves the fourth sample of every pixel as it was. Steps are checked
 * before sizes.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height.
 */
KELI_API KelStatus keliRShiftC_8u_C1R(const Kel8u* pSrc, int srcStep, uint32_t value, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_8u_C3R(const Kel8u* pSrc, int srcStep, const uint32_t value[3], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_8u_C4R(const Kel8u* pSrc, int srcStep, const uint32_t value[4], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_8u_AC4R(const Kel8u* pSrc, int srcStep, const uint32_t value[3], Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_8u_C1IR(uint32_t value, Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_8u_C3IR(const uint32_t value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_8u_C4IR(const uint32_t value[4], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_8u_AC4IR(const uint32_t value[3], Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_8s_C1R(const Kel8s* pSrc, int srcStep, uint32_t value, Kel8s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_8s_C3R(const Kel8s* pSrc, int srcStep, const uint32_t value[3], Kel8s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_8s_C4R(const Kel8s* pSrc, int srcStep, const uint32_t value[4], Kel8s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_8s_AC4R(const Kel8s* pSrc, int srcStep, const uint32_t value[3], Kel8s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_8s_C1IR(uint32_t value, Kel8s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_8s_C3IR(const uint32_t value[3], Kel8s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_8s_C4IR(const uint32_t value[4], Kel8s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_8s_AC4IR(const uint32_t value[3], Kel8s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16u_C1R(const Kel16u* pSrc, int srcStep, uint32_t value, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16u_C3R(const Kel16u* pSrc, int srcStep, const uint32_t value[3], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16u_C4R(const Kel16u* pSrc, int srcStep, const uint32_t value[4], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16u_AC4R(const Kel16u* pSrc, int srcStep, const uint32_t value[3], Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16u_C1IR(uint32_t value, Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16u_C3IR(const uint32_t value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16u_C4IR(const uint32_t value[4], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16u_AC4IR(const uint32_t value[3], Kel16u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16s_C1R(const Kel16s* pSrc, int srcStep, uint32_t value, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16s_C3R(const Kel16s* pSrc, int srcStep, const uint32_t value[3], Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16s_C4R(const Kel16s* pSrc, int srcStep, const uint32_t value[4], Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16s_AC4R(const Kel16s* pSrc, int srcStep, const uint32_t value[3], Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16s_C1IR(uint32_t value, Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16s_C3IR(const uint32_t value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16s_C4IR(const uint32_t value[4], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_16s_AC4IR(const uint32_t value[3], Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_32s_C1R(const Kel32s* pSrc, int srcStep, uint32_t value, Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_32s_C3R(const Kel32s* pSrc, int srcStep, const uint32_t value[3], Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_32s_C4R(const Kel32s* pSrc, int srcStep, const uint32_t value[4], Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_32s_AC4R(const Kel32s* pSrc, int srcStep, const uint32_t value[3], Kel32s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_32s_C1IR(uint32_t value, Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_32s_C3IR(const uint32_t value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_32s_C4IR(const uint32_t value[4], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliRShiftC_32s_AC4IR(const uint32_t value[3], Kel32s* pSrcDst, int srcDstStep, KeliSize roiSize);

/* ==== Thresholds ==== */

/**
 * Replaces the samples beyond a threshold by the threshold.
 *
 *     dst = src < threshold ? threshold : src (kelCmpLess); src > threshold ? threshold : src (kelCmpGreater)
 *
 * The threshold is one value for C1, and an array of three, one for each channel, for C3 and
 * AC4. cmpOp is kelCmpLess, which replaces what is below the threshold, or kelCmpGreater, which
 * replaces what is above it. Of 32f the result is src > threshold ? src : threshold for
 * kelCmpLess and src < threshold ? src : threshold for kelCmpGreater: a sample or a threshold
 * that is not a number gives the threshold, and so does a zero of either sign for a threshold
 * of zero. AC4 leaves the fourth sample of every pixel as it was. The operation is checked last
 * of all.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusNullPointer if an
 * array of values is null; kelStatusBadCompareOp if cmpOp is neither kelCmpLess nor
 * kelCmpGreater.
 */
KELI_API KelStatus keliThreshold_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel8u threshold, KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, Kel8u threshold, KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, Kel16s threshold, KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, Kel16s threshold, KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f threshold, KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, Kel32f threshold, KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], KelCmpOp cmpOp);

/**
 * Replaces the samples below a threshold by the threshold.
 *
 *     dst = src < threshold ? threshold : src
 *
 * The same as Threshold with kelCmpLess. The threshold is one value for C1, and an array of
 * three, one for each channel, for C3 and AC4. Of 32f the result is src > threshold ? src :
 * threshold, so that a sample that is not a number becomes the threshold. AC4 leaves the fourth
 * sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusNullPointer if an
 * array of values is null.
 */
KELI_API KelStatus keliThreshold_LT_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel8u threshold);
KELI_API KelStatus keliThreshold_LT_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3]);
KELI_API KelStatus keliThreshold_LT_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3]);
KELI_API KelStatus keliThreshold_LT_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, Kel8u threshold);
KELI_API KelStatus keliThreshold_LT_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3]);
KELI_API KelStatus keliThreshold_LT_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3]);
KELI_API KelStatus keliThreshold_LT_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, Kel16s threshold);
KELI_API KelStatus keliThreshold_LT_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3]);
KELI_API KelStatus keliThreshold_LT_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3]);
KELI_API KelStatus keliThreshold_LT_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, Kel16s threshold);
KELI_API KelStatus keliThreshold_LT_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3]);
KELI_API KelStatus keliThreshold_LT_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3]);
KELI_API KelStatus keliThreshold_LT_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f threshold);
KELI_API KelStatus keliThreshold_LT_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3]);
KELI_API KelStatus keliThreshold_LT_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3]);
KELI_API KelStatus keliThreshold_LT_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, Kel32f threshold);
KELI_API KelStatus keliThreshold_LT_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3]);
KELI_API KelStatus keliThreshold_LT_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3]);

/**
 * Replaces the samples above a threshold by the threshold.
 *
 *     dst = src > threshold ? threshold : src
 *
 * The same as Threshold with kelCmpGreater. The threshold is one value for C1, and an array of
 * three, one for each channel, for C3 and AC4. Of 32f the result is src < threshold ? src :
 * threshold, so that a sample that is not a number becomes the threshold. AC4 leaves the fourth
 * sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusNullPointer if an
 * array of values is null.
 */
KELI_API KelStatus keliThreshold_GT_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel8u threshold);
KELI_API KelStatus keliThreshold_GT_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3]);
KELI_API KelStatus keliThreshold_GT_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3]);
KELI_API KelStatus keliThreshold_GT_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, Kel8u threshold);
KELI_API KelStatus keliThreshold_GT_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3]);
KELI_API KelStatus keliThreshold_GT_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3]);
KELI_API KelStatus keliThreshold_GT_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, Kel16s threshold);
KELI_API KelStatus keliThreshold_GT_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3]);
KELI_API KelStatus keliThreshold_GT_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3]);
KELI_API KelStatus keliThreshold_GT_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, Kel16s threshold);
KELI_API KelStatus keliThreshold_GT_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3]);
KELI_API KelStatus keliThreshold_GT_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3]);
KELI_API KelStatus keliThreshold_GT_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f threshold);
KELI_API KelStatus keliThreshold_GT_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3]);
KELI_API KelStatus keliThreshold_GT_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3]);
KELI_API KelStatus keliThreshold_GT_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, Kel32f threshold);
KELI_API KelStatus keliThreshold_GT_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3]);
KELI_API KelStatus keliThreshold_GT_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3]);

/**
 * Replaces the samples beyond a threshold by a value.
 *
 *     dst = src < threshold ? value : src (kelCmpLess); src > threshold ? value : src (kelCmpGreater)
 *
 * Threshold and value are one each for C1, and arrays of three, one for each channel, for C3
 * and AC4. cmpOp is kelCmpLess, which replaces what is below the threshold, or kelCmpGreater,
 * which replaces what is above it; a sample equal to the threshold is kept. Of 32f kelCmpLess
 * keeps a sample where threshold <= src, and so replaces one that is not a number;
 * kelCmpGreater replaces it where threshold < src, and so keeps one that is not a number. AC4
 * leaves the fourth sample of every pixel as it was. The operation is checked first, even
 * before null pointers.
 *
 * Checks, in order: kelStatusBadCompareOp if cmpOp is neither kelCmpLess nor kelCmpGreater;
 * kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is below 1 in width or
 * height; kelStatusBadStep if a step is below 1; kelStatusNullPointer if an array of values is
 * null.
 */
KELI_API KelStatus keliThreshold_Val_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel8u threshold, Kel8u value, KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, Kel8u threshold, Kel8u value, KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, Kel16s threshold, Kel16s value, KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, Kel16s threshold, Kel16s value, KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f threshold, Kel32f value, KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, Kel32f threshold, Kel32f value, KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3], KelCmpOp cmpOp);
KELI_API KelStatus keliThreshold_Val_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3], KelCmpOp cmpOp);

/**
 * Replaces the samples below a threshold by a value.
 *
 *     dst = src < threshold ? value : src
 *
 * The same as Threshold_Val with kelCmpLess, and for C4 too. Threshold and value are one each
 * for C1, and arrays of one for each channel otherwise (three for C3 and AC4, four for C4). Of
 * 32f a sample is kept where threshold <= src, so that one that is not a number is replaced.
 * AC4 leaves the fourth sample of every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusNullPointer if an
 * array of values is null.
 */
KELI_API KelStatus keliThreshold_LTVal_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel8u threshold, Kel8u value);
KELI_API KelStatus keliThreshold_LTVal_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]);
KELI_API KelStatus keliThreshold_LTVal_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]);
KELI_API KelStatus keliThreshold_LTVal_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[4], const Kel8u value[4]);
KELI_API KelStatus keliThreshold_LTVal_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, Kel8u threshold, Kel8u value);
KELI_API KelStatus keliThreshold_LTVal_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]);
KELI_API KelStatus keliThreshold_LTVal_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]);
KELI_API KelStatus keliThreshold_LTVal_8u_C4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[4], const Kel8u value[4]);
KELI_API KelStatus keliThreshold_LTVal_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, Kel16s threshold, Kel16s value);
KELI_API KelStatus keliThreshold_LTVal_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]);
KELI_API KelStatus keliThreshold_LTVal_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]);
KELI_API KelStatus keliThreshold_LTVal_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[4], const Kel16s value[4]);
KELI_API KelStatus keliThreshold_LTVal_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, Kel16s threshold, Kel16s value);
KELI_API KelStatus keliThreshold_LTVal_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]);
KELI_API KelStatus keliThreshold_LTVal_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]);
KELI_API KelStatus keliThreshold_LTVal_16s_C4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[4], const Kel16s value[4]);
KELI_API KelStatus keliThreshold_LTVal_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f threshold, Kel32f value);
KELI_API KelStatus keliThreshold_LTVal_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]);
KELI_API KelStatus keliThreshold_LTVal_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]);
KELI_API KelStatus keliThreshold_LTVal_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[4], const Kel32f value[4]);
KELI_API KelStatus keliThreshold_LTVal_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, Kel32f threshold, Kel32f value);
KELI_API KelStatus keliThreshold_LTVal_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]);
KELI_API KelStatus keliThreshold_LTVal_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]);
KELI_API KelStatus keliThreshold_LTVal_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[4], const Kel32f value[4]);

/**
 * Replaces the samples above a threshold by a value.
 *
 *     dst = src > threshold ? value : src
 *
 * The same as Threshold_Val with kelCmpGreater, and for C4 too. Threshold and value are one
 * each for C1, and arrays of one for each channel otherwise (three for C3 and AC4, four for
 * C4). Of 32f a sample that is not a number is kept. AC4 leaves the fourth sample of every
 * pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusNullPointer if an
 * array of values is null.
 */
KELI_API KelStatus keliThreshold_GTVal_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel8u threshold, Kel8u value);
KELI_API KelStatus keliThreshold_GTVal_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]);
KELI_API KelStatus keliThreshold_GTVal_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]);
KELI_API KelStatus keliThreshold_GTVal_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u threshold[4], const Kel8u value[4]);
KELI_API KelStatus keliThreshold_GTVal_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, Kel8u threshold, Kel8u value);
KELI_API KelStatus keliThreshold_GTVal_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]);
KELI_API KelStatus keliThreshold_GTVal_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[3], const Kel8u value[3]);
KELI_API KelStatus keliThreshold_GTVal_8u_C4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u threshold[4], const Kel8u value[4]);
KELI_API KelStatus keliThreshold_GTVal_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, Kel16s threshold, Kel16s value);
KELI_API KelStatus keliThreshold_GTVal_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]);
KELI_API KelStatus keliThreshold_GTVal_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]);
KELI_API KelStatus keliThreshold_GTVal_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s threshold[4], const Kel16s value[4]);
KELI_API KelStatus keliThreshold_GTVal_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, Kel16s threshold, Kel16s value);
KELI_API KelStatus keliThreshold_GTVal_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]);
KELI_API KelStatus keliThreshold_GTVal_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[3], const Kel16s value[3]);
KELI_API KelStatus keliThreshold_GTVal_16s_C4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s threshold[4], const Kel16s value[4]);
KELI_API KelStatus keliThreshold_GTVal_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f threshold, Kel32f value);
KELI_API KelStatus keliThreshold_GTVal_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]);
KELI_API KelStatus keliThreshold_GTVal_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]);
KELI_API KelStatus keliThreshold_GTVal_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f threshold[4], const Kel32f value[4]);
KELI_API KelStatus keliThreshold_GTVal_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, Kel32f threshold, Kel32f value);
KELI_API KelStatus keliThreshold_GTVal_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]);
KELI_API KelStatus keliThreshold_GTVal_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[3], const Kel32f value[3]);
KELI_API KelStatus keliThreshold_GTVal_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f threshold[4], const Kel32f value[4]);

/**
 * Replaces the samples below one threshold by a value, and those above another by another.
 *
 *     dst = src < thresholdLT ? valueLT : src > thresholdGT ? valueGT : src
 *
 * Thresholds and values are one each for C1, and arrays of three, one for each channel, for C3
 * and AC4. A sample equal to a threshold is kept. Of 32f a sample that is not a number gives
 * valueLT, and a threshold that is not a number is a bad one. AC4 leaves the fourth sample of
 * every pixel as it was.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusNullPointer if an
 * array of values is null; kelStatusBadThresholds if not thresholdGT >= thresholdLT, in any
 * channel.
 */
KELI_API KelStatus keliThreshold_LTValGTVal_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel8u thresholdLT, Kel8u valueLT, Kel8u thresholdGT, Kel8u valueGT);
KELI_API KelStatus keliThreshold_LTValGTVal_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u thresholdLT[3], const Kel8u valueLT[3], const Kel8u thresholdGT[3], const Kel8u valueGT[3]);
KELI_API KelStatus keliThreshold_LTValGTVal_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u thresholdLT[3], const Kel8u valueLT[3], const Kel8u thresholdGT[3], const Kel8u valueGT[3]);
KELI_API KelStatus keliThreshold_LTValGTVal_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, Kel8u thresholdLT, Kel8u valueLT, Kel8u thresholdGT, Kel8u valueGT);
KELI_API KelStatus keliThreshold_LTValGTVal_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u thresholdLT[3], const Kel8u valueLT[3], const Kel8u thresholdGT[3], const Kel8u valueGT[3]);
KELI_API KelStatus keliThreshold_LTValGTVal_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel8u thresholdLT[3], const Kel8u valueLT[3], const Kel8u thresholdGT[3], const Kel8u valueGT[3]);
KELI_API KelStatus keliThreshold_LTValGTVal_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, Kel16s thresholdLT, Kel16s valueLT, Kel16s thresholdGT, Kel16s valueGT);
KELI_API KelStatus keliThreshold_LTValGTVal_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s thresholdLT[3], const Kel16s valueLT[3], const Kel16s thresholdGT[3], const Kel16s valueGT[3]);
KELI_API KelStatus keliThreshold_LTValGTVal_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel16s thresholdLT[3], const Kel16s valueLT[3], const Kel16s thresholdGT[3], const Kel16s valueGT[3]);
KELI_API KelStatus keliThreshold_LTValGTVal_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, Kel16s thresholdLT, Kel16s valueLT, Kel16s thresholdGT, Kel16s valueGT);
KELI_API KelStatus keliThreshold_LTValGTVal_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s thresholdLT[3], const Kel16s valueLT[3], const Kel16s thresholdGT[3], const Kel16s valueGT[3]);
KELI_API KelStatus keliThreshold_LTValGTVal_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel16s thresholdLT[3], const Kel16s valueLT[3], const Kel16s thresholdGT[3], const Kel16s valueGT[3]);
KELI_API KelStatus keliThreshold_LTValGTVal_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, Kel32f thresholdLT, Kel32f valueLT, Kel32f thresholdGT, Kel32f valueGT);
KELI_API KelStatus keliThreshold_LTValGTVal_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f thresholdLT[3], const Kel32f valueLT[3], const Kel32f thresholdGT[3], const Kel32f valueGT[3]);
KELI_API KelStatus keliThreshold_LTValGTVal_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f thresholdLT[3], const Kel32f valueLT[3], const Kel32f thresholdGT[3], const Kel32f valueGT[3]);
KELI_API KelStatus keliThreshold_LTValGTVal_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, Kel32f thresholdLT, Kel32f valueLT, Kel32f thresholdGT, Kel32f valueGT);
KELI_API KelStatus keliThreshold_LTValGTVal_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f thresholdLT[3], const Kel32f valueLT[3], const Kel32f thresholdGT[3], const Kel32f valueGT[3]);
KELI_API KelStatus keliThreshold_LTValGTVal_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, const Kel32f thresholdLT[3], const Kel32f valueLT[3], const Kel32f thresholdGT[3], const Kel32f valueGT[3]);

/* ==== Comparisons ==== */

/**
 * Compares two images, pixel by pixel, and writes a mask.
 *
 *     dst = src1 op src2 in every channel ? 255 : 0
 *
 * op is <, <=, ==, >= or >, as cmpOp says. The mask has one channel of 8u whatever the layout
 * of the sources; where these have several channels, the relation must hold in each: in the
 * first three for AC4, whose fourth is ignored, and in all four for C4. Of 32f a relation with
 * a sample that is not a number is false, == too, and zeros of both signs are equal. With any
 * other cmpOp the function returns kelStatusOk and writes nothing. Steps are checked before
 * sizes.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height.
 */
KELI_API KelStatus keliCompare_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompare_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompare_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompare_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompare_16s_C1R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompare_16s_C3R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompare_16s_C4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompare_16s_AC4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompare_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompare_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompare_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompare_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);

/**
 * Compares the pixels of an image with a constant and writes a mask.
 *
 *     dst = src op value in every channel ? 255 : 0
 *
 * op is <, <=, ==, >= or >, as cmpOp says. The constant is one value for C1, and an array of
 * one for each channel otherwise (three for C3 and AC4, four for C4). The mask has one channel
 * of 8u; where the source has several, the relation must hold in each: in the first three for
 * AC4, whose fourth is ignored, and in all four for C4. Of 32f a relation with a number that is
 * none is false, == too, and zeros of both signs are equal. With any other cmpOp the function
 * returns kelStatusOk and writes nothing. Steps are checked before sizes.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height.
 */
KELI_API KelStatus keliCompareC_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u value, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompareC_8u_C3R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompareC_8u_C4R(const Kel8u* pSrc, int srcStep, const Kel8u value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompareC_8u_AC4R(const Kel8u* pSrc, int srcStep, const Kel8u value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompareC_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s value, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompareC_16s_C3R(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompareC_16s_C4R(const Kel16s* pSrc, int srcStep, const Kel16s value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompareC_16s_AC4R(const Kel16s* pSrc, int srcStep, const Kel16s value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompareC_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f value, Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompareC_32f_C3R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompareC_32f_C4R(const Kel32f* pSrc, int srcStep, const Kel32f value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);
KELI_API KelStatus keliCompareC_32f_AC4R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, KelCmpOp cmpOp);

/**
 * Tells where two images are equal within a tolerance, and writes a mask.
 *
 *     dst = |src1 - src2| <= eps in every channel ? 255 : 0
 *
 * The mask has one channel of 8u; where the sources have several, all must be equal: the first
 * three for AC4, whose fourth is ignored, and all four for C4. The difference is formed in
 * single precision, and one that is not a number is not within the tolerance. Of C4 it is
 * formed in double precision, and compared with the tolerance widened to it, wherever the
 * address or the step of an image is not a multiple of 16 bytes: a pixel whose rounded
 * difference is the tolerance, and whose exact one is above, then gives 0 and not 255. A
 * tolerance of 0, or -0, asks for equality, and zeros of both signs are equal. Steps are
 * checked before sizes.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height; kelStatusBadEpsilon if
 * not eps >= 0.
 */
KELI_API KelStatus keliCompareEqualEps_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps);
KELI_API KelStatus keliCompareEqualEps_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps);
KELI_API KelStatus keliCompareEqualEps_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps);
KELI_API KelStatus keliCompareEqualEps_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps);

/**
 * Tells where an image is equal to a constant within a tolerance, and writes a mask.
 *
 *     dst = |src - value| <= eps in every channel ? 255 : 0
 *
 * The constant is one value for C1, and an array of one for each channel otherwise (three for
 * C3 and AC4, four for C4). The mask has one channel of 8u; where the source has several, all
 * must be equal: the first three for AC4, whose fourth is ignored, and all four for C4. The
 * difference is formed in single precision, and one that is not a number is not within the
 * tolerance. Of C4 it is formed in double precision, and compared with the tolerance widened to
 * it, wherever the address or the step of an image is not a multiple of 16 bytes; where the
 * array of constants stands does not matter. A tolerance of 0, or -0, asks for equality, and
 * zeros of both signs are equal. Steps are checked before sizes.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height; kelStatusBadEpsilon if
 * not eps >= 0.
 */
KELI_API KelStatus keliCompareEqualEpsC_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f value, Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps);
KELI_API KelStatus keliCompareEqualEpsC_32f_C3R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps);
KELI_API KelStatus keliCompareEqualEpsC_32f_C4R(const Kel32f* pSrc, int srcStep, const Kel32f value[4], Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps);
KELI_API KelStatus keliCompareEqualEpsC_32f_AC4R(const Kel32f* pSrc, int srcStep, const Kel32f value[3], Kel8u* pDst, int dstStep, KeliSize roiSize, Kel32f eps);

/* ==== Sums, means, quality index ==== */

/**
 * Sums an image's samples, channel by channel.
 *
 *     sum = sum of src
 *
 * The exact sum, rounded once to double precision. One value for C1, an array of one for each
 * channel otherwise: three for C3 and AC4, which leaves the fourth channel out, four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSum_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f* pSum);
KELI_API KelStatus keliSum_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[3]);
KELI_API KelStatus keliSum_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[3]);
KELI_API KelStatus keliSum_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[4]);
KELI_API KelStatus keliSum_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f* pSum);
KELI_API KelStatus keliSum_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[3]);
KELI_API KelStatus keliSum_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[3]);
KELI_API KelStatus keliSum_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[4]);

/**
 * Sums a floating-point image's samples, channel by channel.
 *
 *     sum = sum of src
 *
 * hint kelAlgHintAccurate sums in double precision: of each channel, samples of even columns
 * into one accumulator and those of odd columns into another, row after row, and adds the two
 * at the end. Every other hint sums in single precision, in 64 or 96 partial sums of fixed
 * places that are emptied into double precision; the result is the same for every step,
 * processor and number of threads, and may differ from the accurate one in the last digits of
 * single precision. A NaN among the samples makes the result NaN. One value for C1, an array of
 * one for each channel otherwise: three for C3 and AC4, which leaves the fourth channel out,
 * four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliSum_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f* pSum, KelHintAlgorithm hint);
KELI_API KelStatus keliSum_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[3], KelHintAlgorithm hint);
KELI_API KelStatus keliSum_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[3], KelHintAlgorithm hint);
KELI_API KelStatus keliSum_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pSum[4], KelHintAlgorithm hint);

/**
 * The mean of an image's samples, channel by channel.
 *
 *     mean = (sum of src) / (width * height)
 *
 * The sum is that of Sum; C1 divides it by the number of pixels, the others multiply it by the
 * number's reciprocal, so the last digit may differ. One value for C1, an array of one for each
 * channel otherwise: three for C3 and AC4, which leaves the fourth channel out, four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliMean_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f* pMean);
KELI_API KelStatus keliMean_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[3]);
KELI_API KelStatus keliMean_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[3]);
KELI_API KelStatus keliMean_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[4]);
KELI_API KelStatus keliMean_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f* pMean);
KELI_API KelStatus keliMean_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[3]);
KELI_API KelStatus keliMean_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[3]);
KELI_API KelStatus keliMean_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[4]);

/**
 * The mean of a floating-point image's samples, channel by channel.
 *
 *     mean = (sum of src) / (width * height)
 *
 * The sum is that of Sum; C1 divides it by the number of pixels, the others multiply it by the
 * number's reciprocal, so the last digit may differ. hint kelAlgHintAccurate sums in double
 * precision: of each channel, samples of even columns into one accumulator and those of odd
 * columns into another, row after row, and adds the two at the end. Every other hint sums in
 * single precision, in 64 or 96 partial sums of fixed places that are emptied into double
 * precision; the result is the same for every step, processor and number of threads, and may
 * differ from the accurate one in the last digits of single precision. A NaN among the samples
 * makes the result NaN. One value for C1, an array of one for each channel otherwise: three for
 * C3 and AC4, which leaves the fourth channel out, four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliMean_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f* pMean, KelHintAlgorithm hint);
KELI_API KelStatus keliMean_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[3], KelHintAlgorithm hint);
KELI_API KelStatus keliMean_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[3], KelHintAlgorithm hint);
KELI_API KelStatus keliMean_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pMean[4], KelHintAlgorithm hint);

/**
 * The universal quality index of two images, channel by channel.
 *
 *     index = 4 Sxy mx my / ((Sxx + Syy) (mx^2 + my^2))
 *
 * Where mx and my are the means of src1 and src2, Sxy the sum of (src1 - mx) (src2 - my), and
 * Sxx and Syy the sums of (src1 - mx)^2 and (src2 - my)^2: 1 for equal images that are not
 * constant, less the more they differ in structure, brightness or contrast (Wang and Bovik: A
 * Universal Image Quality Index, IEEE Signal Processing Letters, 2002). Means are in double
 * precision, deviations and their products in single precision, sums of blocks of rows in both
 * (the blocks depend on the height alone); the index is computed in double precision. A zero
 * denominator is not looked for: two constant images give the NaN or infinity of the division.
 * One value for C1, an array of three for C3 and AC4, which leaves the fourth channel out.
 *
 * On large regions the rows are shared out among threads, with the same results:
 * keliQualityIndex_8u32f_C1R, keliQualityIndex_8u32f_C3R, keliQualityIndex_8u32f_AC4R,
 * keliQualityIndex_32f_C1R, keliQualityIndex_32f_C3R, keliQualityIndex_32f_AC4R.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliQualityIndex_8u32f_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel32f* pQualityIndex);
KELI_API KelStatus keliQualityIndex_8u32f_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel32f pQualityIndex[3]);
KELI_API KelStatus keliQualityIndex_8u32f_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel32f pQualityIndex[3]);
KELI_API KelStatus keliQualityIndex_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel32f* pQualityIndex);
KELI_API KelStatus keliQualityIndex_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel32f pQualityIndex[3]);
KELI_API KelStatus keliQualityIndex_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel32f pQualityIndex[3]);

/* ==== Minima, maxima, their places, and counts of samples in a range ==== */

/**
 * Finds the smallest sample of every channel.
 *
 *     pMin[k] = min of src(x, y)[k] over the region
 *
 * One value for C1, one for each channel otherwise; AC4 has no value for the fourth channel.
 * 32f: NaNs are passed over, and a channel of NaNs alone gives the NaN with the bits
 * 0x7FC00000; a smallest value of zero is +0 whatever the signs of the zeros, so that the
 * result does not depend on the order of the samples.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliMin_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u* pMin);
KELI_API KelStatus keliMin_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[3]);
KELI_API KelStatus keliMin_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[3]);
KELI_API KelStatus keliMin_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[4]);
KELI_API KelStatus keliMin_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s* pMin);
KELI_API KelStatus keliMin_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[3]);
KELI_API KelStatus keliMin_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[3]);
KELI_API KelStatus keliMin_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[4]);
KELI_API KelStatus keliMin_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f* pMin);
KELI_API KelStatus keliMin_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[3]);
KELI_API KelStatus keliMin_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[3]);
KELI_API KelStatus keliMin_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[4]);

/**
 * Finds the largest sample of every channel.
 *
 *     pMax[k] = max of src(x, y)[k] over the region
 *
 * One value for C1, one for each channel otherwise; AC4 has no value for the fourth channel.
 * 32f: NaNs are passed over, and a channel of NaNs alone gives the NaN with the bits
 * 0x7FC00000; a largest value of zero is +0 whatever the signs of the zeros, so that the result
 * does not depend on the order of the samples.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliMax_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u* pMax);
KELI_API KelStatus keliMax_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMax[3]);
KELI_API KelStatus keliMax_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMax[3]);
KELI_API KelStatus keliMax_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMax[4]);
KELI_API KelStatus keliMax_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s* pMax);
KELI_API KelStatus keliMax_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMax[3]);
KELI_API KelStatus keliMax_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMax[3]);
KELI_API KelStatus keliMax_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMax[4]);
KELI_API KelStatus keliMax_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f* pMax);
KELI_API KelStatus keliMax_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMax[3]);
KELI_API KelStatus keliMax_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMax[3]);
KELI_API KelStatus keliMax_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMax[4]);

/**
 * Finds the smallest and the largest sample of every channel in one pass.
 *
 *     pMin[k] = min of src(x, y)[k], pMax[k] = max of src(x, y)[k] over the region
 *
 * The results of the functions Min and Max: one value each for C1, one for each channel
 * otherwise; AC4 has none for the fourth channel. 32f: NaNs are passed over, and a channel of
 * NaNs alone gives the NaN with the bits 0x7FC00000 twice; a result of zero is +0.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliMinMax_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u* pMin, Kel8u* pMax);
KELI_API KelStatus keliMinMax_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[3], Kel8u pMax[3]);
KELI_API KelStatus keliMinMax_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[3], Kel8u pMax[3]);
KELI_API KelStatus keliMinMax_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[4], Kel8u pMax[4]);
KELI_API KelStatus keliMinMax_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s* pMin, Kel16s* pMax);
KELI_API KelStatus keliMinMax_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[3], Kel16s pMax[3]);
KELI_API KelStatus keliMinMax_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[3], Kel16s pMax[3]);
KELI_API KelStatus keliMinMax_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[4], Kel16s pMax[4]);
KELI_API KelStatus keliMinMax_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f* pMin, Kel32f* pMax);
KELI_API KelStatus keliMinMax_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[3], Kel32f pMax[3]);
KELI_API KelStatus keliMinMax_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[3], Kel32f pMax[3]);
KELI_API KelStatus keliMinMax_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[4], Kel32f pMax[4]);

/**
 * Finds the smallest sample of every channel and where it first occurs.
 *
 *     pMin[k] = src(pIndexX[k], pIndexY[k])[k] = min of src(x, y)[k]
 *
 * Column and row are counted from the first pixel of the region. Of equal samples the first
 * counts, in the order of rows and of columns within a row. One value, column and row for C1,
 * one for each channel otherwise; AC4 has none for the fourth channel. The value is the sample
 * found, with its own bits. 32f: a sample replaces the one at column 0 and row 0 if it is below
 * it; so a NaN is found if it is that very sample, and all others are passed over. 8u and 16s:
 * rows after the one in which the last of the channels reaches the least value of the type are
 * not read.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliMinIndx_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u* pMin, int* pIndexX, int* pIndexY);
KELI_API KelStatus keliMinIndx_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[3], int pIndexX[3], int pIndexY[3]);
KELI_API KelStatus keliMinIndx_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[3], int pIndexX[3], int pIndexY[3]);
KELI_API KelStatus keliMinIndx_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMin[4], int pIndexX[4], int pIndexY[4]);
KELI_API KelStatus keliMinIndx_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s* pMin, int* pIndexX, int* pIndexY);
KELI_API KelStatus keliMinIndx_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[3], int pIndexX[3], int pIndexY[3]);
KELI_API KelStatus keliMinIndx_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[3], int pIndexX[3], int pIndexY[3]);
KELI_API KelStatus keliMinIndx_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMin[4], int pIndexX[4], int pIndexY[4]);
KELI_API KelStatus keliMinIndx_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f* pMin, int* pIndexX, int* pIndexY);
KELI_API KelStatus keliMinIndx_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[3], int pIndexX[3], int pIndexY[3]);
KELI_API KelStatus keliMinIndx_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[3], int pIndexX[3], int pIndexY[3]);
KELI_API KelStatus keliMinIndx_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMin[4], int pIndexX[4], int pIndexY[4]);

/**
 * Finds the largest sample of every channel and where it first occurs.
 *
 *     pMax[k] = src(pIndexX[k], pIndexY[k])[k] = max of src(x, y)[k]
 *
 * Column and row are counted from the first pixel of the region. Of equal samples the first
 * counts, in the order of rows and of columns within a row. One value, column and row for C1,
 * one for each channel otherwise; AC4 has none for the fourth channel. The value is the sample
 * found, with its own bits. 32f: a sample replaces the one at column 0 and row 0 if it is above
 * it; so a NaN is found if it is that very sample, and all others are passed over. 8u and 16s:
 * rows after the one in which the last of the channels reaches the greatest value of the type
 * are not read.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliMaxIndx_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u* pMax, int* pIndexX, int* pIndexY);
KELI_API KelStatus keliMaxIndx_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMax[3], int pIndexX[3], int pIndexY[3]);
KELI_API KelStatus keliMaxIndx_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMax[3], int pIndexX[3], int pIndexY[3]);
KELI_API KelStatus keliMaxIndx_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel8u pMax[4], int pIndexX[4], int pIndexY[4]);
KELI_API KelStatus keliMaxIndx_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s* pMax, int* pIndexX, int* pIndexY);
KELI_API KelStatus keliMaxIndx_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMax[3], int pIndexX[3], int pIndexY[3]);
KELI_API KelStatus keliMaxIndx_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMax[3], int pIndexX[3], int pIndexY[3]);
KELI_API KelStatus keliMaxIndx_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel16s pMax[4], int pIndexX[4], int pIndexY[4]);
KELI_API KelStatus keliMaxIndx_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f* pMax, int* pIndexX, int* pIndexY);
KELI_API KelStatus keliMaxIndx_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMax[3], int pIndexX[3], int pIndexY[3]);
KELI_API KelStatus keliMaxIndx_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMax[3], int pIndexX[3], int pIndexY[3]);
KELI_API KelStatus keliMaxIndx_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel32f pMax[4], int pIndexX[4], int pIndexY[4]);

/**
 * Counts the samples of every channel that lie in a range.
 *
 *     counts[k] = number of (x, y) with lowerBound[k] <= src(x, y)[k] <= upperBound[k]
 *
 * Both ends belong to the range. One count for C1, one for each channel otherwise; AC4 has none
 * for the fourth channel. Counts are written, not added to what was there, and stop at
 * 2147483647. 32f: a NaN never counts, and where an end of the range is a NaN nothing does.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height; kelStatusBadRange if
 * lowerBound > upperBound in any channel.
 */
KELI_API KelStatus keliCountInRange_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* counts, Kel8u lowerBound, Kel8u upperBound);
KELI_API KelStatus keliCountInRange_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int counts[3], const Kel8u lowerBound[3], const Kel8u upperBound[3]);
KELI_API KelStatus keliCountInRange_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int counts[3], const Kel8u lowerBound[3], const Kel8u upperBound[3]);
KELI_API KelStatus keliCountInRange_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, int* counts, Kel32f lowerBound, Kel32f upperBound);
KELI_API KelStatus keliCountInRange_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, int counts[3], const Kel32f lowerBound[3], const Kel32f upperBound[3]);
KELI_API KelStatus keliCountInRange_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, int counts[3], const Kel32f lowerBound[3], const Kel32f upperBound[3]);

/* ==== Norms ==== */

/**
 * The largest magnitude of an image's samples, channel by channel.
 *
 *     value = max |src|
 *
 * Integers are exact. 32f is single precision, widened. A NaN among the samples makes the
 * result NaN. One value for C1, an array of one for each channel otherwise: three for C3 and
 * AC4, which leaves the fourth channel out, four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliNorm_Inf_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNorm_Inf_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNorm_Inf_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNorm_Inf_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4]);
KELI_API KelStatus keliNorm_Inf_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNorm_Inf_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNorm_Inf_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNorm_Inf_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4]);
KELI_API KelStatus keliNorm_Inf_32s_C1R(const Kel32s* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNorm_Inf_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNorm_Inf_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNorm_Inf_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNorm_Inf_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4]);

/**
 * The sum of magnitudes of an image's samples, channel by channel.
 *
 *     value = sum of |src|
 *
 * The sum is exact, rounded once to double precision. One value for C1, an array of one for
 * each channel otherwise: three for C3 and AC4, which leaves the fourth channel out, four for
 * C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliNorm_L1_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNorm_L1_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNorm_L1_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNorm_L1_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4]);
KELI_API KelStatus keliNorm_L1_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNorm_L1_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNorm_L1_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNorm_L1_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4]);

/**
 * The sum of magnitudes of an image's samples, channel by channel, of 32f.
 *
 *     value = sum of |src|
 *
 * hint kelAlgHintAccurate sums in double precision: of each channel, samples of even columns
 * into one accumulator and those of odd columns into another, row after row, and adds the two
 * at the end. Every other hint sums in single precision, in 64 or 96 partial sums of fixed
 * places that are emptied into double precision; the result is the same for every step,
 * processor and number of threads, and may differ from the accurate one in the last digits of
 * single precision. A NaN among the samples makes the result NaN. One value for C1, an array of
 * one for each channel otherwise: three for C3 and AC4, which leaves the fourth channel out,
 * four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliNorm_L1_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue, KelHintAlgorithm hint);
KELI_API KelStatus keliNorm_L1_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint);
KELI_API KelStatus keliNorm_L1_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint);
KELI_API KelStatus keliNorm_L1_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4], KelHintAlgorithm hint);

/**
 * The root of the sum of squares of an image's samples, channel by channel.
 *
 *     value = sqrt(sum of (src)^2)
 *
 * The sum is exact below 2^53, and rounded to double precision before the root. One value for
 * C1, an array of one for each channel otherwise: three for C3 and AC4, which leaves the fourth
 * channel out, four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliNorm_L2_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNorm_L2_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNorm_L2_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNorm_L2_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4]);
KELI_API KelStatus keliNorm_L2_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNorm_L2_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNorm_L2_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNorm_L2_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4]);

/**
 * The root of the sum of squares of an image's samples, channel by channel, of 32f.
 *
 *     value = sqrt(sum of (src)^2)
 *
 * hint kelAlgHintAccurate sums in double precision: of each channel, samples of even columns
 * into one accumulator and those of odd columns into another, row after row, and adds the two
 * at the end. Every other hint sums in single precision, in 64 or 96 partial sums of fixed
 * places that are emptied into double precision; the result is the same for every step,
 * processor and number of threads, and may differ from the accurate one in the last digits of
 * single precision. A NaN among the samples makes the result NaN. One value for C1, an array of
 * one for each channel otherwise: three for C3 and AC4, which leaves the fourth channel out,
 * four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliNorm_L2_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f* pValue, KelHintAlgorithm hint);
KELI_API KelStatus keliNorm_L2_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint);
KELI_API KelStatus keliNorm_L2_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint);
KELI_API KelStatus keliNorm_L2_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, Kel64f pValue[4], KelHintAlgorithm hint);

/**
 * The largest magnitude of the difference of two images, channel by channel.
 *
 *     value = max |src1 - src2|
 *
 * Integers are exact. 32f is single precision, widened. A NaN among the samples makes the
 * result NaN. One value for C1, an array of one for each channel otherwise: three for C3 and
 * AC4, which leaves the fourth channel out, four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliNormDiff_Inf_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNormDiff_Inf_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormDiff_Inf_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormDiff_Inf_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]);
KELI_API KelStatus keliNormDiff_Inf_16s_C1R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNormDiff_Inf_16s_C3R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormDiff_Inf_16s_AC4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormDiff_Inf_16s_C4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]);
KELI_API KelStatus keliNormDiff_Inf_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNormDiff_Inf_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormDiff_Inf_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormDiff_Inf_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]);

/**
 * The sum of magnitudes of the difference of two images, channel by channel.
 *
 *     value = sum of |src1 - src2|
 *
 * The sum is exact, rounded once to double precision. One value for C1, an array of one for
 * each channel otherwise: three for C3 and AC4, which leaves the fourth channel out, four for
 * C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliNormDiff_L1_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNormDiff_L1_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormDiff_L1_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormDiff_L1_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]);
KELI_API KelStatus keliNormDiff_L1_16s_C1R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNormDiff_L1_16s_C3R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormDiff_L1_16s_AC4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormDiff_L1_16s_C4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]);

/**
 * The sum of magnitudes of the difference of two images, channel by channel, of 32f.
 *
 *     value = sum of |src1 - src2|
 *
 * hint kelAlgHintAccurate sums in double precision: of each channel, samples of even columns
 * into one accumulator and those of odd columns into another, row after row, and adds the two
 * at the end. Every other hint sums in single precision, in 64 or 96 partial sums of fixed
 * places that are emptied into double precision; the result is the same for every step,
 * processor and number of threads, and may differ from the accurate one in the last digits of
 * single precision. Differences are formed in the precision of the sums. A NaN among the
 * samples makes the result NaN. One value for C1, an array of one for each channel otherwise:
 * three for C3 and AC4, which leaves the fourth channel out, four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliNormDiff_L1_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue, KelHintAlgorithm hint);
KELI_API KelStatus keliNormDiff_L1_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint);
KELI_API KelStatus keliNormDiff_L1_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint);
KELI_API KelStatus keliNormDiff_L1_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4], KelHintAlgorithm hint);

/**
 * The root of the sum of squares of the difference of two images, channel by channel.
 *
 *     value = sqrt(sum of (src1 - src2)^2)
 *
 * The sum is exact below 2^53, and rounded to double precision before the root. One value for
 * C1, an array of one for each channel otherwise: three for C3 and AC4, which leaves the fourth
 * channel out, four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliNormDiff_L2_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNormDiff_L2_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormDiff_L2_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormDiff_L2_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]);
KELI_API KelStatus keliNormDiff_L2_16s_C1R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNormDiff_L2_16s_C3R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormDiff_L2_16s_AC4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormDiff_L2_16s_C4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]);

/**
 * The root of the sum of squares of the difference of two images, channel by channel, of 32f.
 *
 *     value = sqrt(sum of (src1 - src2)^2)
 *
 * hint kelAlgHintAccurate sums in double precision: of each channel, samples of even columns
 * into one accumulator and those of odd columns into another, row after row, and adds the two
 * at the end. Every other hint sums in single precision, in 64 or 96 partial sums of fixed
 * places that are emptied into double precision; the result is the same for every step,
 * processor and number of threads, and may differ from the accurate one in the last digits of
 * single precision. Differences are formed in the precision of the sums. A NaN among the
 * samples makes the result NaN. One value for C1, an array of one for each channel otherwise:
 * three for C3 and AC4, which leaves the fourth channel out, four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliNormDiff_L2_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue, KelHintAlgorithm hint);
KELI_API KelStatus keliNormDiff_L2_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint);
KELI_API KelStatus keliNormDiff_L2_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint);
KELI_API KelStatus keliNormDiff_L2_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4], KelHintAlgorithm hint);

/**
 * The largest magnitude of the difference of two images over that of the second, channel by
 * channel.
 *
 *     value = max |src1 - src2| / max |src2|
 *
 * Integers are exact. 32f is single precision, widened. A NaN among the samples makes the
 * result NaN. Where the norm of src2 is below the least normal double
 * (2.2250738585072014e-308), or NaN, in any channel, no channel is divided: the values are
 * those of NormDiff, and the status is kelStatusDivByZeroWarning. One value for C1, an array of
 * one for each channel otherwise: three for C3 and AC4, which leaves the fourth channel out,
 * four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliNormRel_Inf_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNormRel_Inf_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormRel_Inf_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormRel_Inf_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]);
KELI_API KelStatus keliNormRel_Inf_16s_C1R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNormRel_Inf_16s_C3R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormRel_Inf_16s_AC4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormRel_Inf_16s_C4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]);
KELI_API KelStatus keliNormRel_Inf_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNormRel_Inf_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormRel_Inf_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormRel_Inf_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]);

/**
 * The sum of magnitudes of the difference of two images over that of the second, channel by
 * channel.
 *
 *     value = sum of |src1 - src2| / sum of |src2|
 *
 * The sum is exact, rounded once to double precision. Where the norm of src2 is below the least
 * normal double (2.2250738585072014e-308), or NaN, in any channel, no channel is divided: the
 * values are those of NormDiff, and the status is kelStatusDivByZeroWarning. One value for C1,
 * an array of one for each channel otherwise: three for C3 and AC4, which leaves the fourth
 * channel out, four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliNormRel_L1_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNormRel_L1_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormRel_L1_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormRel_L1_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]);
KELI_API KelStatus keliNormRel_L1_16s_C1R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNormRel_L1_16s_C3R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormRel_L1_16s_AC4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormRel_L1_16s_C4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]);

/**
 * The sum of magnitudes of the difference of two images over that of the second, channel by
 * channel, of 32f.
 *
 *     value = sum of |src1 - src2| / sum of |src2|
 *
 * hint kelAlgHintAccurate sums in double precision: of each channel, samples of even columns
 * into one accumulator and those of odd columns into another, row after row, and adds the two
 * at the end. Every other hint sums in single precision, in 64 or 96 partial sums of fixed
 * places that are emptied into double precision; the result is the same for every step,
 * processor and number of threads, and may differ from the accurate one in the last digits of
 * single precision. Differences are formed in the precision of the sums. A NaN among the
 * samples makes the result NaN. Where the norm of src2 is below the least normal double
 * (2.2250738585072014e-308), or NaN, in any channel, no channel is divided: the values are
 * those of NormDiff, and the status is kelStatusDivByZeroWarning. One value for C1, an array of
 * one for each channel otherwise: three for C3 and AC4, which leaves the fourth channel out,
 * four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliNormRel_L1_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue, KelHintAlgorithm hint);
KELI_API KelStatus keliNormRel_L1_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint);
KELI_API KelStatus keliNormRel_L1_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint);
KELI_API KelStatus keliNormRel_L1_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4], KelHintAlgorithm hint);

/**
 * The root of the sum of squares of the difference of two images over that of the second,
 * channel by channel.
 *
 *     value = sqrt(sum of (src1 - src2)^2) / sqrt(sum of (src2)^2)
 *
 * The sum is exact below 2^53, and rounded to double precision before the root.
 * keliNormRel_L2_16s_C1R takes one root of the quotient of the sums; the others divide the
 * roots. Where the norm of src2 is below the least normal double (2.2250738585072014e-308), or
 * NaN, in any channel, no channel is divided: the values are those of NormDiff, and the status
 * is kelStatusDivByZeroWarning. One value for C1, an array of one for each channel otherwise:
 * three for C3 and AC4, which leaves the fourth channel out, four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliNormRel_L2_8u_C1R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNormRel_L2_8u_C3R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormRel_L2_8u_AC4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormRel_L2_8u_C4R(const Kel8u* pSrc1, int src1Step, const Kel8u* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]);
KELI_API KelStatus keliNormRel_L2_16s_C1R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue);
KELI_API KelStatus keliNormRel_L2_16s_C3R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormRel_L2_16s_AC4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3]);
KELI_API KelStatus keliNormRel_L2_16s_C4R(const Kel16s* pSrc1, int src1Step, const Kel16s* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4]);

/**
 * The root of the sum of squares of the difference of two images over that of the second,
 * channel by channel, of 32f.
 *
 *     value = sqrt(sum of (src1 - src2)^2) / sqrt(sum of (src2)^2)
 *
 * hint kelAlgHintAccurate sums in double precision: of each channel, samples of even columns
 * into one accumulator and those of odd columns into another, row after row, and adds the two
 * at the end. Every other hint sums in single precision, in 64 or 96 partial sums of fixed
 * places that are emptied into double precision; the result is the same for every step,
 * processor and number of threads, and may differ from the accurate one in the last digits of
 * single precision. Differences are formed in the precision of the sums. A NaN among the
 * samples makes the result NaN. Where the norm of src2 is below the least normal double
 * (2.2250738585072014e-308), or NaN, in any channel, no channel is divided: the values are
 * those of NormDiff, and the status is kelStatusDivByZeroWarning. One value for C1, an array of
 * one for each channel otherwise: three for C3 and AC4, which leaves the fourth channel out,
 * four for C4.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliNormRel_L2_32f_C1R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f* pValue, KelHintAlgorithm hint);
KELI_API KelStatus keliNormRel_L2_32f_C3R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint);
KELI_API KelStatus keliNormRel_L2_32f_AC4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[3], KelHintAlgorithm hint);
KELI_API KelStatus keliNormRel_L2_32f_C4R(const Kel32f* pSrc1, int src1Step, const Kel32f* pSrc2, int src2Step, KeliSize roiSize, Kel64f pValue[4], KelHintAlgorithm hint);

/* ==== Histograms ==== */

/**
 * Counts the pixels of each channel by value in bins with given boundaries.
 *
 *     pHist[k] = number of pixels v with pLevels[k] <= v < pLevels[k + 1], k = 0 .. nLevels - 2
 *
 * pLevels holds nLevels >= 2 boundaries, pHist receives nLevels - 1 counts, which replace what
 * it held. C3 and AC4 take three histograms, arrays of levels and numbers of levels, C4 four;
 * AC4 ignores the fourth channel. A boundary is inclusive below and exclusive above: a pixel
 * below the first one of an increasing array, or at or above the last, is not counted. Levels
 * may lie beyond the range of the samples and act as its ends then. They need not increase:
 * every bin counts by the formula alone, so that a pixel may count in several bins or in none,
 * and a bin whose upper boundary is not above its lower one stays 0. Counts above 2^31 - 1 are
 * given as 2^31 - 1. All arrays may stand at any address; histograms must not overlap the image
 * or the levels.
 *
 * 16s: kelStatusNoMemory if a temporary table cannot be allocated (at most 256 KiB for each
 * channel, none for small images); no histogram is written then.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; of C3, AC4 and C4, channel by
 * channel, kelStatusNullPointer if its histogram or its levels are null,
 * kelStatusBadHistogramLevels if its nLevels is below 2; kelStatusBadSize if roiSize is below 1
 * in width or height; kelStatusBadStep if a step is below 1; kelStatusBadHistogramLevels if
 * nLevels is below 2 (C1).
 */
KELI_API KelStatus keliHistogramRange_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* pHist, const int* pLevels, int nLevels);
KELI_API KelStatus keliHistogramRange_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], const int* const pLevels[3], const int nLevels[3]);
KELI_API KelStatus keliHistogramRange_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* const pHist[4], const int* const pLevels[4], const int nLevels[4]);
KELI_API KelStatus keliHistogramRange_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], const int* const pLevels[3], const int nLevels[3]);
KELI_API KelStatus keliHistogramRange_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* pHist, const int* pLevels, int nLevels);
KELI_API KelStatus keliHistogramRange_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], const int* const pLevels[3], const int nLevels[3]);
KELI_API KelStatus keliHistogramRange_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* const pHist[4], const int* const pLevels[4], const int nLevels[4]);
KELI_API KelStatus keliHistogramRange_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], const int* const pLevels[3], const int nLevels[3]);

/**
 * Counts the pixels of each channel by value in bins with given floating-point boundaries.
 *
 *     pHist[k] = number of pixels v with pLevels[k] <= v < pLevels[k + 1], k = 0 .. nLevels - 2
 *
 * pLevels holds nLevels >= 2 boundaries, pHist receives nLevels - 1 counts, which replace what
 * it held. C3 and AC4 take three histograms, arrays of levels and numbers of levels, C4 four;
 * AC4 ignores the fourth channel. Values compare as IEEE 754 defines it: a NaN is in no bin, -0
 * equals 0, and infinite levels are valid, so that a last level of infinity leaves out infinite
 * pixels only. Levels need not increase: every bin counts by the formula alone, so that a pixel
 * may count in several bins or in none. A bin with a boundary that is NaN stays 0. Counts above
 * 2^31 - 1 are given as 2^31 - 1. All arrays may stand at any address; histograms must not
 * overlap the image or the levels.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; of C3, AC4 and C4, channel by
 * channel, kelStatusNullPointer if its histogram or its levels are null,
 * kelStatusBadHistogramLevels if its nLevels is below 2; kelStatusBadSize if roiSize is below 1
 * in width or height; kelStatusBadStep if a step is below 1; kelStatusBadHistogramLevels if
 * nLevels is below 2 (C1).
 */
KELI_API KelStatus keliHistogramRange_32f_C1R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, int* pHist, const Kel32f* pLevels, int nLevels);
KELI_API KelStatus keliHistogramRange_32f_C3R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], const Kel32f* const pLevels[3], const int nLevels[3]);
KELI_API KelStatus keliHistogramRange_32f_C4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, int* const pHist[4], const Kel32f* const pLevels[4], const int nLevels[4]);
KELI_API KelStatus keliHistogramRange_32f_AC4R(const Kel32f* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], const Kel32f* const pLevels[3], const int nLevels[3]);

/**
 * Counts the pixels of each channel by value in evenly spaced bins, and gives their boundaries.
 *
 *     pLevels[k + 1] = pLevels[k] + q + (k < r), pLevels[0] = lowerLevel, q = (upperLevel - lowerLevel) / m, r = (upperLevel - lowerLevel) % m, m = nLevels - 1
 *
 * Writes the nLevels >= 2 boundaries to pLevels, then counts as keliHistogramRange does. The
 * division is that of integers: the first r bins are one value wider than the others, and
 * pLevels[m] is upperLevel. C3 and AC4 take three histograms, arrays of levels, numbers of
 * levels and bounds, C4 four; AC4 ignores the fourth channel. Counts above 2^31 - 1 are given
 * as 2^31 - 1. All arrays may stand at any address; what is written must not overlap the image,
 * nor one array another.
 *
 * With upperLevel < lowerLevel, the quotient truncates towards zero and the first -r steps are
 * one value longer: all bins are empty. Where the difference is smaller than m, so that q is 0,
 * every level is lowerLevel.
 *
 * 16s: kelStatusNoMemory if a temporary table cannot be allocated (at most 256 KiB for each
 * channel, none for small images); neither levels nor histograms are written then.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; of C3, AC4 and C4, channel by
 * channel, kelStatusNullPointer if its histogram or its levels are null,
 * kelStatusBadHistogramLevels if its nLevels is below 2; kelStatusBadSize if roiSize is below 1
 * in width or height; kelStatusBadStep if a step is below 1; kelStatusBadHistogramLevels if
 * nLevels is below 2 (C1).
 */
KELI_API KelStatus keliHistogramEven_8u_C1R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* pHist, int* pLevels, int nLevels, int lowerLevel, int upperLevel);
KELI_API KelStatus keliHistogramEven_8u_C3R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], int* const pLevels[3], const int nLevels[3], const int lowerLevel[3], const int upperLevel[3]);
KELI_API KelStatus keliHistogramEven_8u_C4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* const pHist[4], int* const pLevels[4], const int nLevels[4], const int lowerLevel[4], const int upperLevel[4]);
KELI_API KelStatus keliHistogramEven_8u_AC4R(const Kel8u* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], int* const pLevels[3], const int nLevels[3], const int lowerLevel[3], const int upperLevel[3]);
KELI_API KelStatus keliHistogramEven_16s_C1R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* pHist, int* pLevels, int nLevels, int lowerLevel, int upperLevel);
KELI_API KelStatus keliHistogramEven_16s_C3R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], int* const pLevels[3], const int nLevels[3], const int lowerLevel[3], const int upperLevel[3]);
KELI_API KelStatus keliHistogramEven_16s_C4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* const pHist[4], int* const pLevels[4], const int nLevels[4], const int lowerLevel[4], const int upperLevel[4]);
KELI_API KelStatus keliHistogramEven_16s_AC4R(const Kel16s* pSrc, int srcStep, KeliSize roiSize, int* const pHist[3], int* const pLevels[3], const int nLevels[3], const int lowerLevel[3], const int upperLevel[3]);

/* ==== Box filter ==== */

/**
 * The mean of the pixels in a rectangle around each pixel.
 *
 *     dst = (S * M) >> k
 *
 * S is the sum of the mask's samples, M and k follow from the number N of its pixels: v = 2^32
 * r - 0.49998998641967773 in single precision, where r is 1 / N in single precision, rounded to
 * the nearest integer (ties to even) and shifted left n times, at most 24, until its top bit is
 * set; then M = floor(v / 2^20) + 1 and k = n + 12. M / 2^k is a little above 1 / N: sums that
 * are multiples of N are divided exactly, and the result is the floor of the mean or, at large
 * N, now and then one more. Sums have 32 bits: of masks of more than 16843009 pixels they may
 * wrap. Fixed factors belong to some masks: C1 and 3 x 3 pixels (S * 29128) >> 18, C4 and 3 x 3
 * pixels (S * 29127) >> 18, C4 and 5 x 5 pixels (S * 10485) >> 18. The latter two are rounded
 * down, so uniform 255 gives 254; these masks are filtered on one thread. Source pixels around
 * the region are read where masks meet them: anchor.x columns to the left, maskSize.width - 1 -
 * anchor.x to the right, anchor.y rows above and maskSize.height - 1 - anchor.y below; there is
 * no other care for borders. Results do not depend on the caller's rounding mode. The cost of a
 * pixel hardly depends on the mask. AC4 leaves the fourth channel of the destination alone.
 * Regions overlap neither with each other nor the pixels that are read. The call returns
 * kelStatusNoMemory, and has written nothing, if it cannot get memory for a few rows.
 *
 * On large regions the rows are shared out among threads, with the same results:
 * keliFilterBox_8u_C1R, keliFilterBox_8u_C3R, keliFilterBox_8u_C4R, keliFilterBox_8u_AC4R.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height; kelStatusBadMaskSize if
 * maskSize is below 2 in width or height; kelStatusBadAnchor if anchor lies outside the mask.
 */
KELI_API KelStatus keliFilterBox_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);

/**
 * The mean of the pixels in a rectangle around each pixel.
 *
 *     dst = saturate(round(S * r))
 *
 * S is the sum of the mask's samples, r = 1 / N in single precision, N the number of the mask's
 * pixels. S is rounded to single precision, so is its product with r, which is then rounded to
 * the nearest integer, ties to even, and saturated. Sums have 32 bits: of masks of more than
 * 65536 pixels they may wrap. Source pixels around the region are read where masks meet them:
 * anchor.x columns to the left, maskSize.width - 1 - anchor.x to the right, anchor.y rows above
 * and maskSize.height - 1 - anchor.y below; there is no other care for borders. Results do not
 * depend on the caller's rounding mode. The cost of a pixel hardly depends on the mask. AC4
 * leaves the fourth channel of the destination alone. Regions overlap neither with each other
 * nor the pixels that are read. The call returns kelStatusNoMemory, and has written nothing, if
 * it cannot get memory for a few rows.
 *
 * On large regions the rows are shared out among threads, with the same results:
 * keliFilterBox_16s_C1R, keliFilterBox_16s_C3R, keliFilterBox_16s_C4R, keliFilterBox_16s_AC4R.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height; kelStatusBadMaskSize if
 * maskSize is below 2 in width or height; kelStatusBadAnchor if anchor lies outside the mask.
 */
KELI_API KelStatus keliFilterBox_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);

/**
 * The mean of the pixels in a rectangle around each pixel.
 *
 *     dst = S * r
 *
 * S is the sum of the mask's samples in single precision, r = 1 / N in single precision, N the
 * number of the mask's pixels. Every mask is summed anew: nothing is subtracted, errors do not
 * accumulate along the image, and a NaN or an infinity reaches only the masks that hold it. The
 * order of additions follows from maskSize and the number of the row alone, so results are the
 * same for every step, processor and number of threads: first columns of the mask, then their
 * sums from left to right. Columns of up to 6 rows are added from top to bottom. Taller ones
 * are cut at the multiples of min(maskSize.height, 32) rows below the top of the first row's
 * mask: from the first cut upwards, the whole parts between two cuts each from top to bottom
 * and one after the other, from the last cut downwards; then (first + between) + last. Up to 8
 * columns are added from left to right, more as sums of 1, 4, 16, 64 ... columns (each of four
 * of the ones before), as few as make up the width, from left to right and the smallest first.
 * A result that is not a number is 0xFFC00000. Source pixels around the region are read where
 * masks meet them: anchor.x columns to the left, maskSize.width - 1 - anchor.x to the right,
 * anchor.y rows above and maskSize.height - 1 - anchor.y below; there is no other care for
 * borders. Results do not depend on the caller's rounding mode. The cost of a pixel hardly
 * depends on the mask. AC4 leaves the fourth channel of the destination alone. Regions overlap
 * neither with each other nor the pixels that are read. The call returns kelStatusNoMemory, and
 * has written nothing, if it cannot get memory for a few rows.
 *
 * On large regions the rows are shared out among threads, with the same results:
 * keliFilterBox_32f_C1R, keliFilterBox_32f_C3R, keliFilterBox_32f_C4R, keliFilterBox_32f_AC4R.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height; kelStatusBadMaskSize if
 * maskSize is below 2 in width or height; kelStatusBadAnchor if anchor lies outside the mask.
 */
KELI_API KelStatus keliFilterBox_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);

/**
 * The mean of the pixels in a rectangle around each pixel, in place.
 *
 *     dst = (S * M) >> k
 *
 * S is the sum of the mask's samples, M and k follow from the number N of its pixels: v = 2^32
 * r - 0.49998998641967773 in single precision, where r is 1 / N in single precision, rounded to
 * the nearest integer (ties to even) and shifted left n times, at most 24, until its top bit is
 * set; then M = floor(v / 2^20) + 1 and k = n + 12. M / 2^k is a little above 1 / N: sums that
 * are multiples of N are divided exactly, and the result is the floor of the mean or, at large
 * N, now and then one more. Sums have 32 bits: of masks of more than 16843009 pixels they may
 * wrap. C1 and 3 x 3 pixels have fixed factors: (S * 29128) >> 18. Source pixels around the
 * region are read where masks meet them: anchor.x columns to the left, maskSize.width - 1 -
 * anchor.x to the right, anchor.y rows above and maskSize.height - 1 - anchor.y below; there is
 * no other care for borders. Results do not depend on the caller's rounding mode. The cost of a
 * pixel hardly depends on the mask. AC4 leaves the fourth channel of the destination alone. In
 * place the results are those of a copy of the image (of C4 with 3 x 3 or 5 x 5 pixels with
 * factors M and k, not the fixed ones); of the pixels around the region none is written. The
 * call returns kelStatusNoMemory, and has written nothing, if it cannot get memory for a few
 * rows.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height; kelStatusBadMaskSize if
 * maskSize is below 2 in width or height; kelStatusBadAnchor if anchor lies outside the mask.
 */
KELI_API KelStatus keliFilterBox_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_8u_C4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);

/**
 * The mean of the pixels in a rectangle around each pixel, in place.
 *
 *     dst = saturate(round(S * r))
 *
 * S is the sum of the mask's samples, r = 1 / N in single precision, N the number of the mask's
 * pixels. S is rounded to single precision, so is its product with r, which is then rounded to
 * the nearest integer, ties to even, and saturated. Sums have 32 bits: of masks of more than
 * 65536 pixels they may wrap. Source pixels around the region are read where masks meet them:
 * anchor.x columns to the left, maskSize.width - 1 - anchor.x to the right, anchor.y rows above
 * and maskSize.height - 1 - anchor.y below; there is no other care for borders. Results do not
 * depend on the caller's rounding mode. The cost of a pixel hardly depends on the mask. AC4
 * leaves the fourth channel of the destination alone. In place the results are those of a copy
 * of the image; of the pixels around the region none is written. The call returns
 * kelStatusNoMemory, and has written nothing, if it cannot get memory for a few rows.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height; kelStatusBadMaskSize if
 * maskSize is below 2 in width or height; kelStatusBadAnchor if anchor lies outside the mask.
 */
KELI_API KelStatus keliFilterBox_16s_C1IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_16s_C3IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_16s_C4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_16s_AC4IR(Kel16s* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);

/**
 * The mean of the pixels in a rectangle around each pixel, in place.
 *
 *     dst = S * r
 *
 * S is the sum of the mask's samples in single precision, r = 1 / N in single precision, N the
 * number of the mask's pixels. Every mask is summed anew: nothing is subtracted, errors do not
 * accumulate along the image, and a NaN or an infinity reaches only the masks that hold it. The
 * order of additions follows from maskSize and the number of the row alone, so results are the
 * same for every step, processor and number of threads: first columns of the mask, then their
 * sums from left to right. Columns of up to 6 rows are added from top to bottom. Taller ones
 * are cut at the multiples of min(maskSize.height, 32) rows below the top of the first row's
 * mask: from the first cut upwards, the whole parts between two cuts each from top to bottom
 * and one after the other, from the last cut downwards; then (first + between) + last. Up to 8
 * columns are added from left to right, more as sums of 1, 4, 16, 64 ... columns (each of four
 * of the ones before), as few as make up the width, from left to right and the smallest first.
 * A result that is not a number is 0xFFC00000. Source pixels around the region are read where
 * masks meet them: anchor.x columns to the left, maskSize.width - 1 - anchor.x to the right,
 * anchor.y rows above and maskSize.height - 1 - anchor.y below; there is no other care for
 * borders. Results do not depend on the caller's rounding mode. The cost of a pixel hardly
 * depends on the mask. AC4 leaves the fourth channel of the destination alone. In place the
 * results are those of a copy of the image; of the pixels around the region none is written.
 * The call returns kelStatusNoMemory, and has written nothing, if it cannot get memory for a
 * few rows.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height; kelStatusBadMaskSize if
 * maskSize is below 2 in width or height; kelStatusBadAnchor if anchor lies outside the mask.
 */
KELI_API KelStatus keliFilterBox_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterBox_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);

/* ==== Minimum and maximum filters, erosion and dilation ==== */

/**
 * Replaces every pixel by the smallest or largest of a rectangle around it.
 *
 *     dst(x, y) = min or max over 0 <= i < maskSize.width, 0 <= j < maskSize.height of src(x - anchor.x + i, y - anchor.y + j)
 *
 * Each channel by itself. pSrc addresses the pixel that belongs to the first one of the
 * destination; anchor.x columns to the left of the region, maskSize.width - 1 - anchor.x to the
 * right, anchor.y rows above and maskSize.height - 1 - anchor.y below are read and have to
 * exist. Source and destination may not overlap. A mask of any size is accepted, also one pixel
 * wide or high; one of 1 x 1 copies the region. AC4 leaves the fourth sample of every pixel of
 * the destination as it was.
 *
 * 32f: samples compare in the total order of IEEE 754, in which -NaN < -infinity < ... < -0 <
 * +0 < ... < +infinity < +NaN. A result has the bits of one of the samples, whichever order
 * they are met in: a NaN without a sign prevails over numbers in maxima and is passed over in
 * minima, one with a sign the other way round.
 *
 * The time for a pixel does not depend on the height of the mask, from 9 rows on, and rises
 * with the logarithm of its width. kelStatusNoMemory is returned, with nothing written, where
 * the rows that high or wide masks need cannot be allocated.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusBadMaskSize if
 * maskSize is below 1 in width or height; kelStatusBadAnchor if anchor lies outside the mask.
 */
KELI_API KelStatus keliFilterMin_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMin_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMin_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMin_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMin_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMin_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMin_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMin_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMin_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMin_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMin_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMin_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMax_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMax_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMax_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMax_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMax_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMax_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMax_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMax_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMax_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMax_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMax_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliFilterMax_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, KeliSize maskSize, KeliPoint anchor);

/**
 * Replaces every pixel by the smallest (erosion) or largest (dilation) of the nine around it.
 *
 *     dst(x, y) = min or max over -1 <= i <= 1, -1 <= j <= 1 of src(x + i, y + j)
 *
 * Each channel by itself. One column on each side of the region and one row above and below are
 * read and have to exist; a row that is read must lie within its step, so the step of the
 * source, or of the image in place, is at least as long as roiSize.width + 2 pixels. In place
 * all results are of the samples before the call, and the margin is not written. AC4 leaves the
 * fourth sample of every pixel as it was.
 *
 * 32f: samples compare in the total order of IEEE 754, in which -NaN < -infinity < ... < -0 <
 * +0 < ... < +infinity < +NaN, as for FilterMin. kelStatusNoMemory is returned, with nothing
 * written, where the rows that wide images in place need cannot be allocated.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height; kelStatusStepTooSmall if
 * a step is shorter than the row that is read or written.
 */
KELI_API KelStatus keliErode3x3_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliErode3x3_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliErode3x3_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliErode3x3_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliErode3x3_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliErode3x3_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliErode3x3_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliErode3x3_8u_C4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliErode3x3_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliErode3x3_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliErode3x3_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliErode3x3_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliErode3x3_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliErode3x3_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliErode3x3_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliErode3x3_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_8u_C1IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_8u_C3IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_8u_AC4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_8u_C4IR(Kel8u* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_32f_C1IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_32f_C3IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_32f_AC4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);
KELI_API KelStatus keliDilate3x3_32f_C4IR(Kel32f* pSrcDst, int srcDstStep, KeliSize roiSize);

/**
 * Replaces every pixel by the smallest (erosion) or largest (dilation) of those that a
 * structuring element selects.
 *
 *     dst(x, y) = min or max over the (i, j) with pMask[j * maskSize.width + i] != 0 of src(x - anchor.x + i, y - anchor.y + j)
 *
 * Each channel by itself. The element is maskSize.width bytes for each of maskSize.height rows,
 * without padding; any byte but 0 selects. It is laid on as it is, not turned by 180 degrees.
 * anchor.x columns to the left of the region, maskSize.width - 1 - anchor.x to the right,
 * anchor.y rows above and maskSize.height - 1 - anchor.y below have to exist, and rows that are
 * read lie within the source's step: it is at least as long as roiSize.width + maskSize.width -
 * 1 pixels. Source and destination may not overlap. AC4 leaves the fourth sample of every pixel
 * of the destination as it was.
 *
 * 32f: samples compare in the total order of IEEE 754, in which -NaN < -infinity < ... < -0 <
 * +0 < ... < +infinity < +NaN, as for FilterMin. A single byte that is set copies the pixels at
 * its place.
 *
 * The time for a pixel grows with the number of runs of bytes that are set in the element's
 * rows; if all bytes within the smallest rectangle around them are set, it is that of
 * FilterMin. kelStatusNoMemory is returned, with nothing written, where scratch memory cannot
 * be allocated.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1; kelStatusBadSize if roiSize is below 1 in width or height; kelStatusBadMaskSize if
 * maskSize is below 1 in width or height; kelStatusZeroMask if every byte of the mask is 0;
 * kelStatusBadAnchor if anchor lies outside the mask; kelStatusStepTooSmall if a step is
 * shorter than the row that is read or written.
 */
KELI_API KelStatus keliErode_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliErode_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliErode_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliErode_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliErode_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliErode_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliErode_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliErode_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliDilate_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliDilate_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliDilate_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliDilate_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliDilate_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliDilate_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliDilate_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);
KELI_API KelStatus keliDilate_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel8u* pMask, KeliSize maskSize, KeliPoint anchor);

/* ==== Remap ==== */

/**
 * Builds an image from the values of another at coordinates that two maps give.
 *
 *     dst(x, y) = src(pxMap(x, y), pyMap(x, y))
 *
 * The maps are 32f images of dstRoiSize. Their coordinates are pixels of the whole source
 * image, of srcSize, to whose first pixel pSrc points. Pixels whose coordinates lie outside
 * srcROI, left of its first or beyond its last column or row, or are not numbers, keep their
 * values; a srcROI that leaves the source image is cut to it. The interpolation:
 *
 * kelInterpolationNearest takes the pixel whose column and row are the coordinates rounded to
 * the nearest integer, ties to even.
 *
 * kelInterpolationLinear blends the 2 x 2 pixels around the coordinates with the weights 1 - f
 * and f of each fraction f, first along the rows. At the last column or row of srcROI the
 * pixels are those before it, with f = 1; a region one pixel wide or high gives that pixel. 8u:
 * the fractions are rounded to 14 bits, ties to even; what a row gives is cut to 6 bits behind
 * the point; the result is rounded to the nearest integer, ties up. 32f: each multiplication
 * and addition is rounded to single precision.
 *
 * kelInterpolationCubic blends the 4 x 4 pixels around the coordinates by the cubic convolution
 * kernel with a = -1/2 (Catmull and Rom, 1974; Keys, 1981), first along the columns, each
 * operation in single precision. Columns and rows outside srcROI are replaced by its nearest
 * ones. 8u: rounded to the nearest integer, ties to even, and saturated.
 *
 * Results do not depend on the caller's rounding mode. A source image one pixel wide or high is
 * always sampled by the nearest pixel, and one with fewer than four columns or rows not
 * cubically but linearly. Neighbours that are infinite or not numbers take part even at weight
 * 0; results that are not numbers are the quiet NaN 0x7FC00000. AC4 leaves the fourth sample of
 * every destination pixel as it was. The maps and the source must not overlap the destination.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if srcSize,
 * srcROI or dstRoiSize is below 1 in width or height, or srcROI.x or srcROI.y is below 0;
 * kelStatusBadInterpolation if interpolation is none of the modes; kelStatusBadStep if a step
 * is below 1.
 */
KELI_API KelStatus keliRemap_8u_C1R(const Kel8u* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation);
KELI_API KelStatus keliRemap_8u_C3R(const Kel8u* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation);
KELI_API KelStatus keliRemap_8u_C4R(const Kel8u* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation);
KELI_API KelStatus keliRemap_8u_AC4R(const Kel8u* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel8u* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation);
KELI_API KelStatus keliRemap_8u_P3R(const Kel8u* const pSrc[3], KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel8u* const pDst[3], int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation);
KELI_API KelStatus keliRemap_8u_P4R(const Kel8u* const pSrc[4], KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel8u* const pDst[4], int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation);
KELI_API KelStatus keliRemap_32f_C1R(const Kel32f* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel32f* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation);
KELI_API KelStatus keliRemap_32f_C3R(const Kel32f* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel32f* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation);
KELI_API KelStatus keliRemap_32f_C4R(const Kel32f* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel32f* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation);
KELI_API KelStatus keliRemap_32f_AC4R(const Kel32f* pSrc, KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel32f* pDst, int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation);
KELI_API KelStatus keliRemap_32f_P3R(const Kel32f* const pSrc[3], KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel32f* const pDst[3], int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation);
KELI_API KelStatus keliRemap_32f_P4R(const Kel32f* const pSrc[4], KeliSize srcSize, int srcStep, KeliRect srcROI, const Kel32f* pxMap, int xMapStep, const Kel32f* pyMap, int yMapStep, Kel32f* const pDst[4], int dstStep, KeliSize dstRoiSize, KelInterpolation interpolation);

/* ==== Luma and chroma (YCC, YCbCr, YUV, gray) ==== */

/**
 * Converts RGB to the photographic YCC space.
 *
 *     L = 0.299 R + 0.587 G + 0.114 B; Y = 0.7132668 L; C1 = 0.43686 (B - L) + 156/255; C2 = 0.53192 (R - L) + 137/255
 *
 * L is the luma of ITU-R BT.601. For values in [0, 1]; integers have the same formula with the
 * chroma of gray at 156/255 and 137/255 of their full scale (8u: 255, 16u: 65535; 16s is offset
 * by 32768 into the range of 16u, and back). Every operation is in single precision, in the
 * order written; integers are rounded to nearest, ties to even, and saturated. 32f is not
 * clamped. Results do not depend on the caller's rounding mode; those that are not numbers are
 * the quiet NaN 0x7FC00000. AC4 leaves the fourth sample of every destination pixel as it was.
 * Source and destination may be the same image.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliRGBToYCC_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToYCC_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToYCC_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToYCC_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToYCC_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToYCC_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToYCC_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToYCC_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Converts the photographic YCC space to RGB.
 *
 *     L = 1.3584 Y; c1 = 2.2179 (C1 - 156/255); c2 = 1.8215 (C2 - 137/255); R = L + c2; G = L - 0.194 c1 - 0.509 c2; B = L + c1
 *
 * For values in [0, 1], into which 32f results are clamped; integers have the same formula in
 * their full scale, as in RGBToYCC. Every operation is in single precision, in the order
 * written; integers are rounded to nearest, ties to even, and saturated. Results do not depend
 * on the caller's rounding mode; those that are not numbers are the quiet NaN 0x7FC00000. AC4
 * leaves the fourth sample of every destination pixel as it was. Source and destination may be
 * the same image.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliYCCToRGB_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliYCCToRGB_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliYCCToRGB_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliYCCToRGB_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliYCCToRGB_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliYCCToRGB_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliYCCToRGB_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliYCCToRGB_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Converts RGB to YCbCr of studio range.
 *
 *     Y = (16843 R + 33030 G + 6423 B + 0x108000) >> 16; Cb = (-9699 R - 19071 G + 28770 B + 0x808000) >> 16; Cr = (28770 R - 24117 G - 4653 B + 0x808000) >> 16
 *
 * The colour space of ITU-R BT.601 in the range of a studio: Y from 16 (black) to 235 (white),
 * Cb and Cr from 16 to 240 with 128 for gray. The sums are exact; they are rounded to nearest,
 * as 0x8000 is a half, and no result leaves its range. P3 is of three planes, which share a
 * step, on either side. AC4 leaves the fourth sample of every destination pixel as it was.
 * Source and destination may be the same image.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliRGBToYCbCr_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToYCbCr_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToYCbCr_8u_P3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize);

/**
 * Converts YCbCr of studio range to RGB.
 *
 *     L = 76284 (Y - 16); R = (L + 104595 (Cr - 128)) >> 16; G = (L - 25690 (Cb - 128) - 53281 (Cr - 128)) >> 16; B = (L + 132186 (Cb - 128)) >> 16
 *
 * The inverse of RGBToYCbCr (ITU-R BT.601). The sums are exact, rounded down and saturated to
 * 0..255; Y beyond 16..235 and chroma beyond 16..240 are taken as they are. P3 is of three
 * planes, which share a step; P3C3 reads planes and writes pixels. AC4 leaves the fourth sample
 * of every destination pixel as it was. Source and destination may be the same image.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliYCbCrToRGB_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliYCbCrToRGB_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliYCbCrToRGB_8u_P3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize);
KELI_API KelStatus keliYCbCrToRGB_8u_P3C3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);

/**
 * Converts RGB to YUV.
 *
 *     Y = (19595 R + 38469 G + 7471 B + 32768) >> 16; U = ((16121 (B - Y) + 16384) >> 15) + 128; V = ((28737 (R - Y) + 16384) >> 15) + 128
 *
 * Y is the luma of ITU-R BT.601 in full range, 0.299 R + 0.587 G + 0.114 B; U and V are 0.492
 * and 0.877 times the distance of blue and red from it, around 128. The factors are fractions
 * of 65536 and 32768, products are rounded to nearest (ties up), so that white is 255, 128,
 * 128, and U and V are of the rounded Y. V is saturated to 0..255; U keeps within 17..239. P3
 * is of three planes, which share a step; C3P3 reads pixels and writes planes. AC4 leaves the
 * fourth sample of every destination pixel as it was. Source and destination may be the same
 * image.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliRGBToYUV_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToYUV_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToYUV_8u_P3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToYUV_8u_C3P3R(const Kel8u* pSrc, int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize);

/**
 * Converts YUV to RGB.
 *
 *     u = U - 128; v = V - 128; R = Y + ((9339 v + 4096) >> 13); G = Y + ((-3228 u - 4760 v + 4096) >> 13); B = Y + ((16646 u + 4096) >> 13)
 *
 * The inverse of RGBToYUV: R = Y + 1.140 v, G = Y - 0.394 u - 0.581 v, B = Y + 2.032 u, with
 * factors as fractions of 8192, sums rounded to nearest (ties up) and results saturated to
 * 0..255. P3 is of three planes, which share a step; P3C3 reads planes and writes pixels. AC4
 * leaves the fourth sample of every destination pixel as it was. Source and destination may be
 * the same image.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliYUVToRGB_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliYUVToRGB_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliYUVToRGB_8u_P3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize);
KELI_API KelStatus keliYUVToRGB_8u_P3C3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);

/**
 * Converts RGB to gray.
 *
 *     8u: dst = (1225 R + 2404 G + 467 B) >> 12; else 0.299 R + 0.587 G + 0.114 B
 *
 * The luma of ITU-R BT.601: ColorToGray with the weights 0.299, 0.587 and 0.114. 8u has them as
 * fractions of 4096, whose sum is 4096, and rounds down. The others multiply and add in single
 * precision, in the order written, 16s the signed values; integers are rounded to nearest, ties
 * to even, and saturated. 32f is not clamped; results that are not numbers are the quiet NaN
 * 0x7FC00000. Results do not depend on the caller's rounding mode. AC4 ignores the fourth
 * sample of a pixel.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliRGBToGray_8u_C3C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToGray_8u_AC4C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToGray_16u_C3C1R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToGray_16u_AC4C1R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToGray_16s_C3C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToGray_16s_AC4C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToGray_32f_C3C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToGray_32f_AC4C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Converts a colour image to gray with given weights.
 *
 *     dst = w0 c0 + w1 c1 + w2 c2; 8u: (w0 c0 + w1 c1 + w2 c2) >> 12 with weights in units of 1 / 4096
 *
 * weights: three, of the channels in their order, of any sign and size. 8u rounds each weight
 * times 4096 to the nearest integer, ties to even, with weights beyond -256..256 taken as these
 * and those that are not numbers as 0; the sum is exact, rounded down and saturated. The others
 * multiply and add in single precision, in the order written, 16s the signed values; integers
 * are rounded to nearest, ties to even, and saturated, and a sum that is not a number gives the
 * upper end of the range. 32f is not clamped; results that are not numbers are the quiet NaN
 * 0x7FC00000. Results do not depend on the caller's rounding mode. AC4 ignores the fourth
 * sample of a pixel. That weights is not null is checked last of all.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusNullPointer if an
 * array of values is null.
 */
KELI_API KelStatus keliColorToGray_8u_C3C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]);
KELI_API KelStatus keliColorToGray_8u_AC4C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]);
KELI_API KelStatus keliColorToGray_16u_C3C1R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]);
KELI_API KelStatus keliColorToGray_16u_AC4C1R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]);
KELI_API KelStatus keliColorToGray_16s_C3C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]);
KELI_API KelStatus keliColorToGray_16s_AC4C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]);
KELI_API KelStatus keliColorToGray_32f_C3C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]);
KELI_API KelStatus keliColorToGray_32f_AC4C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize, const Kel32f weights[3]);

/* ==== Hue and saturation (HSV, HLS) ==== */

/**
 * Converts RGB to hue, saturation and value.
 *
 *     V = max(R, G, B); delta = V - min(R, G, B); S = full delta / V; h = (G - B) / delta if V = R, (B - R) / delta + 2 if V = G, (R - G) / delta + 4 if V = B; H = full / 6 h, + full where that is below 0
 *
 * full is 255 (8u) or 65535 (16u), the whole circle of hue; the conversion is that of A. R.
 * Smith, "Color Gamut Transform Pairs" (1978). Where several components are the greatest, the
 * last formula holds: that of B before that of G before that of R. Where V = 0 or delta = 0, H
 * = S = 0. A hue just below the whole circle is rounded to full, which is the same hue as 0.
 * Every operation is in single precision, in the order written, divisions too; H and S are
 * rounded to nearest, ties to even, whatever the caller's rounding mode. AC4 leaves the fourth
 * sample of every destination pixel as it was. Source and destination may be the same image.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliRGBToHSV_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToHSV_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToHSV_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToHSV_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);

/**
 * Converts hue, saturation and value to RGB.
 *
 *     h = H 360/full 1/60; f = h - trunc(h); s = S / full; p = V (1 - s); q = V (1 - s f); t = V (1 - s (1 - f)); (R, G, B) = (V, t, p), (q, V, p), (p, V, t), (p, q, V), (t, p, V), (V, p, q) for trunc(h) = 0 .. 5
 *
 * full is 255 (8u) or 65535 (16u), the whole circle of hue: H = full gives what H = 0 gives. V,
 * and with it p, q and t, keep the scale of samples; s is S times 1/full. Every operation is in
 * single precision, in the order written, with the constants rounded to single precision
 * (360/255 is 1.4117647); results are rounded to nearest, ties to even, whatever the caller's
 * rounding mode. S = 0 gives R = G = B = V. AC4 leaves the fourth sample of every destination
 * pixel as it was. Source and destination may be the same image.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliHSVToRGB_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliHSVToRGB_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliHSVToRGB_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliHSVToRGB_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);

/**
 * Converts RGB to hue, lightness and saturation.
 *
 *     sum = max + min; delta = max - min of R, G, B; L = sum / 2; S = delta / sum if L <= 0.5, delta / (2 - sum) otherwise; h = 60 (G - B) / delta if R = max, 60 (B - R) / delta + 120 if G = max, 60 (R - G) / delta + 240 otherwise; h + 360 where h is below 0; H = h / 360
 *
 * For values in [0, 1]. Where several components are the greatest, the first formula holds:
 * that of R before that of G before that of B. 32f has H = S = 0 unless delta > 1.1920929e-07,
 * the precision of its samples; values outside [0, 1] go through the formulas as they are, and
 * results that are not numbers are the quiet NaN 0x7FC00000. From components that are not
 * numbers come results of no meaning, the same on every processor. Integers have full = 255
 * (8u) or 65535 in place of 1: L is the whole part of sum / 2, S of full delta / sum or full
 * delta / (2 full - sum), H of h times 0.7083333 (255/360; 8u) or 182.0416717 (65535/360);
 * where delta = 0, H = S = 0. 16s is offset by 32768 into the range of 16u, and back. Every
 * operation is in single precision, in the order written, (60 (G - B)) / delta and (full delta)
 * / (...); of 8u S is the whole part of the exact quotient. AC4 leaves the fourth sample of
 * every destination pixel as it was. Source and destination may be the same image.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliRGBToHLS_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToHLS_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToHLS_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToHLS_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToHLS_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToHLS_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToHLS_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToHLS_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Converts hue, lightness and saturation to RGB.
 *
 *     h = 360 H; m2 = L (1 + S) if L <= 0.5, L + S - L S otherwise; m1 = 2 L - m2; v(x) = m1 + (m2 - m1) x / 60 if x < 60, m2 if x < 180, m1 + (m2 - m1) (240 - x) / 60 if x < 240, m1 otherwise; R = v(h + 120), less 360 if above 360; G = v(h); B = v(h - 120), plus 360 if below 0
 *
 * For values in [0, 1]; S = 0 gives R = G = B = L. 32f is not clamped; a hue outside [0, 1] has
 * no meaning and gives what the formulas give, the same on every processor; results that are
 * not numbers are the quiet NaN 0x7FC00000. Integers have full = 255 (8u) or 65535 in place of
 * 1: L and m2 keep the scale of samples, with s = S times 1/full m2 is L (1 + s) if L <= full /
 * 2 and L + S - L s otherwise, and v is m1 + (m2 - m1) w with, of p = H 1.4117647 (360/255; 8u)
 * or H 360/65535, times 1/60, the weights w of R |p - 3| - 1, of G 2 - |p - 2| and of B 2 - |p
 * - 4|, cut to [0, 1]. 16s is offset by 32768 into the range of 16u, and back. Every operation
 * is in single precision, in the order written; integers are rounded to nearest, ties to even,
 * whatever the caller's rounding mode, and saturated. AC4 leaves the fourth sample of every
 * destination pixel as it was. Source and destination may be the same image.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliHLSToRGB_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliHLSToRGB_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliHLSToRGB_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliHLSToRGB_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliHLSToRGB_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliHLSToRGB_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliHLSToRGB_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliHLSToRGB_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Converts BGR to hue, lightness and saturation, interleaved or in planes.
 *
 *     as RGBToHLS, of the components B, G, R in this order
 *
 * Planes are given as an array of pointers, one for each channel, and share one step; a null
 * pointer inside an array is reported as a null pointer. AC4 leaves the fourth sample of every
 * destination pixel as it was, AP4 the fourth plane. Source and destination may be the same
 * image, if both have the same layout.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliBGRToHLS_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliBGRToHLS_8u_AP4R(const Kel8u* const pSrc[4], int srcStep, Kel8u* const pDst[4], int dstStep, KeliSize roiSize);
KELI_API KelStatus keliBGRToHLS_8u_C3P3R(const Kel8u* pSrc, int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize);
KELI_API KelStatus keliBGRToHLS_8u_P3C3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliBGRToHLS_8u_P3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize);

/**
 * Converts interleaved BGR to planes of hue, lightness and saturation.
 *
 *     as RGBToHLS, of the components B, G, R in this order
 *
 * The planes are given as an array of pointers and share one step. The fourth plane is left as
 * it was, though its pointer, like the others, must not be null.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliBGRToHLS_8u_AC4P4R(const Kel8u* pSrc, int srcStep, Kel8u* const pDst[4], int dstStep, KeliSize roiSize);

/**
 * Converts planes of BGR to interleaved hue, lightness and saturation.
 *
 *     as RGBToHLS, of the components B, G, R in this order
 *
 * The planes are given as an array of pointers, none of which may be null, and share one step.
 * The fourth plane is not read, and the fourth sample of every destination pixel is left as it
 * was.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliBGRToHLS_8u_AP4C4R(const Kel8u* const pSrc[4], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);

/**
 * Converts hue, lightness and saturation to BGR, interleaved or in planes.
 *
 *     as HLSToRGB, with the results in the order B, G, R
 *
 * Planes are given as an array of pointers, one for each channel, and share one step; a null
 * pointer inside an array is reported as a null pointer. AP4 leaves the fourth plane as it was.
 * Source and destination may be the same image, if both have the same layout.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliHLSToBGR_8u_AP4R(const Kel8u* const pSrc[4], int srcStep, Kel8u* const pDst[4], int dstStep, KeliSize roiSize);
KELI_API KelStatus keliHLSToBGR_8u_C3P3R(const Kel8u* pSrc, int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize);
KELI_API KelStatus keliHLSToBGR_8u_P3C3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliHLSToBGR_8u_P3R(const Kel8u* const pSrc[3], int srcStep, Kel8u* const pDst[3], int dstStep, KeliSize roiSize);

/**
 * Converts interleaved hue, lightness and saturation to planes of BGR.
 *
 *     as HLSToRGB, with the results in the order B, G, R
 *
 * The planes are given as an array of pointers and share one step. The fourth plane is left as
 * it was, though its pointer, like the others, must not be null.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliHLSToBGR_8u_AC4P4R(const Kel8u* pSrc, int srcStep, Kel8u* const pDst[4], int dstStep, KeliSize roiSize);

/**
 * Converts planes of hue, lightness and saturation to interleaved BGR.
 *
 *     as HLSToRGB, with the results in the order B, G, R
 *
 * The planes are given as an array of pointers, none of which may be null, and share one step.
 * The fourth plane is not read, and the fourth sample of every destination pixel is left as it
 * was.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliHLSToBGR_8u_AP4C4R(const Kel8u* const pSrc[4], int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);

/* ==== CIE XYZ and LUV ==== */

/**
 * Converts RGB to CIE XYZ.
 *
 *     X = 0.412453 R + 0.35758 G + 0.180423 B; Y = 0.212671 R + 0.71516 G + 0.072169 B; Z = 0.019334 R + 0.119193 G + 0.950227 B
 *
 * CIE 1931 of linear RGB with the primaries of ITU-R BT.709 and the white D65, whose Y is full
 * scale: 1 for 32f, 65535 for 16u; 16s is offset by 32768 into the range of 16u, and back.
 * Every operation is in single precision, in the order written; integers are rounded to
 * nearest, ties to even, and saturated, which cuts the Z of bright blues. 32f is not clamped.
 * Results do not depend on the caller's rounding mode; those that are not numbers are the quiet
 * NaN 0x7FC00000. AC4 leaves the fourth sample of every destination pixel as it was. Source and
 * destination may be the same image.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliRGBToXYZ_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToXYZ_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToXYZ_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToXYZ_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToXYZ_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToXYZ_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Converts RGB to CIE XYZ, in fixed point.
 *
 *     X = (13515 R + 11717 G + 5912 B) >> 15; Y = (6969 R + 23434 G + 2365 B) >> 15; Z = min((634 R + 3906 G + 31137 B) >> 15, 255)
 *
 * CIE 1931 of linear RGB with the primaries of ITU-R BT.709 and the white D65, full scale 255.
 * The formula holds for the first floor(width / 8) * 8 pixels of every row; the last width mod
 * 8 have 16 bits of fraction: X = (27030 R + 23434 G + 11824 B) >> 16; Y = (13937 R + 46868 G +
 * 4729 B) >> 16; Z = min((1267 R + 7811 G + 62274 B) >> 16, 255). So a colour may give results
 * that differ by one between columns: white is 242, 255, 255 in the first ones and 242, 254,
 * 255 in the last. Both are exact in integers and truncate; X and Y cannot exceed 255. AC4
 * leaves the fourth sample of every destination pixel as it was. Source and destination may be
 * the same image.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliRGBToXYZ_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToXYZ_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);

/**
 * Converts CIE XYZ to RGB.
 *
 *     R = 3.240479 X - 1.53715 Y - 0.498535 Z; G = -0.969256 X + 1.875991 Y + 0.041556 Z; B = 0.055648 X - 0.204043 Y + 1.057311 Z
 *
 * The inverse of RGBToXYZ (CIE 1931, ITU-R BT.709 primaries, white D65), with the same full
 * scales (8u: 255). Every operation is in single precision, in the order written; 32f is
 * clamped into [0, 1], integers are rounded to nearest, ties to even, and saturated. Results do
 * not depend on the caller's rounding mode; those that are not numbers are the quiet NaN
 * 0x7FC00000. AC4 leaves the fourth sample of every destination pixel as it was. Source and
 * destination may be the same image.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliXYZToRGB_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXYZToRGB_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXYZToRGB_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXYZToRGB_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXYZToRGB_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXYZToRGB_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXYZToRGB_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliXYZToRGB_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Converts RGB to CIE LUV.
 *
 *     L = 116 Y^(1/3) - 16 where Y > 0.01, else 903.3 Y; u = 13 L (4 X / D - 0.197839); v = 13 L (9 Y / D - 0.468342); D = X + 15 Y + 3 Z
 *
 * CIE 1976 with the white D65; X, Y and Z are those of RGBToXYZ for R, G and B over full scale
 * (8u: 255, 16u: 65535, 16s offset by 32768 into the range of 16u). Where Y is 0, u and v are
 * 0. The proportional part ends at 0.01, so there L falls by 0.04; the CIE's 0.008856 joins
 * both parts.
 *
 * 32f holds L, u and v themselves: 0 to 100, -83.1 to 175.1 and -134.2 to 107.4 for RGB in [0,
 * 1]. There they are within 1e-4 of the exact values, unless rounding takes Y across 0.01. The
 * cube root is within one unit in the last place for all Y above 0.01. (A power with the
 * exponent 0.33333334 in its place would differ by less than 5e-8 of its value for Y up to 1.)
 * Where Y is infinite L is; what IEEE arithmetic calls no number is the quiet NaN 0x7FC00000.
 *
 * Integers hold s = 2.55 L, 3.6723163 s (4 X / D - 0.197839) + 96.90396 and 4.961832 s (9 Y / D
 * - 0.468342) + 136.7939, for 16 bits all three times 257, 16s less 32768; rounded to nearest
 * and saturated. For 8u that is the integer nearest to the exact value, unless this lies within
 * 0.0002 of the middle between two; for 16 bits it is within 0.55 of the exact value.
 *
 * Results are the same for every processor and do not depend on the caller's rounding mode. AC4
 * leaves the fourth sample of every destination pixel as it was. Source and destination may be
 * the same image.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliRGBToLUV_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToLUV_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToLUV_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToLUV_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToLUV_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToLUV_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToLUV_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliRGBToLUV_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/**
 * Converts CIE LUV to RGB.
 *
 *     Y = ((L + 16) / 116)^3; X = 2.25 Y u' / v'; Z = 3 Y / v' - 5 Y - X / 3; u' = u / (13 L) + 0.197839; v' = v / (13 L) + 0.468342
 *
 * CIE 1976 with the white D65; R, G and B are those that XYZToRGB gives for X, Y and Z, clamped
 * into [0, 1]. Integers hold L, u and v as RGBToLUV does, and R, G and B over their full scale,
 * rounded to nearest. Where L is below 9.033 the pixel is black, whatever u and v: the
 * proportional part of RGBToLUV is not inverted; where v' is 0, which no colour has, it is
 * black as well.
 *
 * For the L, u and v of RGB in [0, 1], 32f is within 5e-6 of the exact values and 16 bits
 * within 0.65. For 8u it is the nearest integer for all L, u and v, unless the exact value lies
 * within 0.001 of the middle between two. A component of 32f that IEEE arithmetic calls no
 * number, as of infinite L, is the quiet NaN 0x7FC00000. Results are the same for every
 * processor and do not depend on the caller's rounding mode. AC4 leaves the fourth sample of
 * every destination pixel as it was. Source and destination may be the same image.
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1.
 */
KELI_API KelStatus keliLUVToRGB_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLUVToRGB_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLUVToRGB_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLUVToRGB_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLUVToRGB_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLUVToRGB_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLUVToRGB_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);
KELI_API KelStatus keliLUVToRGB_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, KeliSize roiSize);

/* ==== Bit-depth reduction with dithering ==== */

/**
 * Reduces the samples of an image to a number of evenly spaced levels, with dithering.
 *
 *     dst = floor(k * full / (levels - 1)), k of 0..levels - 1 by the method
 *
 * full is the full scale of the result's type: 255 for 8u, 65535 for 16u and 16s. Samples of
 * 16s are offset by 32768 into 0..65535, and back. Every channel is reduced on its own.
 *
 * A source sample becomes a value v in 0..full: one of the result's type as it is, one of 16
 * bits for an 8u result times 255/65535, and one of 32f as it is (for 16s plus 32768); 32f
 * samples beyond the range saturate, and one that is no number counts as full. step is full /
 * (levels - 1).
 *
 * dither 0 (kelDitherNone) does not reduce, and looks at neither noise nor levels: where the
 * types are the same it copies; 16 bits are scaled to 8u as by keliScale_16u8u_C1R, 32f are
 * rounded as by keliConvert_32f8u_C1R to nearest. A dither that names no method writes nothing.
 *
 * dither 1 (kelDitherFloydSteinberg), 2 (kelDitherJarvisJudiceNinke) and 3 (kelDitherStucki)
 * diffuse errors, rows from top to bottom and each from left to right. The errors e of pixels
 * that are done, those outside the region 0, are added to the value: v = s + the sum of w * e,
 * with the weights w
 *
 * Floyd-Steinberg, in 16ths: row y: 7 at x - 1; row y - 1: 1, 5, 3 at x - 1 .. x + 1
 *
 * Jarvis-Judice-Ninke, in 48ths: row y: 5, 7 at x - 2, x - 1; row y - 1: 3, 5, 7, 5, 3 and row
 * y - 2: 1, 3, 5, 3, 1 at x - 2 .. x + 2
 *
 * Stucki, in 42nds: row y: 4, 8 at x - 2, x - 1; row y - 1: 2, 4, 8, 4, 2 and row y - 2: 1, 2,
 * 4, 2, 1 at x - 2 .. x + 2
 *
 * Where v >= full the result is full, where v < 2^-100 it is 0, and no error goes on. Else k =
 * trunc(v * (levels - 1) / full), and one more if v - k * step > step / 2; e = v - k * step
 * with that k. All in single precision: weights are rounded, (levels - 1) / full is, and is
 * then made larger by 2^-22 of itself, so that a value on a level is not taken to lie below it;
 * terms are added from the furthest row to row y, each row from left to right, to the value,
 * but for Floyd-Steinberg, whose terms of row y - 1 are added first. 256 levels of 8u reproduce
 * an 8u source.
 *
 * dither 4 (kelDitherBayer) is ordered: k is the level at v or below, and one more, if there is
 * one, where m * step < v - k * step, m = M[y % 4][x % 4] / 15 with the matrix M = 0 8 2 10 /
 * 12 4 14 6 / 3 11 1 9 / 15 7 13 5, x and y counted in the region. Of integer sources without
 * noise that is exact; else v is clamped to 0..full and the arithmetic is that above, with m *
 * step rounded as M * step / 15.
 *
 * noise, in percent, adds noise / 100 * step * u to every value, u in [-0.5, 0.5) evenly
 * spread, and clamps it to 0..full. u is a function of column, row and channel alone: with h =
 * x * G + (4 * y + channel) * 0x85EBCA77 and G = 0x9E3779B1, modulo 2^32, h = (h ^ h >> 15) *
 * G, h = (h ^ h >> 13) * G and h ^= h >> 16, it is (h >> 8) / 2^24 - 0.5. Channels count from
 * 0.
 *
 * Results do not depend on threads, alignment or the caller's rounding mode. AC4 leaves the
 * destination's fourth channel alone. Source and destination may be the same image where their
 * types are the same. Error diffusion needs memory; kelStatusNoMemory if there is none, and
 * nothing is written.
 *
 * The methods: R. W. Floyd and L. Steinberg, "An adaptive algorithm for spatial greyscale"
 * (1976); J. F. Jarvis, C. N. Judice and W. H. Ninke, "A survey of techniques for the display
 * of continuous tone pictures on bilevel displays" (1976); P. Stucki, "MECCA - a multiple-error
 * correction computation algorithm for bi-level image hardcopy reproduction" (1981); B. E.
 * Bayer, "An optimum method for two-level rendition of continuous-tone pictures" (1973).
 *
 * On large regions the rows are shared out among threads, with the same results.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusBadStep if a step is below 1; kelStatusBadNoise if
 * dither is a method and noise is outside 0..100; kelStatusBadLevelCount if dither is a method
 * and levels is outside 2..256 (8u results) or 2..65536.
 */
KELI_API KelStatus keliReduceBits_8u_C1R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_8u_C3R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_8u_C4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_8u_AC4R(const Kel8u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16u_C1R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16u_C3R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16u_C4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16u_AC4R(const Kel16u* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16u8u_C1R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16u8u_C3R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16u8u_C4R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16u8u_AC4R(const Kel16u* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16s8u_C1R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16s8u_C3R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16s8u_C4R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16s8u_AC4R(const Kel16s* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16s_C3R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16s_C4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_16s_AC4R(const Kel16s* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_32f8u_C1R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_32f8u_C3R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_32f8u_C4R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_32f8u_AC4R(const Kel32f* pSrc, int srcStep, Kel8u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_32f16u_C1R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_32f16u_C3R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_32f16u_C4R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_32f16u_AC4R(const Kel32f* pSrc, int srcStep, Kel16u* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_32f16s_C1R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_32f16s_C3R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_32f16s_C4R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);
KELI_API KelStatus keliReduceBits_32f16s_AC4R(const Kel32f* pSrc, int srcStep, Kel16s* pDst, int dstStep, KeliSize roiSize, int noise, int dither, int levels);

/* ==== Fourier transforms ==== */

/**
 * Makes the specification of fast Fourier transforms: of complex images, of real ones, and of
 * bytes with spectra of integers.
 *
 * Writes the address of a new structure through ppSpec, to be released by keliFFTFree of the
 * same form. Images are 2^orderX pixels wide and 2^orderY high.
 *
 * flag tells which transforms are divided, N being the number of pixels: 1 the forward one by
 * N, 2 the inverse one by N, 4 both by the square root of N, 8 neither. Rows and columns have
 * factors of their own, the reciprocals of the sides or of their square roots, each rounded to
 * single precision. hint is stored and changes no result.
 *
 * Checks, in order: kelStatusNullPointer if ppSpec is null; kelStatusBadOrder if an order is
 * outside 0..30; kelStatusNoMemory; kelStatusBadFlag if flag is not 1, 2, 4 or 8;
 * kelStatusNoMemory again, which also tells that the scratch memory of a transform would not be
 * below 2^31 bytes. Nothing is written then.
 */
KELI_API KelStatus keliFFTInitAlloc_C_32fc(KeliFFTSpec_C_32fc** ppSpec, int orderX, int orderY, int flag, KelHintAlgorithm hint);
KELI_API KelStatus keliFFTInitAlloc_R_32f(KeliFFTSpec_R_32f** ppSpec, int orderX, int orderY, int flag, KelHintAlgorithm hint);
KELI_API KelStatus keliFFTInitAlloc_R_32s(KeliFFTSpec_R_32s** ppSpec, int orderX, int orderY, int flag, KelHintAlgorithm hint);

/**
 * Tells how many bytes of scratch memory a transform needs.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSpec if pSpec is of
 * another kind.
 */
KELI_API KelStatus keliFFTGetBufSize_C_32fc(const KeliFFTSpec_C_32fc* pSpec, int* pSize);
KELI_API KelStatus keliFFTGetBufSize_R_32f(const KeliFFTSpec_R_32f* pSpec, int* pSize);
KELI_API KelStatus keliFFTGetBufSize_R_32s(const KeliFFTSpec_R_32s* pSpec, int* pSize);

/**
 * Releases a specification.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if it is of another
 * kind.
 */
KELI_API KelStatus keliFFTFree_C_32fc(KeliFFTSpec_C_32fc* pSpec);
KELI_API KelStatus keliFFTFree_R_32f(KeliFFTSpec_R_32f* pSpec);
KELI_API KelStatus keliFFTFree_R_32s(KeliFFTSpec_R_32s* pSpec);

/**
 * Makes the specification of Fourier transforms: of complex images, of real ones, and of bytes
 * with spectra of integers.
 *
 * Writes the address of a new structure through ppSpec, to be released by keliDFTFree of the
 * same form. Images are of roiSize, of any width and height; the cost grows as n log n with
 * each, primes included.
 *
 * flag tells which transforms are divided, N being the number of pixels: 1 the forward one by
 * N, 2 the inverse one by N, 4 both by the square root of N, 8 neither. Rows and columns have
 * factors of their own, the reciprocals of the sides or of their square roots, each rounded to
 * single precision. hint is stored and changes no result.
 *
 * Checks, in order: kelStatusNullPointer if ppSpec is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusNoMemory; kelStatusBadFlag if flag is not 1, 2, 4 or 8;
 * kelStatusNoMemory again, which also tells that the scratch memory of a transform would not be
 * below 2^31 bytes. Nothing is written then.
 */
KELI_API KelStatus keliDFTInitAlloc_C_32fc(KeliDFTSpec_C_32fc** ppSpec, KeliSize roiSize, int flag, KelHintAlgorithm hint);
KELI_API KelStatus keliDFTInitAlloc_R_32f(KeliDFTSpec_R_32f** ppSpec, KeliSize roiSize, int flag, KelHintAlgorithm hint);
KELI_API KelStatus keliDFTInitAlloc_R_32s(KeliDFTSpec_R_32s** ppSpec, KeliSize roiSize, int flag, KelHintAlgorithm hint);

/**
 * Tells how many bytes of scratch memory a transform needs.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSpec if pSpec is of
 * another kind.
 */
KELI_API KelStatus keliDFTGetBufSize_C_32fc(const KeliDFTSpec_C_32fc* pSpec, int* pSize);
KELI_API KelStatus keliDFTGetBufSize_R_32f(const KeliDFTSpec_R_32f* pSpec, int* pSize);
KELI_API KelStatus keliDFTGetBufSize_R_32s(const KeliDFTSpec_R_32s* pSpec, int* pSize);

/**
 * Releases a specification.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if it is of another
 * kind.
 */
KELI_API KelStatus keliDFTFree_C_32fc(KeliDFTSpec_C_32fc* pSpec);
KELI_API KelStatus keliDFTFree_R_32f(KeliDFTSpec_R_32f* pSpec);
KELI_API KelStatus keliDFTFree_R_32s(KeliDFTSpec_R_32s* pSpec);

/**
 * Transforms a complex image to its spectrum.
 *
 *     dst(u, v) = c * sum over x, y of src(x, y) * exp(-2 pi i (u x / width + v y / height))
 *
 * The factor c is that of the specification's flag. Sums are in single precision. pBuffer is
 * scratch memory of the bytes that keliFFTGetBufSize_C_32fc tells, at any address, or null,
 * which makes the call allocate it and release it, or return kelStatusNoMemory with nothing
 * written. Any number of calls may use one specification at once, each with its own scratch.
 * Source and destination may be the same image where samples have one type. Results do not
 * depend on the caller's rounding mode; those that are not numbers are the quiet NaN
 * 0x7FC00000.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if pSpec is not of
 * the kind that the function takes; kelStatusNullPointer if a pointer is null; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliFFTFwd_CToC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc* pDst, int dstStep, const KeliFFTSpec_C_32fc* pSpec, void* pBuffer);

/**
 * Transforms a real image to its packed spectrum.
 *
 *     F(u, v) = c * sum over x, y of src(x, y) * exp(-2 pi i (u x / width + v y / height))
 *
 * The packed spectrum is an image of the same size. With F(u, v) for the frequencies u of rows
 * and v of columns, a real sequence of n has the packed order Re F(0), Re F(1), Im F(1), Re
 * F(2), Im F(2), ..., which for even n ends with Re F(n/2). Columns 2u - 1 and 2u hold Re F(u,
 * v) and Im F(u, v) in row v, for 0 < u < width / 2. Column 0, and for an even width the last
 * column, hold the real sequences' spectra F(0, v) and F(width/2, v) of v in packed order. Each
 * channel is transformed by itself. AC4 leaves the fourth sample of every destination pixel as
 * it was. The factor c is that of the specification's flag. Sums are in single precision.
 * pBuffer is scratch memory of the bytes that keliFFTGetBufSize_R_32f tells, at any address, or
 * null, which makes the call allocate it and release it, or return kelStatusNoMemory with
 * nothing written. Any number of calls may use one specification at once, each with its own
 * scratch. Source and destination may be the same image where samples have one type. Results do
 * not depend on the caller's rounding mode; those that are not numbers are the quiet NaN
 * 0x7FC00000.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if pSpec is not of
 * the kind that the function takes; kelStatusNullPointer if a pointer is null; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliFFTFwd_RToPack_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliFFTFwd_RToPack_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliFFTFwd_RToPack_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliFFTFwd_RToPack_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer);

/**
 * Transforms an image of bytes to its packed spectrum of scaled integers.
 *
 *     dst = F * 2^-scaleFactor, with F as in keliFFTFwd_RToPack_32f_C1R
 *
 * Samples are converted to 32f and transformed; results are multiplied by 2^-scaleFactor,
 * rounded to the nearest integer, ties to even, and saturated. Layouts are those of the 32f
 * functions. pBuffer is scratch memory of the bytes that keliFFTGetBufSize_R_32s tells, at any
 * address, or null, which makes the call allocate it and release it, or return
 * kelStatusNoMemory with nothing written. Any number of calls may use one specification at
 * once, each with its own scratch. Source and destination may be the same image where samples
 * have one type. Results do not depend on the caller's rounding mode; those that are not
 * numbers are the quiet NaN 0x7FC00000.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if pSpec is not of
 * the kind that the function takes; kelStatusNullPointer if a pointer is null; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliFFTFwd_RToPack_8u32s_C1RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);
KELI_API KelStatus keliFFTFwd_RToPack_8u32s_C3RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);
KELI_API KelStatus keliFFTFwd_RToPack_8u32s_C4RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);
KELI_API KelStatus keliFFTFwd_RToPack_8u32s_AC4RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);

/**
 * Transforms a complex image back from its spectrum.
 *
 *     dst(x, y) = c * sum over u, v of src(u, v) * exp(+2 pi i (u x / width + v y / height))
 *
 * The factor c is that of the specification's flag. Sums are in single precision. pBuffer is
 * scratch memory of the bytes that keliFFTGetBufSize_C_32fc tells, at any address, or null,
 * which makes the call allocate it and release it, or return kelStatusNoMemory with nothing
 * written. Any number of calls may use one specification at once, each with its own scratch.
 * Source and destination may be the same image where samples have one type. Results do not
 * depend on the caller's rounding mode; those that are not numbers are the quiet NaN
 * 0x7FC00000.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if pSpec is not of
 * the kind that the function takes; kelStatusNullPointer if a pointer is null; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliFFTInv_CToC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc* pDst, int dstStep, const KeliFFTSpec_C_32fc* pSpec, void* pBuffer);

/**
 * Transforms a packed spectrum back to a real image.
 *
 *     dst(x, y) = c * sum over u, v of F(u, v) * exp(+2 pi i (u x / width + v y / height))
 *
 * The packed spectrum is an image of the same size. With F(u, v) for the frequencies u of rows
 * and v of columns, a real sequence of n has the packed order Re F(0), Re F(1), Im F(1), Re
 * F(2), Im F(2), ..., which for even n ends with Re F(n/2). Columns 2u - 1 and 2u hold Re F(u,
 * v) and Im F(u, v) in row v, for 0 < u < width / 2. Column 0, and for an even width the last
 * column, hold the real sequences' spectra F(0, v) and F(width/2, v) of v in packed order. Each
 * channel is transformed by itself. AC4 leaves the fourth sample of every destination pixel as
 * it was. The factor c is that of the specification's flag. Sums are in single precision.
 * pBuffer is scratch memory of the bytes that keliFFTGetBufSize_R_32f tells, at any address, or
 * null, which makes the call allocate it and release it, or return kelStatusNoMemory with
 * nothing written. Any number of calls may use one specification at once, each with its own
 * scratch. Source and destination may be the same image where samples have one type. Results do
 * not depend on the caller's rounding mode; those that are not numbers are the quiet NaN
 * 0x7FC00000.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if pSpec is not of
 * the kind that the function takes; kelStatusNullPointer if a pointer is null; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliFFTInv_PackToR_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliFFTInv_PackToR_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliFFTInv_PackToR_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliFFTInv_PackToR_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliFFTSpec_R_32f* pSpec, void* pBuffer);

/**
 * Transforms a packed spectrum of integers back to an image of bytes.
 *
 *     dst = F * 2^-scaleFactor, with F as in keliFFTInv_PackToR_32f_C1R
 *
 * Samples are converted to 32f and transformed; results are multiplied by 2^-scaleFactor,
 * rounded to the nearest integer, ties to even, and saturated. Layouts are those of the 32f
 * functions. pBuffer is scratch memory of the bytes that keliFFTGetBufSize_R_32s tells, at any
 * address, or null, which makes the call allocate it and release it, or return
 * kelStatusNoMemory with nothing written. Any number of calls may use one specification at
 * once, each with its own scratch. Source and destination may be the same image where samples
 * have one type. Results do not depend on the caller's rounding mode; those that are not
 * numbers are the quiet NaN 0x7FC00000.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if pSpec is not of
 * the kind that the function takes; kelStatusNullPointer if a pointer is null; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliFFTInv_PackToR_32s8u_C1RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);
KELI_API KelStatus keliFFTInv_PackToR_32s8u_C3RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);
KELI_API KelStatus keliFFTInv_PackToR_32s8u_C4RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);
KELI_API KelStatus keliFFTInv_PackToR_32s8u_AC4RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliFFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);

/**
 * Transforms a complex image to its spectrum.
 *
 *     dst(u, v) = c * sum over x, y of src(x, y) * exp(-2 pi i (u x / width + v y / height))
 *
 * The factor c is that of the specification's flag. Sums are in single precision. pBuffer is
 * scratch memory of the bytes that keliDFTGetBufSize_C_32fc tells, at any address, or null,
 * which makes the call allocate it and release it, or return kelStatusNoMemory with nothing
 * written. Any number of calls may use one specification at once, each with its own scratch.
 * Source and destination may be the same image where samples have one type. Results do not
 * depend on the caller's rounding mode; those that are not numbers are the quiet NaN
 * 0x7FC00000.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if pSpec is not of
 * the kind that the function takes; kelStatusNullPointer if a pointer is null; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliDFTFwd_CToC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc* pDst, int dstStep, const KeliDFTSpec_C_32fc* pSpec, void* pBuffer);

/**
 * Transforms a real image to its packed spectrum.
 *
 *     F(u, v) = c * sum over x, y of src(x, y) * exp(-2 pi i (u x / width + v y / height))
 *
 * The packed spectrum is an image of the same size. With F(u, v) for the frequencies u of rows
 * and v of columns, a real sequence of n has the packed order Re F(0), Re F(1), Im F(1), Re
 * F(2), Im F(2), ..., which for even n ends with Re F(n/2). Columns 2u - 1 and 2u hold Re F(u,
 * v) and Im F(u, v) in row v, for 0 < u < width / 2. Column 0, and for an even width the last
 * column, hold the real sequences' spectra F(0, v) and F(width/2, v) of v in packed order. Each
 * channel is transformed by itself. AC4 leaves the fourth sample of every destination pixel as
 * it was. The factor c is that of the specification's flag. Sums are in single precision.
 * pBuffer is scratch memory of the bytes that keliDFTGetBufSize_R_32f tells, at any address, or
 * null, which makes the call allocate it and release it, or return kelStatusNoMemory with
 * nothing written. Any number of calls may use one specification at once, each with its own
 * scratch. Source and destination may be the same image where samples have one type. Results do
 * not depend on the caller's rounding mode; those that are not numbers are the quiet NaN
 * 0x7FC00000.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if pSpec is not of
 * the kind that the function takes; kelStatusNullPointer if a pointer is null; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliDFTFwd_RToPack_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliDFTFwd_RToPack_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliDFTFwd_RToPack_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliDFTFwd_RToPack_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer);

/**
 * Transforms an image of bytes to its packed spectrum of scaled integers.
 *
 *     dst = F * 2^-scaleFactor, with F as in keliDFTFwd_RToPack_32f_C1R
 *
 * Samples are converted to 32f and transformed; results are multiplied by 2^-scaleFactor,
 * rounded to the nearest integer, ties to even, and saturated. Layouts are those of the 32f
 * functions. pBuffer is scratch memory of the bytes that keliDFTGetBufSize_R_32s tells, at any
 * address, or null, which makes the call allocate it and release it, or return
 * kelStatusNoMemory with nothing written. Any number of calls may use one specification at
 * once, each with its own scratch. Source and destination may be the same image where samples
 * have one type. Results do not depend on the caller's rounding mode; those that are not
 * numbers are the quiet NaN 0x7FC00000.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if pSpec is not of
 * the kind that the function takes; kelStatusNullPointer if a pointer is null; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliDFTFwd_RToPack_8u32s_C1RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);
KELI_API KelStatus keliDFTFwd_RToPack_8u32s_C3RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);
KELI_API KelStatus keliDFTFwd_RToPack_8u32s_C4RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);
KELI_API KelStatus keliDFTFwd_RToPack_8u32s_AC4RSfs(const Kel8u* pSrc, int srcStep, Kel32s* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);

/**
 * Transforms a complex image back from its spectrum.
 *
 *     dst(x, y) = c * sum over u, v of src(u, v) * exp(+2 pi i (u x / width + v y / height))
 *
 * The factor c is that of the specification's flag. Sums are in single precision. pBuffer is
 * scratch memory of the bytes that keliDFTGetBufSize_C_32fc tells, at any address, or null,
 * which makes the call allocate it and release it, or return kelStatusNoMemory with nothing
 * written. Any number of calls may use one specification at once, each with its own scratch.
 * Source and destination may be the same image where samples have one type. Results do not
 * depend on the caller's rounding mode; those that are not numbers are the quiet NaN
 * 0x7FC00000.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if pSpec is not of
 * the kind that the function takes; kelStatusNullPointer if a pointer is null; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliDFTInv_CToC_32fc_C1R(const Kel32fc* pSrc, int srcStep, Kel32fc* pDst, int dstStep, const KeliDFTSpec_C_32fc* pSpec, void* pBuffer);

/**
 * Transforms a packed spectrum back to a real image.
 *
 *     dst(x, y) = c * sum over u, v of F(u, v) * exp(+2 pi i (u x / width + v y / height))
 *
 * The packed spectrum is an image of the same size. With F(u, v) for the frequencies u of rows
 * and v of columns, a real sequence of n has the packed order Re F(0), Re F(1), Im F(1), Re
 * F(2), Im F(2), ..., which for even n ends with Re F(n/2). Columns 2u - 1 and 2u hold Re F(u,
 * v) and Im F(u, v) in row v, for 0 < u < width / 2. Column 0, and for an even width the last
 * column, hold the real sequences' spectra F(0, v) and F(width/2, v) of v in packed order. Each
 * channel is transformed by itself. AC4 leaves the fourth sample of every destination pixel as
 * it was. The factor c is that of the specification's flag. Sums are in single precision.
 * pBuffer is scratch memory of the bytes that keliDFTGetBufSize_R_32f tells, at any address, or
 * null, which makes the call allocate it and release it, or return kelStatusNoMemory with
 * nothing written. Any number of calls may use one specification at once, each with its own
 * scratch. Source and destination may be the same image where samples have one type. Results do
 * not depend on the caller's rounding mode; those that are not numbers are the quiet NaN
 * 0x7FC00000.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if pSpec is not of
 * the kind that the function takes; kelStatusNullPointer if a pointer is null; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliDFTInv_PackToR_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliDFTInv_PackToR_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliDFTInv_PackToR_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliDFTInv_PackToR_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDFTSpec_R_32f* pSpec, void* pBuffer);

/**
 * Transforms a packed spectrum of integers back to an image of bytes.
 *
 *     dst = F * 2^-scaleFactor, with F as in keliDFTInv_PackToR_32f_C1R
 *
 * Samples are converted to 32f and transformed; results are multiplied by 2^-scaleFactor,
 * rounded to the nearest integer, ties to even, and saturated. Layouts are those of the 32f
 * functions. pBuffer is scratch memory of the bytes that keliDFTGetBufSize_R_32s tells, at any
 * address, or null, which makes the call allocate it and release it, or return
 * kelStatusNoMemory with nothing written. Any number of calls may use one specification at
 * once, each with its own scratch. Source and destination may be the same image where samples
 * have one type. Results do not depend on the caller's rounding mode; those that are not
 * numbers are the quiet NaN 0x7FC00000.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if pSpec is not of
 * the kind that the function takes; kelStatusNullPointer if a pointer is null; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliDFTInv_PackToR_32s8u_C1RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);
KELI_API KelStatus keliDFTInv_PackToR_32s8u_C3RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);
KELI_API KelStatus keliDFTInv_PackToR_32s8u_C4RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);
KELI_API KelStatus keliDFTInv_PackToR_32s8u_AC4RSfs(const Kel32s* pSrc, int srcStep, Kel8u* pDst, int dstStep, const KeliDFTSpec_R_32s* pSpec, int scaleFactor, void* pBuffer);

/* ==== Cosine transforms of images and of 8 x 8 blocks, zigzag order ==== */

/**
 * Transforms a block of 8 x 8 samples to its cosine coefficients.
 *
 *     F(u, v) = C(u) C(v) sum over x, y of f(x, y) cos((2x + 1) u pi / 16) cos((2y + 1) v pi / 16)
 *
 * C(0) is the square root of 1/8 and C(k) is 1/2 for k > 0: the orthonormal transform of type
 * II in both dimensions. F(0, 0) is an eighth of the block's sum. A block is 64 contiguous
 * samples at any address, row after row: f(x, y) stands at 8 y + x and F(u, v) at 8 v + u.
 *
 * Sums and products are in single precision, rows before columns, by the factorisation of Arai,
 * Agui and Nakajima ("A fast DCT-SQ scheme for images", 1988). 16s results are rounded to the
 * nearest integer, ties to even, and saturated; every block of any 16-bit samples has each of
 * its coefficients within one unit of the exact value so rounded. 32f results that are not
 * numbers are the quiet NaN 0x7FC00000. Source and destination may be the same block. Results
 * do not depend on the caller's rounding mode.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null.
 */
KELI_API KelStatus keliDCT8x8Fwd_16s_C1(const Kel16s* pSrc, Kel16s* pDst);
KELI_API KelStatus keliDCT8x8Fwd_16s_C1I(Kel16s* pSrcDst);
KELI_API KelStatus keliDCT8x8Fwd_32f_C1(const Kel32f* pSrc, Kel32f* pDst);
KELI_API KelStatus keliDCT8x8Fwd_32f_C1I(Kel32f* pSrcDst);

/**
 * Transforms 8 x 8 pixels of an image to a block of cosine coefficients.
 *
 *     F(u, v) as in keliDCT8x8Fwd_16s_C1
 *
 * srcStep is the distance of the image's rows in bytes. The destination is 64 contiguous
 * samples at any address. Results are those of keliDCT8x8Fwd_16s_C1 for the same samples.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1.
 */
KELI_API KelStatus keliDCT8x8Fwd_16s_C1R(const Kel16s* pSrc, int srcStep, Kel16s* pDst);
KELI_API KelStatus keliDCT8x8Fwd_8u16s_C1R(const Kel8u* pSrc, int srcStep, Kel16s* pDst);

/**
 * Transforms 8 x 8 pixels of an image, shifted in level, to a block of cosine coefficients.
 *
 *     F(u, v) as in keliDCT8x8Fwd_16s_C1, of src + levelShift
 *
 * Any levelShift may be given (codecs take -128): sums are exact and do not wrap. srcStep is
 * the distance of the image's rows in bytes. The destination is 64 contiguous samples at any
 * address, rounded and saturated as those of keliDCT8x8Fwd_16s_C1 are.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1.
 */
KELI_API KelStatus keliDCT8x8FwdLS_8u16s_C1R(const Kel8u* pSrc, int srcStep, Kel16s* pDst, Kel16s levelShift);

/**
 * Transforms a block of 8 x 8 cosine coefficients back to samples.
 *
 *     f(x, y) = sum over u, v of C(u) C(v) F(u, v) cos((2x + 1) u pi / 16) cos((2y + 1) v pi / 16)
 *
 * C(0) is the square root of 1/8 and C(k) is 1/2 for k > 0: the inverse of keliDCT8x8Fwd. A
 * block is 64 contiguous samples at any address, in the order given there.
 *
 * Sums and products are in single precision. 16s results are rounded to the nearest integer,
 * ties to even, and saturated; every block of any 16-bit coefficients has each of its samples
 * within one unit of the exact value so rounded, and the accuracy that IEEE 1180-1990 asks of
 * inverse transforms is kept. 32f results that are not numbers are the quiet NaN 0x7FC00000.
 * Source and destination may be the same block. Results do not depend on the caller's rounding
 * mode.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null.
 */
KELI_API KelStatus keliDCT8x8Inv_16s_C1(const Kel16s* pSrc, Kel16s* pDst);
KELI_API KelStatus keliDCT8x8Inv_16s_C1I(Kel16s* pSrcDst);
KELI_API KelStatus keliDCT8x8Inv_32f_C1(const Kel32f* pSrc, Kel32f* pDst);
KELI_API KelStatus keliDCT8x8Inv_32f_C1I(Kel32f* pSrcDst);

/**
 * Transforms a block of 8 x 8 cosine coefficients back to pixels of an image.
 *
 *     f(x, y) as in keliDCT8x8Inv_16s_C1
 *
 * dstStep is the distance of the image's rows in bytes. The source is 64 contiguous samples at
 * any address. Results are those of keliDCT8x8Inv_16s_C1 for the same coefficients, for 8u
 * saturated to 0..255.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1.
 */
KELI_API KelStatus keliDCT8x8Inv_16s_C1R(const Kel16s* pSrc, Kel16s* pDst, int dstStep);
KELI_API KelStatus keliDCT8x8Inv_16s8u_C1R(const Kel16s* pSrc, Kel8u* pDst, int dstStep);

/**
 * Transforms a block of 8 x 8 cosine coefficients back to pixels, shifted in level and clamped.
 *
 *     dst = min(max(f + levelShift, clipDown), clipUp), with f(x, y) as in keliDCT8x8Inv_16s_C1
 *
 * Any levelShift may be given (codecs take 128): sums do not wrap; f is saturated to 16 bits
 * before. If clipDown is above clipUp, all pixels become clipUp. dstStep is the distance of the
 * image's rows in bytes. The source is 64 contiguous samples at any address.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadStep if a step is
 * below 1.
 */
KELI_API KelStatus keliDCT8x8InvLSClip_16s8u_C1R(const Kel16s* pSrc, Kel8u* pDst, int dstStep, Kel16s levelShift, Kel8u clipDown, Kel8u clipUp);

/**
 * Transforms a block of which only the first 4 x 4 cosine coefficients count back to samples.
 *
 *     f(x, y) as in keliDCT8x8Inv_16s_C1, with F(u, v) = 0 for u > 3 or v > 3
 *
 * The other coefficients may hold anything. Results equal those of keliDCT8x8Inv_16s_C1 for
 * zeros in their places. Source and destination may be the same block.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null.
 */
KELI_API KelStatus keliDCT8x8Inv_4x4_16s_C1(const Kel16s* pSrc, Kel16s* pDst);
KELI_API KelStatus keliDCT8x8Inv_4x4_16s_C1I(Kel16s* pSrcDst);

/**
 * Transforms a block of which only the first 2 x 2 cosine coefficients count back to samples.
 *
 *     f(x, y) as in keliDCT8x8Inv_16s_C1, with F(u, v) = 0 for u > 1 or v > 1
 *
 * The other coefficients may hold anything. Results equal those of keliDCT8x8Inv_16s_C1 for
 * zeros in their places. Source and destination may be the same block.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null.
 */
KELI_API KelStatus keliDCT8x8Inv_2x2_16s_C1(const Kel16s* pSrc, Kel16s* pDst);
KELI_API KelStatus keliDCT8x8Inv_2x2_16s_C1I(Kel16s* pSrcDst);

/**
 * Brings a block of 8 x 8 coefficients from the order of rows to zigzag order.
 *
 *     dst[i] = src[z(i)], z = 0, 1, 8, 16, 9, 2, 3, 10, 17, 24, 32, 25, ..., 55, 62, 63
 *
 * Zigzag order is that of ITU-T T.81, figure A.6: along the diagonals of the block from its
 * first coefficient on, by turns up and down. A block is 64 contiguous samples at any address.
 * Source and destination must not overlap.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null.
 */
KELI_API KelStatus keliZigzagFwd8x8_16s_C1(const Kel16s* pSrc, Kel16s* pDst);

/**
 * Brings a block of 8 x 8 coefficients from zigzag order to the order of rows.
 *
 *     dst[z(i)] = src[i], with z as in keliZigzagFwd8x8_16s_C1
 *
 * The inverse of keliZigzagFwd8x8_16s_C1. A block is 64 contiguous samples at any address.
 * Source and destination must not overlap.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null.
 */
KELI_API KelStatus keliZigzagInv8x8_16s_C1(const Kel16s* pSrc, Kel16s* pDst);

/**
 * Makes the specification of cosine transforms of images of one size, forward or inverse.
 *
 * Writes the address of a new structure through ppSpec, to be released by keliDCTFwdFree_32f or
 * keliDCTInvFree_32f. Images are of roiSize, of any width and height; the cost grows as n log n
 * with each, primes included. hint is stored and changes no result.
 *
 * Checks, in order: kelStatusNullPointer if ppSpec is null; kelStatusBadSize if roiSize is
 * below 1 in width or height; kelStatusNoMemory, which also tells that the scratch memory of a
 * transform would not be below 2^31 bytes. Nothing is written then.
 */
KELI_API KelStatus keliDCTFwdInitAlloc_32f(KeliDCTFwdSpec_32f** ppSpec, KeliSize roiSize, KelHintAlgorithm hint);
KELI_API KelStatus keliDCTInvInitAlloc_32f(KeliDCTInvSpec_32f** ppSpec, KeliSize roiSize, KelHintAlgorithm hint);

/**
 * Tells how many bytes of scratch memory a transform needs.
 *
 * Checks, in order: kelStatusNullPointer if a pointer is null; kelStatusBadSpec if pSpec is of
 * another kind.
 */
KELI_API KelStatus keliDCTFwdGetBufSize_32f(const KeliDCTFwdSpec_32f* pSpec, int* pSize);
KELI_API KelStatus keliDCTInvGetBufSize_32f(const KeliDCTInvSpec_32f* pSpec, int* pSize);

/**
 * Releases a specification.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if it is of another
 * kind.
 */
KELI_API KelStatus keliDCTFwdFree_32f(KeliDCTFwdSpec_32f* pSpec);
KELI_API KelStatus keliDCTInvFree_32f(KeliDCTInvSpec_32f* pSpec);

/**
 * Transforms an image to its cosine coefficients.
 *
 *     F(u, v) = c(u) c(v) * sum over x, y of src(x, y) * cos((2x + 1) u pi / 2W) * cos((2y + 1) v pi / 2H)
 *
 * W and H are the width and height of the specification; c(0) is sqrt(1/N) and the others
 * sqrt(2/N), N being W for u and H for v: the orthonormal transform of type II and its inverse.
 * 8 x 8 pixels give what keliDCT8x8Fwd_32f_C1 gives; other sizes go through Fourier transforms
 * of the sides (J. Makhoul, 1980), in single precision. Each channel is transformed by itself.
 * AC4 leaves the fourth sample of every destination pixel as it was. pBuffer is scratch memory
 * of the bytes that keliDCTFwdGetBufSize_32f tells, at any address, or null, which makes the
 * call allocate it and release it, or return kelStatusNoMemory with nothing written. Any number
 * of calls may use one specification at once, each with its own scratch. Source and destination
 * may be the same image. Results do not depend on the caller's rounding mode; those that are
 * not numbers are the quiet NaN 0x7FC00000.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if pSpec is not of
 * the kind that the function takes; kelStatusNullPointer if a pointer is null; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliDCTFwd_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTFwdSpec_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliDCTFwd_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTFwdSpec_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliDCTFwd_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTFwdSpec_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliDCTFwd_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTFwdSpec_32f* pSpec, void* pBuffer);

/**
 * Transforms cosine coefficients back to an image.
 *
 *     dst(x, y) = sum over u, v of c(u) c(v) * F(u, v) * cos((2x + 1) u pi / 2W) * cos((2y + 1) v pi / 2H)
 *
 * W and H are the width and height of the specification; c(0) is sqrt(1/N) and the others
 * sqrt(2/N), N being W for u and H for v: the orthonormal transform of type II and its inverse.
 * 8 x 8 pixels give what keliDCT8x8Inv_32f_C1 gives; other sizes go through Fourier transforms
 * of the sides (J. Makhoul, 1980), in single precision. Each channel is transformed by itself.
 * AC4 leaves the fourth sample of every destination pixel as it was. pBuffer is scratch memory
 * of the bytes that keliDCTInvGetBufSize_32f tells, at any address, or null, which makes the
 * call allocate it and release it, or return kelStatusNoMemory with nothing written. Any number
 * of calls may use one specification at once, each with its own scratch. Source and destination
 * may be the same image. Results do not depend on the caller's rounding mode; those that are
 * not numbers are the quiet NaN 0x7FC00000.
 *
 * Checks, in order: kelStatusNullPointer if pSpec is null; kelStatusBadSpec if pSpec is not of
 * the kind that the function takes; kelStatusNullPointer if a pointer is null; kelStatusBadStep
 * if a step is below 1.
 */
KELI_API KelStatus keliDCTInv_32f_C1R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTInvSpec_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliDCTInv_32f_C3R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTInvSpec_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliDCTInv_32f_C4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTInvSpec_32f* pSpec, void* pBuffer);
KELI_API KelStatus keliDCTInv_32f_AC4R(const Kel32f* pSrc, int srcStep, Kel32f* pDst, int dstStep, const KeliDCTInvSpec_32f* pSpec, void* pBuffer);

#ifdef __cplusplus
}
#endif

#endif
