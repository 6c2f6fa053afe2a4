#include "image/Ppm.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "image/AtomicFile.h"
#include "image/FileBytes.h"

namespace {

// The words of a head, one after the other.
class CPpmHead {
  public:
    explicit CPpmHead(std::string_view strFile) : m_strRest(strFile) {}

    // Up to the next blank; a comment goes to the end of its line.
    std::string_view Word() {
        SkipBlanks();
        const std::string_view strWord = m_strRest.substr(0, m_strRest.find_first_of(kBlanks));
        m_strRest.remove_prefix(strWord.size());
        return strWord;
    }
    std::optional<int> Number() {
        const std::string_view strWord = Word();
        int n = 0;
        const auto [pEnd, error] = std::from_chars(strWord.data(), strWord.data() + strWord.size(), n);
        if (error != std::errc() || pEnd != strWord.data() + strWord.size()) return std::nullopt;
        return n;
    }
    // What stands behind the one blank that ends the head.
    std::string_view Body() const { return m_strRest.empty() ? m_strRest : m_strRest.substr(1); }

  private:
    static constexpr std::string_view kBlanks = " \t\r\n\v\f";

    void SkipBlanks() {
        while (true) {
            m_strRest.remove_prefix(std::min(m_strRest.find_first_not_of(kBlanks), m_strRest.size()));
            if (!m_strRest.starts_with('#')) return;
            m_strRest.remove_prefix(std::min(m_strRest.find('\n'), m_strRest.size()));
        }
    }

    std::string_view m_strRest;
};

}  // namespace

CPpmPicture ReadPpm(const std::string& strPath) {
    const CSharedBytes bytes = ReadFileBytes(strPath);
    if (bytes.IsEmpty()) return {{}, "cannot be read"};
    CPpmHead head({reinterpret_cast<const char*>(bytes.Data()), bytes.Size()});
    if (head.Word() != "P6") return {{}, "is no binary PPM"};
    const std::optional<int> nWidth = head.Number();
    const std::optional<int> nHeight = head.Number();
    const std::optional<int> nHighest = head.Number();
    if (!nWidth || !nHeight || *nWidth <= 0 || *nHeight <= 0) return {{}, "has no width and height"};
    if (nHighest != 255) return {{}, "has another highest value than 255"};
    if (!CPixels::Fits(*nWidth, *nHeight)) return {{}, "is too large"};
    const std::string_view strBody = head.Body();
    const std::size_t nSize =
        std::size_t{3} * static_cast<std::size_t>(*nWidth) * static_cast<std::size_t>(*nHeight);
    if (strBody.size() < nSize) return {{}, "ends before its last pixel"};
    CPpmPicture picture;
    if (!picture.pixels.CreateRaw(*nWidth, *nHeight)) return {{}, "is too large"};
    std::copy_n(strBody.begin(), nSize, picture.pixels.MutableBytes().begin());
    return picture;
}

bool WritePpm(const std::string& strPath, const CPixels& pixels) {
    const std::string strHeader =
        "P6\n" + std::to_string(pixels.Width()) + " " + std::to_string(pixels.Height()) + "\n255\n";
    const std::vector<std::uint8_t> arrHeader(strHeader.begin(), strHeader.end());
    CAtomicFile file;
    return file.Open(strPath) && file.Write(arrHeader) && file.Write(pixels.Bytes()) && file.Commit();
}
