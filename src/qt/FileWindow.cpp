#include "qt/FileWindow.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QTreeView>
#include <filesystem>

#include "qt/FileNames.h"
#include "qt/QtMessageBoxes.h"
#include "qt/Text.h"

namespace {

constexpr QSize kWindow(860, 520);
constexpr int kTypeColumn = 2;
constexpr int kDateColumn = 3;
constexpr int kListRow = 1;  // of the dialog's grid; the folder's line stands above it

}  // namespace

CFileWindow::CFileWindow(AcceptMode mode, const CFileDialogRequest& request, QWidget* pParent)
    : QFileDialog(pParent, mode == AcceptOpen ? "打开" : "另存为", QDir::currentPath()),
      m_labelUnlisted("其他文件:", this),
      m_unlisted(this) {
    m_labelUnlisted.hide();
    m_unlisted.hide();
    setOption(DontUseNativeDialog);
    setOption(DontConfirmOverwrite);  // asked in accept, about the name that the file really gets
    setAcceptMode(mode);
    setFileMode(AnyFile);
    setNameFilters(ParseFilter(request.strFilter));
    setLabelText(FileName, "文件名(&N):");
    setLabelText(FileType, "文件类型:");
    setLabelText(LookIn, "查找范围:");
    setLabelText(Accept, mode == AcceptOpen ? "打开(&O)" : "保存(&S)");
    setLabelText(Reject, "取消");
    if (mode == AcceptSave) setDefaultSuffix(ToQt(request.strSuffix));
    if (!request.strDefaultName.empty()) selectFile(PathToQt(request.strDefaultName));
    SetUpColumns();
    if (mode == AcceptOpen) SetUpUnlisted();
    resize(kWindow);
}

// A line below for the files that the list cannot show, as long as the folder has any.
void CFileWindow::SetUpUnlisted() {
    auto* pGrid = qobject_cast<QGridLayout*>(layout());
    auto* pName = findChild<QLineEdit*>("fileNameEdit");
    if (pGrid == nullptr || pName == nullptr) return;
    const int nRow = pGrid->rowCount();
    pGrid->addWidget(&m_labelUnlisted, nRow, 0);
    pGrid->addWidget(&m_unlisted, nRow, 1);
    FillUnlisted();
    connect(this, &QFileDialog::directoryEntered, this, &CFileWindow::FillUnlisted);
    connect(this, &QFileDialog::filterSelected, this, &CFileWindow::FillUnlisted);
    connect(&m_unlisted, &QComboBox::activated, this, [this, pName](int nFile) {
        pName->setText(m_unlisted.itemText(nFile));
        emit currentChanged(directory().filePath(m_unlisted.itemText(nFile)));
    });
}

void CFileWindow::FillUnlisted() {
    const bool bAny = m_unlisted.Fill(directory().path(), PatternsOf(selectedNameFilter()));
    m_unlisted.setVisible(bAny);
    m_labelUnlisted.setVisible(bAny);
}

// Name, size and date; the names get what room there is.
void CFileWindow::SetUpColumns() {
    auto* pList = findChild<QTreeView*>("treeView");
    if (pList == nullptr) return;
    QHeaderView& header = *pList->header();
    header.setSectionResizeMode(QHeaderView::ResizeToContents);
    header.setSectionResizeMode(0, QHeaderView::Stretch);
    header.hideSection(kTypeColumn);
    pList->setItemDelegateForColumn(kDateColumn, &m_dates);
}

void CFileWindow::AddBeside(QWidget& widget) {
    auto* pGrid = qobject_cast<QGridLayout*>(layout());
    if (pGrid == nullptr) return;
    const int nRows = pGrid->rowCount() - kListRow;
    pGrid->addWidget(&widget, kListRow, pGrid->columnCount(), nRows, 1, Qt::AlignTop);
}

std::string CFileWindow::ChosenPath() const {
    const QStringList arrFiles = selectedFiles();
    return arrFiles.isEmpty() ? std::string{} : ResolvePath(arrFiles.constFirst());
}

bool CFileWindow::AskReplace(const std::string& strPath) {
    const std::string strName = std::filesystem::path(strPath).filename().string();
    return CQtMessageBoxes{}.Show({strName + " 已经存在。\n要替换它吗？", FromQt(windowTitle()),
                                   EBoxIcon::Exclamation, EBoxButtons::YesNo}) == EBoxAnswer::Yes;
}

void CFileWindow::TellNoFolder(const std::filesystem::path& folder) {
    CQtMessageBoxes{}.Show({folder.string() + "\n没有这个文件夹。请检查路径后再试。", FromQt(windowTitle()),
                            EBoxIcon::Exclamation, EBoxButtons::Ok});
}

void CFileWindow::accept() {
    if (acceptMode() == AcceptSave) {
        const std::string strPath = ChosenPath();
        std::error_code error;
        const auto status = std::filesystem::status(strPath, error);
        const bool bFile = std::filesystem::exists(status) && !std::filesystem::is_directory(status);
        if (bFile && !AskReplace(strPath)) return;
        const std::filesystem::path folder = std::filesystem::path(strPath).parent_path();
        if (!strPath.empty() && !std::filesystem::is_directory(folder, error)) return TellNoFolder(folder);
    }
    QFileDialog::accept();
}
