#pragma once

#include <string>

// The modes by their numbers.
enum class EMode { Thum = 0, Draw = 1, Effect = 2, Font = 3, Stick = 4 };

// Where an edit stands: which mode is up, what is open under which name. The mode is written by the mode
// switch, the rest by the commands that begin an edit; everybody reads it.
struct CEditState {
    EMode m_nMode = EMode::Thum;
    bool m_bImageOpen = false;  // the pictures of the edit are valid

    std::string m_strFilePath;  // full path of the edited file
    std::string m_strFileName;  // its bare name: the name line, and the default name of a save

    // The panel of the mode is up, with or without a picture.
    bool IsUp(EMode mode) const { return m_nMode == mode; }
    // It is up, and there is a picture for it.
    bool IsAtWork(EMode mode) const { return m_nMode == mode && m_bImageOpen; }
};
