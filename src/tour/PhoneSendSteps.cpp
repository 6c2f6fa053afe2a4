// From the editor and from the list to the phone.

#include <QImage>

#include "link/Format.h"
#include "qt/DialogView.h"
#include "resources/Ids.h"
#include "resources/PhoneTexts.h"
#include "tour/PhoneSteps.h"

namespace {

void AddSendPicture(CSteps& steps, const CTourFiles& files, CTourMachine& machine) {
    steps.push_back(Press("phone-send-asks", "Send: the picture is larger than the phone's screen", kCmdSend,
                          Asks(QString::fromStdString(Format(kTextShrink, 640, 480)))));
    steps.push_back(Answer("phone-size", "Yes: the phone's sizes", "是", [](CPerson& person) {
        if (person.FindWindow(kDlgPhoneSize) == nullptr) return QStringLiteral("no dialog of sizes");
        return CheckKeys(person, {kPhoneSizes, kPhoneSizeOk, kPhoneSizeCancel}, {kPhoneSizePicture});
    }));
    steps.push_back(
        Press("phone-size-list", "a click on the line: all of them", kPhoneSizes,
              [](CPerson& person) { return Unless(person.Asking() != nullptr, "no list drops down"); }));
    steps.push_back({"phone-size-chosen", "the second, by the arrow and Enter",
                     [](CPerson& person) {
                         person.Key(Qt::Key_Down);
                         person.Key(Qt::Key_Enter);
                     },
                     [](CPerson& person) {
                         const CDialogView* pView = person.FindWindow(kDlgPhoneSize);
                         if (pView == nullptr || person.Asking() != nullptr)
                             return QStringLiteral("no dialog of sizes");
                         return Unless(person.Selected(kPhoneSizes) == 1, "not the second");
                     }});
    steps.push_back(Moves("phone-sending", "OK: the picture goes over", machine, kPhoneSizeOk, 1));
    steps.push_back(
        {"phone-sent", "the strip and a box say that it is there", [](CPerson&) {}, Asks(kTextSent)});
    steps.push_back(
        Done("phone-sent-gone", "the picture has the size that it was sent in", [files](CPerson& person) {
            const QString strSent = files.phone.strFolder + "/inner/IMG0001.jpg";
            if (!person.TextOf(kInfoSize).contains("320X240")) return QStringLiteral("wrong size line");
            if (QImage(strSent).size() != QSize(320, 240))
                return QStringLiteral("no such picture on the phone");
            return CheckPhoneKeys(person, true);
        }));
}

}  // namespace

void AddSend(CSteps& steps, const CTourFiles& files, CTourMachine& machine) {
    AddSendPicture(steps, files, machine);
    const QStringList arrPair = {"IMG0002.jpg", "生日.jpg"};
    steps.push_back(
        Tab("phone-thum-again", "THUM: two photographs are selected", kTabThum, [arrPair](CPerson& person) {
            if (person.ListedNames().size() != 3) return QStringLiteral("the list is not there yet");
            person.ClickItem(arrPair[0]);
            person.ClickItem(arrPair[1], Qt::ControlModifier);
            return Unless(person.SelectedNames() == arrPair, "not these two");
        }));
    steps.push_back(Moves("phone-sending-two", "Send: both go over, and are counted", machine, kCmdSend, 2));
    steps.push_back({"phone-sent-two", "the box says that they are there", [](CPerson&) {}, Asks(kTextSent)});
    steps.push_back(Done("phone-sent-two-gone", "both are on the phone", [files, arrPair](CPerson& person) {
        for (const QString& strName : arrPair)
            if (!files.phone.Has(strName)) return QStringLiteral("no %1 on the phone").arg(strName);
        return CheckPhoneKeys(person, true);
    }));
}
