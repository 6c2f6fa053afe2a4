// Sizes, flips and turns of the open picture. The size dialog comes first: at 400 by 300 the whole picture is
// seen, so that what a command has done can be told from the canvas.

#include <QTransform>
#include <memory>

#include "qt/DialogView.h"
#include "resources/Ids.h"
#include "resources/Texts.h"
#include "tour/Screen.h"
#include "tour/StepTools.h"

namespace {

constexpr int kWidth = 400;
constexpr int kHeight = 300;
constexpr double kResampled = 16;  // two choices of the pixels of a photograph are closer than that

QString CheckSize(const CPerson& person, int nWidth, int nHeight) {
    const QString strSize = QStringLiteral("%1X%2").arg(nWidth).arg(nHeight);
    return person.TextOf(kInfoSize).contains(strSize)
               ? QString()
               : QStringLiteral("the size line says %1").arg(person.TextOf(kInfoSize));
}

// The picture as it stands in the middle of the canvas.
QImage SeenPicture(const CPerson& person, int nWidth, int nHeight) {
    const QImage image = person.LookAt(kCanvas);
    return image.copy((image.width() - nWidth) / 2, (image.height() - nHeight) / 2, nWidth, nHeight);
}

CTourCheck SizeIs(int nWidth, int nHeight) {
    return [=](CPerson& person) { return CheckSize(person, nWidth, nHeight); };
}

CTourStep Click(const char* szName, const char* szTells, int nId, CTourCheck fnCheck) {
    return {szName, szTells, [nId](CPerson& person) { person.Click(nId); }, std::move(fnCheck)};
}

QString SizeDialogIsUp(CPerson& person) {
    return Unless(person.FindWindow(kDlgSize) != nullptr, "no size dialog");
}
QString SizeDialogIsGone(CPerson& person) {
    return Unless(person.FindWindow(kDlgSize) == nullptr, "the size dialog is still up");
}

// What the picture looked like before a command; the steps share it.
struct CBefore {
    QImage image;
};

// A command whose outcome is the picture as it was, changed by fnChange.
CTourStep Changes(const char* szName, const char* szTells, int nId, const std::shared_ptr<CBefore>& pBefore,
                  QSize size, const std::function<QImage(const QImage&)>& fnChange) {
    return {szName, szTells,
            [=](CPerson& person) {
                pBefore->image = SeenPicture(person, size.width(), size.height());
                person.Click(nId);
            },
            [=](CPerson& person) {
                const QImage expected = fnChange(pBefore->image);
                QString strSize = CheckSize(person, expected.width(), expected.height());
                if (!strSize.isEmpty()) return strSize;
                const QImage seen = SeenPicture(person, expected.width(), expected.height());
                const double fApart = Distance(seen, expected);
                // What is seen is a smaller picture of which other pixels have been left out now.
                return fApart < kResampled && 3 * fApart < Distance(seen, pBefore->image)
                           ? QString()
                           : QStringLiteral("the picture is %1 apart from what it should be").arg(fApart);
            }};
}

std::function<QImage(const QImage&)> Turned(int nDegrees) {
    return [nDegrees](const QImage& image) { return image.transformed(QTransform().rotate(nDegrees)); };
}

void AddOutOfRange(CSteps& steps) {
    steps.push_back(Click("size-again", "the size dialog once more", kCmdSize, SizeDialogIsUp));
    steps.push_back({"size-too-large", "3300 pixels wide: too large, says the program",
                     [](CPerson& person) {
                         person.TypeOver(kSizeWidth, QStringLiteral("3300"));
                         person.Click(kSizeOk);
                     },
                     Asks(QString::fromUtf8(kTextTooLarge))});
    steps.push_back(Answer("size-kept", "the picture has its size still", "确定", SizeIs(kWidth, kHeight)));
    steps.push_back(Click("size-phone-dialog", "the dialog, for its other page", kCmdSize, SizeDialogIsUp));
    steps.push_back(Click("size-no-phone", "the phone's sizes: no phone has told any yet", kSizeToPhone,
                          Asks(QString::fromUtf8(kTextNoPhoneSizes))));
    steps.push_back(Answer("size-page-kept", "the first page is still up", "确定", [](CPerson& person) {
        return Unless(person.IsSeen(kSizeWidth) && !person.IsSeen(kSizePhoneList), "not the first page");
    }));
    steps.push_back(Click("size-cancelled", "Cancel: nothing has changed", kSizeCancel, [](CPerson& person) {
        const QString str = SizeDialogIsGone(person);
        return str.isEmpty() ? CheckSize(person, kWidth, kHeight) : str;
    }));
}

}  // namespace

void AddSize(CSteps& steps) {
    steps.push_back(
        Click("size-dialog", "Size: the dialog with the picture's size", kCmdSize, [](CPerson& person) {
            if (!SizeDialogIsUp(person).isEmpty()) return SizeDialogIsUp(person);
            return Unless(person.TypedIn(kSizeWidth) == "1280" && person.TypedIn(kSizeHeight) == "960",
                          "not the picture's size");
        }));
    steps.push_back({"size-typed", "400 is typed as the width: the height follows",
                     [](CPerson& person) { person.TypeOver(kSizeWidth, QString::number(kWidth)); },
                     [](CPerson& person) {
                         return Unless(person.TypedIn(kSizeWidth) == QString::number(kWidth) &&
                                           person.TypedIn(kSizeHeight) == QString::number(kHeight),
                                       "the ratio is not kept");
                     }});
    steps.push_back(
        Click("size-free", "without the ratio the height stays", kSizeKeepRatioLabel, [](CPerson& person) {
            person.TypeOver(kSizeWidth, QStringLiteral("77"));
            return Unless(person.TypedIn(kSizeHeight) == QString::number(kHeight), "the height has followed");
        }));
    steps.push_back({"size-taken", "the ratio again, 400, OK: the picture is 400 by 300",
                     [](CPerson& person) {
                         person.Click(kSizeKeepRatioLabel);
                         person.TypeOver(kSizeWidth, QString::number(kWidth));
                         person.Click(kSizeOk);
                     },
                     [](CPerson& person) {
                         const QString str = SizeDialogIsGone(person);
                         return str.isEmpty() ? CheckSize(person, kWidth, kHeight) : str;
                     }});
    AddOutOfRange(steps);
}

void AddShape(CSteps& steps) {
    const auto pBefore = std::make_shared<CBefore>();
    const QSize size(kWidth, kHeight);
    steps.push_back(Changes("flip-vertical", "flipped top to bottom", kCmdFlipVertical, pBefore, size,
                            [](const QImage& image) { return image.mirrored(false, true); }));
    steps.push_back(Changes("flip-horizontal", "flipped left to right", kCmdFlipHorizontal, pBefore, size,
                            [](const QImage& image) { return image.mirrored(true, false); }));
    steps.push_back(
        Changes("turn-right", "a quarter turn to the right", kCmdTurnRight, pBefore, size, Turned(90)));
    steps.push_back(
        Changes("turn-left", "and one to the left", kCmdTurnLeft, pBefore, size.transposed(), Turned(-90)));
    steps.push_back(Click("large", "Large: a quarter more", kCmdLarge, SizeIs(500, 375)));
    steps.push_back(Click("small", "Small: a quarter less", kCmdSmall, SizeIs(375, 281)));
    steps.push_back(
        Click("actual", "Actual: the size that it was opened with", kCmdActual, SizeIs(1280, 960)));
    steps.push_back(Tab("stick-rule", "STICK, for the phone's size rule", kTabStick, [](CPerson& person) {
        return Unless(person.IsSeen(kRadioPhoneSize), "no size rule");
    }));
    steps.push_back(Click("rule-on", "the phone's size rule is on", kLabelPhoneSize, SizeIs(176, 144)));
    steps.push_back(Click("refused", "a turn is refused under the rule", kCmdTurnRight,
                          Asks(QString::fromUtf8(kTextNoTurnRight))));
    steps.push_back(Answer("refused-gone", "the picture is as it was", "确定", SizeIs(176, 144)));
    steps.push_back(Click("rule-off", "the rule is off again", kLabelImageSize, SizeIs(1280, 960)));
}
