// A picture in the five modes, its history, and files that are opened and saved.

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>

#include "qt/DialogView.h"
#include "resources/Ids.h"
#include "resources/Texts.h"
#include "tour/Screen.h"
#include "tour/StepTools.h"

namespace {

QColor CanvasMiddle(const CPerson& person) {
    const QImage image = person.LookAt(kCanvas);
    return image.pixelColor(image.width() / 2, image.height() / 2);
}

// The file dialog is up and lists that file.
std::function<QString(CPerson&)> Lists(const QString& strPath) {
    return [strPath](CPerson& person) {
        if (person.FileDialog() == nullptr) return QStringLiteral("no file dialog");
        return Unless(person.SeesFile(QFileInfo(strPath).fileName()), "the file is not listed");
    };
}

}  // namespace

void AddNew(CSteps& steps) {
    steps.push_back(
        {"new", "New: a white page of 640 by 480 in EFFECT", [](CPerson& person) { person.Click(kCmdNew); },
         [](CPerson& person) {
             if (!person.IsSeen(kCanvas)) return QStringLiteral("no canvas");
             if (CanvasMiddle(person) != QColor(255, 255, 255))
                 return QStringLiteral("the page is not white");
             if (!person.TextOf(kInfoSize).contains("640X480")) return QStringLiteral("wrong size line");
             if (!person.TextOf(kInfoName).contains(kNameUntitled)) return QStringLiteral("wrong name line");
             const QString strKeys = CheckKeys(person, {kCmdSave, kCmdReset, kCmdSize}, {kCmdUndo, kCmdCut});
             return strKeys.isEmpty() ? CheckTabs(person, kTabEffect) : strKeys;
         }});
}

// The file dialog: the name is typed as people do who know it.
void AddOpen(CSteps& steps, const CTourFiles& files) {
    steps.push_back({"open-dialog", "Open: the file dialog with its preview panel",
                     [](CPerson& person) { person.Click(kCmdOpen); }, Lists(files.strPicture)});
    steps.push_back({"open-preview", "a file is selected: the panel shows it",
                     [files](CPerson& person) { person.ClickFile(QFileInfo(files.strPicture).fileName()); },
                     [](CPerson& person) {
                         for (auto* pPanel : person.FileDialog()->findChildren<QWidget*>()) {
                             auto* pView = dynamic_cast<CDialogView*>(pPanel);
                             QWidget* pPicture = pView == nullptr ? nullptr : pView->WidgetOf(kPreviewView);
                             if (pPicture == nullptr) continue;
                             if (!pPicture->isVisible()) return QStringLiteral("the preview is hidden");
                             return Unless(CountColors(pPicture->grab().toImage(), 500) >= 500,
                                           "the preview is empty");
                         }
                         return QStringLiteral("no panel in the file dialog");
                     }});
    steps.push_back({"opened", "OK: the photograph is open in EFFECT",
                     [](CPerson& person) { person.TakeFile(); },
                     [files](CPerson& person) {
                         if (person.FileDialog() != nullptr) return QStringLiteral("the dialog is still up");
                         if (!ShowsPhotograph(person))
                             return QStringLiteral("the canvas shows no photograph");
                         if (!person.TextOf(kInfoName).contains(QFileInfo(files.strPicture).fileName()))
                             return QStringLiteral("wrong name line");
                         const QSize size = QImage(files.strPicture).size();
                         const QString strSize = QStringLiteral("%1X%2").arg(size.width()).arg(size.height());
                         return Unless(person.TextOf(kInfoSize).contains(strSize), "wrong size line");
                     }});
}

void AddModes(CSteps& steps) {
    steps.push_back(Tab("stick", "STICK: size rule and frames", kTabStick, [](CPerson& person) {
        return Unless(ShowsPhotograph(person) && person.IsSeen(kRadioPhoneSize), "no picture or no panel");
    }));
    steps.push_back({"phone-size", "the phone's size rule: the picture is 176 by 144",
                     [](CPerson& person) { person.Click(kLabelPhoneSize); },
                     [](CPerson& person) {
                         if (!person.TextOf(kInfoSize).contains("176X144"))
                             return QStringLiteral("wrong size line");
                         return CheckKeys(person, {kCmdUndo}, {kCmdRedo});
                     }});
    steps.push_back({"undo", "Ctrl+Z: the picture has its own size again",
                     [](CPerson& person) { person.Key(Qt::Key_Z, Qt::ControlModifier); },
                     [](CPerson& person) {
                         if (person.TextOf(kInfoSize).contains("176X144"))
                             return QStringLiteral("still the phone's size");
                         return CheckKeys(person, {kCmdRedo}, {kCmdUndo});
                     }});
    steps.push_back({"redo", "Redo: the phone's size is back",
                     [](CPerson& person) { person.Click(kCmdRedo); },
                     [](CPerson& person) {
                         return Unless(person.TextOf(kInfoSize).contains("176X144"), "not the phone's size");
                     }});
    steps.push_back(
        {"undo-again", "Undo: its own size again", [](CPerson& person) { person.Click(kCmdUndo); },
         [](CPerson& person) {
             return Unless(!person.TextOf(kInfoSize).contains("176X144"), "still the phone's size");
         }});
    steps.push_back(
        Tab("font", "FONT: the picture is fitted, the help line speaks", kTabFont, [](CPerson& person) {
            if (!ShowsPhotograph(person) || !person.IsSeen(kTextInput))
                return QStringLiteral("no picture or no panel");
            if (!person.TextOf(kHelpLine).contains("Shift")) return QStringLiteral("no help line");
            return CheckKeys(person, {kCmdSave, kCmdReset}, {kCmdSize, kCmdTurnLeft});
        }));
    steps.push_back(
        Tab("draw", "DRAW: tools, and the picture at its own size", kTabDraw, [](CPerson& person) {
            if (!ShowsPhotograph(person) || !person.IsSeen(kToolFirst))
                return QStringLiteral("no picture or no panel");
            return CheckKeys(person, {kCmdSave, kCmdTurnLeft, kCmdPaste}, {kCmdSize, kCmdCut, kCmdCopy});
        }));
    steps.push_back({"draw-help", "the mouse over a tool: the help line tells what it does",
                     [](CPerson& person) { person.Hover(1178); },
                     [](CPerson& person) {
                         return Unless(person.TextOf(kHelpLine).contains(QStringLiteral("任意线条")),
                                       "wrong help line");
                     }});
    steps.push_back(Tab("effect", "EFFECT again: the paint is fetched, the picture unchanged", kTabEffect,
                        [](CPerson& person) { return Unless(ShowsPhotograph(person), "no picture"); }));
}

void AddHistory(CSteps& steps) {
    steps.push_back({"reset", "Reset: the picture as opened, one step to undo",
                     [](CPerson& person) { person.Click(kCmdReset); },
                     [](CPerson& person) {
                         return ShowsPhotograph(person) ? CheckKeys(person, {kCmdUndo}, {kCmdRedo})
                                                        : QStringLiteral("no picture");
                     }});
    steps.push_back({"undo-reset", "Undo takes the Reset back",
                     [](CPerson& person) { person.Click(kCmdUndo); },
                     [](CPerson& person) { return CheckKeys(person, {kCmdRedo}, {}); }});
    steps.push_back({"menu", "a right click on the picture: the menu",
                     [](CPerson& person) {
                         person.RightClickCanvas({300, 200});
                     },
                     [](CPerson& person) { return Unless(person.Asking() != nullptr, "no menu"); }});
    steps.push_back({"menu-gone", "Esc closes it", [](CPerson& person) { person.Key(Qt::Key_Escape); },
                     [](CPerson& person) {
                         return Unless(person.Asking() == nullptr && person.MainWindow() != nullptr,
                                       "the menu is still up");
                     }});
    steps.push_back({"version", "a click on the plate in the corner: the build date",
                     [](CPerson& person) {
                         person.ClickPoint({44, 683});
                     },
                     [](CPerson& person) { return Unless(person.Asking() != nullptr, "no box"); }});
    steps.push_back(
        {"version-gone", "the box is closed", [](CPerson& person) { person.Answer(QStringLiteral("确定")); },
         [](CPerson& person) { return Unless(person.Asking() == nullptr, "the box is still up"); }});
}

void AddBroken(CSteps& steps, const CTourFiles& files) {
    steps.push_back({"broken-dialog", "Open once more, for a file that is no picture",
                     [files](CPerson& person) {
                         QFile::copy(files.strBroken, files.strBrokenCopy);
                         person.Click(kCmdOpen);
                     },
                     Lists(files.strBrokenCopy)});
    steps.push_back({"broken", "a broken file: the program says so",
                     [files](CPerson& person) {
                         person.ClickFile(QFileInfo(files.strBrokenCopy).fileName());
                         person.TakeFile();
                     },
                     [](CPerson& person) {
                         return Unless(person.FileDialog() == nullptr && person.Asking() != nullptr,
                                       "no message");
                     }});
    steps.push_back({"broken-gone", "the open picture is as it was",
                     [](CPerson& person) { person.Answer(QStringLiteral("确定")); },
                     [](CPerson& person) {
                         return Unless(person.Asking() == nullptr && ShowsPhotograph(person),
                                       "the picture has gone");
                     }});
}

void AddSave(CSteps& steps, const CTourFiles& files) {
    steps.push_back({"save-dialog", "Save: the file dialog with the picture's name",
                     [](CPerson& person) { person.Click(kCmdSave); }, Lists(files.strPicture)});
    steps.push_back({"saved", "a new name: the file is there and holds the picture",
                     [files](CPerson& person) {
                         person.TypeFileName(QFileInfo(files.strSaved).fileName());
                         person.TakeFile();
                     },
                     [files](CPerson& person) {
                         if (person.FileDialog() != nullptr) return QStringLiteral("the dialog is still up");
                         return Unless(CountColors(QImage(files.strSaved), kManyColors) >= kManyColors,
                                       "no such file");
                     }});
    steps.push_back({"upright-dialog", "Open the upright photograph",
                     [](CPerson& person) { person.Click(kCmdOpen); }, Lists(files.strPicture)});
    steps.push_back({"upright", "an upright picture, scrolled by its bars",
                     [files](CPerson& person) {
                         person.ClickFile(QFileInfo(files.strUpright).fileName());
                         person.TakeFile();
                     },
                     [](CPerson& person) {
                         return Unless(person.FileDialog() == nullptr && ShowsPhotograph(person),
                                       "no picture");
                     }});
}

void AddEnd(CSteps& steps) {
    steps.push_back(Tab("thum", "back to THUM", kTabThum, [](CPerson& person) {
        if (person.IsSeen(kCanvas)) return QStringLiteral("the canvas is still there");
        return CheckKeys(person, {kCmdOpen, kCmdNew}, {kCmdSave, kCmdUndo, kCmdReset});
    }));
    steps.push_back(
        {"closed", "the close box ends the program, with no question",
         [](CPerson& person) { person.MainWindow()->close(); },
         [](CPerson& person) { return Unless(person.MainWindow() == nullptr, "the window is still up"); }});
}
