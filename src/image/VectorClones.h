#pragma once

// Stands before a function whose loops gain by wide vectors: it is compiled twice, and the program takes the
// form that its processor can run. Both give the same results. Without effect where the compiler or the
// processor has no such choice.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__)
#define FOTARIUM_VECTOR_CLONES __attribute__((target_clones("avx2", "default")))
#else
#define FOTARIUM_VECTOR_CLONES
#endif
