#pragma once

#include <cstdint>
#include <span>
#include <string>

// The file in which a picture waits for the phone library, under a name of its own in a folder; in the user's
// temporary folder where that one cannot be written. A file of that name is ours, from a send that did not
// get through, and is written over; a link is replaced and never followed.
class CSendTemporary {
  public:
    static constexpr char kName[] = "__TemporyOriginalSaveFile__xx_.jpg";

    CSendTemporary(std::string strFolder, char cSeparator)
        : m_strFolder(std::move(strFolder)), m_cSeparator(cSeparator) {}

    // False if neither folder takes it.
    [[nodiscard]] bool Write(std::span<const std::uint8_t> bytes);
    // Where it was written.
    const std::string& Path() const { return m_strPath; }
    void Remove();

  private:
    [[nodiscard]] bool WriteTo(const std::string& strFolder, std::span<const std::uint8_t> bytes);

    std::string m_strFolder;
    char m_cSeparator;
    std::string m_strPath;
};
