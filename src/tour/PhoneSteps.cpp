// The phone, from no phone at all to one that is known again.

#include "tour/PhoneSteps.h"

#include "qt/DialogView.h"
#include "qt/QtGeometry.h"
#include "resources/BitmapIds.h"
#include "resources/Ids.h"
#include "resources/PhoneTexts.h"
#include "tour/Screen.h"

namespace {

constexpr CSize kRunningPicture{386, 182};
constexpr CSize kStrip{369, 26};
constexpr int kPictureColors = 500;  // the running picture has more, its empty well far fewer

QImage LookAtPart(const CPerson& person, int nDialog, CPoint pt, CSize size) {
    CDialogView* pView = person.FindWindow(nDialog);
    return pView == nullptr ? QImage()
                            : pView->grab(ToQt(CRect::FromPlace(pt.x, pt.y, size.cx, size.cy))).toImage();
}

QString CheckRunning(const CPerson& person, int nDialog) {
    if (person.FindWindow(nDialog) == nullptr) return QStringLiteral("no window with a running picture");
    return Unless(CountColors(LookAtRunningPicture(person, nDialog), kPictureColors) >= kPictureColors,
                  "no running picture");
}

// A check behind another one.
CTourCheck Both(CTourCheck fnFirst, CTourCheck fnSecond) {
    return [fnFirst = std::move(fnFirst), fnSecond = std::move(fnSecond)](CPerson& person) {
        const QString strWrong = fnFirst(person);
        return strWrong.isEmpty() ? fnSecond(person) : strWrong;
    };
}

CTourCheck Keys(bool bConnected) {
    return [bConnected](CPerson& person) { return CheckPhoneKeys(person, bConnected); };
}

CTourCheck Running(int nDialog) {
    return [nDialog](CPerson& person) { return CheckRunning(person, nDialog); };
}

void AddPorts(CSteps& steps, CTourMachine& machine) {
    steps.push_back({"phone-none", "Connect with no phone: the program says what to look at",
                     [&machine](CPerson& person) {
                         machine.PlugOut();
                         person.Click(kCmdConnect);
                     },
                     Both(Running(kDlgLink), Asks(kTextNoPorts))});
    steps.push_back(Done("phone-none-gone", "the box is closed, nothing is connected", Keys(false)));
    steps.push_back({"phone-port", "a port that is no phone's: the program asks for one",
                     [&machine](CPerson& person) {
                         machine.SetPlainPort("Communications Port (COM1)");
                         person.Click(kCmdConnect);
                     },
                     [](CPerson& person) {
                         if (person.FindWindow(kDlgPortSelect) == nullptr)
                             return QStringLiteral("no dialog of ports");
                         const QStringList arrPorts = person.RowTexts(kPortList, 0);
                         return Unless(arrPorts.size() == 256 && arrPorts.back() == "COM256", "wrong ports");
                     }});
    steps.push_back({"phone-port-chosen", "a click on another",
                     [](CPerson& person) { person.ClickRow(kPortList, 2); },
                     [](CPerson& person) {
                         return CheckKeys(person, {kPortOk, kPortCancel}, {});
                     }});
    steps.push_back(Press("phone-port-wrong", "OK: there is no phone at it", kPortOk,
                          Asks("和手机连接失败.请确认和手机的连接端口")));
    steps.push_back(Done("phone-port-gone", "the box is closed, nothing is connected", Keys(false)));
}

void AddFound(CSteps& steps, const CTourFiles& files, CTourMachine& machine) {
    steps.push_back({"phone-found", "a phone at a port of its own is found without asking",
                     [files, &machine](CPerson& person) {
                         machine.PlugIn(files.phone);
                         person.Click(kCmdConnect);
                     },
                     Both(Running(kDlgLink), Asks(kTextConnected))});
    steps.push_back(Done("phone-connected", "it is connected: take and send are on", Keys(true)));
}

}  // namespace

QString CheckPhoneKeys(const CPerson& person, bool bConnected) {
    if (person.TopDialog() != person.MainWindow()) return QStringLiteral("a dialog is still up");
    return bConnected ? CheckKeys(person, {kCmdTake, kCmdSend}, {kCmdConnect})
                      : CheckKeys(person, {kCmdConnect}, {kCmdTake, kCmdSend});
}

QImage LookAtRunningPicture(const CPerson& person, int nDialog) {
    return LookAtPart(person, nDialog, kLinkFrameAt, kRunningPicture);
}

QImage LookAtStrip(const CPerson& person, int nDialog) {
    return LookAtPart(person, nDialog, kLinkStripAt, kStrip);
}

CTourStep Done(const char* szName, const char* szTells, CTourCheck fnCheck) {
    return Answer(szName, szTells, "确定", std::move(fnCheck));
}

CTourStep Press(const char* szName, const char* szTells, int nId, CTourCheck fnCheck) {
    return {szName, szTells, [nId](CPerson& person) { person.Click(nId); }, std::move(fnCheck)};
}

CTourStep Moves(const char* szName, const char* szTells, CTourMachine& machine, int nId, std::size_t nMoves) {
    CTourStep step{szName, szTells,
                   [&machine, nId](CPerson& person) {
                       machine.ForgetMoves();
                       person.Click(nId);
                   },
                   [&machine, nMoves](CPerson&) {
                       const std::vector<QImage>& arrMoves = machine.Moves();
                       if (arrMoves.size() != nMoves)
                           return QStringLiteral("%1 files have moved").arg(arrMoves.size());
                       for (std::size_t i = 1; i < nMoves; ++i)
                           if (!Differs(arrMoves[i - 1], arrMoves[i]))
                               return QStringLiteral("the screen does not count");
                       return QString();
                   }};
    step.fnPicture = [&machine] { return machine.Moves().empty() ? GrabScreen() : machine.Moves().back(); };
    return step;
}

void AddConnect(CSteps& steps, const CTourFiles& files, CTourMachine& machine) {
    AddPorts(steps, machine);
    AddFound(steps, files, machine);
}

void AddPhone(CSteps& steps, const CTourFiles& files, CTourMachine& machine) {
    AddConnect(steps, files, machine);
    AddTake(steps, files, machine);
    AddSend(steps, files, machine);
    AddPhoneTrouble(steps, files, machine);
}
