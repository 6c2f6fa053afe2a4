// From the phone to the list of photographs, and from there into the editor.

#include <QFileInfo>

#include "qt/DialogView.h"
#include "resources/Ids.h"
#include "resources/PhoneTexts.h"
#include "tour/PhoneSteps.h"
#include "tour/Screen.h"

namespace {

constexpr int kSomeColors = 300;  // a photograph in a cell has more, an empty cell fewer

// The phone's files are up, by their numbers in this order, and these rows are ticked.
CTourCheck Rows(const QStringList& arrNumbers, const std::vector<int>& arrTicked) {
    return [=](CPerson& person) {
        if (person.FindWindow(kDlgPhoneFile) == nullptr)
            return QStringLiteral("no dialog of the phone's files");
        const QStringList arrRows = person.RowTexts(kPhoneFiles, 0);
        if (arrRows != arrNumbers) return QStringLiteral("the rows are %1").arg(arrRows.join(' '));
        return Unless(person.TickedRows(kPhoneFiles) == arrTicked, "wrong ticks");
    };
}

void AddRows(CSteps& steps) {
    steps.push_back(
        Press("phone-files", "Take: the phone's files, one of them closed", kCmdTake, [](CPerson& person) {
            QString strRows = Rows({"1", "2", "3", "4"}, {})(person);
            if (!strRows.isEmpty()) return strRows;
            if (person.RowTexts(kPhoneFiles, 2)[2] != kTextClosedFile)
                return QStringLiteral("none is closed");
            return Unless(person.RowTexts(kPhoneFiles, 1).back() == "photo/生日", "wrong name");
        }));
    steps.push_back(
        Press("phone-nothing", "OK with nothing ticked", kPhoneFilesOk, Asks(kTextNothingTicked)));
    steps.push_back(Done("phone-nothing-gone", "the list is still there", Rows({"1", "2", "3", "4"}, {})));
    steps.push_back({"phone-tick", "a click on a box, the arrow down and Space: two are ticked",
                     [](CPerson& person) {
                         person.TickRow(kPhoneFiles, 0);
                         person.KeyInDialog(Qt::Key_Down);
                         person.KeyInDialog(Qt::Key_Space);
                     },
                     Rows({"1", "2", "3", "4"}, {0, 1})});
    steps.push_back({"phone-menu", "a right click: by what the files may be sorted",
                     [](CPerson& person) { person.ClickRow(kPhoneFiles, 1, Qt::RightButton); },
                     [](CPerson& person) { return Unless(person.Asking() != nullptr, "no menu"); }});
    steps.push_back({"phone-sorted", "by size: the ticks stay with their files",
                     [](CPerson& person) { person.ChooseInMenu("按文件大小"); },
                     [](CPerson& person) {
                         const QStringList arrRows = person.RowTexts(kPhoneFiles, 0);
                         if (arrRows == QStringList({"1", "2", "3", "4"}) || person.Asking() != nullptr)
                             return QStringLiteral("not sorted");
                         QStringList arrTicked;
                         for (const int nRow : person.TickedRows(kPhoneFiles))
                             arrTicked.append(arrRows[nRow]);
                         arrTicked.sort();
                         return Unless(arrTicked == QStringList({"1", "2"}), "others are ticked");
                     }});
    steps.push_back(Press("phone-all", "all at once", kPhoneFilesAllLabel, [](CPerson& person) {
        return Unless(person.TickedRows(kPhoneFiles).size() == 4, "some are not ticked");
    }));
}

}  // namespace

void AddTake(CSteps& steps, const CTourFiles& files, CTourMachine& machine) {
    const QStringList arrTaken = {"IMG0001.jpg", "IMG0002.jpg", "生日.jpg"};
    steps.push_back(Tab("phone-thum", "THUM, and a folder that is empty", kTabThum, [files](CPerson& person) {
        person.ClickTree(files.strTakeFolder);
        return Unless(person.ListedNames().isEmpty(), "the folder is not empty");
    }));
    AddRows(steps);
    steps.push_back(Moves("phone-taking", "OK: the files come over, all but the closed one", machine,
                          kPhoneFilesOk, arrTaken.size()));
    steps.push_back(
        {"phone-taken", "the strip and a box say that they are there", [](CPerson&) {}, Asks(kTextTaken)});
    steps.push_back(Done("phone-list", "the list shows them", [arrTaken](CPerson& person) {
        if (person.ListedNames() != arrTaken)
            return QStringLiteral("the list shows %1").arg(person.ListedNames().join(' '));
        for (const QString& strName : arrTaken)
            if (CountColors(person.LookAtItem(strName), kSomeColors) < kSomeColors)
                return QStringLiteral("no picture above %1").arg(strName);
        return CheckPhoneKeys(person, true);
    }));
    steps.push_back({"phone-opened", "a double click opens one in EFFECT",
                     [arrTaken](CPerson& person) { person.DoubleClickItem(arrTaken[0]); },
                     [arrTaken](CPerson& person) {
                         if (!ShowsPhotograph(person)) return QStringLiteral("no photograph on the canvas");
                         return Unless(person.TextOf(kInfoName).contains(arrTaken[0]), "wrong name line");
                     }});
    steps.push_back({"phone-effect", "an effect is chosen in the list",
                     [](CPerson& person) { person.ClickPicture(kEffectList, 16); },
                     [](CPerson& person) { return Unless(person.IsOn(kConfirm), "no preview"); }});
    steps.push_back(
        Press("phone-edited", "CONFIRM: the photograph itself is cooler", kConfirm, [](CPerson& person) {
            return ShowsPhotograph(person) ? CheckKeys(person, {kCmdUndo, kCmdSend}, {kConfirm})
                                           : QStringLiteral("no picture");
        }));
}
