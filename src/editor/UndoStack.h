#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

// The newest states of anything that can be copied, at most kDepth of them; a push onto a full stack drops
// the oldest. Places for all of them are there from the start, so a push needs no memory beyond the state's
// own.
template <class TState>
class CUndoStack {
  public:
    static constexpr int kDepth = 10;

    int Count() const { return static_cast<int>(m_nCount); }
    bool IsEmpty() const { return m_nCount == 0; }
    // The newest state. Only on a stack that is not empty.
    const TState& Top() const { return m_arrStates[m_nCount - 1]; }
    void Push(TState state) {
        if (m_nCount == m_arrStates.size()) {
            std::shift_left(m_arrStates.begin(), m_arrStates.end(), 1);
            --m_nCount;
        }
        m_arrStates[m_nCount++] = std::move(state);
    }
    // Only on a stack that is not empty.
    void Pop() { m_arrStates[--m_nCount] = TState(); }
    void Clear() {
        while (!IsEmpty()) Pop();
    }

  private:
    std::array<TState, kDepth> m_arrStates;  // oldest first
    std::size_t m_nCount = 0;
};
