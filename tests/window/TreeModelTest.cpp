#include "window/TreeModel.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// Notes what the logic and the window are told, and gives a node its children when it opens.
class CTreeWitness : public CTreeSink, public CTreeObserver {
  public:
    explicit CTreeWitness(CTreeModel& model) : m_model(model) {
        m_model.SetSink(this);
        m_model.Attach(this);
    }
    void OnItemExpanding(CTreeItem item, bool bExpand) override {
        Say(bExpand ? "opening" : "closing", item);
        if (bExpand && m_nChildren > 0) m_model.InsertLast(item, "child", ETreeIcon::Folder, false);
    }
    void OnSelectionChanged(CTreeItem item, ETreeCause cause) override {
        Say("selection by " + std::to_string(static_cast<int>(cause)), item);
    }
    void OnTreeInserted(CTreeItem item) override { Say("new", item); }
    // It must still be there to be looked at.
    void OnTreeDeleting(CTreeItem item) override { Say("gone " + m_model.Text(item), item); }
    void OnTreeMarked(CTreeItem item) override { Say("mark", item); }
    void OnTreeExpanded(CTreeItem item, bool bExpanded) override { Say(bExpanded ? "open" : "closed", item); }
    void OnTreeSelected(CTreeItem item) override { Say("select", item); }
    std::string Take() { return std::exchange(m_strWords, {}); }

    int m_nChildren = 0;

  private:
    void Say(const std::string& strWord, CTreeItem item) {
        m_strWords += strWord + " " + std::to_string(item) + ", ";
    }
    CTreeModel& m_model;
    std::string m_strWords;
};

class TreeModelTest : public testing::Test {
  protected:
    CTreeItem Add(CTreeItem parent, const char* szText) {
        return m_model.InsertLast(parent, szText, ETreeIcon::Folder, true);
    }
    CTreeModel m_model;
    CTreeWitness m_witness{m_model};
    CTreeItem m_top = Add(kNoTreeItem, "top");
};

}  // namespace

TEST_F(TreeModelTest, AnOpeningIsToldOnceToTheProgramAndAlwaysToTheHand) {
    m_witness.Take();
    // Nothing in it: it stays closed and is not yet counted as opened.
    m_model.Expand(m_top);
    m_model.Expand(m_top);
    EXPECT_EQ(m_witness.Take(), "opening 1, opening 1, ");
    EXPECT_FALSE(m_model.IsExpanded(m_top));
    m_witness.m_nChildren = 1;
    m_model.Expand(m_top);
    EXPECT_EQ(m_witness.Take(), "opening 1, new 2, open 1, ");
    m_witness.m_nChildren = 0;
    m_model.Expand(m_top);
    EXPECT_EQ(m_witness.Take(), "");
    m_model.Expand(m_top, true);
    EXPECT_EQ(m_witness.Take(), "opening 1, ");
    m_model.Collapse(m_top, true);
    m_model.Collapse(m_top);
    EXPECT_EQ(m_witness.Take(), "closing 1, closed 1, ");
    m_model.Expand(m_top);
    m_model.Collapse(m_top);
    EXPECT_EQ(m_witness.Take(), "open 1, closed 1, ");
}

TEST_F(TreeModelTest, ASelectionOpensAllAboveAndIsToldOnce) {
    const CTreeItem mid = Add(m_top, "mid");
    const CTreeItem low = Add(mid, "low");
    m_witness.Take();
    m_model.Select(low, ETreeCause::Mouse);
    m_model.Select(low, ETreeCause::Keyboard);
    EXPECT_EQ(m_witness.Take(), "opening 2, open 2, opening 1, open 1, select 3, selection by 1 3, ");
    m_model.Select(99);
    EXPECT_EQ(m_model.Selected(), low);
    m_model.Select(kNoTreeItem, ETreeCause::Keyboard);
    EXPECT_EQ(m_witness.Take(), "select 0, selection by 2 0, ");
}

TEST_F(TreeModelTest, WhatIsDeletedGoesWithAllBelowAndItsNumberNeverReturns) {
    const CTreeItem mid = Add(m_top, "mid");
    const CTreeItem low = Add(mid, "low");
    const CTreeItem other = Add(m_top, "other");
    m_model.Select(low);
    m_witness.Take();
    m_model.Delete(mid);
    m_model.Delete(mid);
    EXPECT_EQ(m_witness.Take(), "gone mid 2, ");
    EXPECT_EQ(m_model.Selected(), kNoTreeItem);
    EXPECT_FALSE(m_model.Exists(mid) || m_model.Exists(low));
    EXPECT_EQ(m_model.Children(m_top), std::vector<CTreeItem>{other});
    m_model.Expand(low, true);
    m_model.Collapse(low, true);
    m_model.DeleteAll();
    EXPECT_TRUE(m_model.Children(kNoTreeItem).empty());
    EXPECT_EQ(Add(kNoTreeItem, "new"), 5);
}

TEST_F(TreeModelTest, SortedChildrenStandInTheOrderOfTheirTextsWithoutCase) {
    for (const char* szText : {"b", "B", "a", "Ab", "A", "aB", "ab", "\xE7", "z", "", "_"})
        m_model.InsertSorted(m_top, szText, ETreeIcon::Folder, false);
    std::string strOrder;
    for (const CTreeItem item : m_model.Children(m_top)) strOrder += m_model.Text(item) + " ";
    EXPECT_EQ(strOrder, " _ A a Ab aB ab B b z \xE7 ");
}
