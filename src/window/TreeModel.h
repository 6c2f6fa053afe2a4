#pragma once

#include <string>
#include <unordered_map>
#include <vector>

// An item of a tree. Numbers are never used twice.
using CTreeItem = int;
inline constexpr CTreeItem kNoTreeItem = 0;

// What stands before an item's text.
enum class ETreeIcon { Computer, Home, Disk, Removable, Network, Folder };

// Why the selection has changed.
enum class ETreeCause { Unknown, Mouse, Keyboard, Other };

// The window that shows a tree.
class CTreeObserver {
  public:
    virtual ~CTreeObserver() = default;
    virtual void OnTreeInserted(CTreeItem item) = 0;
    // The item and all below it are about to go.
    virtual void OnTreeDeleting(CTreeItem item) = 0;
    // The has-children mark has changed.
    virtual void OnTreeMarked(CTreeItem item) = 0;
    virtual void OnTreeExpanded(CTreeItem item, bool bExpanded) = 0;
    virtual void OnTreeSelected(CTreeItem item) = 0;
};

// The logic behind a tree.
class CTreeSink {
  public:
    virtual ~CTreeSink() = default;
    // An item is about to be opened or closed. Children that it is given here are there when it has opened.
    virtual void OnItemExpanding(CTreeItem item, bool bExpand) = 0;
    virtual void OnSelectionChanged(CTreeItem item, ETreeCause cause) = 0;
};

// A tree control as data: texts, icons, has-children marks, what is open and what is selected. Like the
// platform's, it tells its logic of an opening by the program only the first time, of one by the user each
// time.
class CTreeModel {
  public:
    void SetSink(CTreeSink* pSink) { m_pSink = pSink; }
    void Attach(CTreeObserver* pObserver) { m_pObserver = pObserver; }

    // At the end of the parent's children, or where the text belongs without regard to case. kNoTreeItem as
    // parent makes a top item.
    CTreeItem InsertLast(CTreeItem parent, const std::string& strText, ETreeIcon icon, bool bHasChildren);
    CTreeItem InsertSorted(CTreeItem parent, const std::string& strText, ETreeIcon icon, bool bHasChildren);
    // The selection that goes with it is lost without a word.
    void Delete(CTreeItem item);
    void DeleteAll();
    void DeleteChildren(CTreeItem item);

    bool Exists(CTreeItem item) const { return m_mapNodes.contains(item); }
    const std::string& Text(CTreeItem item) const { return m_mapNodes.at(item).strText; }
    ETreeIcon Icon(CTreeItem item) const { return m_mapNodes.at(item).icon; }
    bool HasChildrenMark(CTreeItem item) const { return m_mapNodes.at(item).bHasChildren; }
    bool IsExpanded(CTreeItem item) const { return m_mapNodes.at(item).bExpanded; }
    CTreeItem Parent(CTreeItem item) const { return m_mapNodes.at(item).parent; }
    // In the order in which they are shown; of kNoTreeItem the top items.
    const std::vector<CTreeItem>& Children(CTreeItem item) const;
    CTreeItem Selected() const { return m_selected; }

    void SetHasChildrenMark(CTreeItem item, bool bHasChildren);
    // By the program, or by the user's hand. An item without children does not open.
    void Expand(CTreeItem item, bool bByUser = false);
    void Collapse(CTreeItem item, bool bByUser = false);
    // Selecting what is selected already tells nobody. Opens all above the item.
    void Select(CTreeItem item, ETreeCause cause = ETreeCause::Unknown);

  private:
    struct CNode {
        std::string strText;
        ETreeIcon icon = ETreeIcon::Folder;
        CTreeItem parent = kNoTreeItem;
        std::vector<CTreeItem> arrChildren;
        bool bHasChildren = false;
        bool bExpanded = false;
        bool bExpandedOnce = false;
    };

    CTreeItem Insert(CTreeItem parent, std::size_t nPlace, const std::string& strText, ETreeIcon icon,
                     bool bHasChildren);
    std::vector<CTreeItem>& ChildrenOf(CTreeItem item);
    void Forget(CTreeItem item);

    std::unordered_map<CTreeItem, CNode> m_mapNodes;
    std::vector<CTreeItem> m_arrTop;
    CTreeItem m_nextItem = 1;
    CTreeItem m_selected = kNoTreeItem;
    CTreeSink* m_pSink = nullptr;
    CTreeObserver* m_pObserver = nullptr;
};
