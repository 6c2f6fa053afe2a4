// The main window while the pictures of a large folder come up one by one: it lives.

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QListView>
#include <QScrollBar>
#include <random>

#include "MainWindow.h"
#include "PaintWatch.h"

namespace {

constexpr int kFiles = 150;
// One slice, an event, and a machine that has other things to do. A fill in one go takes longer by far.
constexpr qint64 kLongestWait = 1000;

// Also how long the event loop once was away.
class CWatch : public CPaintWatch {
  public:
    explicit CWatch(QWidget& widget) : CPaintWatch(widget) {
        m_clock.start();
        QObject::connect(&m_timer, &QTimer::timeout, this,
                         [this] { m_nLongest = std::max(m_nLongest, m_clock.restart()); });
        m_timer.start(5);
    }
    qint64 m_nLongest = 0;

  private:
    QElapsedTimer m_clock;
    QTimer m_timer;
};

class Fill : public MainWindow {
  protected:
    void SetUp() override {
        const fs::path folder = fs::path(m_folder.path().toStdString()) / "ZEFA肖像";
        fs::create_directory(folder);
        CPixels pixels = CPixels::MakeFilled(1600, 1200, {});
        // Noise takes as long to decode as anything can.
        std::minstd_rand random(1);
        for (int y = 0; y < 1200; ++y)
            for (std::uint8_t& byte : pixels.MutableRow(y)) byte = static_cast<std::uint8_t>(random());
        ASSERT_TRUE(CxImage(pixels).Save((folder / "000.jpg").string(), ImageType::kJpeg));
        for (int i = 1; i < kFiles; ++i)
            fs::create_hard_link(folder / "000.jpg",
                                 folder / QString("%1.jpg").arg(i, 3, 10, QChar('0')).toStdString());
        Start();
    }
    bool IsFilling() { return m_dialog.Thum().List().IsFilling(); }
    // Lets the program run until the watched list has been painted so many times more, or the fill is over.
    void RunUntilPainted(const CWatch& watch, int nTimes) {
        const int nBefore = watch.m_nPaints;
        while (IsFilling() && watch.m_nPaints < nBefore + nTimes)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QListView& List() { return *qobject_cast<QListView*>(m_view.WidgetOf(kFileList)); }
};

}  // namespace

TEST_F(Fill, PaintsAndScrollsMeanwhile) {
    ASSERT_TRUE(IsFilling());
    EXPECT_EQ(m_dialog.Thum().List().Model().Count(), kFiles);
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    CWatch watch(*List().viewport());
    RunUntilPainted(watch, 5);
    ASSERT_TRUE(IsFilling());
    // The wheel moves the list, and the new rows are painted before the fill is over.
    Wheel(*List().viewport(), -1200);
    EXPECT_GT(List().verticalScrollBar()->value(), 200);
    RunUntilPainted(watch, 3);
    EXPECT_TRUE(IsFilling());
    EXPECT_TRUE(m_view.WidgetOf(kProgress)->isVisible());
    while (IsFilling()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_LT(watch.m_nLongest, kLongestWait);

    EXPECT_FALSE(m_view.WidgetOf(kProgress)->isVisible());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    for (int i = 0; i < kFiles; ++i) ASSERT_FALSE(m_dialog.Thum().List().Model().Picture(i).IsEmpty()) << i;
}
