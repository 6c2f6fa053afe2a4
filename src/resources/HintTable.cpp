#include "resources/HintTable.h"

#include "resources/Ids.h"

namespace {

// clang-format off
constexpr CHint kHints[] = {
    {kCmdOpen, 336, 48, kTopHintRow, true},
    {kCmdNew, 335, 93, kTopHintRow, true},
    {kCmdSave, 447, 122, kTopHintRow, true},
    {kCmdPrint, 338, 159, kTopHintRow, true},
    {kCmdUndo, 329, 211, kTopHintRow, true},
    {kCmdRedo, 339, 248, kTopHintRow, true},
    {kCmdReset, 340, 285, kTopHintRow, true},
    {kCmdCut, 332, 333, kTopHintRow, true},
    {kCmdCopy, 330, 370, kTopHintRow, true},
    {kCmdPaste, 407, 407, kTopHintRow, true},
    {kCmdCrop, 331, 444, kTopHintRow, true},
    {kCmdSize, 394, 492, kTopHintRow, true},
    {kCmdFlipVertical, 449, 552, kTopHintRow, true},
    {kCmdFlipHorizontal, 452, 589, kTopHintRow, true},
    {kCmdTurnLeft, 341, 637, kTopHintRow, true},
    {kCmdTurnRight, 446, 674, kTopHintRow, true},
    {kCmdLarge, 450, 722, kTopHintRow, true},
    {kCmdActual, 328, 759, kTopHintRow, true},
    {kCmdSmall, 451, 796, kTopHintRow, true},
    {kCmdConnect, 448, 853, kTopHintRow, true},
    {kCmdSend, 444, 902, kTopHintRow, true},
    {kCmdTake, 333, 911, kTopHintRow, false},
    {kTabThum, 322, 36, kTabHintRow, false},
    {kTabEffect, 314, 94, kTabHintRow, false},
    {kTabStick, 327, 153, kTabHintRow, false},
    {kTabFont, 317, 210, kTabHintRow, false},
    {kTabDraw, 326, 268, kTabHintRow, false},
};
// clang-format on

}  // namespace

const CHint* FindHint(int nControl) {
    for (const CHint& hint : kHints)
        if (hint.nControl == nControl) return &hint;
    return nullptr;
}
