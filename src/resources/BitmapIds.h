#pragma once

#include "image/Geometry.h"

// The pictures of the skin by their numbers. Where each stands is the affair of whoever draws it; buttons
// find theirs by their captions.

// The main window: the whole ground, and clean strips that wipe a hint below the top bar and below the tabs
inline constexpr int kBmpBackground = 522;
inline constexpr int kBmpTopStrip = 440;
inline constexpr int kBmpTabStripThum = 503;
inline constexpr int kBmpTabStripEffect = 504;
inline constexpr int kBmpTabStripFont = 505;
inline constexpr int kBmpTabStripStick = 506;
inline constexpr int kBmpTabStripDraw = 507;
// The tab row with each mode's tab selected, and the panels of the modes that have a picture of their own
inline constexpr int kBmpTabsThum = 486;
inline constexpr int kBmpTabsEffect = 487;
inline constexpr int kBmpTabsFont = 488;
inline constexpr int kBmpTabsStick = 489;
inline constexpr int kBmpTabsDraw = 490;
inline constexpr int kBmpPanelFont = 296;
inline constexpr int kBmpPanelStick = 286;
inline constexpr int kBmpPanelDraw = 343;
// The file list's folders
inline constexpr int kBmpFolder = 413;
inline constexpr int kBmpFolderLit = 415;
// The effect list: a strip of all normal pictures, and one picture an effect in each form, in the order of
// the effects
inline constexpr int kBmpEffectStrip = 196;
inline constexpr int kBmpEffectSelected = 198;
inline constexpr int kBmpEffectNormal = 229;
// The list of text effects: one picture an effect in each form, in the order of their numbers
inline constexpr int kBmpTextEffectNormal = 265;
inline constexpr int kBmpTextEffectSelected = 269;
// The frame list: a strip of all its pictures, and each by itself; the first stands for no frame
inline constexpr int kBmpFrameStrip = 165;
inline constexpr int kBmpFrameCell = 700;
// The slider
inline constexpr int kBmpSliderChannel = 606;
inline constexpr int kBmpSliderThumb = 610;
// The airbrush's three clouds, and the same when selected
inline constexpr int kBmpSpraySmall = 168;
inline constexpr int kBmpSprayMiddle = 169;
inline constexpr int kBmpSprayLarge = 175;
inline constexpr int kBmpSpraySmallLit = 177;
inline constexpr int kBmpSprayMiddleLit = 176;
inline constexpr int kBmpSprayLargeLit = 174;
// The two pages of the size dialog
inline constexpr int kBmpSizeOwn = 497;
inline constexpr int kBmpSizePhone = 498;
// The ground of the print preview
inline constexpr int kBmpPrint = 301;
// The phone's dialogs: their grounds; what runs while they wait, one picture a step of 386 by 182 at
// kLinkFrameAt; the strips of 369 by 26 below that, at kLinkStripAt
inline constexpr int kBmpLink = 637;
inline constexpr int kBmpTransfer = 550;
inline constexpr int kBmpPhoneFiles = 546;
inline constexpr int kBmpPhoneSize = 544;
inline constexpr int kBmpPortSelect = 565;
inline constexpr int kBmpConnectFrame = 619;
inline constexpr int kConnectFrames = 17;
inline constexpr int kBmpTakeFrame = 647;
inline constexpr int kBmpSendFrame = 639;
inline constexpr int kTransferFrames = 8;
inline constexpr int kBmpStripConnect = 638;
inline constexpr int kBmpStripRestart = 658;
inline constexpr int kBmpStripTake = 602;
inline constexpr int kBmpStripTaken = 601;
inline constexpr int kBmpStripSend = 603;
inline constexpr int kBmpStripSent = 604;
inline constexpr CPoint kLinkFrameAt{7, 7};
inline constexpr CPoint kLinkStripAt{22, 240};
