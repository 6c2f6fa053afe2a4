#include "qt/FileWindow.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
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
    : QFileDialog(pParent, mode == AcceptOpen ? "打开" : "另存为", QDir::currentPath()) {
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
    if (mode == AcceptSave) setDefaultSuffix("jpg");
    if (!request.strDefaultName.empty()) selectFile(PathToQt(request.strDefaultName));
    SetUpColumns();
    resize(kWindow);
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

void CFileWindow::accept() {
    if (acceptMode() == AcceptSave) {
        const std::string strPath = ChosenPath();
        std::error_code error;
        const auto status = std::filesystem::status(strPath, error);
        const bool bFile = std::filesystem::exists(status) && !std::filesystem::is_directory(status);
        if (bFile && !AskReplace(strPath)) return;
    }
    QFileDialog::accept();
}
