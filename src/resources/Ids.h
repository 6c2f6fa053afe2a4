#pragma once

// The numbers of dialogs, controls and menu items.

inline constexpr int kDlgPreview = 101;
inline constexpr int kDlgMain = 102;
inline constexpr int kDlgPrint = 153;
inline constexpr int kDlgSize = 154;
inline constexpr int kDlgPortSelect = 159;
inline constexpr int kDlgPhoneFile = 160;
inline constexpr int kDlgSplash = 273;
inline constexpr int kDlgPhoneSize = 543;
inline constexpr int kDlgTransfer = 549;
inline constexpr int kDlgLink = 553;

// Files and history
inline constexpr int kCmdOpen = 1000;
inline constexpr int kCmdNew = 1027;
inline constexpr int kCmdSave = 1002;
inline constexpr int kCmdPrint = 1003;
inline constexpr int kCmdUndo = 1004;
inline constexpr int kCmdRedo = 1005;
inline constexpr int kCmdReset = 1006;
// Paint clipboard
inline constexpr int kCmdCut = 1007;
inline constexpr int kCmdCopy = 1008;
inline constexpr int kCmdPaste = 1009;
inline constexpr int kCmdCrop = 1010;
// Shape and size
inline constexpr int kCmdSize = 1011;
inline constexpr int kCmdFlipVertical = 1012;
inline constexpr int kCmdFlipHorizontal = 1013;
inline constexpr int kCmdTurnLeft = 1018;
inline constexpr int kCmdTurnRight = 1019;
inline constexpr int kCmdLarge = 1016;
inline constexpr int kCmdActual = 1031;
inline constexpr int kCmdSmall = 1017;
// Phone. The names run against everyday use: DownLoad sends to the phone, UPLOAD takes from it.
inline constexpr int kCmdConnect = 1030;
inline constexpr int kCmdSend = 1023;
inline constexpr int kCmdTake = 1024;
inline constexpr int kCmdMinimize = 1219;
// Tabs
inline constexpr int kTabThum = 1163;
inline constexpr int kTabDraw = 1164;
inline constexpr int kTabEffect = 1165;
inline constexpr int kTabFont = 1166;
inline constexpr int kTabStick = 1167;
// THUM
inline constexpr int kFolderTree = 1033;
inline constexpr int kFileList = 1117;
inline constexpr int kProgress = 1114;
// The canvas
inline constexpr int kCanvas = 59648;
// EFFECT
inline constexpr int kEffectList = 1041;
inline constexpr int kEffectPreview = 1044;
inline constexpr int kEffectSlider = 1047;
inline constexpr int kEffectLevel = 1128;
inline constexpr int kConfirm = 1022;
inline constexpr int kCancel = 1029;
// STICK
inline constexpr int kStickGroup = 1139;
inline constexpr int kRadioImageSize = 1187;
inline constexpr int kRadioPhoneSize = 1188;
inline constexpr int kLabelImageSize = 1246;
inline constexpr int kLabelPhoneSize = 1247;
inline constexpr int kFrameList = 1146;
// FONT
inline constexpr int kTextGroup = 1050;
inline constexpr int kTextInput = 1051;
inline constexpr int kShapeGroup = 1052;
inline constexpr int kRadioProjection = 1053;
inline constexpr int kRadioMesh = 1054;
inline constexpr int kTextEffectGroup = 1057;
inline constexpr int kColorGroup = 1058;
inline constexpr int kFontGroup = 1148;
inline constexpr int kLinesGroup = 1151;
inline constexpr int kLabelProjection = 1248;
inline constexpr int kLabelMesh = 1249;
inline constexpr int kCheckLines = 1119;
inline constexpr int kLabelLines = 1250;
inline constexpr int kTextColor = 1122;
inline constexpr int kTextSwatch = 1121;
inline constexpr int kTextFont = 1150;
inline constexpr int kTextApply = 1028;
inline constexpr int kTextEffectList = 1064;
// DRAW
inline constexpr int kToolFirst = 1168;
inline constexpr int kPaintColor = 1184;
// Info lines: of the edited picture and of the browsed file
inline constexpr int kInfoName = 1153;
inline constexpr int kInfoSize = 1123;
inline constexpr int kInfoDepth = 1155;
inline constexpr int kBrowseName = 1126;
inline constexpr int kBrowseSize = 1157;
inline constexpr int kBrowseDepth = 1129;
inline constexpr int kHelpLine = 1161;

// The start-up picture
inline constexpr int kSplashPicture = 274;

// The picture menu
inline constexpr int kMenuSize = 32775;
inline constexpr int kMenuFlipVertical = 32776;
inline constexpr int kMenuFlipHorizontal = 32777;
inline constexpr int kMenuTurnLeft = 32778;
inline constexpr int kMenuTurnRight = 32779;
inline constexpr int kMenuLarge = 32780;
inline constexpr int kMenuSmall = 32781;
inline constexpr int kMenuUndo = 32782;
inline constexpr int kMenuRedo = 32783;
inline constexpr int kMenuReset = 32784;
inline constexpr int kMenuActual = 32785;

// The open dialog's panel
inline constexpr int kPreviewCheck = 1000;
inline constexpr int kPreviewFrame = 1001;
inline constexpr int kPreviewView = 59649;

// The size dialog
inline constexpr int kSizeToOwn = 1185;    // leads back to the page of the user's own size
inline constexpr int kSizeToPhone = 1186;  // leads to the page of the phone's sizes
inline constexpr int kSizeWidthLabel = 1105;
inline constexpr int kSizeWidth = 1108;
inline constexpr int kSizeHeightLabel = 1107;
inline constexpr int kSizeHeight = 1109;
inline constexpr int kSizePhoneList = 1135;
inline constexpr int kSizeKeepRatio = 1110;
inline constexpr int kSizeKeepRatioLabel = 1252;
inline constexpr int kSizeOk = 1103;
inline constexpr int kSizeCancel = 1106;

// The print preview
inline constexpr int kPrintView = 59650;
inline constexpr int kPrintDate = 1152;
inline constexpr int kPrintDateLabel = 1251;
inline constexpr int kPrintOk = 1089;
inline constexpr int kPrintCancel = 2;

// The phone's dialogs: which port, which of its files, which of its sizes, and the line below a transfer
inline constexpr int kPortList = 1124;
inline constexpr int kPortOk = 1201;
inline constexpr int kPortCancel = 1202;
inline constexpr int kPhoneFiles = 1125;
inline constexpr int kPhoneFilesAll = 1156;
inline constexpr int kPhoneFilesAllLabel = 1253;
inline constexpr int kPhoneFilesNone = 1127;
inline constexpr int kPhoneFilesNoneLabel = 1254;
inline constexpr int kPhoneFilesOk = 1199;
inline constexpr int kPhoneFilesCancel = 1200;
inline constexpr int kPhoneSizePicture = 1193;
inline constexpr int kPhoneSizes = 1192;
inline constexpr int kPhoneSizeOk = 1194;
inline constexpr int kPhoneSizeCancel = 1195;
inline constexpr int kTransferText = 1264;

// The menu of the phone's files
inline constexpr int kMenuSortNumber = 32786;
inline constexpr int kMenuSortName = 32787;
inline constexpr int kMenuSortSize = 32788;
