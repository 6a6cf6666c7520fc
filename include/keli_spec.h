/* Specification structures of transforms: what the transforms of images of one size need to know.
 * Made by ...InitAlloc functions, only read by transforms, on any number of threads, and released
 * by ...Free functions. */
#ifndef KELI_SPEC_H
#define KELI_SPEC_H

typedef struct KeliFFTSpec_C_32fc KeliFFTSpec_C_32fc;
typedef struct KeliFFTSpec_R_32f KeliFFTSpec_R_32f;
typedef struct KeliFFTSpec_R_32s KeliFFTSpec_R_32s;
typedef struct KeliDFTSpec_C_32fc KeliDFTSpec_C_32fc;
typedef struct KeliDFTSpec_R_32f KeliDFTSpec_R_32f;
typedef struct KeliDFTSpec_R_32s KeliDFTSpec_R_32s;
typedef struct KeliDCTFwdSpec_32f KeliDCTFwdSpec_32f;
typedef struct KeliDCTInvSpec_32f KeliDCTInvSpec_32f;

#endif
