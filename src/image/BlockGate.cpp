#include "image/BlockGate.h"

CBlockGate*& CBlockGate::Living() {
    static CBlockGate* pGate = nullptr;
    return pGate;
}

CBlockGate::CBlockGate(int nRefused) : m_nRefused(nRefused) {
    Living() = this;
}

CBlockGate::~CBlockGate() {
    Living() = nullptr;
}

bool CBlockGate::Admits(std::size_t nSize) {
    CBlockGate* const pGate = Living();
    if (pGate == nullptr || nSize <= kCounted) return true;
    return ++pGate->m_nCount != pGate->m_nRefused;
}
