#include "controls/ImageListBox.h"

#include <gtest/gtest.h>

namespace {

constexpr CControlTemplate kControls[] = {{1, EControlKind::PictureList, CRect::FromPlace(0, 0, 206, 276)}};

class ImageListBox : public testing::Test {
  protected:
    ImageListBox() : m_controls(kControls), m_list(m_controls, 1) {
        m_list.SetImageList({"a", "b", "c"}, {189, 68});
    }
    std::vector<std::string> Rows() const {
        std::vector<std::string> arrRows;
        for (const CListItem& item : m_controls.Find(1)->arrItems) arrRows.push_back(item.strText);
        return arrRows;
    }

    CControlSet m_controls;
    CImageListBox m_list;
};

}  // namespace

TEST_F(ImageListBox, RowsShowTheirCells) {
    EXPECT_EQ(m_list.AddItem(2, 0), 0);
    EXPECT_EQ(m_list.AddItem(0, 0), 1);
    EXPECT_EQ(m_list.AddItem(2, 0), 2);
    EXPECT_EQ(Rows(), (std::vector<std::string>{"c", "a", "c"}));
    m_list.Select(1);
    m_list.ReplaceCell(2, "C");
    EXPECT_EQ(Rows(), (std::vector<std::string>{"C", "a", "C"})) << "every row that shows the cell";
    EXPECT_EQ(m_list.Selection(), 1) << "rows and selection stay";
    m_list.ReplaceCell(3, "x");
    m_list.ReplaceCell(-1, "x");
    EXPECT_EQ(Rows(), (std::vector<std::string>{"C", "a", "C"}));
}

TEST_F(ImageListBox, ACellThatIsNotThereYet) {
    EXPECT_EQ(m_list.AddItem(4, 0), -1);
    EXPECT_EQ(m_list.Count(), 0);
    EXPECT_EQ(m_list.AddItem(3, 0), 0) << "the number of cells itself passes";
    EXPECT_EQ(m_list.AddItem(-1, 0), 1);
    EXPECT_EQ(Rows(), (std::vector<std::string>{"", ""}));
    m_list.SetImageList({"a", "b", "c", "d"}, {189, 68});
    m_list.AddItem(0, 0);
    EXPECT_EQ(Rows(), (std::vector<std::string>{"d", "", "a"})) << "shown once there is one";
}

TEST_F(ImageListBox, TheCallersValueOfARow) {
    m_list.AddItem(0, 0xFFFFFFFFU);
    m_list.AddItem(1, 7);
    EXPECT_EQ(m_list.GetItemData(0), 0xFFFFFFFFLL) << "not the same as no row";
    EXPECT_TRUE(m_list.SetItemData(1, 9));
    EXPECT_EQ(m_list.GetItemData(1), 9);
    for (const int nRow : {-1, 2}) {
        EXPECT_EQ(m_list.GetItemData(nRow), -1);
        EXPECT_FALSE(m_list.SetItemData(nRow, 1));
    }
}

TEST_F(ImageListBox, RowsAreAtLeastAsHighAsTheirPictures) {
    EXPECT_EQ(m_list.ItemHeight(), 68);
    m_list.SetItemHeight(80);
    EXPECT_EQ(m_list.ItemHeight(), 80);
    m_list.SetItemHeight(0x10000 + 70);
    EXPECT_EQ(m_list.ItemHeight(), 70) << "only the low 16 bits count";
    m_list.SetItemHeight(10);
    EXPECT_EQ(m_list.ItemHeight(), 68);
}
