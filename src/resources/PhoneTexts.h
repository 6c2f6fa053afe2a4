#pragma once

#include <array>

// What the program says about the phone. The texts stand as they are shown; in those with a "%" the values
// are put by whoever shows them.

inline constexpr char kTextRestart[] = "手机重启";

// Connecting
inline constexpr char kTitleCheckLibrary[] = "检查DLL文件";
inline constexpr char kTextNoPhoneLibrary[] = "下载OrvoLinkMgr.dll失败";
inline constexpr char kTitleExchange[] = "信息交换";
inline constexpr char kTextConnected[] = "和手机连接完成";
inline constexpr char kTextOtherPhone[] = "手机已更换. 请重新连接";
inline constexpr char kTextNoPorts[] = "请确认手机和USB数据线的连接后重试";

// The port dialog, and the words behind a port's name
inline constexpr char kTextPortUsable[] = "使用可能";
inline constexpr char kTextPortBusy[] = "无法使用";
inline constexpr char kTextNoPortGiven[] = "端口不存在";
inline constexpr char kTitlePortChoice[] = "选择端口";

// Taking
inline constexpr char kTitleTake[] = "上传文件";
inline constexpr char kTextTaken[] = "文件已接受";
inline constexpr char kTextCardLeft[] =
    "外存卡脱落,请重新读取文件信息\n\n 重新读取文件选择'是', 取消读取，选择'否' ";
inline constexpr char kTextFailedFiles[] = "下一个文件";
inline constexpr char kTextFilesFailed[] = "文件传送中出错, 确认后再传送.";
inline constexpr char kFilterTake[] = "JPEG files (*.jpg)|*.jpg||";

// The phone's files
inline constexpr char kTextNothingTicked[] = "请选择要传送的文件";
inline constexpr char kTextCardChanged[] = "外存卡脱落/装载";
inline constexpr char kTitleCardChanged[] = "警告";
inline constexpr char kTextClosedFile[] = "Closed File";
inline constexpr char kTextOnCard[] = "外存";
inline constexpr char kTextInPhone[] = "内存";

// Sending
inline constexpr char kTitleSend[] = "文件下载";
inline constexpr char kTextSent[] = "文件已发送";
inline constexpr char kTextProgress[] = "正在传送第 %d / %d个文件 ";
inline constexpr char kTextNoPhotoPhone[] = "不支持照片传送";
inline constexpr char kTextChooseFirst[] = "请选择要下载的照片";
inline constexpr char kTextNoFolders[] = "无法传送文件夹，请选择照片";
inline constexpr char kTextNoSuchFormat[] = "'%s'文件不支持图片格式, 文件出错无法传送";
inline constexpr char kTextTooLargeForPhone[] = "%s文件超过手机支持的最大显像度(%d x %d)，无法传送";
inline constexpr char kTextTooManyFiles[] = "超过手机的最大存储个数（%d 个）";
inline constexpr char kTitlePhoneSize[] = "大小变更";
inline constexpr char kTextShrink[] =
    "超过手机支持的最大显像度（%d x %d ），无法传送 "
    "\n变更为手机最小化显像度吗？\n（（注意：如果选择否的话则不传送）";
inline constexpr char kTextFitExactly[] =
    "不是手机的最小化显像度\n变更为手机最小化显像度吗？\n(注意：在手机上只能编辑最小化显像度的照片)";
inline constexpr char kTextPhoneFullFrom[] = "存储空间不足，文件不能传送.  \n\n%s ~ %s";
inline constexpr char kTextFileOpenFailed[] = "文件打开失败";
inline constexpr char kTitleFileOpenFailed[] = "文件打开错误";

// A code of the phone library as the user reads it; codes without a row are not shown.
struct CLinkCodeRow {
    int nCode;
    const char* szText;
    bool bTail;     // followed by kTextRestart for a phone that restarts
    bool bKeepsUp;  // leaves the phone connected
};

inline constexpr char kTitleLinkCode[] = "WARNING";
inline constexpr auto kLinkCodes = std::to_array<CLinkCodeRow>({
    {-4, "和手机连接失败.", false, false},
    {-2, "和手机连接失败.请确认和手机的连接端口", false, false},
    {-1, "和手机连接失败.", true, false},
    {2, "请解锁后重试", true, false},
    {3, "连接的手机不支持照相功能", false, false},
    {4, "手机信息读取失败.", true, false},
    {5, "手机支持的显像度信息读取失败.", true, false},
    {6, "没有上传文件", true, true},
    {7, "读取手机的文件列表失败.", true, false},
    {8, "存储的文件夹中无法生成文件.", true, true},
    {9, "向PC传送手机文件失败.", true, false},
    {10, "读取手机剩余内存失败.", true, false},
    {11, "要传送到手机的文件无法打开.", false, true},
    {12, "向手机传送文件失败.", true, false},
    {13, "向手机传送文件取消.", true, false},
    {14, "存储空间不足，文件不能传送.", true, true},
    {15, "请将手机的相册解锁后重试.", true, false},
    {20, "현재 자료교환이 불가능한 상태입니다. 자료교환을 중단합니다.", true, false},
    {21, "전화가 왔습니다. 자료교환을 중단합니다.", true, false},
    {22, "배터리가 부족합니다. 자료교환을 중단합니다.", true, false},
});
