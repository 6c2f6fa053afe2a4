#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "app/MainDlg.h"
#include "browse/FolderTree.h"
#include "engines/linkset/PhoneLibrary.h"
#include "play/PlayHost.h"
#include "play/ScriptedPlatform.h"
#include "resources/Ids.h"
#include "support/Photographs.h"

// A folder for one measurement below BenchFolder(), empty at first and gone at the end. Its parts: the phone
// with its inner memory, and the folder that the program's list shows.
class CPhoneFolder {
  public:
    CPhoneFolder() {
        std::filesystem::remove_all(m_folder);
        for (const std::filesystem::path& path : {Inner(), List(), Install()})
            std::filesystem::create_directories(path);
        std::ofstream(m_folder / "phone/phone.txt")
            << "identity 77\nkind 6\nmemory 4000000000\nsizes 4000x3000 176x144\nthumbnail 176x144\n";
    }
    CPhoneFolder(const CPhoneFolder&) = delete;
    CPhoneFolder& operator=(const CPhoneFolder&) = delete;
    ~CPhoneFolder() { std::filesystem::remove_all(m_folder); }

    const std::filesystem::path& Path() const { return m_folder; }
    std::filesystem::path Inner() const { return m_folder / "phone/inner"; }
    std::filesystem::path Install() const { return m_folder / "install"; }
    std::filesystem::path List() const { return m_folder / "drive" / CFolderTree::kStartFolder; }

  private:
    std::filesystem::path m_folder = BenchFolder() / "fotarium-bench-phone";
};

// The main window with its list on that folder and filled, and connected to the phone.
class CPhoneProgram {
  public:
    explicit CPhoneProgram(const CPhoneFolder& folder)
        : m_dialog(m_platform.Get()), m_host(m_platform, m_dialog) {
        m_platform.SetInstallValue(folder.Install().string());
        m_platform.AddDrive('C', (folder.Path() / "drive").string());
        m_platform.Libraries().SetFile(PHONE_LIBRARY_NAME, FOTARIUM_PHONE_LIBRARY);
        m_platform.Ports().PlugFolderPhone((folder.Path() / "phone").string());
        m_host.Init();
        while (m_dialog.Thum().List().IsFilling()) m_platform.Tick(1);
        Command(kCmdConnect);
        if (!m_dialog.Link().IsConnected()) std::abort();
    }
    void Command(int nId) { Expect(m_host.Click(nId)); }
    void ClickFile(const std::string& strName, unsigned nKeys = 0) {
        Expect(m_host.ClickIcon(kFileList, m_host.FindIcon(kFileList, strName), nKeys));
    }
    CScriptedPlatform& Platform() { return m_platform; }

  private:
    static void Expect(const std::string& strWhyNot) {
        if (!strWhyNot.empty()) std::abort();
    }

    CScriptedPlatform m_platform;
    CMainDlg m_dialog;
    CPlayHost m_host;
};
