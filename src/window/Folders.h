#pragma once

#include <string>

// The process's place in the file system and the program's own folder. Paths are whole, without a closing
// separator except for a root.
class CFolders {
  public:
    virtual ~CFolders() = default;
    // "\" or "/": what stands between the pieces of a path.
    virtual char Separator() const = 0;
    virtual std::string CurrentFolder() const = 0;
    // False if the folder cannot be entered; the current folder then stays.
    [[nodiscard]] virtual bool SetCurrentFolder(const std::string& strFolder) = 0;
    // The stored value of the install folder as it stands, quotes included; empty if there is none.
    virtual std::string InstallValue() const = 0;
    // The folder in that value: a value that begins with a double quote loses its first and last character.
    std::string InstallFolder() const;
};
