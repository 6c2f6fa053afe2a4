#pragma once

#include <QIODevice>
#include <QPageLayout>
#include <QPdfWriter>
#include <memory>
#include <vector>

#include "image/AtomicFile.h"
#include "qt/BandPainter.h"
#include "window/FileDialogs.h"
#include "window/Printers.h"

// A file as Qt's PDF engine writes it, there as a whole or not at all. The engine passes over what goes
// wrong: the file remembers it.
class CWholeFile : public QIODevice {
  public:
    [[nodiscard]] bool Open(const std::string& strPath);
    bool HasFailed() const { return m_bFailed; }
    // False, and the file is as it was before, if anything has failed.
    [[nodiscard]] bool Commit();

  protected:
    qint64 readData(char* pBytes, qint64 nBytes) override;
    qint64 writeData(const char* pBytes, qint64 nBytes) override;

  private:
    void Flush();

    CAtomicFile m_file;
    std::vector<std::uint8_t> m_buffer;
    bool m_bFailed = false;
};

// Our own printer: a PDF file of one page that a picture may fill to its edges.
class CPdfDevice : public CPrintDevice {
  public:
    // Upright A4.
    static QPageLayout Paper();
    // Asks where the file is to go.
    static CFileDialogRequest Request();

    explicit CPdfDevice(std::string strPath, const QPageLayout& layout = Paper());
    ~CPdfDevice() override;
    CPdfDevice(const CPdfDevice&) = delete;
    CPdfDevice& operator=(const CPdfDevice&) = delete;

    CSize DotsPerInch() const override;
    CSize PrintableDots() const override;
    [[nodiscard]] bool StartDocument(const std::string& strName) override;
    [[nodiscard]] bool DrawPixels(const CPixels& pixels, CPoint pt) override;
    [[nodiscard]] bool EndDocument() override;
    void AbortDocument() override;

  private:
    std::string m_strPath;
    QPageLayout m_layout;
    std::unique_ptr<CWholeFile> m_pFile;
    std::unique_ptr<QPdfWriter> m_pWriter;
    CBandPainter m_bands;
};
