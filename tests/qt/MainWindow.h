#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <filesystem>

#include "TestDialog.h"
#include "app/MainDlg.h"
#include "qt/QtPlatform.h"
#include "qt/ResourceFolders.h"
#include "resources/BitmapStore.h"
#include "resources/Ids.h"

namespace fs = std::filesystem;

// The whole program in its window, with its skin. A drive for its tree lies in a folder that the test fills.
class MainWindow : public testing::Test {
  protected:
    void Start() {
        qputenv("FOTARIUM_SAMPLE_DRIVE", QFile::encodeName(m_folder.path()));
        m_dialog.OnInitDialog();
        m_view.Prepare();
        m_view.show();
        QApplication::setActiveWindow(&m_view);
    }
    void TearDown() override {
        qunsetenv("FOTARIUM_SAMPLE_DRIVE");
        fs::current_path("/");
    }
    QWidget& Widget(int nId) { return *m_view.WidgetOf(nId); }
    void Click(int nId) { QTest::mouseClick(m_view.WidgetOf(nId), Qt::LeftButton); }

    QTemporaryDir m_folder;
    CBitmapStore m_bitmaps{SkinFolder()};
    CQtPlatform m_platform{m_bitmaps};
    CPictures m_pictures{m_bitmaps};
    CMainDlg m_dialog{m_platform.Platform()};
    CDialogView m_view{m_dialog, m_pictures, nullptr};
};
