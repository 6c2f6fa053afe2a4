#pragma once

// What happens in and around an edit that keys and panels depend on. Whoever lets it happen tells it and
// enables or shows nothing; what an event means for a control stands in one table, in app.
enum class EEditEvent {
    // History. A step that is taken back leaves its key alone unless it was the last one.
    UndoPushed,
    UndoEmptied,
    RedoPushed,
    RedoEmptied,
    // EFFECT
    PreviewBegun,       // an effect without a level waits for CONFIRM
    LevelPreviewBegun,  // one with a level
    LevelMoved,
    PreviewEnded,    // by CONFIRM or CANCEL
    PreviewDropped,  // by leaving the mode
    // DRAW
    SelectionMade,
    SelectionGone,
    ClipFilled,  // something was copied or cut
    Cropped,
    // THUM
    FolderShown,  // the file list shows a folder
    FileShown,    // and the info lines a file of it
    FillBegun,    // the list's pictures are being made
    FillEnded,
    // The phone
    PhoneFound,  // a connect has succeeded
    PhoneReady,  // it can be used again: its picture has run to the end, or it has restarted
    PhoneLost,
    TakeLineFailed,  // the line did not open for a take
    SendLineFailed,  // for a send
};

class CEditEvents {
  public:
    virtual ~CEditEvents() = default;
    virtual void Tell(EEditEvent event) = 0;
};
