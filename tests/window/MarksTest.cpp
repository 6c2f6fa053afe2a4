#include "window/Marks.h"

#include <gtest/gtest.h>

#include "window/ControlSet.h"

// Radio buttons are one group up to the next group box; nothing else stands between groups.
TEST(Marks, AClickMovesTheMarkWithinItsGroupOnly) {
    using enum EControlKind;
    constexpr CControlTemplate kTemplate[] = {
        {1, Group, {}}, {11, Radio, {}}, {12, Radio, {}}, {13, BitmapLabel, {}}, {14, Radio, {}},
        {2, Group, {}}, {21, Check, {}}, {3, Group, {}},  {31, Radio, {}},       {32, Radio, {}},
    };
    CControlSet controls(kTemplate);
    const auto marked = [&] {
        std::vector<int> arrIds;
        for (const CControl& control : controls.All())
            if (control.bChecked) arrIds.push_back(control.nId);
        return arrIds;
    };
    struct {
        int nId;
        std::vector<int> arrMarked;
    } const kClicks[] = {{11, {11}},     {32, {11, 32}},     {14, {14, 32}},     {14, {14, 32}},
                         {31, {14, 31}}, {21, {14, 21, 31}}, {12, {12, 21, 31}}, {21, {12, 31}},
                         {13, {12, 31}}, {1, {12, 31}},      {99, {12, 31}}};
    for (const auto& [nId, arrMarked] : kClicks) {
        ClickMark(controls, nId);
        EXPECT_EQ(marked(), arrMarked) << nId;
    }
}
