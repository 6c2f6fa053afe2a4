#include "qt/QtFileDialogs.h"

#include <QApplication>
#include <filesystem>

#include "qt/ArrowCursor.h"
#include "qt/DialogView.h"
#include "qt/FileNames.h"
#include "qt/FileWindow.h"
#include "qt/QtModalDialogs.h"

namespace fs = std::filesystem;

namespace {

std::optional<CFileChoice> RunWindow(CFileWindow& window) {
    if (window.exec() != QDialog::Accepted) return std::nullopt;
    const fs::path path = window.ChosenPath();
    if (path.empty()) return std::nullopt;
    std::error_code error;  // a folder that cannot be entered leaves the current one
    fs::current_path(path.parent_path(), error);
    return CFileChoice{path.string(), path.filename().string()};
}

}  // namespace

std::optional<CFileChoice> CQtFileDialogs::RunOpen(const CFileDialogRequest& request,
                                                   CFileDialogPanel* pPanel) {
    const CArrowCursor arrow;
    CFileWindow window(QFileDialog::AcceptOpen, request, QApplication::activeModalWidget());
    if (pPanel == nullptr) return RunWindow(window);

    CDialogView view(*pPanel, m_pictures, &window);
    window.AddBeside(view);
    QObject::connect(&window, &QFileDialog::currentChanged, &view,
                     [pPanel](const QString& strPath) { pPanel->OnFileNameChange(ResolvePath(strPath)); });
    pPanel->OnInitDialog();
    view.Prepare();
    auto choice = RunWindow(window);
    CloseDialog(*pPanel, m_timers);
    return choice;
}

std::optional<CFileChoice> CQtFileDialogs::RunSave(const CFileDialogRequest& request) {
    const CArrowCursor arrow;
    CFileWindow window(QFileDialog::AcceptSave, request, QApplication::activeModalWidget());
    return RunWindow(window);
}
