#include "window/IconListModel.h"

#include <gtest/gtest.h>

namespace {

class CIconWitness : public CIconListObserver {
  public:
    void OnIconsReset() override { m_strWords += "reset "; }
    void OnIconChanged(int nItem) override { m_strWords += std::to_string(nItem) + " "; }
    void OnIconsSelected() override { m_strWords += "selected "; }
    std::string Take() { return std::exchange(m_strWords, {}); }

  private:
    std::string m_strWords;
};

}  // namespace

TEST(IconListModel, TellsTheWindowWhatTheProgramChangesAndNotWhatTheUserDid) {
    CIconListModel model;
    CIconWitness witness;
    model.Attach(&witness);
    model.SetItems({"a", "b", "c"});
    CPixels pixels;
    ASSERT_TRUE(pixels.Create(3, 2));
    model.SetPicture(1, pixels);
    model.Select(2, true);
    model.Select(2, true);
    EXPECT_EQ(witness.Take(), "reset 1 selected ");
    model.TakeSelection({0, 1, 7, -1});
    EXPECT_EQ(witness.Take(), "");
    EXPECT_EQ(model.SelectedItems(), (std::vector<int>{0, 1}));
    EXPECT_EQ(model.SelectedCount(), 2);
    EXPECT_TRUE(model.Picture(1) == pixels && model.Picture(0).IsEmpty());
    // New items bring nothing of the old ones.
    model.SetItems({"d", "e"});
    EXPECT_EQ(model.SelectedCount(), 0);
    EXPECT_TRUE(model.Picture(1).IsEmpty());
}
