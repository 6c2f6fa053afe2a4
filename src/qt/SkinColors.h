#pragma once

#include <QColor>

#include "resources/Grounds.h"

constexpr QColor ToQt(CColor color) {
    return {color.r, color.g, color.b};
}

// The colours that widgets share with the skin.
namespace SkinColors {

inline constexpr QColor kLit(235, 235, 235);                 // text on the skin
inline constexpr QColor kLevel = ToQt(Grounds::kLevel);      // ground of progress
inline constexpr QColor kListGround = ToQt(Grounds::kList);  // ground of the lists
inline constexpr QColor kListRim(74, 84, 88);                // darker than every ground: the rim of an inset
inline constexpr QColor kFace(214, 220, 214);                // ground of plain dialogs
inline constexpr QColor kPaper(245, 247, 244);               // ground of what can be typed in
inline constexpr QColor kInk(34, 42, 40);                    // text on paper
inline constexpr QColor kPaleInk(134, 143, 138);             // the same, disabled
inline constexpr QColor kWarm(232, 143, 54);                 // marks and the rim of the focus

}  // namespace SkinColors

// Style sheet of scroll bars on the skin, 16 pixels wide.
inline constexpr char kScrollBarStyle[] = R"(
QScrollBar { background: #5f6b70; border: none; }
QScrollBar:vertical { width: 16px; }
QScrollBar:horizontal { height: 16px; }
QScrollBar::handle { background: #aab5ac; border: 1px solid #4a5458; border-radius: 3px; }
QScrollBar::handle:vertical { min-height: 24px; margin: 1px 2px; }
QScrollBar::handle:horizontal { min-width: 24px; margin: 2px 1px; }
QScrollBar::handle:hover { background: #bec8bf; }
QScrollBar::handle:pressed { background: #e88f36; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
)";
