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

constexpr CMenuItemTemplate kMenuItems[] = {
    {kMenuSize, "变更大小"}, {kMenuFlipVertical, "上下"}, {kMenuFlipHorizontal, "左右"},
    {kMenuTurnLeft, "-90°"}, {kMenuTurnRight, "+90°"},    {kMenuLarge, "扩大"},
    {kMenuActual, "1 : 1"},  {kMenuSmall, "缩小"},        {kMenuUndo, "Undo"},
    {kMenuRedo, "Redo"},     {kMenuReset, "Reset"},
};

}  // namespace

const CDialogTemplate kSplashDialog = {kDlgSplash, "", {447, 350}, EDialogFrame::None, kSplashControls};
const CDialogTemplate kPreviewPanel = {kDlgPreview, "", {142, 232}, EDialogFrame::Child, kPreviewControls};
const std::span<const CMenuItemTemplate> kPictureMenu = kMenuItems;
