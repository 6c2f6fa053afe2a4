#pragma once

// Flips, quarter turns, the size dialog and the zoom commands.
class CGeometryCommands {
  public:
    void OnSize() {}
    void OnFlipVertical() {}
    void OnFlipHorizontal() {}
    void OnTurnLeft() {}
    void OnTurnRight() {}
    void OnLarge() {}
    void OnActual() {}
    void OnSmall() {}
};
