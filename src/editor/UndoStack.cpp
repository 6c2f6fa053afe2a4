#include "editor/UndoStack.h"

#include <utility>

void CUndoStack::Push(CUndoEntry entry) {
    if (Count() >= kDepth) m_arrEntries.erase(m_arrEntries.begin(), m_arrEntries.end() - (kDepth - 1));
    m_arrEntries.push_back(std::move(entry));
}
