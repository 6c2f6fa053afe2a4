#pragma once

#include <memory>
#include <string>

#include "browse/BrowseHost.h"
#include "editor/EditState.h"
#include "editor/WorkingImages.h"
#include "window/ControlSet.h"

// The three info lines above the picture and the help line below it. Each info line is a pair of controls on
// one spot, one for the edited picture, one for the browsed file; m_bEditInfo decides which of the two is
// seen.
class CStatusLines {
  public:
    // All of these outlive the lines.
    CStatusLines(const CEditState& state, const CWorkingImages& images, CControlSet& controls)
        : m_state(state), m_images(images), m_controls(controls) {}

    // Called at the end of each paint of the canvas.
    void ShowSizeInfo();
    void ShowNameInfo();
    void ShowDepthInfo();

    // What the user clicked in the tree or the list: its path, of which the last part is told. A file that
    // cannot be opened shows zero for size and depth.
    void ShowFileInfo(const std::string& strPath, EFileInfo kind);

    // Shows the help line with the text of the code; an unknown code leaves the text.
    void SetHelp(int nCode);

  private:
    void ShowPair(int nEditId, int nBrowseId);
    void ShowPicture(const std::string& strPath);

    const CEditState& m_state;
    const CWorkingImages& m_images;
    CControlSet& m_controls;
    std::string m_strBrowsePath;
    std::unique_ptr<CxImage> m_pImgBrowse;  // the file last clicked, opened for its size and depth only
};

// The text with blanks behind it up to that many columns; a character beyond ASCII takes two.
std::string PadColumns(const std::string& strText, int nColumns);
