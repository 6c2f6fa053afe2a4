#include "resources/Templates.h"

#include "resources/Ids.h"

namespace {

constexpr CControlTemplate kSplashControls[] = {
    {kSplashPicture, EControlKind::BitmapLabel, CRect::FromPlace(0, 0, 447, 350), "274"},
};

// Laid out in units of a dialog font whose cell is 6 by 13: 95 by 143 units make 142 by 232 pixels.
constexpr CControlTemplate kPreviewControls[] = {
    {kPreviewFrame, EControlKind::Place, CRect::FromPlace(6, 32, 129, 146)},
    {kPreviewView, EControlKind::View, CRect::FromPlace(8, 35, 125, 142), "", false},
    {kPreviewCheck, EControlKind::Check, CRect::FromPlace(21, 182, 67, 16), "&Preview"},
};

constexpr CControlTemplate kSizeControls[] = {
    {kSizeToOwn, EControlKind::BitmapButton, CRect::FromPlace(7, 20, 156, 25), "PHONEIMAGE", false},
    {kSizeToPhone, EControlKind::BitmapButton, CRect::FromPlace(163, 20, 156, 25), "USERIMAGE"},
    {kSizeWidthLabel, EControlKind::Static, CRect::FromPlace(35, 73, 76, 20), "宽度"},
    {kSizeWidth, EControlKind::Edit, CRect::FromPlace(142, 72, 98, 16)},
    {kSizeHeightLabel, EControlKind::Static, CRect::FromPlace(35, 115, 76, 20), "高度"},
    {kSizeHeight, EControlKind::Edit, CRect::FromPlace(142, 112, 98, 16)},
    {kSizePhoneList, EControlKind::Combo, CRect::FromPlace(66, 96, 154, 24), "", false},
    {kSizeKeepRatio, EControlKind::Check, CRect::FromPlace(9, 167, 14, 14)},
    {kSizeKeepRatioLabel, EControlKind::BitmapLabel, CRect::FromPlace(25, 167, 76, 15), "668"},
    {kSizeOk, EControlKind::BitmapButton, CRect::FromPlace(278, 69, 86, 24), "SIZEOK"},
    {kSizeCancel, EControlKind::BitmapButton, CRect::FromPlace(278, 110, 86, 24), "SIZECANCEL"},
};

// The dialog's picture has the wells around these drawn already.
constexpr CControlLookRow kSizeLooks[] = {
    {kSizeWidth, {.border = EBorder::None}},
    {kSizeHeight, {.border = EBorder::None}},
    {kSizePhoneList, {.border = EBorder::None}},
};

constexpr CMenuItemTemplate kMenuItems[] = {
    {kMenuSize, "变更大小"}, {kMenuFlipVertical, "上下"}, {kMenuFlipHorizontal, "左右"},
    {kMenuTurnLeft, "-90°"}, {kMenuTurnRight, "+90°"},    {kMenuLarge, "扩大"},
    {kMenuActual, "1 : 1"},  {kMenuSmall, "缩小"},        {kMenuUndo, "Undo"},
    {kMenuRedo, "Redo"},     {kMenuReset, "Reset"},
};

}  // namespace

const CDialogTemplate kSplashDialog = {kDlgSplash, "", {447, 350}, EDialogFrame::None, kSplashControls};
const CDialogTemplate kPreviewPanel = {kDlgPreview, "", {142, 232}, EDialogFrame::Child, kPreviewControls};
const CDialogTemplate kSizeDialog = {kDlgSize,      "大小变更", {400, 192}, EDialogFrame::Plain,
                                     kSizeControls, kSizeLooks, kSizeOk,    kSizeCancel};
const std::span<const CMenuItemTemplate> kPictureMenu = kMenuItems;
