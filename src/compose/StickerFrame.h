#pragma once

#include "image/Image.h"
#include "window/Libraries.h"

// What has become of a frame that was to be laid over a picture.
enum class EComposed {
    Done,
    NoFrame,   // the library of frames is not there, or does not have it
    NoMemory,  // neither case changes the picture
};

// The frames of the library StickerFrameData.dll, which is loaded for each of them and let go behind it:
// nothing of it stays in memory.
class CStickerFrame {
  public:
    static constexpr int kCount = 12;

    // The libraries outlive this object.
    explicit CStickerFrame(CLibraries& libraries) : m_libraries(libraries) {}
    // Lays frame 1 to kCount over the picture.
    [[nodiscard]] EComposed Compose(int nFrame, CxImage& image);

  private:
    CLibraries& m_libraries;
};
