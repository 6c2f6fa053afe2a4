#pragma once

#include <string>

// What the program says. The texts stand as they are shown.

inline constexpr char kTextProgram[] = "Orvo Fotarium V 1.0";  // title of boxes that have none of their own

inline constexpr char kTextNoMemory[] = "Memory leak";
inline constexpr char kTextOpenFailed[] = "照片格式或文件错误.";
inline constexpr char kTitleOpenFailed[] = "文件打开错误";
inline constexpr char kTextSaveFailed[] = "Error: Saving a File";

// The question before one file goes to the recycle bin: its name stands between these.
inline constexpr char kTextDeleteBefore[] = "\n要把 '";
inline constexpr char kTextDeleteBehind[] = "' 移动到垃圾箱吗?\n\n";
inline constexpr char kTitleDelete[] = "文件删除确认";

// Shape and size
inline constexpr char kTitleNotice[] = "注意";
inline constexpr char kTextPhoneSizeRules[] = "以现画面大小显示图片\n\n大小变更，请选择当前照片大小的相框";
inline constexpr char kTextNoTurnLeft[] = "以现画面大小显示图片\n\n照片翻转(-90°)，请选择当前照片大小的相框";
inline constexpr char kTextNoTurnRight[] = "以现画面大小显示图片\n\n照片翻转(+90°)，请选择当前照片大小的相框";
inline constexpr char kTitleSizeChange[] = "图像大小变更";
inline constexpr char kTextTooLarge[] = "最大以上的大小";
inline constexpr char kTextTooSmall[] = "最小以下的大小";
inline constexpr char kTextNoPhoneSizes[] = "无手机信息，请先连接手机";

// Printing
inline constexpr char kTitlePreview[] = "打印预览";
inline constexpr char kTextPaperUnknown[] = "不支持此种用纸。显示A4纸";
inline constexpr char kTextTinyDate[] = "表示日期的数字很小还要表示吗？";

// Frames
inline constexpr char kTextNoFrames[] = "没有搜索到StickerFrameData.dll文件";

// The paint clipboard
inline constexpr char kTextNothingToCopy[] = "先选择复制区域";
inline constexpr char kTextNothingToCut[] = "请先选择剪切区域";
inline constexpr char kTextNothingToCrop[] = "请先选择修改区域";
inline constexpr char kTextCopyFailed[] = "Unable to set clipboard data";
inline constexpr char kTextCutFailed[] = "Unable to set Clipboard data";

inline constexpr char kTextBuildDate[] = "Build Date : Dec  7 2005";
inline constexpr char kTitleBuildDate[] = "Orvo Fotarium Version";

inline constexpr char kFilterOpen[] = "JPG Files (*.JPG)|*.jpg||";
inline constexpr char kFilterSave[] = "JPEG Files (*.JPG)|*.jpg||";
inline constexpr char kNameUntitled[] = "No Title";

// Words of the info lines
inline constexpr char kWordName[] = "文件名";
inline constexpr char kWordSize[] = "大小";
inline constexpr char kWordDepth[] = "色度";
inline constexpr char kWordEditMode[] = "编辑模式";

// The level readout of an effect without a level, and while no effect is selected
inline constexpr char kBlankReadout[] = "       ";
inline constexpr char kBlankLevel[] = "     ";

// What the styles of FONT are called, in the order of their numbers
inline constexpr const char* kTextEffectNames[] = {"普通", "立体", "轮廓", "反白"};
inline constexpr int kTextEffectCount = 4;

// Codes of the help line, beside those of the tools
inline constexpr int kHelpPaintColor = 117;
inline constexpr int kHelpForeground = 118;
inline constexpr int kHelpBackground = 119;
inline constexpr int kHelpTextArt = 200;
inline constexpr int kHelpClear = 300;

// The text of a help code, unpadded; false if there is no such code.
bool FindHelpText(int nCode, std::string& strText);
