#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "image/Color.h"
#include "image/Geometry.h"
#include "window/GridLayout.h"

// What the user can operate or read in a dialog, as plain data. The window layer turns each of these into a
// widget; the logic reads and writes the data and never sees the widget.

enum class EControlKind {
    Button,        // plain push button with a caption
    BitmapButton,  // push button made of the pictures <CAPTION>U, D, F, X
    BitmapLabel,   // picture that can be clicked; the caption is the picture's name
    Radio,
    Check,
    Static,       // line of text
    Group,        // frame that the panel's picture draws; exists in name
    Place,        // spot that the dialog itself draws on
    Edit,         // one line of text to type
    Combo,        // drop-down list of texts
    TextList,     // list box whose rows are texts
    PictureList,  // list box whose rows are pictures
    PictureGrid,  // pictures that stand where its look says; tells each click
    IconList,     // list of pictures with names below
    CheckTable,   // rows of texts in columns, each with a box to tick; see CCheckTableModel
    Tree,
    Slider,
    Progress,
    View,  // scrolling view, see CScrollView
};

// One pixel around a control, inside its place. ByKind: edits and combos have one, the rest has none.
enum class EBorder { ByKind, None, Sunken };

// A column of a CheckTable: its title, and its width in pixels. Texts stand in the middle of it.
struct CTableColumn {
    const char* szTitle;
    int nWidth;
};

// What a control is called where it shows no text, and how it looks where its kind leaves that open.
struct CControlLook {
    const char* szSpoken = "";
    std::optional<CColor> colorText{};    // of a line of text
    std::optional<CColor> colorGround{};  // below the text; none lets the dialog's ground through
    EBorder border = EBorder::ByKind;
    std::optional<CGridLayout> grid{};           // of a PictureGrid, and only there
    std::span<const CTableColumn> arrColumns{};  // of a CheckTable, and only there
};

// Row of a list; which fields count depends on the kind.
struct CListItem {
    std::string strText;
    int nImage = -1;
    std::string strSpoken{};  // what a picture shows, for whoever has it read aloud
    bool operator==(const CListItem&) const = default;
};

// One control. Place in client pixels of its dialog.
struct CControl {
    int nId = 0;
    EControlKind kind = EControlKind::Static;
    CRect rcPlace;
    std::string strCaption;  // as the template has it; never changes
    std::string strText;     // what the control shows or holds now
    bool bShown = true;
    bool bEnabled = true;
    bool bChecked = false;
    int nMaxText = 0;  // most characters that can be typed; 0 for no limit
    int nMin = 0;      // range of sliders and progress bars; how far a PictureGrid has scrolled and can
    int nMax = 100;
    int nPos = 0;
    int nSel = -1;  // selected row, of a CheckTable the current one; -1 for none
    std::vector<CListItem> arrItems;
    CControlLook look;  // never changes
};

inline bool HasBorder(const CControl& control) {
    const bool bOfKind = control.kind == EControlKind::Edit || control.kind == EControlKind::Combo;
    return control.look.border == EBorder::Sunken || (control.look.border == EBorder::ByKind && bOfKind);
}

// What of a control has changed.
enum class EControlChange { Shown, Enabled, Checked, Text, Place, Range, Position, Selection, Items, Focus };
