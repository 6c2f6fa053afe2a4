#include "support/ShortMemory.h"

#include <cstdlib>
#include <new>

namespace {

// Allocations until one fails; none fails while it is negative.
int g_nUntilFailure = -1;

}  // namespace

CShortMemory::CShortMemory(int nUntilFailure) {
    g_nUntilFailure = nUntilFailure;
}
CShortMemory::~CShortMemory() {
    g_nUntilFailure = -1;
}

// Those of the whole test program. They stand in a file without tests, so that no allocation of a test is
// compiled together with one half of a pair.
// NOLINTBEGIN(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory): this is where memory comes from.
void* operator new(std::size_t nSize, const std::nothrow_t& /*tag*/) noexcept {
    const bool bRefused = g_nUntilFailure >= 0 && g_nUntilFailure-- == 0;
    return bRefused || !CBlockGate::Admits(nSize) ? nullptr : std::malloc(nSize == 0 ? 1 : nSize);
}
void* operator new(std::size_t nSize) {
    void* const p = operator new(nSize, std::nothrow);
    if (p == nullptr) throw std::bad_alloc();
    return p;
}
void operator delete(void* p) noexcept {
    std::free(p);
}
void operator delete(void* p, std::size_t /*nSize*/) noexcept {
    std::free(p);
}
// NOLINTEND(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory)
