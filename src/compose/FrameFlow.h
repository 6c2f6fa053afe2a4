#pragma once

// STICK: the frames that are laid over the picture.
class CFrameFlow {
  public:
    void OnClickStickerList() {}
};
