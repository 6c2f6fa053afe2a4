#pragma once

// What happens in and around an edit that keys and panels depend on. Whoever lets it happen tells it and
// enables or shows nothing; what an event means for a control is decided in app.
enum class EEditEvent {
    FolderShown,  // the file list shows a folder
    FileShown,    // and the info lines a file of it
    FillBegun,    // the list's pictures are being made; told again with each, since the mode may change
                  // meanwhile
    FillEnded,
};

class CEditEvents {
  public:
    virtual ~CEditEvents() = default;
    virtual void Tell(EEditEvent event) = 0;
};
