// The open picture onto paper: the preview, the date, and pages that lie both ways.

#include <QFile>
#include <QFileInfo>
#include <cstdlib>

#include "qt/DialogView.h"
#include "resources/Ids.h"
#include "tour/Screen.h"
#include "tour/StepTools.h"

namespace {

QString CheckPreview(const CPerson& person) {
    if (person.FindWindow(kDlgPrint) == nullptr) return QStringLiteral("no preview is up");
    const QImage view = person.LookAt(kPrintView);
    if (CountColors(view, kManyColors) < kManyColors)
        return QStringLiteral("the preview shows no photograph");
    return CheckKeys(person, {kPrintDate, kPrintDateLabel, kPrintOk, kPrintCancel}, {});
}

// Whether the red of the date, or nearly that, is somewhere in the lower right of what is printed.
bool HasDate(const QImage& image) {
    constexpr int kNear = 30;
    const auto isNear = [](int a, int b) { return std::abs(a - b) <= kNear; };
    for (int y = image.height() / 2; y < image.height(); ++y)
        for (int x = image.width() / 2; x < image.width(); ++x) {
            const QRgb rgb = image.pixel(x, y);
            if (isNear(qRed(rgb), 255) && isNear(qGreen(rgb), 79) && isNear(qBlue(rgb), 64)) return true;
        }
    return false;
}

// The preview, with a tick for the date if that is wanted.
void AddPreview(CSteps& steps, const QString& strName, CTourPrinters& printers, bool bDate, bool bLying) {
    const auto looks = std::make_shared<CLooks>();
    steps.push_back({strName, "Print: the photograph on its sheet",
                     [&printers, bLying](CPerson& person) {
                         printers.Lay(bLying ? EOrientation::Landscape : EOrientation::Portrait);
                         person.Click(kCmdPrint);
                     },
                     [looks](CPerson& person) {
                         QString strWrong = CheckPreview(person);
                         if (!strWrong.isEmpty()) return strWrong;
                         looks->imageLast = person.LookAt(kPrintView);
                         return Unless(!HasDate(looks->imageLast), "there is a date already");
                     }});
    if (!bDate) return;
    steps.push_back({strName + "-date", "the date's label: a tick, and the date in the photograph",
                     [](CPerson& person) { person.Click(kPrintDateLabel); },
                     [looks](CPerson& person) {
                         const QImage view = person.LookAt(kPrintView);
                         if (!Differs(view, looks->imageLast))
                             return QStringLiteral("the preview is as before");
                         return Unless(HasDate(view), "no date is seen");
                     }});
}

// The print key, the name of the file, and the page that comes of it.
void AddPage(CSteps& steps, const QString& strName, const QString& strPdf, bool bDate, bool bLying) {
    steps.push_back(
        {strName + "-asks", "Print: where is the page to go?",
         [](CPerson& person) { person.Click(kPrintOk); },
         [](CPerson& person) { return Unless(person.FileDialog() != nullptr, "no file dialog"); }});
    steps.push_back({strName + "-page", "a name: the preview has gone, and the page is there",
                     [strPdf](CPerson& person) {
                         QFile::remove(strPdf);
                         person.TypeFileName(QFileInfo(strPdf).fileName());
                         person.TakeFile();
                     },
                     [strPdf, bDate, bLying](CPerson& person) {
                         if (person.FindWindow(kDlgPrint) != nullptr || person.FileDialog() != nullptr)
                             return QStringLiteral("something is still up");
                         if (!QFile::exists(strPdf)) return QStringLiteral("no such file");
                         const QImage page = LookAtPage(strPdf);
                         if (CountColors(page, kManyColors) < kManyColors)
                             return QStringLiteral("the page has no photograph");
                         if ((page.width() > page.height()) != bLying)
                             return QStringLiteral("the page lies the wrong way");
                         return Unless(bDate == HasDate(page), "the date is not as it was ticked");
                     },
                     [strPdf] { return LookAtPage(strPdf); }});
}

}  // namespace

void AddPrint(CSteps& steps, const CTourFiles& files, CTourPrinters& printers) {
    struct {
        const char* szName;
        bool bDate, bLying;
    } const kPages[] = {{"print", false, false},
                        {"print-dated", true, false},
                        {"print-lying", false, true},
                        {"print-lying-dated", true, true}};
    for (const auto& page : kPages) {
        AddPreview(steps, page.szName, printers, page.bDate, page.bLying);
        AddPage(steps, page.szName, files.strPrinted, page.bDate, page.bLying);
    }
}
