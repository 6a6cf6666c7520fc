// Which targets the rows files are compiled for: scalar, SSE4 and AVX2 on x86, NEON on AArch64. To
// be included before anything of hwy. A file for which AVX-512 measures at least 10 % faster
// defines KELI_ENABLE_AVX3 on its first line. KELI_AVX2_ONLY drops all but scalar and AVX2, for
// quick builds.
#pragma once

#if defined(__x86_64__) || defined(__i386__)
#if defined(KELI_AVX2_ONLY)
#define HWY_DISABLED_TARGETS (HWY_SSSE3 | HWY_SSE4 | HWY_AVX3 | HWY_AVX3_DL)
#elif defined(KELI_ENABLE_AVX3)
#define HWY_DISABLED_TARGETS HWY_SSSE3
#else
#define HWY_DISABLED_TARGETS (HWY_SSSE3 | HWY_AVX3 | HWY_AVX3_DL)
#endif
#endif
