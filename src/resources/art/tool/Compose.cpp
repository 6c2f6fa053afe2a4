#include "Compose.h"

#include <QDir>
#include <QPainter>

#include "resources/Grounds.h"

namespace {

struct CMode {
    const char* pName;
    const char* pRow;
    const char* pPanel;   // "" where the window itself holds the panel
    const char* pSource;  // the panel's name in the table
    const char* pTab;
};

constexpr CMode kModes[] = {{"thum", "486", "", "effect", "THUM"},
                            {"effect", "487", "", "effect", "EFFECT"},
                            {"font", "488", "296", "font", "FONT"},
                            {"stick", "489", "286", "stick", "STICK"},
                            {"draw", "490", "343", "draw", "DRAW"}};

struct CDialogView {
    const char* pName;
    const char* pGround;
    const char* pSource;  // the ground's name in the table
    int nShift;           // which of its states every key shows
    const char* pStrip;   // "" where no strip and no running picture stand
    const char* pFrame;
    bool bSizeKeys;  // the keys of the size dialog stand here too
};

constexpr CDialogView kDialogs[] = {{"size-own", "497", "size_own", 0, "", "", true},
                                    {"size-phone", "498", "size_phone", 1, "", "", true},
                                    {"size-send", "544", "send_size", 0, "", "", true},
                                    {"connecting", "637", "link", 0, "638", "625", false},
                                    {"restarting", "637", "link", 0, "658", "620", false},
                                    {"taking", "550", "transfer", 0, "602", "650", false},
                                    {"sending", "550", "transfer", 0, "603", "642", false},
                                    {"sent", "550", "transfer", 0, "604", "645", false},
                                    {"phone-files", "546", "phone_files", 0, "", "", false},
                                    {"port", "565", "port", 0, "", "", false}};

QColor Of(CColor color) {
    return {color.r, color.g, color.b};
}

class CComposer {
  public:
    CComposer(const std::vector<CSkinLine>& arrLines, const std::map<QString, QImage>& mapPictures,
              int nDensity)
        : m_arrLines(arrLines), m_mapPictures(mapPictures), m_nDensity(nDensity) {}

    QImage Mode(const CMode& mode) const {
        QImage image = m_mapPictures.at("522").convertToFormat(QImage::Format_RGB32);
        QPainter painter(&image);
        Put(painter, mode.pRow, {0, 79});
        if (*mode.pPanel) Put(painter, mode.pPanel, {0, 111});
        // The states go round along the row, so that each view shows them all.
        int nKey = static_cast<unsigned char>(mode.pName[0]);
        for (const CSkinLine& line : m_arrLines) {
            if (line.strKind == "tab" && line.strName != mode.pTab)
                Put(painter, line.strName + "U", line.rcPlace.topLeft());
            if (line.strKind == "label" && line.arrRest[0] == mode.pSource)
                Put(painter, line.strName, line.rcPlace.topLeft());
            if (line.strKind != "key" || line.strName == "MINIMIZE") continue;
            const bool bTop = line.rcPlace.y() == 16 && line.arrRest[0] == "effect";
            if (!bTop && (line.arrRest[0] != mode.pSource || qstrcmp(mode.pName, "thum") == 0)) continue;
            const QString& strStates = line.arrRest[1];
            Put(painter, line.strName + strStates[nKey++ % strStates.size()], line.rcPlace.topLeft());
        }
        DrawControls(painter, mode);
        return image;
    }

    QImage Dialog(const CDialogView& view) const {
        QImage image = m_mapPictures.at(view.pGround).convertToFormat(QImage::Format_RGB32);
        QPainter painter(&image);
        for (const CSkinLine& line : m_arrLines) {
            if (line.strKind == "label" && line.arrRest[0] == view.pSource)
                Put(painter, line.strName, line.rcPlace.topLeft());
            if (line.strKind == "strip" && line.strName == view.pStrip) {
                Put(painter, line.strName, line.rcPlace.topLeft());
                Put(painter, view.pFrame, {7, 7});
            }
            if (line.strKind != "key") continue;
            const bool bSizeKey = line.strName == "SIZEOK" || line.strName == "SIZECANCEL";
            if (bSizeKey ? !view.bSizeKeys : line.arrRest[0] != view.pSource) continue;
            const QString& strStates = line.arrRest[1];
            Put(painter, line.strName + strStates[view.nShift % strStates.size()], line.rcPlace.topLeft());
        }
        return image;
    }

    // The window with every hint at its place; those of the tabs stand two rows apart, since they overlap.
    QImage Hints() const {
        QImage image = m_mapPictures.at("522").convertToFormat(QImage::Format_RGB32);
        QPainter painter(&image);
        Put(painter, "486", {0, 79});
        int nRow = 0;
        for (const CSkinLine& line : m_arrLines) {
            if (line.strKind != "hint") continue;
            Put(painter, line.strName,
                line.rcPlace.topLeft() + QPoint(0, nRow % 3 * 20 + (line.rcPlace.y() > 100 ? 2 : 0)));
            ++nRow;
        }
        return image;
    }

    // What stands alone, side by side.
    QImage Loose() const {
        QImage image(QSize(900, 520) * m_nDensity, QImage::Format_RGB32);
        image.fill(QColor(110, 121, 127));
        QPainter painter(&image);
        Put(painter, "274", {10, 10});
        Put(painter, "413", {470, 10});
        Put(painter, "415", {600, 10});
        Put(painter, "606", {740, 10});
        Put(painter, "610", {770, 10});
        Put(painter, "128", {810, 10});
        int y = 150;
        for (const char* pName : {"168", "169", "175", "177", "176", "174"}) {
            Put(painter, pName, {470, y});
            y += 26;
        }
        int x = 560;
        for (const int nSize : {16, 32, 48, 64, 128}) {
            const QImage& icon = m_mapPictures.at(QString("icon-%1").arg(nSize));
            painter.drawImage(QPoint(x, 150) * m_nDensity, icon);
            x += nSize + 10;
        }
        return image;
    }

  private:
    void Put(QPainter& painter, const QString& strName, QPoint ptPlace) const {
        painter.drawImage(ptPlace * m_nDensity, m_mapPictures.at(strName));
    }

    void Fill(QPainter& painter, const QRect& rc, const QColor& cr) const {
        painter.fillRect(QRect(rc.topLeft() * m_nDensity, rc.size() * m_nDensity), cr);
    }

    // Plain boxes for the controls that are no pictures, in their own colours.
    void DrawControls(QPainter& painter, const CMode& mode) const {
        const QString strMode = mode.pName;
        Fill(painter, {342, 96, 404, 17}, Of(Grounds::kInfo));
        Fill(painter, {55, 678, 680, 12}, Of(Grounds::kHelp));
        if (strMode == "thum") {
            Fill(painter, {37, 130, 250, 544}, Of(Grounds::kList));
            Fill(painter, {325, 129, 658, 543}, Of(Grounds::kList));
        }
        if (strMode == "effect") {
            Fill(painter, {58, 149, 206, 276}, Of(Grounds::kList));
            Fill(painter, {239, 488, 24, 132}, Of(Grounds::kInfo));
            painter.drawImage(QPoint(240, 488) * m_nDensity, m_mapPictures.at("606"),
                              QRect(0, m_nDensity, 22 * m_nDensity, 132 * m_nDensity));
            Fill(painter, {236, 468, 30, 14}, Of(Grounds::kLevel));
            QImage thumb = m_mapPictures.at("610");
            const QColor crGround = thumb.pixelColor(0, 0);
            for (int y = 0; y < thumb.height(); ++y)
                for (int x = 0; x < 24 * m_nDensity; ++x)
                    if (thumb.pixelColor(x, y) != crGround)
                        painter.fillRect(239 * m_nDensity + x, 547 * m_nDensity + y, 1, 1,
                                         thumb.pixelColor(x, y));
        }
        if (strMode == "draw") {
            Put(painter, "168", {171, 349});
            Put(painter, "176", {171, 369});
            Put(painter, "175", {171, 394});
        }
    }

    const std::vector<CSkinLine>& m_arrLines;
    const std::map<QString, QImage>& m_mapPictures;
    int m_nDensity;
};

}  // namespace

bool WriteCompositions(const std::vector<CSkinLine>& arrLines, const std::map<QString, QImage>& mapPictures,
                       const QString& strOut, int nDensity) {
    if (!QDir().mkpath(strOut)) return false;
    const CComposer composer(arrLines, mapPictures, nDensity);
    const auto Save = [&](const QImage& image, const QString& strName) {
        return image.save(QString("%1/%2-%3x.png").arg(strOut, strName).arg(nDensity), "PNG");
    };
    for (const CMode& mode : kModes) {
        if (!Save(composer.Mode(mode), mode.pName)) return false;
    }
    for (const CDialogView& view : kDialogs) {
        if (!Save(composer.Dialog(view), view.pName)) return false;
    }
    return Save(composer.Hints(), "hints") && Save(composer.Loose(), "loose");
}
