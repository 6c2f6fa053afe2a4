#pragma once

#include "resources/Grounds.h"
#include "resources/Ids.h"
#include "window/Template.h"

// What the main window's controls are called where they show no text, and how they look on the skin.

namespace MainLooks {

inline constexpr CColor kLit{235, 235, 235};  // text on the skin

inline constexpr CControlLook kInfoLine{.colorText = kLit, .colorGround = Grounds::kInfo};

inline constexpr CGridLayout kFrameGrid{.sizeCell = {91, 69},
                                        .ptFirst = {2, 8},
                                        .sizeStep = {95, 80},
                                        .nColumns = 2,
                                        .nScrollRange = 210,
                                        .nScrollPage = 50};

// clang-format off
inline constexpr CControlLookRow kTable[] = {
    {kCmdOpen, {.szSpoken = "打开"}},
    {kCmdNew, {.szSpoken = "新建"}},
    {kCmdSave, {.szSpoken = "保存"}},
    {kCmdPrint, {.szSpoken = "打印"}},
    {kCmdUndo, {.szSpoken = "撤销"}},
    {kCmdRedo, {.szSpoken = "重做"}},
    {kCmdReset, {.szSpoken = "复原"}},
    {kCmdCut, {.szSpoken = "剪切"}},
    {kCmdCopy, {.szSpoken = "复制"}},
    {kCmdPaste, {.szSpoken = "粘贴"}},
    {kCmdCrop, {.szSpoken = "裁剪"}},
    {kCmdSize, {.szSpoken = "大小"}},
    {kCmdFlipVertical, {.szSpoken = "上下翻转"}},
    {kCmdFlipHorizontal, {.szSpoken = "左右翻转"}},
    {kCmdTurnLeft, {.szSpoken = "左转90°"}},
    {kCmdTurnRight, {.szSpoken = "右转90°"}},
    {kCmdLarge, {.szSpoken = "放大"}},
    {kCmdActual, {.szSpoken = "1:1"}},
    {kCmdSmall, {.szSpoken = "缩小"}},
    {kCmdConnect, {.szSpoken = "连接"}},
    {kCmdSend, {.szSpoken = "发送"}},
    {kCmdTake, {.szSpoken = "接收"}},
    {kTabThum, {.szSpoken = "浏览"}},
    {kTabEffect, {.szSpoken = "特效"}},
    {kTabStick, {.szSpoken = "相框"}},
    {kTabFont, {.szSpoken = "文字"}},
    {kTabDraw, {.szSpoken = "绘画"}},
    {kEffectList, {.szSpoken = "特效", .border = EBorder::Sunken}},
    {kEffectSlider, {.szSpoken = "强度"}},
    {kEffectLevel, {.colorText = kLit, .colorGround = Grounds::kLevel}},
    {kConfirm, {.szSpoken = "确定"}},
    {kCancel, {.szSpoken = "取消"}},
    {kFrameList, {.szSpoken = "相框", .border = EBorder::Sunken, .grid = kFrameGrid}},
    {kRadioImageSize, {.szSpoken = "当前图片大小"}},
    {kLabelImageSize, {.szSpoken = "当前图片大小"}},
    {kRadioPhoneSize, {.szSpoken = "手机屏幕大小"}},
    {kLabelPhoneSize, {.szSpoken = "手机屏幕大小"}},
    {kTextInput, {.border = EBorder::None}},
    {kTextApply, {.szSpoken = "应用"}},
    {kTextFont, {.szSpoken = "字体"}},
    {kTextColor, {.szSpoken = "颜色"}},
    {kCheckLines, {.szSpoken = "显示辅助线"}},
    {kLabelLines, {.szSpoken = "显示辅助线"}},
    {kRadioProjection, {.szSpoken = "投影"}},
    {kLabelProjection, {.szSpoken = "投影"}},
    {kRadioMesh, {.szSpoken = "网格"}},
    {kLabelMesh, {.szSpoken = "网格"}},
    {1168, {.szSpoken = "四边形选择"}},
    {1169, {.szSpoken = "多边形选择"}},
    {1170, {.szSpoken = "任意选择"}},
    {1182, {.szSpoken = "吸管"}},
    {1178, {.szSpoken = "铅笔"}},
    {1181, {.szSpoken = "画笔"}},
    {1177, {.szSpoken = "填充"}},
    {1180, {.szSpoken = "喷枪"}},
    {1183, {.szSpoken = "橡皮"}},
    {1179, {.szSpoken = "放大镜"}},
    {1171, {.szSpoken = "直线"}},
    {1174, {.szSpoken = "曲线"}},
    {1173, {.szSpoken = "四边形"}},
    {1172, {.szSpoken = "多边形"}},
    {1176, {.szSpoken = "圆形"}},
    {1175, {.szSpoken = "圆角四边形"}},
    {kPaintColor, {.szSpoken = "选择颜色"}},
    {kInfoName, kInfoLine},
    {kBrowseName, kInfoLine},
    {kInfoSize, kInfoLine},
    {kBrowseSize, kInfoLine},
    {kInfoDepth, kInfoLine},
    {kBrowseDepth, kInfoLine},
    {kHelpLine, {.colorText = kLit, .colorGround = Grounds::kHelp}},
};
// clang-format on

}  // namespace MainLooks
