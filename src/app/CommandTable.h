#pragma once

#include <array>

#include "editor/EditEvents.h"
#include "resources/Ids.h"

// Which command is on: one row a key of the top bar, one column for what can happen to it. Each cell says
// what becomes of the key then.

enum class EKey {
    Left,  // stays as it is
    On,
    Off,
    Undo,      // on if there is a step to take back
    Redo,      // on if there is one to do again
    Clip,      // on if something was copied or cut in this run
    Phone,     // on if the phone is connected
    NoPhone,   // on if it is not
    Sendable,  // on if there is something to send: a picture, or the file list
    Picture,   // on if a picture is open, else left
};

struct CCommandRow {
    int nId;
    // On entry to the mode, with a picture open
    EKey thum, effect, stick, font, draw;
    // While an effect's preview waits for CONFIRM, behind it, and where leaving the mode drops it
    EKey previewBegun, previewEnded, previewDropped;
};

inline constexpr std::array kCommandTable = [] {
    using enum EKey;
    return std::to_array<CCommandRow>({
        // clang-format off
        // id                  THUM   EFFECT STICK  FONT   DRAW   begun ended  dropped
        {kCmdOpen,             On,    On,    On,    On,    On,    Left, Left,  Left},
        {kCmdNew,              Left,  On,    On,    Left,  On,    Off,  On,    On},
        {kCmdSave,             Off,   On,    On,    On,    On,    Off,  On,    Left},
        {kCmdPrint,            Off,   On,    On,    On,    On,    Off,  On,    Left},
        {kCmdUndo,             Off,   Undo,  Undo,  Undo,  Undo,  Off,  Undo,  Left},
        {kCmdRedo,             Off,   Redo,  Redo,  Redo,  Redo,  Off,  Redo,  Left},
        {kCmdReset,            Off,   On,    On,    On,    On,    Off,  On,    Left},
        {kCmdCut,              Off,   Off,   Off,   Off,   Off,   Left, Left,  Left},
        {kCmdCopy,             Off,   Off,   Off,   Off,   Off,   Left, Left,  Left},
        {kCmdPaste,            Off,   Off,   Off,   Off,   Clip,  Left, Left,  Left},
        {kCmdCrop,             Off,   Off,   Off,   Off,   Off,   Left, Left,  Left},
        {kCmdSize,             Off,   On,    On,    Off,   Off,   Off,  On,    Left},
        {kCmdFlipVertical,     Off,   On,    On,    Off,   On,    Off,  On,    Left},
        {kCmdFlipHorizontal,   Off,   On,    On,    Off,   On,    Off,  On,    Left},
        {kCmdTurnLeft,         Off,   On,    On,    Off,   On,    Off,  On,    Left},
        {kCmdTurnRight,        Off,   On,    On,    Off,   On,    Off,  On,    Left},
        {kCmdLarge,            Off,   On,    On,    Off,   Off,   Off,  On,    Left},
        {kCmdActual,           Off,   On,    On,    Off,   Off,   Off,  On,    Left},
        {kCmdSmall,            Off,   On,    On,    Off,   Off,   Off,  On,    Left},
        {kCmdConnect,          Left,  Left,  Left,  Left,  Left,  Left, NoPhone, Left},
        {kCmdSend,             Phone, Phone, Phone, Phone, Phone, Off,  Phone, Left},
        {kCmdTake,             Left,  Phone, Phone, Left,  Phone, Off,  Phone, Phone},
        // clang-format on
    });
}();

// What else switches keys, each by one event.
struct CKeyEventRow {
    EEditEvent event;
    int nId;
    EKey key;
};

inline constexpr std::array kKeyEvents = std::to_array<CKeyEventRow>({
    // A step lights the key of its stack and the last one that goes puts it out, whatever the mode allows.
    {EEditEvent::UndoPushed, kCmdUndo, EKey::On},       {EEditEvent::UndoEmptied, kCmdUndo, EKey::Off},
    {EEditEvent::RedoPushed, kCmdRedo, EKey::On},       {EEditEvent::RedoEmptied, kCmdRedo, EKey::Off},
    {EEditEvent::LevelMoved, kCmdReset, EKey::Off},     {EEditEvent::SelectionMade, kCmdCut, EKey::On},
    {EEditEvent::SelectionMade, kCmdCopy, EKey::On},    {EEditEvent::SelectionMade, kCmdCrop, EKey::On},
    {EEditEvent::SelectionGone, kCmdCut, EKey::Off},    {EEditEvent::SelectionGone, kCmdCopy, EKey::Off},
    {EEditEvent::SelectionGone, kCmdCrop, EKey::Off},   {EEditEvent::ClipFilled, kCmdPaste, EKey::On},
    {EEditEvent::Cropped, kCmdCut, EKey::Off},          {EEditEvent::Cropped, kCmdCopy, EKey::Off},
    {EEditEvent::Cropped, kCmdCrop, EKey::Off},         {EEditEvent::Cropped, kCmdPaste, EKey::Off},
    {EEditEvent::PhoneFound, kCmdConnect, EKey::Off},   {EEditEvent::PhoneFound, kCmdTake, EKey::On},
    {EEditEvent::PhoneFound, kCmdSend, EKey::Sendable}, {EEditEvent::PhoneReady, kCmdTake, EKey::On},
    {EEditEvent::PhoneReady, kCmdSend, EKey::Picture},  {EEditEvent::PhoneLost, kCmdConnect, EKey::On},
    {EEditEvent::PhoneLost, kCmdTake, EKey::Off},       {EEditEvent::PhoneLost, kCmdSend, EKey::Off},
    {EEditEvent::TakeLineFailed, kCmdTake, EKey::Off},  {EEditEvent::SendLineFailed, kCmdSend, EKey::Off},
});
