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

constexpr CControlTemplate kPrintControls[] = {
    {kPrintView, EControlKind::View, CRect::FromPlace(10, 14, 336, 336)},
    {kPrintDate, EControlKind::Check, CRect::FromPlace(9, 364, 14, 14)},
    {kPrintDateLabel, EControlKind::BitmapLabel, CRect::FromPlace(25, 363, 49, 13), "1251"},
    {kPrintOk, EControlKind::BitmapButton, CRect::FromPlace(86, 412, 86, 24), "PPRINT"},
    {kPrintCancel, EControlKind::BitmapButton, CRect::FromPlace(188, 412, 86, 24), "PCANCEL"},
};

constexpr CControlLookRow kPrintLooks[] = {
    {kPrintView, {.szSpoken = "打印预览"}},      {kPrintDate, {.szSpoken = "日期表示"}},
    {kPrintDateLabel, {.szSpoken = "日期表示"}}, {kPrintOk, {.szSpoken = "打印"}},
    {kPrintCancel, {.szSpoken = "取消"}},
};

constexpr CControlTemplate kPortControls[] = {
    {kPortList, EControlKind::TextList, CRect::FromPlace(17, 14, 229, 80)},
    {kPortOk, EControlKind::BitmapButton, CRect::FromPlace(38, 102, 86, 24), "PORTSELOK"},
    {kPortCancel, EControlKind::BitmapButton, CRect::FromPlace(140, 102, 86, 24), "PORTSELCANCEL"},
};

constexpr CControlLookRow kPortLooks[] = {
    {kPortList, {.szSpoken = "端口"}},
    {kPortOk, {.szSpoken = "确定"}},
    {kPortCancel, {.szSpoken = "取消"}},
};

constexpr CControlTemplate kPhoneFileControls[] = {
    {kPhoneFiles, EControlKind::CheckTable, CRect::FromPlace(7, 32, 386, 164)},
    {kPhoneFilesAll, EControlKind::Check, CRect::FromPlace(59, 204, 14, 14)},
    {kPhoneFilesAllLabel, EControlKind::BitmapLabel, CRect::FromPlace(75, 204, 76, 15), "662"},
    {kPhoneFilesNone, EControlKind::Check, CRect::FromPlace(246, 204, 14, 14)},
    {kPhoneFilesNoneLabel, EControlKind::BitmapLabel, CRect::FromPlace(262, 204, 76, 15), "663"},
    {kPhoneFilesOk, EControlKind::BitmapButton, CRect::FromPlace(100, 255, 86, 24), "PCLINKOK"},
    {kPhoneFilesCancel, EControlKind::BitmapButton, CRect::FromPlace(202, 255, 86, 24), "PCLINKCANCEL"},
};

constexpr CTableColumn kPhoneFileColumns[] = {{"Num", 47}, {"File Name", 182}, {"Size", 69}, {"Memory", 93}};

constexpr CControlLookRow kPhoneFileLooks[] = {
    {kPhoneFiles, {.szSpoken = "手机文件", .arrColumns = kPhoneFileColumns}},
    {kPhoneFilesAll, {.szSpoken = "全部选择"}},
    {kPhoneFilesAllLabel, {.szSpoken = "全部选择"}},
    {kPhoneFilesNone, {.szSpoken = "全部取消"}},
    {kPhoneFilesNoneLabel, {.szSpoken = "全部取消"}},
    {kPhoneFilesOk, {.szSpoken = "确定"}},
    {kPhoneFilesCancel, {.szSpoken = "取消"}},
};

constexpr CControlTemplate kPhoneSizeControls[] = {
    // A part of the ground that only looks like a key: there is no other page here.
    {kPhoneSizePicture, EControlKind::BitmapButton, CRect::FromPlace(7, 20, 117, 24), "PHONEIMAGE", true,
     false},
    {kPhoneSizes, EControlKind::Combo, CRect::FromPlace(66, 96, 154, 24)},
    {kPhoneSizeOk, EControlKind::BitmapButton, CRect::FromPlace(278, 69, 86, 24), "SIZEOK"},
    {kPhoneSizeCancel, EControlKind::BitmapButton, CRect::FromPlace(278, 110, 86, 24), "SIZECANCEL"},
};

constexpr CControlLookRow kPhoneSizeLooks[] = {
    {kPhoneSizes, {.szSpoken = "手机图片大小", .border = EBorder::None}},
    {kPhoneSizeOk, {.szSpoken = "确定"}},
    {kPhoneSizeCancel, {.szSpoken = "取消"}},
};

constexpr CControlTemplate kTransferControls[] = {
    {kTransferText, EControlKind::Static, CRect::FromPlace(22, 206, 356, 20)},
};

constexpr CControlLookRow kTransferLooks[] = {
    {kTransferText, {.colorText = CColor{0, 0, 0}, .colorGround = CColor{200, 200, 177}}},
};

constexpr CMenuItemTemplate kSortItems[] = {
    {kMenuSortNumber, "按文件号码"}, {kMenuSortName, "按文件名"}, {kMenuSortSize, "按文件大小"}};

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
const CDialogTemplate kPrintDialog = {kDlgPrint,      "打印 [打印预览]", {358, 452}, EDialogFrame::Plain,
                                      kPrintControls, kPrintLooks,       kPrintOk,   kPrintCancel};
const std::span<const CMenuItemTemplate> kPictureMenu = kMenuItems;
const CDialogTemplate kPortSelectDialog = {kDlgPortSelect, "포트 설정", {263, 136}, EDialogFrame::Plain,
                                           kPortControls,  kPortLooks,  kPortOk,    kPortCancel};
const CDialogTemplate kPhoneFileDialog = {kDlgPhoneFile,       "文件 选择",        {400, 290},
                                          EDialogFrame::Plain, kPhoneFileControls, kPhoneFileLooks,
                                          kPhoneFilesOk,       kPhoneFilesCancel};
const CDialogTemplate kPhoneSizeDialog = {kDlgPhoneSize,       "大小变更",         {400, 192},
                                          EDialogFrame::Plain, kPhoneSizeControls, kPhoneSizeLooks,
                                          kPhoneSizeOk,        kPhoneSizeCancel};
const CDialogTemplate kTransferDialog = {kDlgTransfer,  "", {400, 275}, EDialogFrame::None, kTransferControls,
                                         kTransferLooks};
const CDialogTemplate kLinkDialog = {kDlgLink, "", {400, 275}, EDialogFrame::None, {}};
const std::span<const CMenuItemTemplate> kPhoneFileMenu = kSortItems;
