#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "window/ControlSet.h"

// A list box whose rows are pictures and hold no text. A row's whole content is one cell of an image list; a
// selected row looks as its cell does, so whoever owns the list puts the selected form into the cell. Cells
// are named by the skin's pictures.
class CImageListBox {
  public:
    // The controls outlive the list box; the control is of kind PictureList.
    CImageListBox(CControlSet& controls, int nId) : m_controls(controls), m_nId(nId) {}

    // The pictures of the cells, all of the same size in pixels. Before any row is added.
    void SetImageList(std::vector<std::string> arrCells, CSize sizeCell);
    // Another picture for one cell. Rows that show it are drawn anew.
    void ReplaceCell(int nCell, const std::string& strPicture);

    // Adds a row that shows the cell; a cell of the number of cells passes, and shows nothing until there is
    // one. The row's index; -1 for a cell beyond that.
    // strSpoken: what the row's picture shows, for whoever has it read aloud.
    int AddItem(int nImage, std::uint32_t dwData, std::string strSpoken = {});
    // -1 if the row does not exist.
    std::int64_t GetItemData(int nRow) const;
    // False if the row does not exist.
    bool SetItemData(int nRow, std::uint32_t dwData);

    int Count() const { return static_cast<int>(m_arrRows.size()); }
    // In pixels; at least the cells' height.
    int ItemHeight() const { return m_nItemHeight; }
    void SetItemHeight(int nHeight);
    int Selection() const { return m_controls.Selection(m_nId); }
    void Select(int nRow) { m_controls.Select(m_nId, nRow); }

  private:
    struct CRow {
        int nImage = -1;
        std::uint32_t dwData = 0;
        std::string strSpoken{};
    };
    void ShowRows();

    CControlSet& m_controls;
    int m_nId;
    std::vector<std::string> m_arrCells;
    int m_nImageHeight = 0;
    int m_nItemHeight = 0;
    std::vector<CRow> m_arrRows;
};
