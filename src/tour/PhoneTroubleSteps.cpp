// A phone that is locked, that gets a call, that loses its card, that is another one, that restarts.

#include "qt/DialogView.h"
#include "resources/Ids.h"
#include "resources/PhoneTexts.h"
#include "tour/PhoneSteps.h"
#include "tour/Screen.h"

namespace {

CTourCheck Keys(bool bConnected) {
    return [bConnected](CPerson& person) { return CheckPhoneKeys(person, bConnected); };
}

void AddLocked(CSteps& steps, const CTourFiles& files) {
    steps.push_back({"phone-locked", "a locked phone: unlock it, says the program",
                     [files](CPerson& person) {
                         files.phone.SetFact("locked 1");
                         person.Click(kCmdTake);
                     },
                     Asks("请解锁后重试")});
    steps.push_back(Done("phone-locked-gone", "it has to be connected anew", Keys(false)));
}

// A phone that is known is connected when the picture has run for seven seconds.
void AddKnown(CSteps& steps, const CTourFiles& files) {
    const auto pStrip = std::make_shared<QImage>();
    steps.push_back({"phone-known", "unlocked, it is known again: the picture runs",
                     [files](CPerson& person) {
                         files.phone.SetFact("locked 0");
                         person.Click(kCmdConnect);
                     },
                     [pStrip](CPerson& person) {
                         *pStrip = LookAtStrip(person, kDlgLink);
                         return Unless(!pStrip->isNull(), "no window with a running picture");
                     }});
    steps.push_back({"phone-known-strip", "a moment later its strip tells what it does", [](CPerson&) {},
                     [pStrip](CPerson& person) {
                         const QImage strip = LookAtStrip(person, kDlgLink);
                         return Unless(!strip.isNull() && Differs(strip, *pStrip), "no strip");
                     }});
    steps.push_back({"phone-known-done", "and it is connected", [](CPerson&) {}, Keys(true)});
}

void AddCall(CSteps& steps, const CTourFiles& files) {
    steps.push_back({"phone-call", "a call comes in while two photographs are sent",
                     [files](CPerson& person) {
                         person.ClickItem("IMG0002.jpg");
                         person.ClickItem("生日.jpg", Qt::ControlModifier);
                         files.phone.SetFault("TransferFileToPhone 2 21");
                         person.Click(kCmdSend);
                     },
                     Asks("전화가 왔습니다. 자료교환을 중단합니다.")});
    steps.push_back(Done("phone-call-gone", "the exchange is over", Keys(false)));
}

void AddCard(CSteps& steps, const CTourFiles& files, CTourMachine& machine) {
    const auto fnFiles = [](CPerson& person) {
        if (person.FindWindow(kDlgPhoneFile) == nullptr)
            return QStringLiteral("no dialog of the phone's files");
        return Unless(
            person.RowTexts(kPhoneFiles, 3) == QStringList({kTextInPhone, kTextOnCard, kTextOnCard}),
            "wrong memories");
    };
    steps.push_back({"phone-card", "a phone with a memory card is connected",
                     [files, &machine](CPerson& person) {
                         machine.PlugIn(files.phoneCard);
                         person.Click(kCmdConnect);
                     },
                     Asks(kTextConnected)});
    steps.push_back(Done("phone-card-connected", "the card's phone is connected", Keys(true)));
    steps.push_back(Press("phone-card-files", "Take: its files, two of them on the card", kCmdTake, fnFiles));
    steps.push_back({"phone-card-out", "the card is pulled out: the list holds no more",
                     [files](CPerson&) { files.phoneCard.SetFact("cardin 0"); }, Asks(kTextCardChanged)});
    steps.push_back(Done("phone-card-closed", "the list is closed", Keys(true)));
    steps.push_back({"phone-card-in", "the card is back: Take once more",
                     [files](CPerson& person) {
                         files.phoneCard.SetFact("cardin 1");
                         person.Click(kCmdTake);
                     },
                     fnFiles});
    steps.push_back(
        {"phone-card-name", "OK: a file of the first one's name is there already",
         [](CPerson& person) {
             person.Click(kPhoneFilesAllLabel);
             person.Click(kPhoneFilesOk);
         },
         [](CPerson& person) { return Unless(person.FileDialog() != nullptr, "no file dialog"); }});
    steps.push_back({"phone-card-left", "it is passed over; then the card leaves, and the program asks",
                     [files](CPerson& person) {
                         files.phoneCard.SetFact("cardin 0");
                         person.Answer("取消");
                     },
                     Asks(kTextCardLeft)});
    steps.push_back(Answer("phone-card-kept", "No: nothing has come over", "取消", [](CPerson& person) {
        if (person.ListedNames().size() != 3) return QStringLiteral("something has come over");
        return CheckPhoneKeys(person, true);
    }));
}

void AddRestart(CSteps& steps, const CTourFiles& files, CTourMachine& machine) {
    steps.push_back({"phone-other", "another phone hangs on the line",
                     [files, &machine](CPerson& person) {
                         machine.PlugIn(files.phoneRestart);
                         person.Click(kCmdTake);
                     },
                     Asks(kTextOtherPhone)});
    steps.push_back(Done("phone-other-gone", "it has to be connected", Keys(false)));
    steps.push_back(Press("phone-restart", "Connect: this one restarts behind every exchange", kCmdConnect,
                          Asks(QStringLiteral("%1\n\n%2").arg(kTextConnected, kTextRestart))));
    steps.push_back(Done("phone-restarting", "the program waits until it is back", [](CPerson& person) {
        return Unless(person.FindWindow(kDlgLink) != nullptr, "nothing waits");
    }));
    steps.push_back({"phone-restarted", "and it is connected", [](CPerson&) {}, Keys(true)});
    steps.push_back(Tab("phone-over", "EFFECT again", kTabEffect,
                        [](CPerson& person) { return Unless(ShowsPhotograph(person), "no picture"); }));
}

}  // namespace

void AddPhoneTrouble(CSteps& steps, const CTourFiles& files, CTourMachine& machine) {
    AddLocked(steps, files);
    AddKnown(steps, files);
    AddCall(steps, files);
    AddCard(steps, files, machine);
    AddRestart(steps, files, machine);
}
