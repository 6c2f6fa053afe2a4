// The open and the save dialog over a folder of files.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTreeView>
#include <filesystem>
#include <fstream>

#include "TestDialog.h"
#include "qt/FileDateDelegate.h"
#include "qt/QtPlatform.h"
#include "qt/UnlistedFiles.h"

namespace fs = std::filesystem;

namespace {

constexpr CControlTemplate kPanelControls[] = {
    {1000, EControlKind::Check, CRect::FromPlace(10, 10, 80, 16), "&Preview"},
};
constexpr CDialogTemplate kPanel{101, "", {120, 200}, EDialogFrame::Child, kPanelControls};
const CFileDialogRequest kRequest{"JPG Files (*.JPG)|*.jpg||", ""};

class CTestPanel : public CFileDialogPanel {
  public:
    using CFileDialogPanel::CFileDialogPanel;
    void OnInitDialog() override { ++m_nInits; }
    void OnDestroy() override { ++m_nDestroys; }
    void OnFileNameChange(const std::string& strPath) override { m_arrPaths.push_back(strPath); }
    std::vector<std::string> m_arrPaths;
    int m_nInits = 0;
    int m_nDestroys = 0;
};

struct COpenDelegate : CFileDateDelegate {
    using CFileDateDelegate::initStyleOption;
};

class FileDialogs : public testing::Test {
  protected:
    void SetUp() override {
        fs::current_path(Folder());
        for (const char* szName : {"a.jpg", "b.JPG", "c.png", "two\nlines.jpg", "sub/deep.jpg"})
            Touch(szName);
    }
    void TearDown() override {
        fs::current_path("/");
        fs::remove_all(m_folder.path().toStdString());  // also what Qt has no name for
    }
    fs::path Folder() const { return fs::canonical(m_folder.path().toStdString()); }
    void Touch(const fs::path& name) const {
        fs::create_directories((Folder() / name).parent_path());
        std::ofstream(Folder() / name) << "x";
    }
    static QFileDialog& Window() {
        auto* pWindow = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        EXPECT_NE(pWindow, nullptr);
        return *pWindow;
    }
    static void Type(const QString& strName) {
        Window().findChild<QLineEdit*>("fileNameEdit")->setText(strName);
    }
    static void Accept() { QMetaObject::invokeMethod(&Window(), "accept"); }
    // Opens the dialog, types the name, and takes what OK gives.
    std::optional<CFileChoice> OpenTyped(const QString& strName) {
        Later([=] {
            Type(strName);
            Accept();
            // A dialog that does not take the name must not keep the test waiting.
            if (QApplication::activeModalWidget() != nullptr) Window().reject();
        });
        return m_owner.Platform().files.RunOpen(kRequest, nullptr);
    }

    QTemporaryDir m_folder;
    CTestBitmaps m_bitmaps;
    CQtPlatform m_owner{m_bitmaps};
};

}  // namespace

TEST_F(FileDialogs, MatchingFilesAreListedAndThePanelFollowsTheSelection) {
    CTestPanel panel(kPanel);
    Later([&] {
        auto* pList = Window().findChild<QListView*>("listView");
        EXPECT_TRUE(QTest::qWaitFor([&] { return pList->model()->rowCount(pList->rootIndex()) == 4; }));
        for (int i = 0; i < 4; ++i) {
            const QModelIndex index = pList->model()->index(i, 0, pList->rootIndex());
            if (index.data().toString() != "sub") pList->setCurrentIndex(index);
        }
        EXPECT_EQ(Window().nameFilters(), QStringList{"JPG Files (*.JPG)"});
        EXPECT_EQ(Window().labelText(QFileDialog::Accept), "打开(&O)");
        EXPECT_EQ(panel.m_nInits, 1);
        // Name, size and date stand in columns.
        const auto* pTree = Window().findChild<QTreeView*>("treeView");
        EXPECT_TRUE(pTree->header()->isSectionHidden(2));
        EXPECT_EQ(pTree->header()->sectionResizeMode(0), QHeaderView::Stretch);
        auto* pDates = static_cast<CFileDateDelegate*>(pTree->itemDelegateForColumn(3));
        ASSERT_NE(pDates, nullptr);
        const QModelIndex date = pTree->model()->index(0, 3, pTree->rootIndex());
        QStyleOptionViewItem option;
        (pDates->*&COpenDelegate::initStyleOption)(&option, date);
        EXPECT_TRUE(QRegularExpression("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d$").match(option.text).hasMatch());
        Accept();
    });
    const auto choice = m_owner.Platform().files.RunOpen(kRequest, &panel);
    ASSERT_TRUE(choice.has_value());
    std::vector<std::string> arrNames;
    for (const std::string& strPath : panel.m_arrPaths) {
        EXPECT_EQ(fs::path(strPath).parent_path(), Folder());
        arrNames.push_back(fs::path(strPath).filename().string());
    }
    std::sort(arrNames.begin(), arrNames.end());
    EXPECT_EQ(arrNames, (std::vector<std::string>{"a.jpg", "b.JPG", "two\nlines.jpg"}));
    EXPECT_EQ(choice->strPath, panel.m_arrPaths.back());
    EXPECT_EQ(panel.m_nDestroys, 1);
}

TEST_F(FileDialogs, AnyNameMayBeTyped) {
    for (const char* szName : {"missing.jpg", "noextension", "c.png", "字 '引号'.jpg", "two\nlines.jpg"}) {
        const auto choice = OpenTyped(szName);
        ASSERT_TRUE(choice.has_value()) << szName;
        EXPECT_EQ(choice->strName, szName);
        EXPECT_EQ(choice->strPath, (Folder() / szName).string());
    }
}

TEST_F(FileDialogs, OkMovesToTheFilesFolderAndCancelDoesNot) {
    EXPECT_FALSE(OpenTyped("sub").has_value()) << "a folder is entered, not chosen";
    EXPECT_EQ(fs::current_path(), Folder());
    const auto choice = OpenTyped("sub/deep.jpg");
    ASSERT_TRUE(choice.has_value());
    EXPECT_EQ(choice->strName, "deep.jpg");
    EXPECT_EQ(fs::current_path(), Folder() / "sub");
}

TEST_F(FileDialogs, BytesThatAreNoTextSurvive) {
    const std::string strName = "b\xc4\xe3\xba.jpg";
    Touch(strName);
    Touch("\xc4.png");
    Touch("\xb2\xbb/x.jpg");
    const auto choice = OpenTyped(QFile::decodeName(strName.c_str()));
    ASSERT_TRUE(choice.has_value());
    EXPECT_EQ(choice->strPath, (Folder() / strName).string());

    // Qt's list leaves such files out: they are offered in a line of their own.
    for (const char* szFolder : {".", "\xb2\xbb"}) {
        fs::current_path(Folder() / szFolder);
        CTestPanel panel(kPanel);
        Later([&] {
            auto* pOthers = dynamic_cast<CUnlistedFiles*>(Window().findChild<QComboBox*>("unlistedFiles"));
            ASSERT_NE(pOthers, nullptr);
            EXPECT_TRUE(pOthers->isVisible());
            EXPECT_EQ(pOthers->count(), 1) << "what does not match the filter is not offered";
            pOthers->setCurrentIndex(0);
            emit pOthers->activated(0);
            Accept();
        });
        const auto picked = m_owner.Platform().files.RunOpen(kRequest, &panel);
        ASSERT_TRUE(picked.has_value());
        EXPECT_TRUE(fs::exists(picked->strPath)) << picked->strPath;
        EXPECT_EQ(panel.m_arrPaths, std::vector{picked->strPath});
    }
}

TEST_F(FileDialogs, SaveAsksBeforeItReplaces) {
    struct CCase {
        const char* szTyped;
        int nAsked;
        bool bYes;
        std::string strName;  // empty: not chosen
    };
    for (const CCase& one :
         {CCase{"new.jpg", 0, false, "new.jpg"}, CCase{"new", 0, false, "new.jpg"},
          CCase{"a", 1, true, "a.jpg"}, CCase{"a.jpg", 1, false, ""}, CCase{"c.png", 1, true, "c.png"},
          CCase{"x.y", 0, false, "x.y"}, CCase{"no folder/x", 1, false, ""}}) {
        int nAsked = 0;
        Later([&] {
            Type(one.szTyped);
            Later([&] {
                auto* pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                if (pBox == nullptr) return;
                ++nAsked;
                QAbstractButton* pAnswer = pBox->button(one.bYes ? QMessageBox::Yes : QMessageBox::No);
                (pAnswer != nullptr ? pAnswer : pBox->button(QMessageBox::Ok))->click();
            });
            QFileDialog& window = Window();
            Accept();
            if (window.isVisible()) window.reject();
            QCoreApplication::processEvents();
        });
        const auto choice = m_owner.Platform().files.RunSave({"JPEG Files (*.JPG)|*.jpg||", "photo.jpg"});
        EXPECT_EQ(nAsked, one.nAsked) << one.szTyped;
        EXPECT_EQ(choice.has_value(), !one.strName.empty()) << one.szTyped;
        if (choice) {
            EXPECT_EQ(choice->strPath, (Folder() / one.strName).string());
        }
    }
}
