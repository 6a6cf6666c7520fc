// Which targets the rows files are compiled for: scalar, SSE4 and AVX2. To be included before
// anything of hwy. A file for which AVX-512 measures at least 10 % faster defines
// KELI_ENABLE_AVX512 before it: masked and merging instructions on 32-byte vectors, and shuffles
// across them, of the processors from Ice Lake and Zen 4 on. KELI_AVX2_ONLY drops all but scalar
// and AVX2, for quick builds.
#pragma once

#if defined(__x86_64__) || defined(__i386__)
#if defined(KELI_AVX2_ONLY)
#define HWY_DISABLED_TARGETS (HWY_SSSE3 | HWY_SSE4 | HWY_AVX3 | HWY_AVX3_DL)
#elif defined(KELI_ENABLE_AVX512)
#define HWY_WANT_AVX3_DL
#define HWY_DISABLED_TARGETS (HWY_SSSE3 | HWY_AVX3)
#else
#define HWY_DISABLED_TARGETS (HWY_SSSE3 | HWY_AVX3 | HWY_AVX3_DL)
#endif
#endif
