/* Types shared by all functions of keli: pixels, sizes, the version record.
 *
 * A pixel type is named by its code in the function names: 8u is Kel8u. An image is a pointer to
 * the first pixel of a region, the step in bytes between the starts of successive rows, and a
 * KeliSize in pixels. Any address and any step of at least 1 works; rows run downwards. */
#ifndef KELI_TYPES_H
#define KELI_TYPES_H

#include <stdint.h>

#if defined(_WIN32)
#define KELI_API __declspec(dllexport)
#else
#define KELI_API __attribute__((visibility("default")))
#endif

typedef uint8_t Kel8u;
typedef int8_t Kel8s;
typedef uint16_t Kel16u;
typedef int16_t Kel16s;
typedef int32_t Kel32s;
typedef int64_t Kel64s;
typedef float Kel32f;
typedef double Kel64f;

/* Complex samples: real part, then imaginary part. */
typedef struct {
  Kel16s re;
  Kel16s im;
} Kel16sc;

typedef struct {
  Kel32s re;
  Kel32s im;
} Kel32sc;

typedef struct {
  Kel32f re;
  Kel32f im;
} Kel32fc;

/* Comparison operations. */
typedef int32_t KelCmpOp;
enum {
  kelCmpLess = 0,      /* a < b */
  kelCmpLessEq = 1,    /* a <= b */
  kelCmpEq = 2,        /* a == b */
  kelCmpGreaterEq = 3, /* a >= b */
  kelCmpGreater = 4    /* a > b */
};

/* How floating-point sums are formed; every value but kelAlgHintAccurate is the fast way. */
typedef int32_t KelHintAlgorithm;
enum {
  kelAlgHintNone = 0,
  kelAlgHintFast = 1,
  kelAlgHintAccurate = 2 /* double precision in a fixed order */
};

/* How floating-point samples become integers; every value but kelRoundNearest cuts fractions off.
 */
typedef int32_t KelRoundMode;
enum {
  kelRoundZero = 0,   /* toward zero */
  kelRoundNearest = 1 /* to the nearest integer, ties to even */
};

/* The axes that an image is mirrored about. */
typedef int32_t KelAxis;
enum {
  kelAxisHorizontal = 0, /* the order of the rows is reversed */
  kelAxisVertical = 1,   /* each row is reversed */
  kelAxisBoth = 2
};

/* How a value between pixels is formed. */
typedef int32_t KelInterpolation;
enum {
  kelInterpolationNearest = 1,
  kelInterpolationLinear = 2, /* of 2 x 2 pixels */
  kelInterpolationCubic = 4   /* of 4 x 4 pixels */
};

/* How levels between those of a result are spread among pixels. Functions take it as an int. */
enum {
  kelDitherNone = 0,
  kelDitherFloydSteinberg = 1,
  kelDitherJarvisJudiceNinke = 2,
  kelDitherStucki = 3,
  kelDitherBayer = 4
};

/* All in pixels. */
typedef struct {
  int32_t width;
  int32_t height;
} KeliSize;

typedef struct {
  int32_t x;
  int32_t y;
  int32_t width;
  int32_t height;
} KeliRect;

typedef struct {
  int32_t x;
  int32_t y;
} KeliPoint;

/* Identity of the library; see keliGetLibVersion. */
typedef struct {
  int32_t major;
  int32_t minor;
  int32_t majorBuild;
  int32_t build;
  char targetCpu[4];
  const char* Name;
  const char* Version;
  const char* BuildDate;
} KelLibraryVersion;

#endif
