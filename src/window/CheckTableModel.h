#pragma once

#include <string>
#include <utility>
#include <vector>

// The window that shows a table.
class CCheckTableObserver {
  public:
    virtual ~CCheckTableObserver() = default;
    // All rows are new, or stand in another order.
    virtual void OnRowsReset() = 0;
    // A row has been ticked or unticked, by whomever.
    virtual void OnRowTicked(int nRow) = 0;
};

// Rows of texts with a box to tick before each. Rows are numbered from 0 as they stand.
class CCheckTableModel {
  public:
    struct CRow {
        std::vector<std::string> arrTexts;  // one a column
        int nData = 0;                      // the owner's; goes with the row
        bool bTicked = false;
    };

    void Attach(CCheckTableObserver* pObserver) { m_pObserver = pObserver; }

    int Count() const { return static_cast<int>(m_arrRows.size()); }
    const CRow& Row(int nRow) const { return m_arrRows[static_cast<std::size_t>(nRow)]; }

    void SetRows(std::vector<CRow> arrRows) {
        m_arrRows = std::move(arrRows);
        if (m_pObserver != nullptr) m_pObserver->OnRowsReset();
    }
    void Tick(int nRow, bool bTick) {
        m_arrRows[static_cast<std::size_t>(nRow)].bTicked = bTick;
        if (m_pObserver != nullptr) m_pObserver->OnRowTicked(nRow);
    }
    void TickAll(bool bTick) {
        for (int nRow = 0; nRow < Count(); ++nRow) Tick(nRow, bTick);
    }

  private:
    std::vector<CRow> m_arrRows;
    CCheckTableObserver* m_pObserver = nullptr;
};
