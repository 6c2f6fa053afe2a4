// What the verbs give the machine, as the program finds it.

#include "play/ScriptTest.h"
#include "play/Verbs.h"
#include "window/FolderPhone.h"
#include "window/Folders.h"

namespace {

class MachineTest : public ScriptTest {
  protected:
    MachineTest() {
        SetPhoneFolder("before");
        m_platform.emplace();
    }
    ~MachineTest() override { SetPhoneFolder({}); }
    // Why the first of the lines that cannot be done cannot.
    std::string Do(const std::string& strLines) {
        std::istringstream lines(strLines);
        for (std::string strLine; std::getline(lines, strLine);) {
            CWords arrWords;
            EXPECT_TRUE(SplitWords(strLine, arrWords));
            const CVerb* pVerb = FindVerb(arrWords.at(0));
            arrWords.erase(arrWords.begin());
            CMachine machine{*m_platform, m_out, std::filesystem::current_path()};
            if (std::string strWhy = pVerb->pSetUp(machine, arrWords); !strWhy.empty()) return strWhy;
        }
        return {};
    }
    std::string List() {
        std::string strList;
        for (const CPortInfo& info : m_platform->Get().ports.List().value_or(std::vector<CPortInfo>{}))
            strList += info.m_strPortName + info.m_strFriendlyName + ";";
        return strList;
    }
    EPortProbe Probe(const char* szName) { return m_platform->Get().ports.Probe(szName); }

    std::ostringstream m_out;
    std::optional<CScriptedPlatform> m_platform;
};

}  // namespace

TEST_F(MachineTest, PortsAndTheModem) {
    EXPECT_EQ(Do("port \"Communications Port (COM1)\" busy\nport \"USB COM Port (COM12)\" free\n"
                 "port \"Printer Port (LPT1)\" free\nport \"Communications Port (COM1)\" absent"),
              "");
    EXPECT_EQ(List(), "Communications Port (COM1);USB COM Port (COM12);Printer Port (LPT1);");
    EXPECT_EQ(Probe("COM1"), EPortProbe::Absent);
    EXPECT_EQ(Probe(R"(\\.\COM12)"), EPortProbe::Free);
    for (const char* szName : {"COM2", "", R"(\\.\)", "LPT1", R"(\\.\COM Port (COM12)"})
        EXPECT_EQ(Probe(szName), EPortProbe::Absent) << szName;
    EXPECT_EQ(Do("port \"USB COM Port (COM12)\" busy\nport \"Printer Port (LPT1)\" gone\nmodemport COM5"),
              "");
    EXPECT_EQ(Probe("COM12"), EPortProbe::Busy);
    EXPECT_EQ(List(), "Communications Port (COM1);USB COM Port (COM12);");
    EXPECT_EQ(m_platform->Get().ports.ModemEntry(), "COM5");
    EXPECT_EQ(Do("modemport none\nport COM5 gone"), "there is no port \"COM5\"");
    EXPECT_EQ(m_platform->Get().ports.ModemEntry(), std::nullopt);
    EXPECT_EQ(Do("port COM5 shut"), "\"shut\" is no state of a port");
}

TEST_F(MachineTest, PrinterAndDay) {
    CPrinters& printers = m_platform->Get().printers;
    EXPECT_EQ(printers.DefaultMode(), CDeviceMode{});
    EXPECT_EQ(Do("printer A 256 landscape 600 printable 7 8 size 1000 1500\ntoday 2026 12 31"), "");
    EXPECT_EQ(printers.DefaultMode(), (CDeviceMode{256, {1000, 1500}, EOrientation::Landscape}));
    EXPECT_EQ(m_platform->Get().clock.Today(), (CDate{2026, 12, 31}));
    m_platform->Printers().AnswerDialog(true);
    const auto device = printers.RunDialog();
    ASSERT_NE(device, nullptr);
    EXPECT_EQ(device->DotsPerInch(), (CSize{600, 600}));
    EXPECT_EQ(device->PrintableDots(), (CSize{7, 8}));
    // All of the paper, turned
    EXPECT_EQ(CScriptedPrinters::DotsOf({256, {1000, 1500}, EOrientation::Landscape}, 600),
              (CSize{3543, 2362}));
    EXPECT_EQ(Do("printer none"), "");
    EXPECT_EQ(printers.DefaultMode(), std::nullopt);
    for (const auto& [szLine, szWhy] :
         {std::pair{"printer A", "\"A\" is no state of a printer"},
          {"printer A 9 portrait", "it is printer NAME PAPER portrait|landscape DPI"},
          {"printer A -1 portrait 300", "\"-1\" is no paper"},
          {"printer A 9 upright 300", "\"upright\" is no orientation"},
          {"printer A 9 portrait 0", "\"0\" is no resolution"},
          {"printer A 9 portrait 300 size 1", "\"size\" is no size of a paper or of what is printable"},
          {"today 2026 13 1", "there is no such day"}})
        EXPECT_EQ(Do(szLine), szWhy);
}

TEST_F(MachineTest, InstallFolderLibraryAndFolderPhone) {
    EXPECT_EQ(Do("install new/program"), "");
    EXPECT_EQ(m_platform->Get().folders.InstallValue(), m_folder.Path("new/program"));
    std::filesystem::copy_file(FOTARIUM_PLAY_LIBRARY, "OrvoLinkMgr.dll");
    std::filesystem::create_directory("phone");
    const auto fnLoads = [&] { return m_platform->Get().libraries.Load("OrvoLinkMgr.dll") != nullptr; };
    EXPECT_EQ(Do("libraries .\nlibrary none"), "");
    EXPECT_FALSE(fnLoads());
    EXPECT_EQ(Do("phone phone"), "");
    EXPECT_TRUE(fnLoads()) << "it comes with its own";
    EXPECT_EQ(Do("libraries none\nlibrary " FOTARIUM_PLAY_LIBRARY), "");
    EXPECT_TRUE(fnLoads());

    EXPECT_EQ(List(), "OrvoE CDMA USB Serial Port (COM200);");
    EXPECT_EQ(Probe(R"(\\.\COM200)"), EPortProbe::Free);
    EXPECT_EQ(std::getenv(kPhoneFolderVariable), m_folder.Path("phone"));
    m_platform.reset();
    EXPECT_STREQ(std::getenv(kPhoneFolderVariable), "before");
}
