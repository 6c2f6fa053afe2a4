#include "resources/Texts.h"

#include "resources/ToolTable.h"

namespace {

struct CHelpText {
    int nCode;
    const char* szText;
};

constexpr CHelpText kHelpTexts[] = {
    {kHelpPaintColor, "点击选择前景色"},
    {kHelpForeground, "双几左键选择前景色"},
    {kHelpBackground, "双击右键选择背景色"},
    {kHelpTextArt,
     "单击四边形-拖拉  模样和大小改变。 <Shift-单击-拖拉>位置移动，<Ctrl-单击-拖拉> 在新位置重画"},
    {kHelpClear, ""},
};

}  // namespace

bool FindHelpText(int nCode, std::string& strText) {
    for (const CToolRow& row : kTools) {
        if (HelpCodeOf(row.tool) != nCode) continue;
        strText = row.szHelp;
        return true;
    }
    for (const CHelpText& help : kHelpTexts) {
        if (help.nCode != nCode) continue;
        strText = help.szText;
        return true;
    }
    return false;
}
