#include "qt/AccessibleNames.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "engines/effects/EffectTable.h"
#include "qt/Text.h"
#include "resources/BitmapIds.h"

namespace {

struct CName {
    std::string_view strRoot;
    std::string_view strName;
};

constexpr auto kNames = std::to_array<CName>({
    {"OPEN", "打开"},          {"NEW", "新建"},           {"SAVE", "保存"},
    {"PRINT", "打印"},         {"UNDO", "撤销"},          {"REDO", "重做"},
    {"RESET", "复原"},         {"CUT", "剪切"},           {"COPY", "复制"},
    {"PASTE", "粘贴"},         {"CROP", "裁剪"},          {"SIZECHANGE", "大小"},
    {"UPDOWN", "上下翻转"},    {"LEFTRIGHT", "左右翻转"}, {"MROTATE", "左转90°"},
    {"PROTATE", "右转90°"},    {"LARGE", "放大"},         {"ACTUAL", "1:1"},
    {"SMALL", "缩小"},         {"CONNECT", "连接"},       {"DOWNLOAD", "发送"},
    {"UPLOAD", "接收"},        {"THUM", "浏览"},          {"EFFECT", "特效"},
    {"STICK", "相框"},         {"FONT", "文字"},          {"DRAW", "绘画"},
    {"CONFIRM", "确定"},       {"CANCEL", "取消"},        {"APPLY", "应用"},
    {"CHARACTER", "字体"},     {"COLOR", "颜色"},         {"COLOR_SELECT", "选择颜色"},
    {"1246", "当前图片大小"},  {"1247", "手机屏幕大小"},  {"1248", "投影"},
    {"1249", "网格"},          {"1250", "显示辅助线"},    {"TOOL_01", "四边形选择"},
    {"TOOL_02", "多边形选择"}, {"TOOL_03", "任意选择"},   {"TOOL_15", "吸管"},
    {"TOOL_11", "铅笔"},       {"TOOL_14", "画笔"},       {"TOOL_10", "填充"},
    {"TOOL_13", "喷枪"},       {"TOOL_16", "橡皮"},       {"TOOL_12", "放大镜"},
    {"TOOL_04", "直线"},       {"TOOL_07", "曲线"},       {"TOOL_06", "四边形"},
    {"TOOL_05", "多边形"},     {"TOOL_09", "圆形"},       {"TOOL_08", "圆角四边形"},
    {"1041", "特效"},          {"1047", "强度"},
});

}  // namespace

QString FindEffectName(std::string_view strPicture) {
    int nPicture = 0;
    const auto [pEnd, error] =
        std::from_chars(strPicture.data(), strPicture.data() + strPicture.size(), nPicture);
    const int nEffect = (nPicture - kBmpEffectSelected) % kEffectCount;
    const bool bNumber = error == std::errc() && pEnd == strPicture.data() + strPicture.size();
    if (!bNumber || nPicture < kBmpEffectSelected || nPicture >= kBmpEffectSelected + 2 * kEffectCount)
        return {};
    return ToQt(kEffects[static_cast<std::size_t>(nEffect)].szLabel);
}

QString FindAccessibleName(std::string_view strRoot) {
    const auto it = std::find_if(kNames.begin(), kNames.end(),
                                 [strRoot](const CName& name) { return name.strRoot == strRoot; });
    return it == kNames.end() ? QString{} : ToQt(it->strName);
}
