#pragma once

// Which form of a loop runs: the one with wide vectors or the plain one beside it. Both give the same bytes.
//
// A function with FOTARIUM_AVX2 before it is called only where UseAvx2() says so. It may use the intrinsics
// of <immintrin.h> if it stands inside `#if FOTARIUM_HAS_AVX2`. The usual engine has one body with
// FOTARIUM_INLINE, a plain function and one with FOTARIUM_AVX2 that are nothing but that body, and chooses:
// `(UseAvx2() ? DoWide : DoPlain)(...)`.
#if defined(__x86_64__) && defined(__GNUC__)
#define FOTARIUM_HAS_AVX2 1
#define FOTARIUM_AVX2 __attribute__((target("avx2,fma")))
// For the small parts that such a function is made of: they become part of it.
#define FOTARIUM_AVX2_PART inline __attribute__((always_inline, target("avx2,fma")))
#else
#define FOTARIUM_HAS_AVX2 0
#define FOTARIUM_AVX2
#endif

// Stands before a body that is to be compiled once as plain code and once inside a FOTARIUM_AVX2 function.
#if defined(__GNUC__)
#define FOTARIUM_INLINE inline __attribute__((always_inline))
#else
#define FOTARIUM_INLINE inline
#endif

// True if this processor has AVX2 and FMA and nobody asked for the plain loops.
bool UseAvx2();

// While one of these lives, UseAvx2() is false. For tests and benchmarks; one thread.
class CPlainLoops {
  public:
    CPlainLoops();
    CPlainLoops(const CPlainLoops&) = delete;
    CPlainLoops& operator=(const CPlainLoops&) = delete;
    ~CPlainLoops();
};
