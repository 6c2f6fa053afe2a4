// The folder tree and the list of photographs.

#include <QDir>
#include <QFileInfo>

#include "resources/Ids.h"
#include "resources/Texts.h"
#include "tour/Screen.h"
#include "tour/StepTools.h"

namespace {

constexpr int kSomeColors = 300;  // a photograph in a cell has more, a folder or an empty cell fewer

QString Show(const QStringList& arrNames) {
    return arrNames.join(QStringLiteral(", "));
}

// The tree stands on that folder, and the list shows these names and no others.
QString CheckFolder(const CPerson& person, const QString& strFolder, const QStringList& arrNames) {
    if (person.TreeSelection() != strFolder)
        return QStringLiteral("the tree stands on \"%1\"").arg(person.TreeSelection());
    if (person.ListedNames() != arrNames)
        return QStringLiteral("the list shows %1").arg(Show(person.ListedNames()));
    return {};
}

QString CheckPictures(const CPerson& person, const QStringList& arrNames) {
    for (const QString& strName : arrNames)
        if (CountColors(person.LookAtItem(strName), kSomeColors) < kSomeColors)
            return QStringLiteral("no picture above %1").arg(strName);
    return Unless(!person.IsSeen(kProgress), "the progress bar is still up");
}

void AddTree(CSteps& steps, const CTourFiles& files) {
    steps.push_back({"samples", "the tree stands on the samples, and every cell has its picture",
                     [](CPerson&) {},
                     [files](CPerson& person) {
                         QString str = CheckFolder(person, "ZEFA肖像", files.arrSamples);
                         if (!str.isEmpty()) return str;
                         if (!person.TextOf(kBrowseName).contains("ZEFA肖像"))
                             return QStringLiteral("wrong name line");
                         return CheckPictures(person, files.arrSamples);
                     }});
    steps.push_back({"album", "a click on a folder of folders: they stand in the list",
                     [](CPerson& person) { person.ClickTree(QStringLiteral("相册")); },
                     [files](CPerson& person) { return CheckFolder(person, "相册", files.arrFolders); }});
    steps.push_back({"tree-open", "its arrow opens it: the folders stand below it",
                     [](CPerson& person) { person.OpenTree(QStringLiteral("相册")); },
                     [files](CPerson& person) {
                         for (const QString& strName : files.arrFolders)
                             if (!person.SeesTreeItem(strName))
                                 return QStringLiteral("no %1 in the tree").arg(strName);
                         return QString();
                     }});
    steps.push_back({"folder-lit", "a click on a folder in the list lights it",
                     [files](CPerson& person) { person.ClickItem(files.strFolder); },
                     [files](CPerson& person) {
                         if (!person.TextOf(kBrowseName).contains(files.strFolder))
                             return QStringLiteral("wrong name line");
                         const QString& strOther = files.arrFolders.back();
                         return Unless(Differs(person.LookAtItem(files.strFolder).copy(20, 20, 80, 70),
                                               person.LookAtItem(strOther).copy(20, 20, 80, 70)),
                                       "the folder is not lit");
                     }});
    steps.push_back({"folder-into", "a double click steps into it, and the tree follows",
                     [files](CPerson& person) { person.DoubleClickItem(files.strFolder); },
                     [files](CPerson& person) {
                         const QString str = CheckFolder(person, files.strFolder, files.arrMixed);
                         return str.isEmpty() ? CheckPictures(person, files.arrGood) : str;
                     }});
    steps.push_back({"broken-cell", "a click on a broken file: an empty cell with its name, of no size",
                     [files](CPerson& person) { person.ClickItem(files.strBrokenName); },
                     [files](CPerson& person) {
                         if (CountColors(person.LookAtItem(files.strBrokenName).copy(30, 30, 60, 60), 3) != 1)
                             return QStringLiteral("the cell is not empty");
                         return Unless(person.TextOf(kBrowseSize).contains("0X0"),
                                       "the size line knows more");
                     }});
}

void AddDelete(CSteps& steps, const CTourFiles& files) {
    const QString& strName = files.arrGood.front();
    steps.push_back({"file-info", "a click on a photograph: its name and size in the lines above",
                     [strName](CPerson& person) { person.ClickItem(strName); },
                     [strName](CPerson& person) {
                         if (!person.TextOf(kBrowseName).contains(strName))
                             return QStringLiteral("wrong name line");
                         return Unless(person.TextOf(kBrowseSize).contains('X'), "no size line");
                     }});
    const CTourCheck fnAsks = Asks(kTextDeleteBefore + strName + kTextDeleteBehind);
    const auto fnDelete = [](CPerson& person) { person.KeyInList(Qt::Key_Delete); };
    steps.push_back({"delete-asks", "Delete: the program asks", fnDelete, fnAsks});
    steps.push_back(Answer("delete-no", "No: the file stays", "否", [files, strName](CPerson& person) {
        const bool bStays = QFileInfo::exists(files.strMixedFolder + "/" + strName);
        return Unless(bStays && person.ListedNames() == files.arrMixed, "the file has gone");
    }));
    steps.push_back({"delete-again", "Delete once more",
                     [strName, fnDelete](CPerson& person) {
                         person.ClickItem(strName);
                         fnDelete(person);
                     },
                     fnAsks});
    steps.push_back(
        Answer("delete-yes", "Yes: the file is in the trash", "是", [files, strName](CPerson& person) {
            if (QFileInfo::exists(files.strMixedFolder + "/" + strName))
                return QStringLiteral("the file is still there");
            if (!QFileInfo::exists(files.strTrash + "/files/" + strName))
                return QStringLiteral("the file is not in the trash");
            return Unless(!person.ListedNames().contains(strName), "the list still shows it");
        }));
    const QStringList arrPair = {files.arrGood[1], files.arrGood[2]};
    steps.push_back(
        {"two-selected", "a click, and one with Ctrl: both are selected",
         [arrPair](CPerson& person) {
             person.ClickItem(arrPair[0]);
             person.ClickItem(arrPair[1], Qt::ControlModifier);
         },
         [arrPair](CPerson& person) { return Unless(person.SelectedNames() == arrPair, "not these two"); }});
    steps.push_back({"delete-two", "Shift and Delete: the system asks whether for good",
                     [](CPerson& person) { person.KeyInList(Qt::Key_Delete, Qt::ShiftModifier); },
                     Asks(QStringLiteral("要永久删除这 2 项吗？"))});
    steps.push_back(Answer("delete-two-no", "No: both stay", "否", [files, arrPair](CPerson& person) {
        for (const QString& strPair : arrPair)
            if (!person.ListedNames().contains(strPair)) return QStringLiteral("one has gone");
        return CheckPictures(person, arrPair);
    }));
}

}  // namespace

void AddBrowse(CSteps& steps, const CTourFiles& files) {
    AddTree(steps, files);
    AddDelete(steps, files);
}

void AddOpenFromList(CSteps& steps, const CTourFiles& files) {
    steps.push_back(
        Tab("thum-return", "THUM again: the same folder, read anew", kTabThum, [files](CPerson& person) {
            if (person.TreeSelection() != files.strFolder) return QStringLiteral("the tree has moved");
            return CheckPictures(person, files.arrGood.mid(1));
        }));
    const QString strName = files.arrGood[1];
    steps.push_back({"list-opens", "a double click on a photograph opens it in EFFECT",
                     [strName](CPerson& person) { person.DoubleClickItem(strName); },
                     [strName](CPerson& person) {
                         if (!ShowsPhotograph(person)) return QStringLiteral("no photograph on the canvas");
                         if (!person.TextOf(kInfoName).contains(strName))
                             return QStringLiteral("wrong name line");
                         return CheckTabs(person, kTabEffect);
                     }});
    steps.push_back(Tab("thum-samples", "THUM, and a click on the samples", kTabThum, [](CPerson& person) {
        person.ClickTree(QStringLiteral("ZEFA肖像"));
        return Unless(person.TreeSelection() == "ZEFA肖像", "the tree does not stand on them");
    }));
    steps.push_back({"samples-again", "they are all there", [](CPerson&) {},
                     [files](CPerson& person) { return CheckPictures(person, files.arrSamples); }});
    steps.push_back(Tab("effect-again", "EFFECT: the photograph is still open", kTabEffect,
                        [](CPerson& person) { return Unless(ShowsPhotograph(person), "no photograph"); }));
}
