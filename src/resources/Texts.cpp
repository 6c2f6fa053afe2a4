#include "resources/Texts.h"

namespace {

struct CHelpText {
    int nCode;
    const char* szText;
};

constexpr CHelpText kHelpTexts[] = {
    {101, "单击-拖拉可 选择四边形区域"},
    {102, "单击-反复拖拉 可选择多边形区域，双击结束"},
    {103, "单击-拖拉 可选择任意区域"},
    {104, "单击后显示像素的颜色信息"},
    {105, "单击-拖拉 可 画任意线条"},
    {106, "单击-拖拉 涂色"},
    {107, "单击 填充所选颜色"},
    {108, "单击-拖拉 变为所选的颜色"},
    {109, "单击-拖拉 删除所选区域"},
    {110, "在选项里选择1x, 2x, 4x, 6x 可放大浏览"},
    {111, "单击-拖拉 画直线"},
    {112, "单击-拖拉，画直线，单击或双击变为曲线"},
    {113, "单击-拖拉  画四边形"},
    {114, "单击-反复拖拉 画多边形，双击结束。"},
    {115, "单击-拖拉 画圆形"},
    {116, "单击-拖拉 画椭圆形"},
    {kHelpPaintColor, "点击选择前景色"},
    {kHelpForeground, "双几左键选择前景色"},
    {kHelpBackground, "双击右键选择背景色"},
    {kHelpTextArt,
     "单击四边形-拖拉  模样和大小改变。 <Shift-单击-拖拉>位置移动，<Ctrl-单击-拖拉> 在新位置重画"},
    {kHelpClear, ""},
};

}  // namespace

bool FindHelpText(int nCode, std::string& strText) {
    for (const CHelpText& help : kHelpTexts) {
        if (help.nCode != nCode) continue;
        strText = help.szText;
        return true;
    }
    return false;
}
