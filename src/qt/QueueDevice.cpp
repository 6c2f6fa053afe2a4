#include "qt/QueueDevice.h"

#include <QDir>
#include <QPrinter>
#include <QPrinterInfo>
#include <QStorageInfo>
#include <algorithm>
#include <utility>

#include "qt/BandPainter.h"
#include "qt/PrintQueue.h"
#include "qt/Text.h"

namespace {

// Before the rows of each piece.
struct CPieceHead {
    CPoint pt;
    CSize size;
};
constexpr int kPieceRows = 256;

bool WriteAll(QIODevice& file, const void* pBytes, std::size_t nBytes) {
    const auto n = static_cast<qint64>(nBytes);
    return file.write(static_cast<const char*>(pBytes), n) == n;
}

bool ReadAll(QIODevice& file, void* pBytes, std::size_t nBytes) {
    const auto n = static_cast<qint64>(nBytes);
    return file.read(static_cast<char*>(pBytes), n) == n;
}

bool IsThere(const QPrinter& printer) {
    return !QPrinterInfo::printerInfo(printer.printerName()).isNull();
}

}  // namespace

CQueueDevice::CQueueDevice(std::unique_ptr<QPrinter> pPrinter) : m_pPrinter(std::move(pPrinter)) {}

CQueueDevice::~CQueueDevice() = default;

CSize CQueueDevice::DotsPerInch() const {
    return {m_pPrinter->resolution(), m_pPrinter->resolution()};
}

CSize CQueueDevice::PrintableDots() const {
    return {m_pPrinter->width(), m_pPrinter->height()};
}

bool CQueueDevice::StartDocument(const std::string& strName) {
    AbortDocument();
    if (!IsThere(*m_pPrinter)) return false;
    m_pPrinter->setDocName(ToQt(strName));
    m_pKept = std::make_unique<QTemporaryFile>();
    return m_pKept->open();
}

bool CQueueDevice::DrawPixels(const CPixels& pixels, CPoint pt) {
    if (!m_pKept) return false;
    for (int y = 0; y < pixels.Height(); y += kPieceRows) {
        const int nRows = std::min(kPieceRows, pixels.Height() - y);
        const CPieceHead head{{pt.x, pt.y + y}, {pixels.Width(), nRows}};
        if (!WriteAll(*m_pKept, &head, sizeof(head)) ||
            !WriteAll(*m_pKept, pixels.Row(y).data(), pixels.Stride() * static_cast<std::size_t>(nRows)))
            return false;
    }
    return m_pKept->flush();
}

// For the document that Qt is going to write beside what is kept, as large as that at worst: Qt would send
// half of one as well, and has its bands' last rows twice.
bool CQueueDevice::HasRoom() const {
    constexpr qint64 kFrame = qint64{1} << 20;
    return QStorageInfo(QDir::tempPath()).bytesAvailable() > m_pKept->size() * 5 / 4 + kFrame;
}

bool CQueueDevice::Replay() {
    CBandPainter bands;
    if (!m_pKept->seek(0) || !bands.Begin(*m_pPrinter)) return false;
    bool bWhole = true;
    CPieceHead head;
    while (bWhole && !m_pKept->atEnd()) {
        CPixels pixels;
        bWhole = ReadAll(*m_pKept, &head, sizeof(head)) && pixels.CreateRaw(head.size.cx, head.size.cy) &&
                 ReadAll(*m_pKept, pixels.MutableBytes().data(), pixels.Bytes().size()) &&
                 bands.Draw(pixels, head.pt);
    }
    return bands.End() && bWhole;
}

bool CQueueDevice::EndDocument() {
    const bool bDone = m_pKept && IsThere(*m_pPrinter) && HasRoom() && Replay() && WasJobTaken();
    AbortDocument();
    return bDone;
}

void CQueueDevice::AbortDocument() {
    m_pKept.reset();
}
