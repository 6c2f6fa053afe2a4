#include "window/DialogKeys.h"

#include "window/Dialog.h"

bool DoDialogKey(CDialog& dialog, const CKeyEvent& event) {
    const CDialogTemplate& dialogTemplate = dialog.Template();
    const bool bEscape = event.nKey == kKeyEscape;
    if (dialogTemplate.frame == EDialogFrame::Child || (!bEscape && event.nKey != kKeyEnter)) return false;
    const int nId = bEscape ? dialogTemplate.nCancel : dialogTemplate.nDefault;
    const bool bCan = dialog.Controls().IsShown(nId) && dialog.Controls().IsEnabled(nId);
    if (bCan) dialog.OnCommand(nId);
    if (!bCan && bEscape) dialog.OnClose();
    return bCan || bEscape;
}
