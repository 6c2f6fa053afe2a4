#pragma once

#include "resources/Ids.h"

// What each key is to do, written down once more and apart from the program: in THUM, EFFECT, STICK, FONT and
// DRAW; when a preview begins, ends and is dropped; when the phone comes or goes. '+' on, '-' off, '.' as it
// was, 'u' with a step to take back, 'r' with one to do again, 'c' if something was copied, 'p' with a phone,
// 'n' without one.
struct CWantedKey {
    int nId;
    const char* szRow;
};

inline constexpr CWantedKey kWantedKeys[] = {
    // clang-format off
    {kCmdOpen,           "+++++ ..."}, {kCmdNew,              ".++.+ -++"}, {kCmdSave,    "-++++ -+."},
    {kCmdPrint,          "-++++ -+."}, {kCmdUndo,             "-uuuu -u."}, {kCmdRedo,    "-rrrr -r."},
    {kCmdReset,          "-++++ -+."}, {kCmdCut,              "----- ..."}, {kCmdCopy,    "----- ..."},
    {kCmdPaste,          "----c ..."}, {kCmdCrop,             "----- ..."}, {kCmdSize,    "-++-- -+."},
    {kCmdFlipVertical,   "-++-+ -+."}, {kCmdFlipHorizontal,   "-++-+ -+."}, {kCmdTurnLeft, "-++-+ -+."},
    {kCmdTurnRight,      "-++-+ -+."}, {kCmdLarge,            "-++-- -+."}, {kCmdActual,  "-++-- -+."},
    {kCmdSmall,          "-++-- -+."}, {kCmdConnect,          "..... .n."}, {kCmdSend,    "ppppp -p."},
    {kCmdTake,           ".pp.p -pp"},
    // clang-format on
};
