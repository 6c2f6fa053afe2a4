#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "image/TextRasterizer.h"
#include "play/Answer.h"
#include "play/PlayHost.h"
#include "play/VirtualTimers.h"
#include "window/Clipboard.h"
#include "window/Folders.h"
#include "window/Platform.h"
#include "window/WaitCursor.h"

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
                          private CTextRasterizer {
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
    void AnswerSize(CSize size);
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
    std::vector<CAsked> TakeAsked();
    std::vector<CProblem> TakeProblems();

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

    // --- the rest ---
    // The pictures of all dialogs that the program runs; may be null.
    void SetBitmaps(CBitmaps* pBitmaps) { m_pBitmaps = pBitmaps; }
    CBitmaps* Bitmaps() { return m_pBitmaps; }
    void SetInstallValue(const std::string& strValue) { m_strInstallValue = strValue; }
    std::optional<std::vector<std::uint8_t>>& ClipboardPicture() { return m_clipboard; }

  private:
    friend class CPlayHost;  // watches and forgets itself
    void Watch(CPlayHost& host) { m_arrHosts.push_back(&host); }
    void Forget(CPlayHost& host) { std::erase(m_arrHosts, &host); }
    // The window keeps painting while a question stands.
    void PaintAll();
    void AddRunners();
    CAsked& Ask(EQuestion question);
    CFileChoice EnterFolderOf(const std::string& strPath);

    EBoxAnswer Show(const CMessageBox& box) override;
    int Run(CDialog& dialog) override;
    std::optional<CFileChoice> RunOpen(const CFileDialogRequest& request, CFileDialogPanel* pPanel) override;
    std::optional<CFileChoice> RunSave(const CFileDialogRequest& request) override;
    std::optional<CColor> Run(CColor colorStart) override;
    std::optional<CFontChoice> Run(const CFontChoice& start) override;
    int Track(std::span<const CMenuItem> arrItems) override;
    void Begin() override;
    void End() override;
    bool SetBitmap(std::span<const std::uint8_t> arrDib) override;
    std::optional<std::vector<std::uint8_t>> GetBitmap() override { return m_clipboard; }
    char Separator() const override { return '/'; }
    std::string CurrentFolder() const override;
    bool SetCurrentFolder(const std::string& strFolder) override;
    std::string InstallValue() const override { return m_strInstallValue; }
    CTextMask Rasterize(const CTextFont& font, const std::string& strText) override;

    std::vector<CAnswer> m_arrAnswers;
    std::vector<CMessageBox> m_arrBoxes;
    std::vector<CAsked> m_arrAsked;
    std::vector<CProblem> m_arrProblems;
    std::map<int, CRunner> m_mapRunners;
    std::vector<CPlayHost*> m_arrHosts;
    CVirtualTimers m_timers;
    CBitmaps* m_pBitmaps = nullptr;
    std::optional<std::vector<std::uint8_t>> m_clipboard;
    std::string m_strInstallValue;
    std::string m_strFolderBefore;
    int m_nWaitDepth = 0;
    int m_nWaitCount = 0;
};
