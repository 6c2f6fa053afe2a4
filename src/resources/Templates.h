#pragma once

#include <span>

#include "window/Template.h"

// The start-up picture.
extern const CDialogTemplate kSplashDialog;
// The panel with check box and picture beside the list of the open dialog.
extern const CDialogTemplate kPreviewPanel;
// The dialog of the display size, on the page of the user's own size.
extern const CDialogTemplate kSizeDialog;
// The print preview.
extern const CDialogTemplate kPrintDialog;
// The menu of a right click on the picture.
extern const std::span<const CMenuItemTemplate> kPictureMenu;
// The phone: which port, which of its files, with the menu of a right click there, which of its sizes; what
// runs while files move, and while the program connects, prepares or waits.
extern const CDialogTemplate kPortSelectDialog;
extern const CDialogTemplate kPhoneFileDialog;
extern const std::span<const CMenuItemTemplate> kPhoneFileMenu;
extern const CDialogTemplate kPhoneSizeDialog;
extern const CDialogTemplate kTransferDialog;
extern const CDialogTemplate kLinkDialog;
