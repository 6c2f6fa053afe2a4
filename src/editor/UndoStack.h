#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "image/Image.h"

// One state of an edit. The display image is not kept: it is rebuilt from the working image.
struct CUndoEntry {
    bool bFrameOn = false;
    bool bPhoneSize = false;  // pushed while the phone's screen size ruled
    std::int16_t nWidth = 0;  // display size: what the size rule gave when pushed
    std::int16_t nHeight = 0;
    std::unique_ptr<CxImage> pImage;  // the working image; shares its pixels until one of both changes
};

// The newest states, at most kDepth of them; a push onto a full stack drops the oldest.
class CUndoStack {
  public:
    static constexpr int kDepth = 10;

    int Count() const { return static_cast<int>(m_arrEntries.size()); }
    bool IsEmpty() const { return m_arrEntries.empty(); }
    // The newest entry. Only on a stack that is not empty.
    const CUndoEntry& Top() const { return m_arrEntries.back(); }
    void Push(CUndoEntry entry);
    void Pop() { m_arrEntries.pop_back(); }
    void Clear() { m_arrEntries.clear(); }

  private:
    std::vector<CUndoEntry> m_arrEntries;  // oldest first
};
