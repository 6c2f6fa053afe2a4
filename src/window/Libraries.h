#pragma once

#include <memory>
#include <string>

// A library that is loaded at run time. It stays loaded as long as this object lives, and so does what its
// functions return.
class CLibrary {
  public:
    CLibrary() = default;
    virtual ~CLibrary() = default;
    CLibrary(const CLibrary&) = delete;
    CLibrary& operator=(const CLibrary&) = delete;
    // The function that the library gives out under that name; null if there is none.
    [[nodiscard]] virtual void* Find(const char* szFunction) = 0;
};

// The libraries that belong to the program, by the names of their files.
class CLibraries {
  public:
    virtual ~CLibraries() = default;
    // Null if there is no such file, or if it is no library.
    [[nodiscard]] virtual std::unique_ptr<CLibrary> Load(const std::string& strFileName) = 0;
};
