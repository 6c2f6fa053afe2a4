// Libraries that a variable names another file for.

#include <dlfcn.h>
#include <gnu/libc-version.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <filesystem>

#include "window/LibraryFolders.h"

TEST(LibraryFiles, AFileThatIsNamedCountsAloneWhereverItLies) {
    constexpr std::array kVariables = {CLibraryVariable{"Phone.dll", "FOTARIUM_TEST_LIBRARY"}};
    setenv("FOTARIUM_TEST_LIBRARY", "", 1);
    EXPECT_TRUE(FilesOfLibraries(kVariables).empty());
    setenv("FOTARIUM_TEST_LIBRARY", "near/phone.so", 1);
    const CLibraryFiles mapNear = {
        {"Phone.dll", (std::filesystem::current_path() / "near/phone.so").string()}};
    EXPECT_EQ(FilesOfLibraries(kVariables), mapNear) << "the process moves from folder to folder";

    // The C library is one that every machine has.
    Dl_info info{};
    ASSERT_NE(dladdr(reinterpret_cast<void*>(&gnu_get_libc_version), &info), 0);
    const std::filesystem::path pathReal = info.dli_fname;
    setenv("FOTARIUM_TEST_LIBRARY", pathReal.c_str(), 1);
    CLibraryFolders libraries({}, FilesOfLibraries(kVariables));
    const std::unique_ptr<CLibrary> library = libraries.Load("Phone.dll");
    ASSERT_NE(library, nullptr);
    EXPECT_NE(library->Find("gnu_get_libc_version"), nullptr);
    EXPECT_EQ(libraries.Load("Other.dll"), nullptr);
    // One that is not there is none, whatever the folders have.
    const std::string strFolder = pathReal.parent_path().string(), strName = pathReal.filename().string();
    EXPECT_NE(CLibraryFolders({strFolder}).Load(strName), nullptr);
    EXPECT_EQ(CLibraryFolders({strFolder}, {{strName, "/none.so"}}).Load(strName), nullptr);
    unsetenv("FOTARIUM_TEST_LIBRARY");
}
