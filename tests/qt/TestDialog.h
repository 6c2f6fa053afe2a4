#pragma once

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "image/Image.h"
#include "qt/DialogView.h"
#include "qt/Pictures.h"
#include "window/CheckTableModel.h"
#include "window/Dialog.h"
#include "window/IconListModel.h"
#include "window/ScrollView.h"
#include "window/TreeModel.h"

// Pictures of one colour by name; at density 2 the left upper pixel of every client pixel is white.
class CTestBitmaps : public CBitmaps {
  public:
    void Add(const std::string& strName, CSize size, CColor color) {
        for (const int nDensity : {1, 2}) {
            CPixels pixels = CPixels::MakeFilled(size.cx * nDensity, size.cy * nDensity, color);
            for (int y = 0; nDensity == 2 && y < pixels.Height(); y += 2)
                for (int x = 0; x < pixels.Width(); x += 2) pixels.MutableView().Set(x, y, {255, 255, 255});
            m_mapImages[{nDensity, strName}] = CxImage(pixels);
        }
    }
    const CxImage* Find(const std::string& strName, int nDensity) override {
        const auto it = m_mapImages.find({nDensity, strName});
        return it == m_mapImages.end() ? nullptr : &it->second;
    }

  private:
    std::map<std::pair<int, std::string>, CxImage> m_mapImages;
};

// A view that is painted in one colour and keeps what the mouse does to it.
class CTestScrollView : public CScrollView {
  public:
    using CScrollView::CScrollView;
    void OnMouse(const CMouseEvent& event) override { m_arrMouse.push_back(event); }
    void DrawDot(int x, int y) {
        ClientSurface().SetPixel(x, y, {90, 80, 70});
        Drawn(CRect::FromPlace(x, y, 1, 1));
    }
    std::vector<CMouseEvent> m_arrMouse;
    void OnTimer(int /*nTimer*/) override { ++m_nTicks; }
    int m_nTicks = 0;

  protected:
    void OnDraw(CSurface& surface) override {
        surface.FillRect(surface.Bounds(), {10, 20, 30});
        surface.SetPixel(0, ScrollPosition().y / 10, {90, 80, 70});
    }
};

// What the controls of a dialog show.
struct CTestModels {
    CScrollView* pView = nullptr;
    CTreeModel* pTree = nullptr;
    CIconListModel* pIcons = nullptr;
    CCheckTableModel* pTable = nullptr;
};

using CNotices = std::vector<std::pair<int, ENotice>>;
using CHovers = std::vector<std::pair<int, bool>>;

// Keeps every call of a handler.
class CTestDialog : public CDialog {
  public:
    using CDialog::CDialog;
    void OnInitDialog() override {
        if (m_fnInit) m_fnInit();
    }
    void OnDestroy() override { ++m_nDestroys; }
    void OnCommand(int nId) override {
        m_arrCommands.push_back(nId);
        if (m_fnCommand) m_fnCommand(nId);
    }
    void OnNotify(int nId, ENotice notice) override { m_arrNotices.emplace_back(nId, notice); }
    void OnMouse(const CMouseEvent& event) override { m_arrMouse.push_back(event); }
    void OnHover(int nId, bool bLeftDown) override { m_arrHovers.emplace_back(nId, bLeftDown); }
    bool OnKey(const CKeyEvent& event) override {
        m_arrKeys.push_back(event);
        return m_bSwallowKeys;
    }
    void OnTimer(int nTimer) override {
        if (m_fnTimer) m_fnTimer(nTimer);
    }
    CScrollView* ViewOf(int /*nId*/) override { return m_models.pView; }
    CTreeModel* TreeOf(int /*nId*/) override { return m_models.pTree; }
    CIconListModel* IconsOf(int /*nId*/) override { return m_models.pIcons; }
    CCheckTableModel* TableOf(int /*nId*/) override { return m_models.pTable; }

    std::vector<int> m_arrCommands;
    CNotices m_arrNotices;
    std::vector<CMouseEvent> m_arrMouse;
    CHovers m_arrHovers;
    std::vector<CKeyEvent> m_arrKeys;
    bool m_bSwallowKeys = false;
    int m_nDestroys = 0;
    int m_nPaints = 0;
    CColor m_colorGround{50, 60, 70};
    std::function<void()> m_fnInit;
    std::function<void(int)> m_fnCommand;
    std::function<void(int)> m_fnTimer;
    CTestModels m_models;

  protected:
    void OnPaint(CClientArea& client) override {
        ++m_nPaints;
        client.FillRect(CRect::FromPlace(0, 0, client.Size().cx, client.Size().cy), m_colorGround);
    }
};

// A dialog in its window.
struct CShownDialog {
    explicit CShownDialog(const CDialogTemplate& dialogTemplate, CTestBitmaps skin = {},
                          CTestModels models = {})
        : bitmaps(std::move(skin)), dialog(dialogTemplate), pictures(bitmaps) {
        dialog.m_models = models;
        view = std::make_unique<CDialogView>(dialog, pictures, nullptr);
        view->Prepare();
        view->show();
        QApplication::setActiveWindow(view.get());
        QCoreApplication::processEvents();
    }
    QWidget* Widget(int nId) const { return view->WidgetOf(nId); }
    QPoint Centre(int nId) const { return Widget(nId)->geometry().center(); }
    CControlSet& Controls() { return dialog.Controls(); }
    void Click(int nId) { QTest::mouseClick(Widget(nId), Qt::LeftButton); }

    CTestBitmaps bitmaps;
    CTestDialog dialog;
    CPictures pictures;
    std::unique_ptr<CDialogView> view;
};

// The mouse over a window, as the system reports it. Buttons stay down until they are released.
inline void Press(QWidget& window, QPoint pt, Qt::MouseButton button = Qt::LeftButton,
                  Qt::KeyboardModifiers modifiers = {}) {
    QTest::mousePress(window.windowHandle(), button, modifiers, pt);
}
inline void Release(QWidget& window, QPoint pt, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseRelease(window.windowHandle(), button, {}, pt);
}
inline void Tap(QWidget& window, QPoint pt) {
    Press(window, pt);
    Release(window, pt);
}
inline void Move(QWidget& window, QPoint pt) {
    QTest::mouseMove(window.windowHandle(), pt);
}

// Over the point (50, 50) of the widget; 120 is a notch away from the hand.
inline void Wheel(QWidget& widget, int nDelta) {
    const QPoint pt(50, 50);
    QWheelEvent event(pt, widget.mapToGlobal(pt), {}, {0, nDelta}, {}, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

// What the buttons did; the system reports a move before each of them.
inline std::vector<CMouseEvent> WithoutMoves(std::vector<CMouseEvent> arrEvents) {
    std::erase_if(arrEvents, [](const CMouseEvent& event) { return event.action == EMouseAction::Move; });
    return arrEvents;
}

// Lets all that is laid out and painted behind an event come to its end.
inline void Settle() {
    for (int i = 0; i < 4; ++i) QCoreApplication::processEvents();
}

// What stands on the screen, and what would stand there if all of the window were painted anew. A grab paints
// by itself: only the first of the two misses what nobody has asked to be painted.
inline QImage OnScreen(const QWidget& window) {
    Settle();
    const QPixmap pixmap = window.screen()->grabWindow(window.winId());
    return pixmap.toImage().convertToFormat(QImage::Format_RGB32);
}
inline QImage Repainted(QWidget& window) {
    return window.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// Runs once the event loop is up, which may be that of a dialog that is about to be opened.
inline void Later(std::function<void()> fnStep) {
    QTimer::singleShot(0, QCoreApplication::instance(), std::move(fnStep));
}
