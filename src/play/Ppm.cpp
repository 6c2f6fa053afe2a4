#include "play/Ppm.h"

#include <cstdint>
#include <vector>

#include "image/AtomicFile.h"

bool WritePpm(const std::string& strPath, const CPixels& pixels) {
    const std::string strHeader =
        "P6\n" + std::to_string(pixels.Width()) + " " + std::to_string(pixels.Height()) + "\n255\n";
    const std::vector<std::uint8_t> arrHeader(strHeader.begin(), strHeader.end());
    CAtomicFile file;
    return file.Open(strPath) && file.Write(arrHeader) && file.Write(pixels.Bytes()) && file.Commit();
}
