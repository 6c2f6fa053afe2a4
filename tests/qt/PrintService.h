#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <QLibrary>
#include <QPrinterInfo>
#include <QProcess>
#include <QTest>
#include <csignal>
#include <filesystem>
#include <string>

#include "support/TempFolder.h"

// Makes that print service the program's, by the path of its socket; one that is not there has no printers.
inline void UsePrintService(const std::string& strSocket) {
    const auto fnSet = reinterpret_cast<void (*)(const char*)>(QLibrary::resolve("cups", 2, "cupsSetServer"));
    ASSERT_NE(fnSet, nullptr);
    fnSet(strSocket.c_str());
}

// A print service of the test's own with the queue "Card", that prints at 300 dots an inch, and another that
// is not the default one. What is printed lands in a file. The service hears on a socket in its folder, and
// ends with the test.
class CPrintService {
  public:
    explicit CPrintService(std::string strPaper = "A6", int nOrientation = 4)
        : m_strPaper(std::move(strPaper)), m_nOrientation(nOrientation) {
        Start();
    }
    ~CPrintService() {
        Stop();
        UsePrintService("/nowhere");
    }
    CPrintService(const CPrintService&) = delete;
    CPrintService& operator=(const CPrintService&) = delete;

    // From its next start on, what it says of new jobs.
    void StartAnew(bool bAccepting) {
        Stop();
        std::filesystem::remove(m_folder.Path("socket"));
        WriteQueue(bAccepting);
        Run();
    }
    // How many copies the job that has arrived is to have.
    std::string Copies() const { return ReadBytes(m_folder.Path("copies")); }

    void Stop() {
        m_process.terminate();
        if (!m_process.waitForFinished(3000)) m_process.kill();
        m_process.waitForFinished(3000);
    }
    // The page that has arrived; empty if none does for a while.
    std::string WaitForJob() const {
        const bool bCame = QTest::qWaitFor([&] { return std::filesystem::exists(JobPath()); }, 5000);
        return bCame ? JobPath() : std::string();
    }
    // Jobs that the queue has taken, printed or not.
    int Jobs() const {
        int nJobs = 0;
        for (const auto& entry : std::filesystem::directory_iterator(m_folder.Path("spool")))
            nJobs += entry.path().filename().string().starts_with("d0");
        return nJobs;
    }

  private:
    std::string JobPath() const { return m_folder.Path("job.pdf"); }
    void Start();
    void WriteSettings() const;
    void WriteQueue(bool bAccepting) const;
    void Run();

    std::string m_strPaper;
    int m_nOrientation;  // 3 upright, 4 landscape
    CTempFolder m_folder;
    QProcess m_process;
};

inline void CPrintService::WriteSettings() const {
    const std::string strRoot = m_folder.Path();
    for (const char* szFolder :
         {"ppd", "spool/tmp", "cache", "state", "bin/backend", "bin/filter", "bin/daemon", "mime"})
        std::filesystem::create_directories(m_folder.Path(szFolder));
    std::filesystem::create_symlink("/usr/lib/cups/daemon/cups-exec", m_folder.Path("bin/daemon/cups-exec"));
    m_folder.Write("cupsd.conf",
                   "Listen " + m_folder.Path("socket") +
                       "\nBrowsing Off\nDefaultAuthType None\nWebInterface No\nPreserveJobFiles Yes\n"
                       "<Location />\nOrder deny,allow\n</Location>\n"
                       "<Policy default>\n<Limit All>\nOrder deny,allow\n</Limit>\n</Policy>\n");
    std::string strFiles =
        "ServerRoot " + strRoot + "\nDataDir " + strRoot + "\nServerBin " + strRoot + "/bin\n";
    strFiles += "CacheDir " + strRoot + "/cache\nStateDir " + strRoot + "/state\n";
    strFiles += "RequestRoot " + strRoot + "/spool\nTempDir " + strRoot + "/spool/tmp\n";
    strFiles +=
        "AccessLog " + strRoot + "/access\nErrorLog " + strRoot + "/errors\nPageLog " + strRoot + "/pages\n";
    m_folder.Write("cups-files.conf", strFiles);
    m_folder.Write("mime/pdf.types", "application/pdf pdf string(0,%PDF)\n");
    m_folder.Write("mime/pdf.convs", "");
}

inline void CPrintService::WriteQueue(bool bAccepting) const {
    m_folder.Write("printers.conf",
                   "<DefaultPrinter Card>\nInfo Card\nDeviceURI keep:/\nState Idle\nShared No\nAccepting " +
                       std::string(bAccepting ? "Yes" : "No") + "\nOption orientation-requested " +
                       std::to_string(m_nOrientation) +
                       "\n</DefaultPrinter>\n<Printer Album>\nInfo Album\nDeviceURI keep:/\nState Idle\n"
                       "Shared No\nAccepting Yes\n</Printer>\n");
    // What prints is a script that keeps the document; services run none that others may write.
    const std::string strKeep = m_folder.Write(
        "bin/backend/keep", "#!/bin/sh\n[ $# = 0 ] && exit 0\nprintf %s \"$4\" > " + m_folder.Path("copies") +
                                "\ncat \"${6:--}\" > " + m_folder.Path("new") + " && mv " +
                                m_folder.Path("new") + " " + JobPath() + "\n");
    std::filesystem::permissions(strKeep, std::filesystem::perms::owner_all);
    std::string strPpd =
        "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n*LanguageVersion: English\n"
        "*LanguageEncoding: ISOLatin1\n*PCFileName: \"CARD.PPD\"\n*Manufacturer: \"Test\"\n*Product: "
        "\"(Card)\"\n"
        "*ModelName: \"Card\"\n*ShortNickName: \"Card\"\n*NickName: \"Card\"\n*PSVersion: \"(3010) 0\"\n"
        "*cupsFilter2: \"application/pdf application/pdf 0 -\"\n";
    for (const char* szKey : {"PageSize", "PageRegion"})
        strPpd += QString(
                      "*OpenUI *%1/Size: PickOne\n*Default%1: %2\n*%1 A4/A4: \"\"\n*%1 A6/A6: \"\"\n"
                      "*%1 Photo/Photo: \"\"\n*CloseUI: *%1\n")
                      .arg(szKey, QString::fromStdString(m_strPaper))
                      .toStdString();
    strPpd +=
        "*DefaultImageableArea: " + m_strPaper +
        "\n*ImageableArea A4/A4: \"12 12 583 830\"\n*ImageableArea A6/A6: \"12 12 "
        "286 408\"\n"
        "*ImageableArea Photo/Photo: \"12 12 276 420\"\n*DefaultPaperDimension: " +
        m_strPaper +
        "\n"
        "*PaperDimension A4/A4: \"595 842\"\n*PaperDimension A6/A6: \"298 420\"\n"
        "*PaperDimension Photo/Photo: \"288 432\"\n"
        "*OpenUI *Resolution/Resolution: PickOne\n*DefaultResolution: 300dpi\n*Resolution 300dpi/Good: \"\"\n"
        "*Resolution 1200dpi/Best: \"\"\n*CloseUI: *Resolution\n";
    m_folder.Write("ppd/Card.ppd", strPpd);
}

inline void CPrintService::Start() {
    WriteSettings();
    WriteQueue(true);
    Run();
}

inline void CPrintService::Run() {
    m_process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.start("/usr/sbin/cupsd", {"-f", "-c", QString::fromStdString(m_folder.Path("cupsd.conf")), "-s",
                                        QString::fromStdString(m_folder.Path("cups-files.conf"))});
    ASSERT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(m_folder.Path("socket")); }, 5000))
        << m_process.readAll().toStdString() << ReadBytes(m_folder.Path("errors"));
    UsePrintService(m_folder.Path("socket"));
    ASSERT_TRUE(QTest::qWaitFor([] { return !QPrinterInfo::defaultPrinter().isNull(); }, 5000))
        << ReadBytes(m_folder.Path("errors"));
}
