// The list of a phone's files with a thousand of them, from the dialog that is not there yet to the one that
// is painted: without a window, and in the real one.

#include <benchmark/benchmark.h>

#include <QTest>

#include "engines/linkset/FileSet.h"
#include "link/PhoneFileDlg.h"
#include "play/PlayHost.h"
#include "play/ScriptedPlatform.h"
#include "qt/BenchApplication.h"
#include "qt/DialogView.h"
#include "qt/Pictures.h"
#include "qt/ResourceFolders.h"
#include "resources/BitmapStore.h"
#include "resources/Ids.h"
#include "support/PassTime.h"
#include "support/Photographs.h"
#include "support/Spent.h"

namespace {

namespace fs = std::filesystem;

constexpr int kFiles = 1000;
constexpr int kRounds = 20;
constexpr double kMostMilliseconds = 100;

class CNoEvents : public CEditEvents {
  public:
    void Tell(EEditEvent /*event*/) override {}
};

// What the dialog asks for, and the library's list of a phone with a card.
class CListedPhone {
  public:
    CListedPhone() {
        fs::create_directories(m_folder);
        m_platform.SetInstallValue(m_folder.string());
        CFILESet files;
        files.m_strFileName = m_session.DataFile("FILE.Dat");
        for (int i = 0; i < kFiles; ++i) {
            const std::string strName = "写真/照片" + std::to_string(i * 7919 % kFiles) + ".jpg";
            files.m_nDataArray.push_back({static_cast<std::uint32_t>(i), 200'000, i % 2, 0, strName, i});
        }
        if (!files.Write()) std::abort();
    }
    CListedPhone(const CListedPhone&) = delete;
    CListedPhone& operator=(const CListedPhone&) = delete;
    ~CListedPhone() { fs::remove_all(m_folder); }
    CScriptedPlatform& Platform() { return m_platform; }
    CPhoneSession& Session() { return m_session; }

  private:
    fs::path m_folder = BenchFolder() / "fotarium-bench-files";
    CScriptedPlatform m_platform;
    CPlatform m_topics = m_platform.Get();
    CEditState m_state;
    CNoEvents m_events;
    CPhoneSession m_session{{m_state, m_events, m_topics.boxes, m_topics.modals, m_topics.timers,
                             m_topics.wait, m_topics.files, m_topics.folders, m_topics.menus,
                             m_topics.libraries, m_topics.ports}};
};

template <class TOpen>
void Open(benchmark::State& state, TOpen open) {
    CListedPhone phone;
    double fLeast = 1e9;
    double fFirst = 0;
    for (auto _ : state) {
        const double fBegin = ProcessorTime();
        CPhoneFileDlg dialog(phone.Session());
        const auto window = open(phone, dialog);
        const double fSpent = ProcessorTime() - fBegin;
        if (fFirst == 0) fFirst = fSpent;
        fLeast = std::min(fLeast, fSpent);
        if (dialog.TableOf(kPhoneFiles)->Count() != kFiles) std::abort();
    }
    state.counters["least ms"] = fLeast * 1e3;
    HoldBelow(state, "first ms", fFirst * 1e3, kMostMilliseconds);
}

void PhoneFilesWithoutWindow(benchmark::State& state) {
    Open(state, [](CListedPhone& phone, CPhoneFileDlg& dialog) {
        auto pHost = std::make_unique<CPlayHost>(phone.Platform(), dialog);
        pHost->Init();
        return pHost;
    });
}
BENCHMARK(PhoneFilesWithoutWindow)->Iterations(kRounds)->Unit(benchmark::kMillisecond);

void PhoneFilesInWindow(benchmark::State& state) {
    const CBenchApplication application;
    CBitmapStore bitmaps(SkinFolder());
    CPictures pictures(bitmaps);
    Open(state, [&](CListedPhone& /*phone*/, CPhoneFileDlg& dialog) {
        auto pView = std::make_unique<CDialogView>(dialog, pictures, nullptr);
        dialog.OnInitDialog();
        pView->Prepare();
        pView->show();
        static_cast<void>(QTest::qWaitForWindowExposed(pView.get()));
        QCoreApplication::processEvents();
        return pView;
    });
}
BENCHMARK(PhoneFilesInWindow)->Iterations(kRounds)->Unit(benchmark::kMillisecond);

}  // namespace
