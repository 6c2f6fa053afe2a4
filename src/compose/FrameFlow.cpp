#include "compose/FrameFlow.h"

#include <string>
#include <utility>
#include <vector>

#include "resources/BitmapIds.h"
#include "resources/FrameNames.h"
#include "resources/Ids.h"
#include "resources/Texts.h"

static_assert(kFrameNames.size() == CStickerFrame::kCount + 1);

void CFrameFlow::Init() {
    std::vector<CListItem> arrItems;
    for (const char* const szName : kFrameNames) {
        const int nCell = static_cast<int>(arrItems.size());
        arrItems.push_back({std::to_string(kBmpFrameCell + nCell), -1, szName});
    }
    m_env.controls.SetItems(kFrameList, std::move(arrItems));
}

// A click beside the items has taken the old frame off the working image by then, and leaves it at that: the
// frame stays on by name, and the display image stays as it is.
bool CFrameFlow::MakePictures(int nItem, CEditPictures& next, bool& bMissing) {
    if (next.m_bFrameOn)
        next.m_imgWork = next.m_imgNoFrame;
    else
        next.m_imgNoFrame = next.m_imgWork;
    if (nItem < 0) return true;
    next.m_bFrameOn = nItem > 0;
    if (next.m_bFrameOn) {
        const EComposed composed = m_frame.Compose(nItem, next.m_imgWork);
        if (composed == EComposed::NoMemory) return false;
        bMissing = composed == EComposed::NoFrame;
    }
    return next.RebuildDisplay(next.RuledSize());
}

// The list has moved its mark already; where nothing comes of the click the mark goes back.
void CFrameFlow::OnClickStickerList(int nItem) {
    if (!m_env.state.m_bImageOpen) {
        m_env.controls.Select(kFrameList, m_nMarked);
        return m_env.controls.SetFocus(m_env.images.IsPhoneSize() ? kRadioPhoneSize : kRadioImageSize);
    }
    const CWaitScope wait(m_env.wait);
    bool bMissing = false;
    const bool bChanged = m_env.editor.Change(
        m_env.images.m_imgWork, [&](CEditPictures& next) { return MakePictures(nItem, next, bMissing); });
    if (!bChanged) return m_env.controls.Select(kFrameList, m_nMarked);
    m_nMarked = nItem;
    if (nItem >= 0) m_env.canvas.Invalidate();
    if (bMissing) m_env.boxes.Show({kTextNoFrames, kTextProgram, EBoxIcon::Exclamation, EBoxButtons::Ok});
}
