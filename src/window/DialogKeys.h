#pragma once

struct CKeyEvent;
class CDialog;

// What a key means that neither the dialog nor a control has wanted: Enter is the template's default key, Esc
// its cancelling key, or the close box where there is none that can be clicked. A dialog inside another
// window leaves both to that one. False if the key means nothing.
bool DoDialogKey(CDialog& dialog, const CKeyEvent& event);
