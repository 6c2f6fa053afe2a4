#pragma once

#include <string>

// The modes by their numbers.
inline constexpr int kModeThum = 0;
inline constexpr int kModeDraw = 1;
inline constexpr int kModeEffect = 2;
inline constexpr int kModeFont = 3;
inline constexpr int kModeStick = 4;

// Where an edit stands: which mode is up, what is open under which name. Written by the mode switch and by
// the commands that begin an edit, read by everybody.
struct CEditState {
    int m_nMode = kModeThum;
    // The mode as left by the last ChangeMode. While ChangeMode runs it is still the mode being left;
    // kModeDraw means that the canvas holds paint that must be fetched.
    int m_nLastMode = kModeThum;

    bool m_bThumbMode = false;   // the THUM panel is up
    bool m_bDrawMode = false;    // the DRAW panel is up
    bool m_bEffectMode = false;  // the EFFECT panel is up, with a picture
    bool m_bFontMode = false;    // the FONT panel is up, with a picture
    bool m_bStickMode = false;   // the STICK panel is up, with a picture

    bool m_bImageOpen = false;   // the three edit images are valid
    bool m_bEditInfo = false;    // the info lines tell of the edited picture, not of the browsed file
    bool m_bEditSource = false;  // a send takes the edited picture, not the files selected in the list

    bool m_bNoEffectLevel = true;   // no effect is selected, or one without a level
    bool m_bEffectPending = false;  // an effect preview waits for CONFIRM or CANCEL

    std::string m_strFilePath;  // full path of the edited file
    std::string m_strFileName;  // its bare name: the name line, and the default name of a save
};
