#pragma once

#include <string>

// What the info lines are told about.
enum class EFileInfo { Clear = -1, Folder = 0, Picture = 1 };

// What tree and list ask of the window that they stand in.
class CBrowseHost {
  public:
    virtual ~CBrowseHost() = default;
    // The whole path of a picture, of which the lines tell the last part; else the text that they tell.
    virtual void ShowFileInfo(const std::string& strPath, EFileInfo kind) = 0;
    virtual void OpenPicture(const std::string& strFolder, const std::string& strName) = 0;
    // The info lines tell of the browsed file from here on.
    virtual void LeaveEditInfo() = 0;
};
