#include "image/CpuChoice.h"

namespace {

bool HasAvx2() {
#if FOTARIUM_HAS_AVX2
    return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");
#else
    return false;
#endif
}

// How many CPlainLoops live.
int& PlainLoops() {
    static int nLoops = 0;
    return nLoops;
}

}  // namespace

bool UseAvx2() {
    static const bool bHas = HasAvx2();
    return bHas && PlainLoops() == 0;
}

CPlainLoops::CPlainLoops() {
    ++PlainLoops();
}

CPlainLoops::~CPlainLoops() {
    --PlainLoops();
}
