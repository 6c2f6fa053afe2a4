#include "qt/PdfDevice.h"

#include <QApplication>
#include <utility>

#include "qt/Text.h"

namespace {

// At half as many, a picture of 12 megapixels that fills the page would lose every fifth row and column.
constexpr int kDotsPerInch = 600;
constexpr std::size_t kBufferBytes = std::size_t{1} << 16;

}  // namespace

bool CWholeFile::Open(const std::string& strPath) {
    m_buffer.reserve(kBufferBytes);
    return m_file.Open(strPath) && open(WriteOnly | Unbuffered);
}

qint64 CWholeFile::readData(char*, qint64) {
    return -1;
}

qint64 CWholeFile::writeData(const char* pBytes, qint64 nBytes) {
    if (m_bFailed) return -1;
    m_buffer.insert(m_buffer.end(), pBytes, pBytes + nBytes);
    if (m_buffer.size() >= kBufferBytes) Flush();
    return m_bFailed ? -1 : nBytes;
}

void CWholeFile::Flush() {
    m_bFailed = m_bFailed || !m_file.Write(m_buffer);
    m_buffer.clear();
}

bool CWholeFile::Commit() {
    Flush();
    close();
    return !m_bFailed && m_file.Commit();
}

QPageLayout CPdfDevice::Paper() {
    return {QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()};
}

CFileDialogRequest CPdfDevice::Request() {
    return {"PDF Files (*.pdf)|*.pdf||", "打印.pdf", "pdf"};
}

CPdfDevice::CPdfDevice(std::string strPath, const QPageLayout& layout)
    : m_strPath(std::move(strPath)), m_layout(layout) {}

CPdfDevice::~CPdfDevice() {
    AbortDocument();
}

CSize CPdfDevice::DotsPerInch() const {
    return {kDotsPerInch, kDotsPerInch};
}

CSize CPdfDevice::PrintableDots() const {
    const QRect rect = m_layout.paintRectPixels(kDotsPerInch);
    return {rect.width(), rect.height()};
}

bool CPdfDevice::StartDocument(const std::string& strName) {
    AbortDocument();
    m_pFile = std::make_unique<CWholeFile>();
    if (!m_pFile->Open(m_strPath)) return false;
    m_pWriter = std::make_unique<QPdfWriter>(m_pFile.get());
    m_pWriter->setResolution(kDotsPerInch);
    m_pWriter->setTitle(ToQt(strName));
    m_pWriter->setCreator(QApplication::applicationName());
    return m_pWriter->setPageLayout(m_layout) && m_bands.Begin(*m_pWriter);
}

bool CPdfDevice::DrawPixels(const CPixels& pixels, CPoint pt) {
    return m_pWriter && m_bands.Draw(pixels, pt) && !m_pFile->HasFailed();
}

bool CPdfDevice::EndDocument() {
    const bool bWhole = m_bands.End() && m_pFile->Commit();
    AbortDocument();
    return bWhole;
}

void CPdfDevice::AbortDocument() {
    static_cast<void>(m_bands.End());
    m_pWriter.reset();
    m_pFile.reset();
}
