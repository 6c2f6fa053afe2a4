#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QImageReader>
#include <QProcess>
#include <cstdlib>
#include <sstream>
#include <string>

#include "image/Pixels.h"

// What a program says; the test fails with it.
inline QByteArray RunTool(const QString& strProgram, const QStringList& arrArguments) {
    QProcess process;
    process.start(strProgram, arrArguments);
    EXPECT_TRUE(process.waitForFinished(60000)) << strProgram.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

// A printed file as a viewer has it.
class CPrintedPage {
  public:
    explicit CPrintedPage(const std::string& strPath) : m_strPath(QString::fromStdString(strPath)) {}

    // What the document says of itself after "NAME:".
    std::string Says(const std::string& strName) const {
        for (const QByteArray& line : RunTool("pdfinfo", {m_strPath}).split('\n'))
            if (line.startsWith((strName + ":").c_str()))
                return line.mid(static_cast<qsizetype>(strName.size()) + 1).trimmed().toStdString();
        return {};
    }
    // The page as it looks at this many dots an inch, drawn by "pdftoppm" or "pdftocairo".
    QImage Render(int nDpi, const QString& strProgram = "pdftoppm") const {
        QStringList arrArguments = {"-r", QString::number(nDpi), "-png", "-singlefile", m_strPath};
        if (strProgram == "pdftocairo") arrArguments += "-";  // else a file of that name
        QImageReader::setAllocationLimit(0);
        QImage image;
        image.loadFromData(RunTool(strProgram, arrArguments));
        return image.convertToFormat(QImage::Format_RGB32);
    }

  private:
    QString m_strPath;
};

// Tiles of a few colours: each dot differs from some neighbour's, and a row from the row above.
inline CPixels MakeTiles(int nWidth, int nHeight) {
    CPixels pixels;
    EXPECT_TRUE(pixels.CreateRaw(nWidth, nHeight));
    std::uint8_t* p = pixels.MutableBytes().data();
    for (int y = 0; y < nHeight; ++y)
        for (int x = 0; x < nWidth; ++x) {
            *p++ = static_cast<std::uint8_t>(x % 5 * 50);
            *p++ = static_cast<std::uint8_t>(y % 7 * 30);
            *p++ = static_cast<std::uint8_t>((x / 5 + y / 7) % 2 * 200);
        }
    return pixels;
}

inline CPixels RowsOf(const CPixels& pixels, int nTop, int nRows) {
    CPixels rows;
    EXPECT_TRUE(rows.CreateRaw(pixels.Width(), nRows));
    const auto bytes =
        pixels.Bytes().subspan(pixels.Stride() * static_cast<std::size_t>(nTop), rows.Bytes().size());
    std::copy(bytes.begin(), bytes.end(), rows.MutableBytes().begin());
    return rows;
}

// The page of a picture whose left upper corner stands there; white elsewhere.
inline QImage PageWith(const CPixels& pixels, QPoint pt, QSize size) {
    QImage page(size, QImage::Format_RGB32);
    page.fill(Qt::white);
    for (int y = 0; y < pixels.Height(); ++y)
        for (int x = 0; x < pixels.Width(); ++x) {
            const std::uint8_t* p = pixels.Row(y).data() + 3 * static_cast<std::ptrdiff_t>(x);
            if (page.rect().contains(pt.x() + x, pt.y() + y))
                page.setPixel(pt.x() + x, pt.y() + y, qRgb(p[0], p[1], p[2]));
        }
    return page;
}

// Where they first differ, for a message; empty if nowhere. Viewers round colours by one.
inline std::string FirstDifference(const QImage& a, const QImage& b) {
    const auto fnNear = [](QRgb x, QRgb y) {
        return std::abs(qRed(x) - qRed(y)) <= 1 && std::abs(qGreen(x) - qGreen(y)) <= 1 &&
               std::abs(qBlue(x) - qBlue(y)) <= 1;
    };
    std::ostringstream text;
    if (a.size() != b.size())
        text << "sizes " << a.width() << 'x' << a.height() << " and " << b.width() << 'x' << b.height();
    for (int y = 0; y < b.height() && text.tellp() == 0; ++y)
        for (int x = 0; x < b.width() && text.tellp() == 0; ++x)
            if (!fnNear(a.pixel(x, y), b.pixel(x, y)))
                text << x << ',' << y << std::hex << ": " << a.pixel(x, y) << " and " << b.pixel(x, y);
    return text.str();
}
