#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

// A file in a phone's memory. Its name is the path below the memory's folder, with "/" between folders.
struct CPhoneFile {
    std::string m_strName;
    bool m_bOnCard = false;
    bool m_bClosed = false;   // its name stands in the file closed of the phone's folder
    std::uint32_t m_nId = 0;  // the same today and tomorrow: made of name and memory
    std::uint64_t m_nBytes = 0;
};

// The memories of a phone in a folder: its folders inner and card. Links in them are passed over and never
// followed, so nothing is read or written beyond them.
class CPhoneStore {
  public:
    // A phone takes no longer name than this, in bytes.
    static constexpr std::size_t kLongestName = 255;

    explicit CPhoneStore(std::string strFolder) : m_strFolder(std::move(strFolder)) {}

    // All files by their names, those in inner memory first. Nothing if a folder cannot be read; a memory
    // that has no folder is empty.
    std::optional<std::vector<CPhoneFile>> List(bool bCardIn) const;
    // Copies a file to a path of the computer, over what is there; all of it or nothing. Gives LINK_OK,
    // LINK_FILE_FAILED if there is no such file, LINK_TARGET_FAILED if it cannot be written there.
    int Take(const CPhoneFile& file, const std::string& strPath);
    // The bytes of a file on the computer; nothing if it is no file that can be read.
    static std::optional<std::uint64_t> BytesOf(const std::string& strPath);
    // Copies a file of the computer into inner memory under that name, all of it or nothing, and makes the
    // folders that the name goes through. False too for a name that leads elsewhere or nowhere.
    [[nodiscard]] bool Put(const std::string& strPath, const std::string& strName);

  private:
    // Calls write with piece after piece; false if reading fails or if write does.
    template <typename TWrite>
    bool EachPiece(int nFile, TWrite write);

    std::string m_strFolder;
    std::unique_ptr<std::uint8_t[]> m_pBuffer;
};
