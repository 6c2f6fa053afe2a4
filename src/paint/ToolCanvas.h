#pragma once

// What the tool controller asks of the canvas.
class CToolCanvas {
  public:
    virtual ~CToolCanvas() = default;
    // A shape of several clicks has been begun and not ended.
    virtual bool IsShapeOpen() const = 0;
    // Gives it up. Its rubber band stays until the next Revert.
    virtual void AbandonShape() = 0;
    // Wipes what is on the scratch store only (rubber band, outline of a selection) and shows the picture.
    virtual void Revert() = 0;
    // There is no selection any more; the outline stays until the next Revert.
    virtual void ForgetSelection() = 0;
    virtual bool IsFloating() const = 0;
    // Makes sure that the floating selection, if there is one, can be merged. False, behind a message, if
    // memory is short.
    [[nodiscard]] virtual bool PrepareDrop() = 0;
    // Merges it into the picture. The tool becomes the one to resume. Behind PrepareDrop, or with none.
    virtual void DropFloat() = 0;
    // Sets scroll sizes and place of the picture for a new zoom and repaints.
    virtual void ApplyZoom() = 0;
};
