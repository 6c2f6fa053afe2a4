#pragma once

#include <string>

#include "app/ControlDesk.h"
#include "browse/BrowseHost.h"
#include "editor/WorkingImages.h"
#include "window/ControlSet.h"

// The three info lines above the picture and the help line below it. Each info line is a pair of controls on
// one spot, one for the edited picture, one for the browsed file; which of the two is seen goes by what was
// told last.
class CStatusLines {
  public:
    // All of these outlive the lines.
    CStatusLines(const CEditState& state, const CWorkingImages& images, CControlSet& controls,
                 CControlDesk& desk)
        : m_state(state), m_images(images), m_controls(controls), m_desk(desk) {}

    // From here on the info lines tell of the edited picture, or of the browsed file.
    void TellOfEdit() { m_bEditInfo = true; }
    void TellOfBrowsing() { m_bEditInfo = false; }
    bool IsEditInfo() const { return m_bEditInfo; }

    // Name, size and depth of the edited picture, at the end of each paint of the canvas.
    void ShowEditInfo();
    // What the user clicked in the tree or the list (see CBrowseHost). A file that cannot be opened shows
    // zero for size and depth.
    void ShowFileInfo(const std::string& strPath, EFileInfo kind);

    // Shows the help line with the text of the code; an unknown code leaves the text.
    void SetHelp(int nCode);

  private:
    std::string SizeInfo() const;
    void ShowPicture(const std::string& strPath);

    const CEditState& m_state;
    const CWorkingImages& m_images;
    CControlSet& m_controls;
    CControlDesk& m_desk;
    bool m_bEditInfo = false;
};

// The text with blanks behind it up to that many columns; a character beyond ASCII takes two.
std::string PadColumns(const std::string& strText, int nColumns);
