#pragma once

#include <string>
#include <vector>

#include "image/Pixels.h"

// The window that shows a list of icons.
class CIconListObserver {
  public:
    virtual ~CIconListObserver() = default;
    // All items are new.
    virtual void OnIconsReset() = 0;
    // An item has a new picture.
    virtual void OnIconChanged(int nItem) = 0;
    // The selection has been changed by the program.
    virtual void OnIconsSelected() = 0;
};

// The logic behind a list of icons. nItem is -1 where the hand met no item.
class CIconListSink {
  public:
    virtual ~CIconListSink() = default;
    virtual void OnItemClick(int nItem) = 0;
    virtual void OnItemDoubleClick(int nItem) = 0;
    virtual void OnEnter() = 0;
    virtual void OnKeyDown(int nKey, bool bShift) = 0;
    virtual void OnRightPress(int nItem) = 0;
    virtual void OnLeftPress() = 0;
    virtual void OnLeftRelease() = 0;
    virtual void OnMouseMove() = 0;
};

// A list of pictures with names below, as data. Items are numbered from 0 in the order in which they stand.
class CIconListModel {
  public:
    void SetSink(CIconListSink* pSink) { m_pSink = pSink; }
    CIconListSink* Sink() const { return m_pSink; }
    void Attach(CIconListObserver* pObserver) { m_pObserver = pObserver; }

    int Count() const { return static_cast<int>(m_arrItems.size()); }
    const std::string& Text(int nItem) const { return At(nItem).strText; }
    // Empty for a cell without a picture.
    const CPixels& Picture(int nItem) const { return At(nItem).pixels; }
    bool IsSelected(int nItem) const { return At(nItem).bSelected; }
    int SelectedCount() const;
    // In the order of the list.
    std::vector<int> SelectedItems() const;

    // Replaces all items by new ones without pictures, none selected.
    void SetItems(const std::vector<std::string>& arrTexts);
    void SetPicture(int nItem, CPixels pixels);
    void Select(int nItem, bool bSelect);
    // What the user has selected; tells the observer nothing.
    void TakeSelection(const std::vector<int>& arrItems);

  private:
    struct CItem {
        std::string strText;
        CPixels pixels;
        bool bSelected = false;
    };
    const CItem& At(int nItem) const { return m_arrItems[static_cast<std::size_t>(nItem)]; }

    std::vector<CItem> m_arrItems;
    CIconListSink* m_pSink = nullptr;
    CIconListObserver* m_pObserver = nullptr;
};
