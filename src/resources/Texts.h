#pragma once

#include <string>

// What the program says. The texts stand as they are shown.

inline constexpr char kTextProgram[] = "Orvo Fotarium V 1.0";  // title of boxes that have none of their own

inline constexpr char kTextNoMemory[] = "Memory leak";
inline constexpr char kTextOpenFailed[] = "照片格式或文件错误.";
inline constexpr char kTitleOpenFailed[] = "文件打开错误";
inline constexpr char kTextSaveFailed[] = "Error: Saving a File";

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

// The level readout when it shows nothing
inline constexpr char kBlankLevel[] = "     ";

// Codes of the help line
inline constexpr int kHelpTool = 100;  // plus the tool's number
inline constexpr int kHelpPaintColor = 117;
inline constexpr int kHelpForeground = 118;
inline constexpr int kHelpBackground = 119;
inline constexpr int kHelpTextArt = 200;
inline constexpr int kHelpClear = 300;

// The text of a help code, unpadded; false if there is no such code.
bool FindHelpText(int nCode, std::string& strText);
