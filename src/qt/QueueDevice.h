#pragma once

#include <QTemporaryFile>
#include <memory>

#include "window/Printers.h"

class QPrinter;

// A queue of the system. What is drawn waits in a file of our own until the document ends, because Qt cannot
// take back a page that it has begun: it prints what there is of it.
class CQueueDevice : public CPrintDevice {
  public:
    // The printer as the user has set it up.
    explicit CQueueDevice(std::unique_ptr<QPrinter> pPrinter);
    ~CQueueDevice() override;
    CQueueDevice(const CQueueDevice&) = delete;
    CQueueDevice& operator=(const CQueueDevice&) = delete;

    CSize DotsPerInch() const override;
    CSize PrintableDots() const override;
    [[nodiscard]] bool StartDocument(const std::string& strName) override;
    [[nodiscard]] bool DrawPixels(const CPixels& pixels, CPoint pt) override;
    [[nodiscard]] bool EndDocument() override;
    void AbortDocument() override;

  private:
    [[nodiscard]] bool HasRoom() const;
    [[nodiscard]] bool Replay();

    std::unique_ptr<QPrinter> m_pPrinter;
    std::unique_ptr<QTemporaryFile> m_pKept;
};
