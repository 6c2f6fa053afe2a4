#pragma once

#include <cstdlib>
#include <filesystem>
#include <random>

#include "app/MainDlg.h"
#include "play/PlayHost.h"
#include "play/ScriptedPlatform.h"
#include "resources/Ids.h"

// A program with a picture of twelve megapixels open, as it stands behind a double click in the file list.
class CBenchProgram {
  public:
    static constexpr int kWidth = 4000;
    static constexpr int kHeight = 3000;

    CBenchProgram() : m_dialog(m_platform.Get()), m_host(m_platform, m_dialog) {
        m_host.Init();
        const std::filesystem::path folder = std::filesystem::temp_directory_path();
        CxImage image(kWidth, kHeight);
        std::minstd_rand random(1);
        for (std::uint8_t& byte : image.MutableBytes()) byte = static_cast<std::uint8_t>(random());
        if (!image.Save((folder / "fotarium-bench.bmp").string(), ImageType::kBmp)) std::abort();
        m_dialog.OpenFileByName(folder.string(), "fotarium-bench.bmp");
        std::filesystem::remove(folder / "fotarium-bench.bmp");
        m_host.Pump();
    }
    CMainDlg& Dialog() { return m_dialog; }
    void Command(int nId) { m_dialog.OnCommand(nId); }
    void SetSize(CSize size) {
        m_platform.AnswerSize(size);
        Command(kCmdSize);
    }
    void Pump() { m_host.Pump(); }
    // The left button on the canvas, in client pixels, with the paints that follow.
    void Hand(EMouseAction action, CPoint pt, unsigned nKeys = 0) {
        const EMouseButton button = action == EMouseAction::Move ? EMouseButton::None : EMouseButton::Left;
        if (!m_host.MouseOnView(kCanvas, action, button, pt, nKeys).empty()) std::abort();
    }

  private:
    CScriptedPlatform m_platform;
    CMainDlg m_dialog;
    CPlayHost m_host;
};

// The one that all benchmarks share.
inline CBenchProgram& Program() {
    static CBenchProgram program;
    return program;
}
