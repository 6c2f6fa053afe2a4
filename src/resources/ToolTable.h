#pragma once

#include <array>

// The sixteen paint tools and their buttons, in the order of the tool numbers from 1 on.
inline constexpr std::array<int, 16> kToolButtons = {1168, 1169, 1170, 1182, 1178, 1181, 1177, 1180,
                                                     1183, 1179, 1171, 1174, 1173, 1172, 1176, 1175};

// The button of a tool; 0 for a number that is no tool.
constexpr int FindToolButton(int nTool) {
    return nTool >= 1 && nTool <= 16 ? kToolButtons[static_cast<std::size_t>(nTool - 1)] : 0;
}

// The tool of a button; 0 for a control that is no tool's button.
constexpr int FindTool(int nButton) {
    for (int nTool = 1; nTool <= 16; ++nTool)
        if (FindToolButton(nTool) == nButton) return nTool;
    return 0;
}
