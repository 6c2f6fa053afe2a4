#pragma once

#include <functional>

#include "app/CommandTable.h"
#include "editor/EditEvents.h"
#include "editor/WorkingImages.h"
#include "paint/Selection.h"
#include "window/ControlSet.h"

// The one place that enables and shows the keys and panels of the main window. Rooms tell it what has
// happened; what that means for a key stands in kCommandTable, what it means for a panel in ControlDesk.cpp.
class CControlDesk : public CEditEvents {
  public:
    // All of these outlive the desk.
    struct CEnvironment {
        const CEditState& state;
        const CWorkingImages& images;
        const CSelection& selection;
        CControlSet& controls;
        std::function<bool()> fnConnected;  // the phone is there
    };
    explicit CControlDesk(const CEnvironment& env) : m_env(env) {}

    // The mode of the state has come up: its panel in the place of the others, its tab gone into the row, its
    // commands.
    void EnterMode();
    void Tell(EEditEvent event) override;
    // Of each pair of info lines the one that tells of the edited picture, or that of the browsed file.
    void ShowInfoLines(bool bEdit);
    void ShowHelpLine();

  private:
    using CColumn = EKey CCommandRow::*;
    void Apply(CColumn column);
    void Apply(int nId, EKey key);
    void ShowPanel(EMode mode, bool bShow);
    void ShowPreview(bool bShow, bool bLevel);

    CEnvironment m_env;
    bool m_bFilling = false;  // the file list's pictures are being made
};
