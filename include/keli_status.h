/* What the functions of keli return. Written by api/generate.py from the tables in api/; do not edit. */
#ifndef KELI_STATUS_H
#define KELI_STATUS_H

#include <stdint.h>

/* Errors are negative, warnings positive. Nothing is written when an error is returned. */
typedef int32_t KelStatus;
enum {
  kelStatusOk = 0, /* success */
  kelStatusWarning = 1, /* the operation did nothing */
  kelStatusNegativeSqrtWarning = 3, /* the argument of a square root was negative in some pixel */
  kelStatusDivByZeroWarning = 6, /* a division by zero occurred in some pixel; a substitute value was written */
  kelStatusZeroLogWarning = 7, /* the argument of a logarithm was zero in some pixel */
  kelStatusNegativeLogWarning = 8, /* the argument of a logarithm was negative in some pixel */
  kelStatusNoMemoryInternal = -4, /* an internal work buffer could not be allocated */
  kelStatusBadSize = -6, /* a width or height is less than 1 */
  kelStatusBadRange = -7, /* a lower bound exceeds its upper bound, or a number lies outside its range */
  kelStatusNullPointer = -8, /* a required pointer is null */
  kelStatusNoMemory = -9, /* a temporary buffer could not be allocated */
  kelStatusDivisorZero = -10, /* division by a constant that is zero */
  kelStatusEmptyRange = -13, /* a value range whose maximum does not exceed its minimum */
  kelStatusBadStep = -14, /* a step is less than 1 */
  kelStatusBadOrder = -15, /* a transform order outside 0..30 */
  kelStatusBadFlag = -16, /* a transform normalisation flag other than 1, 2, 4 or 8 */
  kelStatusBadSpec = -17, /* a specification structure of another kind */
  kelStatusBadThresholds = -18, /* the upper threshold is below the lower one */
  kelStatusBadAxis = -21, /* a mirror axis other than 0, 1 or 2 */
  kelStatusBadInterpolation = -22, /* an interpolation mode other than 1, 2 or 4 */
  kelStatusBadResizeFactor = -23, /* a resize factor not greater than 0 */
  kelStatusBadMaskSize = -33, /* a mask or kernel size too small */
  kelStatusBadAnchor = -34, /* an anchor outside the mask */
  kelStatusBadEpsilon = -36, /* a comparison tolerance that is not >= 0 */
  kelStatusStepTooSmall = -37, /* a step shorter than the row it must hold */
  kelStatusZeroDivisor = -51, /* an integer kernel divisor of 0 */
  kelStatusBadLevelCount = -54, /* a number of output levels outside its range */
  kelStatusBadNoise = -55, /* a noise percentage outside 0..100 */
  kelStatusZeroMask = -59, /* a morphology mask whose bytes are all zero */
  kelStatusBadChannelOrder = -60, /* a channel-order entry outside 0..2 */
  kelStatusBadLevels = -106, /* fewer than 2 levels in a look-up table */
  kelStatusBadHistogramLevels = -107, /* fewer than 2 levels in a histogram range */
  kelStatusBadCompareOp = -9999, /* a comparison operation that the function does not know */
};

#endif
