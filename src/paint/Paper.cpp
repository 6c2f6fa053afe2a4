#include "paint/Paper.h"

void CPaper::Load(const CPixels& pixels) {
    m_surfCommit = CSurface(pixels);
    m_surfScratch = CSurface(pixels);
    m_rcDiffer = {};
    m_rcUnseen = m_surfScratch.Bounds();
    SetShown(false);
}

void CPaper::Collect() {
    const CRect rcScratch = m_surfScratch.TakeDirty();
    m_rcUnseen = m_rcUnseen.Union(rcScratch);
    m_rcDiffer = m_rcDiffer.Union(rcScratch).Union(m_surfCommit.TakeDirty());
}

bool CPaper::CopyBox(const CSurface& from, CSurface& to, const CRect& rc) {
    to.DrawPart(from.Pixels(), rc, rc.left, rc.top);
    return to.TakeDirty() == rc;
}

void CPaper::Commit() {
    Collect();
    if (CopyBox(m_surfScratch, m_surfCommit, m_rcDiffer)) m_rcDiffer = {};
    SetShown(true);
}

void CPaper::Revert() {
    Collect();
    m_rcUnseen = m_rcUnseen.Union(m_rcDiffer);
    if (CopyBox(m_surfCommit, m_surfScratch, m_rcDiffer)) m_rcDiffer = {};
    SetShown(false);
}

void CPaper::SetShown(bool bCommitted) {
    m_bCommittedShown = bCommitted;
    m_bShowWanted = true;
}

bool CPaper::Separate() {
    return m_surfCommit.Separate() && m_surfScratch.Separate();
}

CRect CPaper::TakeUnseen() {
    Collect();
    if (!std::exchange(m_bShowWanted, false)) return {};
    if (!m_bCommittedShown) return std::exchange(m_rcUnseen, {});
    const CRect rc = m_rcUnseen.Union(m_rcDiffer);
    m_rcUnseen = m_rcDiffer;
    return rc;
}

void CPaper::SetAllSeen() {
    Collect();
    SetShown(false);
    TakeUnseen();
}
