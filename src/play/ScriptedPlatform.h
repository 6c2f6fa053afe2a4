#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "image/TextRasterizer.h"
#include "play/Answer.h"
#include "play/PlayHost.h"
#include "play/ScriptedLibraries.h"
#include "play/ScriptedPorts.h"
#include "play/ScriptedPrinters.h"
#include "play/VirtualTimers.h"
#include "window/Bitmaps.h"
#include "window/Clipboard.h"
#include "window/Drives.h"
#include "window/Folders.h"
#include "window/Platform.h"
#include "window/Shell.h"
#include "window/WaitCursor.h"

// What the program had the system do with files.
struct CShellAct {
    bool bOpen = false;  // opened; else deleted
    std::vector<std::string> arrPaths;
    bool bToBin = false;
    bool bAsked = false;
    bool bDone = false;  // nothing stayed
};

// A platform without a window: answers come from a queue, time passes when it is told to, and everything that
// was asked is kept to be looked at.
//
// An answer waits for the next question of its kind. A question for which none waits takes its default: a box
// Ok, Cancel or No (whichever it has, in that order of its button sets), every other dialog Cancel. That is
// kept as a problem too.
class CScriptedPlatform : private CMessageBoxes,
                          private CModalDialogs,
                          private CFileDialogs,
                          private CColorDialogs,
                          private CFontDialogs,
                          private CPopupMenus,
                          private CWaitCursor,
                          private CClipboard,
                          private CFolders,
                          private CTextRasterizer,
                          private CDrives,
                          private CShell,
                          private CBitmaps {
  public:
    CScriptedPlatform();
    // The process's current folder becomes again what it was.
    ~CScriptedPlatform() override;
    CScriptedPlatform(const CScriptedPlatform&) = delete;
    CScriptedPlatform& operator=(const CScriptedPlatform&) = delete;

    // For the program. Good as long as this object.
    CPlatform Get();

    // --- answers ---
    void Answer(CAnswer answer) { m_arrAnswers.push_back(std::move(answer)); }
    void Answer(EBoxAnswer answer);
    // Paths are whole or in the current folder of this moment.
    void AnswerOpen(const std::string& strPath);
    void AnswerSave(const std::string& strPath);
    void AnswerColor(CColor color);
    void AnswerFont(const std::string& strFace, bool bBold);
    // For the size dialog: typed with the ratio not kept.
    void AnswerSize(const std::string& strWidth, const std::string& strHeight);
    void AnswerSize(CSize size) { AnswerSize(std::to_string(size.cx), std::to_string(size.cy)); }
    // For the system's question before files are deleted.
    void AnswerDelete(bool bDelete);
    void AnswerMenu(int nId);
    // Leaves the next question of any kind but a box without a choice.
    void AnswerCancel();
    // Goes before all that wait.
    void AnswerNext(CAnswer answer) { m_arrAnswers.insert(m_arrAnswers.begin(), std::move(answer)); }
    // Those that nobody has asked for yet.
    const std::vector<CAnswer>& WaitingAnswers() const { return m_arrAnswers; }
    void ForgetAnswers() { m_arrAnswers.clear(); }

    // --- what has happened since the last call of the same ---
    std::vector<CMessageBox> TakeBoxes();
    const std::vector<CMessageBox>& Boxes() const { return m_arrBoxes; }
    std::vector<CAsked> TakeAsked();
    std::vector<CProblem> TakeProblems();
    std::vector<CShellAct> TakeShellActs();

    // --- time ---
    // Lets the time pass; the hosts paint behind every tick.
    void Tick(int nMilliseconds) { m_timers.Advance(nMilliseconds); }
    CVirtualTimers& Timers() { return m_timers; }

    // --- wait cursor ---
    int WaitDepth() const { return m_nWaitDepth; }
    int WaitCount() const { return m_nWaitCount; }  // how often it has come up from depth 0

    // --- dialogs of the program's own ---
    // Plays the user in the dialog of that number, which is up and painted. A dialog that has not ended when
    // the runner returns is closed. Dialogs without a runner, or with an empty one, are closed at once.
    using CRunner = std::function<void(CPlayHost&)>;
    void SetRunner(int nDialog, CRunner fnRun) { m_mapRunners[nDialog] = std::move(fnRun); }
    // For runners and topics: the answer that waits for such a question. Nothing if it is to be cancelled.
    std::optional<CAnswer> TakeAnswer(EQuestion question);

    // --- drives and files ---
    // The drives in the order of their letters; none at first.
    void SetDrives(std::vector<CDrive> arrDrives) { m_arrDrives = std::move(arrDrives); }
    // A drive whose top is that folder, named after its letter alone. Takes the place of one with that
    // letter.
    void AddDrive(char cLetter, const std::string& strFolder);
    void RemoveDrive(char cLetter);
    const std::vector<CDrive>& Drives() const { return m_arrDrives; }
    // A path as "D:/photos/sea.jpg", by the drive whose top lies next above; as it is if it is on no drive.
    std::string OnDrive(const std::string& strPath) const;
    // The folder that takes what goes to the recycle bin, on the same file system as what is thrown away.
    // With none at first, what goes to the bin is refused, which counts as a problem. What does not go there
    // is deleted for good.
    void SetBin(const std::string& strFolder) { m_strBin = strFolder; }
    // Refuses to delete anything, as with a folder that may not be written.
    void RefuseDeletes(bool bRefuse) { m_bRefuseDeletes = bRefuse; }

    // --- the rest ---
    // The pictures of all dialogs that the program runs; may be null.
    void SetBitmaps(CBitmaps* pBitmaps) { m_pBitmaps = pBitmaps; }
    CBitmaps* Bitmaps() { return m_pBitmaps; }
    // None at first.
    CScriptedLibraries& Libraries() { return m_libraries; }
    CScriptedPorts& Ports() { return m_ports; }
    CScriptedPrinters& Printers() { return m_printers; }
    CScriptedClock& Clock() { return m_clock; }
    void SetInstallValue(const std::string& strValue) { m_strInstallValue = strValue; }
    std::optional<std::vector<std::uint8_t>>& ClipboardPicture() { return m_clipboard; }

  private:
    friend class CPlayHost;  // watches and forgets itself
    void Watch(CPlayHost& host) { m_arrHosts.push_back(&host); }
    void Forget(CPlayHost& host) { std::erase(m_arrHosts, &host); }
    // The window keeps painting while a question stands.
    void PaintAll();
    void AddRunners();
    void RunSize(CPlayHost& host);
    void RunPort(CPlayHost& host);
    void RunPhoneFiles(CPlayHost& host);
    std::string DoInPhoneFiles(CPlayHost& host, const std::string& strStep);
    void RunPhoneSize(CPlayHost& host);
    void RunPrint(CPlayHost& host);
    void Complain(const std::string& strWhy);
    CAsked& Ask(EQuestion question);
    bool MayDelete(bool bToBin, bool bAsk);
    bool DeleteOne(const std::string& strPath, bool bToBin) const;
    static CFileChoice EnterFolderOf(const std::string& strPath);

    EBoxAnswer Show(const CMessageBox& box) override;
    int Run(CDialog& dialog) override;
    std::optional<CFileChoice> RunOpen(const CFileDialogRequest& request, CFileDialogPanel* pPanel) override;
    std::optional<CFileChoice> RunSave(const CFileDialogRequest& request) override;
    std::optional<CColor> Run(CColor colorStart) override;
    std::optional<CFontChoice> Run(const CFontChoice& start) override;
    int Track(std::span<const CMenuItem> arrItems) override;
    void Begin() override;
    void End() override;
    [[nodiscard]] bool SetBitmap(std::span<const std::uint8_t> arrDib) override;
    std::optional<std::vector<std::uint8_t>> GetBitmap() override { return m_clipboard; }
    char Separator() const override { return '/'; }
    std::string CurrentFolder() const override;
    [[nodiscard]] bool SetCurrentFolder(const std::string& strFolder) override;
    std::string InstallValue() const override { return m_strInstallValue; }
    CTextMask Rasterize(const CTextFont& font, const std::string& strText) override;
    std::vector<CDrive> List() override { return m_arrDrives; }
    std::string ComputerName() override { return "我的电脑"; }
    [[nodiscard]] bool Delete(const std::vector<std::string>& arrPaths, bool bToBin, bool bAsk) override;
    void Open(const std::string& strPath) override;
    const CxImage* Find(const std::string& strName, int nDensity) override;

    std::vector<CAnswer> m_arrAnswers;
    std::vector<CMessageBox> m_arrBoxes;
    std::vector<CAsked> m_arrAsked;
    std::vector<CProblem> m_arrProblems;
    std::vector<CShellAct> m_arrShellActs;
    std::map<int, CRunner> m_mapRunners;
    std::vector<CPlayHost*> m_arrHosts;
    CVirtualTimers m_timers;
    CScriptedLibraries m_libraries;
    CScriptedPorts m_ports;
    CScriptedPrinters m_printers;
    CScriptedClock m_clock;
    CBitmaps* m_pBitmaps = nullptr;
    std::optional<std::vector<std::uint8_t>> m_clipboard;
    std::string m_strInstallValue;
    std::vector<CDrive> m_arrDrives;
    std::string m_strBin;
    bool m_bRefuseDeletes = false;
    std::string m_strFolderBefore;
    int m_nWaitDepth = 0;
    int m_nWaitCount = 0;
};
