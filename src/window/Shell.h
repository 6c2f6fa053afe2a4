#pragma once

#include <string>
#include <vector>

// What the system's shell does with files.
class CShell {
  public:
    virtual ~CShell() = default;
    // Moves the files and folders to the recycle bin, or, without bToBin, deletes them for good. bAsk: the
    // system asks its own question first. What is refused stays where it is; the system reports it itself.
    // False if anything stays.
    [[nodiscard]] virtual bool Delete(const std::vector<std::string>& arrPaths, bool bToBin, bool bAsk) = 0;
    // Opens the file in the program that the system has for it, a folder in the file manager.
    virtual void Open(const std::string& strPath) = 0;
};
