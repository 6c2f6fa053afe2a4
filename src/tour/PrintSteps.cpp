// The open picture onto paper: the preview, the date, and pages that lie both ways.

#include <QFile>
#include <QFileInfo>

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

// Whether the red of the date is somewhere in the lower right of what is printed.
bool HasDate(const QImage& image) {
    const QRgb rgbDate = qRgb(255, 79, 64);
    for (int y = image.height() / 2; y < image.height(); ++y)
        for (int x = image.width() / 2; x < image.width(); ++x)
            if ((image.pixel(x, y) & RGB_MASK) == (rgbDate & RGB_MASK)) return true;
    return false;
}

void AddPreview(CSteps& steps, const char* szName, const char* szTells, CTourPrinters& printers,
                EOrientation orientation, const CLooksPtr& looks) {
    steps.push_back({szName, szTells,
                     [&printers, orientation](CPerson& person) {
                         printers.Lay(orientation);
                         person.Click(kCmdPrint);
                     },
                     [looks](CPerson& person) {
                         const QString strWrong = CheckPreview(person);
                         if (!strWrong.isEmpty()) return strWrong;
                         looks->imageLast = person.LookAt(kPrintView);
                         return Unless(!HasDate(looks->imageLast), "there is a date already");
                     }});
}

// The print key, the name of the file, and the page that comes of it.
void AddPage(CSteps& steps, const char* szName, const QString& strPdf, bool bDate, bool bLying) {
    const QByteArray strStep(szName);
    steps.push_back(
        {strStep + "-asks", "Print: where is the page to go?",
         [](CPerson& person) { person.Click(kPrintOk); },
         [](CPerson& person) { return Unless(person.FileDialog() != nullptr, "no file dialog"); }});
    steps.push_back({strStep, "a name: the preview has gone, and the page is there",
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
                         return Unless(bDate || !HasDate(page), "there is a date");
                     },
                     [strPdf] { return LookAtPage(strPdf); }});
}

}  // namespace

void AddPrint(CSteps& steps, const CTourFiles& files, CTourPrinters& printers) {
    const auto looks = std::make_shared<CLooks>();
    AddPreview(steps, "print-preview", "Print: the photograph on its sheet", printers, EOrientation::Portrait,
               looks);
    AddPage(steps, "print-page", files.strPrinted, false, false);
    AddPreview(steps, "print-lying", "the paper lies: so does the sheet", printers, EOrientation::Landscape,
               looks);
    steps.push_back({"print-date", "the date's label: a tick, and the date in the photograph",
                     [](CPerson& person) { person.Click(kPrintDateLabel); },
                     [looks](CPerson& person) {
                         const QImage view = person.LookAt(kPrintView);
                         if (!Differs(view, looks->imageLast))
                             return QStringLiteral("the preview is as before");
                         return Unless(HasDate(view), "no date is seen");
                     }});
    AddPage(steps, "print-page-lying", files.strPrinted, true, true);
}
