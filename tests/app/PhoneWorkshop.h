#pragma once

#include "app/FakePhone.h"
#include "app/Workshop.h"
#include "resources/PhoneTexts.h"

// The main window with a phone on a port of its own that is found without asking, and with a few photographs
// in the file list.
class PhoneWorkshop : public Workshop {
  protected:
    PhoneWorkshop() {
        CFakePhone::Now() = {};
        CFakePhone::PlugIn(m_platform.Libraries());
        m_platform.Ports().SetPort("OrvoE CDMA USB Serial Port (COM7)", EPortProbe::Free);
        std::filesystem::create_directories(m_folder.Path("install"));
        std::filesystem::create_directories(Start("inside"));
        m_platform.SetInstallValue(m_folder.Path("install"));
        for (const auto& [szName, size] : {std::pair{"a.jpg", CSize{640, 480}}, {"b.jpg", {100, 80}}})
            EXPECT_TRUE(NumberedImage(size.cx, size.cy).Save(Start(szName), ImageType::kJpeg));
        m_platform.AddDrive('C', m_folder.Path("start"));
        m_dialog.Thum().Build();
        m_dialog.Thum().ShowCurrentFolder();
    }

    static CFakePhone& Phone() { return CFakePhone::Now(); }
    const CPhoneState& Facts() const { return m_dialog.Link().State(); }
    std::string Start(const std::string& strName) const {
        return m_folder.Path(std::string("start/") + CFolderTree::kStartFolder + "/" + strName);
    }
    // The calls since the last time: their names, one a letter word.
    std::string Calls() {
        std::string strNames;
        for (const std::string& strCall : m_platform.Libraries().PhoneTrace().Take())
            strNames += strCall.substr(0, strCall.find(' ')) + " ";
        return strNames;
    }
    // The texts of the boxes since the last time, parted by bars.
    std::string Boxes() {
        std::string strTexts;
        for (const CMessageBox& box : m_platform.TakeBoxes()) strTexts += box.strText + "|";
        m_platform.TakeProblems();
        return strTexts;
    }
    // Connect, take and send: 'x' for a key that is on.
    std::string Keys() {
        std::string strKeys;
        for (const int nId : {kCmdConnect, kCmdTake, kCmdSend})
            strKeys += Controls().IsEnabled(nId) ? 'x' : '-';
        return strKeys;
    }
    // Whether the key is on or not; with what it has said and called forgotten.
    void Connect() {
        m_dialog.OnCommand(kCmdConnect);
        Boxes();
        Calls();
    }
    void AnswerFiles(std::vector<std::string> arrSteps) {
        CAnswer answer;
        answer.question = EQuestion::PhoneFiles;
        answer.arrSteps = std::move(arrSteps);
        m_platform.Answer(std::move(answer));
    }
    void ClickFile(const std::string& strName, unsigned nKeys = 0) {
        EXPECT_EQ(m_host.ClickIcon(kFileList, m_host.FindIcon(kFileList, strName), nKeys), "");
    }
};
