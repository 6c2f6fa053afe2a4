#pragma once

#include <string>
#include <vector>

#include "image/Geometry.h"

// What the commands of an edit ask of the window that they work for.
class CEditorHost {
  public:
    virtual ~CEditorHost() = default;
    // Changes the mode as a tab's click does, tabs included.
    virtual void GoToMode(int nMode) = 0;
    // Takes the EFFECT panel down.
    virtual void HideEffectPanel() = 0;
    // Brings the FONT panel up anew, with the picture as it is now.
    virtual void ShowFontPanel() = 0;
    virtual void EnableEditCommands() = 0;
    virtual void EnableSizeCommands(bool bEnable) = 0;
    // Puts the settings of text art back to their defaults.
    virtual void InitTextArt() = 0;
    virtual bool IsConnected() const = 0;
    // The picture sizes of the phone, as it told them; none before a phone has been connected.
    virtual std::vector<CSize> PhoneSizes() const = 0;
    // Lets the folder tree and the file list follow the folder into which a file was saved.
    virtual void FollowFolder(const std::string& strFolder) = 0;
};
