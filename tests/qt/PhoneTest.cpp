// The phone in the real window: what stands on the screen while the program waits for the phone's library,
// and what a drag out of the list of photographs leaves selected.

#include <QAbstractButton>
#include <QListView>
#include <QMessageBox>
#include <set>

#include "MainWindow.h"
#include "link/LinkDlg.h"
#include "link/TransferDlg.h"
#include "support/Pictures.h"
#include "window/FolderPhone.h"

namespace {

class CNoEvents : public CEditEvents {
  public:
    void Tell(EEditEvent /*event*/) override {}
};

// The dialogs of an exchange, without a phone.
class Waiting : public testing::Test {
  protected:
    // Inside a handler, with no event between: the screen has all of the window's present look.
    static QImage Look(const char* szWhen) {
        QWidget& window = *QApplication::activeModalWidget();
        QImage screen = window.screen()->grabWindow(window.winId()).toImage();
        EXPECT_EQ(screen.convertToFormat(QImage::Format_RGB32), Repainted(window)) << szWhen;
        return screen;
    }
    // The picture has many colours, its well few.
    static bool HasPicture(const QImage& screen) {
        std::set<QRgb> setColors;
        for (int x = 20; x < 380; ++x) setColors.insert(screen.pixel(x, 60));
        return setColors.size() > 60;
    }

    CBitmapStore m_bitmaps{SkinFolder()};
    CQtPlatform m_qt{m_bitmaps};
    CEditState m_state;
    CNoEvents m_events;
    const CPlatform& m_p = m_qt.Platform();
    CPhoneSession m_session{{m_state, m_events, m_p.boxes, m_p.modals, m_p.timers, m_p.wait, m_p.files,
                             m_p.folders, m_p.menus, m_p.libraries, m_p.ports}};
};

// Photographs in the list, and a phone in a folder at the machine's ports.
class PhoneWindow : public MainWindow {
  protected:
    void SetUp() override {
        qputenv("XDG_DATA_HOME", m_install.path().toUtf8());
        const std::string strPhotos = m_folder.path().toStdString() + "/" + CFolderTree::kStartFolder;
        ASSERT_TRUE(fs::create_directory(strPhotos) && fs::create_directory(Phone("inner")));
        for (const char* szName : {"a.jpg", "b.jpg", "c.jpg"})
            ASSERT_TRUE(NumberedImage(60, 40).Save(strPhotos + "/" + szName, ImageType::kJpeg));
        QFile facts(m_phone.filePath("phone.txt"));
        ASSERT_TRUE(facts.open(QIODevice::WriteOnly) && facts.write("identity 4711\n") > 0);
        SetPhoneFolder(m_phone.path().toStdString());
        Start();
        Settle();
        QObject::connect(&m_answers, &QTimer::timeout, [] {
            if (auto* pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                QTest::mouseClick(pBox->button(QMessageBox::Ok), Qt::LeftButton);
        });
        m_answers.start(10);
    }
    void TearDown() override {
        SetPhoneFolder({});
        qunsetenv("XDG_DATA_HOME");
        MainWindow::TearDown();
    }
    std::string Phone(const std::string& strName) const {
        return m_phone.path().toStdString() + "/" + strName;
    }
    QPoint Item(int nRow) {
        auto& list = static_cast<QListView&>(Widget(kFileList));
        return list.viewport()->mapTo(&m_view, list.visualRect(list.model()->index(nRow, 0)).center());
    }
    QPoint Key(int nId) { return Widget(nId).geometry().center(); }
    // Takes an item and lets it go over a key.
    void DragOnto(int nRow, int nId) {
        const QPoint ptFrom = Item(nRow), ptTo = Key(nId);
        constexpr int kMoves = 8;
        Press(m_view, ptFrom);
        for (int i = 1; i <= kMoves; ++i)
            QTest::mouseMove(m_view.windowHandle(), ptFrom + (ptTo - ptFrom) * i / kMoves);
        Release(m_view, ptTo);
    }
    std::vector<int> Selected() { return m_dialog.Thum().List().Model().SelectedItems(); }

    QTemporaryDir m_phone, m_install;
    QTimer m_answers;
};

}  // namespace

TEST_F(Waiting, TheScreenIsUpToDateBeforeEveryCall) {
    CLinkDlg link(ELinkTask::PrepareTake, m_session, [](CRunningPicture&) {
        EXPECT_TRUE(HasPicture(Look("the line opens")));
        return CPhoneSession::kEndDone;
    });
    m_p.modals.Run(link);
    CTransferDlg transfer(EDirection::Take, m_session, [](CTransferDlg& dialog) {
        QImage before = Look("the transfer begins");
        EXPECT_TRUE(HasPicture(before));
        const std::pair<const char*, std::function<void()>> arrSteps[] = {
            {"first file", [&] { dialog.TellProgress(1, 3); }},
            {"second file", [&] { dialog.TellProgress(2, 3); }},
            {"done", [&] { dialog.ShowDone(); }}};
        for (const auto& [szStep, fnStep] : arrSteps) {
            fnStep();
            const QImage now = Look(szStep);
            EXPECT_NE(now, before) << szStep;
            before = now;
        }
        return CPhoneSession::kEndDone;
    });
    m_p.modals.Run(transfer);
}

// The picture is there with the ground, and still there when the window has to paint itself anew.
TEST_F(Waiting, TheGroundIsNeverSeenAlone) {
    CPictures pictures(m_bitmaps);
    for (const ELinkTask task : {ELinkTask::Connect, ELinkTask::WaitForRestart}) {
        CLinkDlg dialog(task, m_session, [](CRunningPicture&) { return CPhoneSession::kEndDone; });
        CDialogView view(dialog, pictures, nullptr);
        view.Prepare();
        EXPECT_TRUE(HasPicture(Repainted(view)));
    }
    CTransferDlg dialog(EDirection::Send, m_session, [](CTransferDlg&) { return CPhoneSession::kEndDone; });
    CDialogView view(dialog, pictures, nullptr);
    view.Prepare();
    dialog.ShowDone();
    const QImage done = Repainted(view);
    dialog.Invalidate();
    Settle();
    EXPECT_EQ(Repainted(view), done);
    EXPECT_TRUE(HasPicture(done));
}

TEST_F(PhoneWindow, ADragOntoAKeyKeepsWhatIsSelected) {
    Tap(m_view, Item(0));
    QTest::mouseClick(m_view.windowHandle(), Qt::LeftButton, Qt::ControlModifier, Item(2));
    for (const int nKey : {kCmdOpen, kCmdNew, kCmdConnect, kCmdSend}) {
        if (nKey == kCmdSend) Click(kCmdConnect);
        // A window system does that by itself behind a dialog.
        QApplication::setActiveWindow(&m_view);
        ASSERT_TRUE(Widget(nKey).isEnabled());
        DragOnto(2, nKey);
        EXPECT_EQ(Selected(), (std::vector{0, 2})) << nKey;
        EXPECT_EQ(m_dialog.Controls().Focus(), kFileList) << nKey;
        EXPECT_TRUE(fs::is_empty(Phone("inner"))) << "a drag alone does nothing";
    }
    QTest::mouseClick(m_view.windowHandle(), Qt::LeftButton, {}, Key(kCmdSend));
    EXPECT_TRUE(fs::exists(Phone("inner/a.jpg")) && fs::exists(Phone("inner/c.jpg")));
    EXPECT_FALSE(fs::exists(Phone("inner/b.jpg")));
}
