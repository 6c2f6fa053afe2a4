#include "window/ControlSet.h"

#include <gtest/gtest.h>

namespace {

constexpr CControlTemplate kTemplate[] = {
    {1, EControlKind::BitmapButton, {0, 0, 10, 10}, "Open"},
    {2, EControlKind::Slider, {0, 10, 10, 20}, "", true, false},
    {3, EControlKind::Edit, {0, 20, 10, 30}, "words", false, true, 22},
    {4, EControlKind::IconList, {0, 30, 10, 40}},
};

class CRecorder : public CControlObserver {
  public:
    void OnControlChanged(const CControl& control, EControlChange change) override {
        m_arrChanges.emplace_back(control.nId, change);
    }
    std::vector<std::pair<int, EControlChange>> Take() { return std::exchange(m_arrChanges, {}); }

  private:
    std::vector<std::pair<int, EControlChange>> m_arrChanges;
};

using CChanges = std::vector<std::pair<int, EControlChange>>;

}  // namespace

TEST(ControlSet, PassesOverIdsThatItDoesNotHave) {
    CControlSet controls(kTemplate);
    controls.Show(99, true);
    controls.SetRange(99, 0, 1);
    controls.SetItems(99, {{"a", 0}});
    controls.SetFocus(99);
    EXPECT_FALSE(controls.Find(99) != nullptr || controls.IsShown(99) || controls.IsEnabled(99) ||
                 controls.IsChecked(99));
    EXPECT_EQ(controls.Text(99) + std::to_string(controls.Selection(99) + controls.Position(99)), "-1");
}

TEST(ControlSet, KeepsPositionsInTheirRange) {
    CControlSet controls(kTemplate);
    controls.SetRange(2, -100, 100);
    for (const auto& [nSet, nGot] : {std::pair{100, 100}, {101, 100}, {-500, -100}, {7, 7}}) {
        controls.SetPosition(2, nSet);
        EXPECT_EQ(controls.Position(2), nGot);
    }
    controls.SetPosition(2, -80);
    controls.SetRange(2, 0, 50);
    EXPECT_EQ(controls.Position(2), 0);
    // A selection goes with its row.
    controls.SetItems(4, {{"a", 0}, {"b", 1}});
    controls.Select(4, 1);
    controls.SetItems(4, {{"c", 0}});
    EXPECT_EQ(controls.Selection(4), -1);
}

TEST(ControlSet, FocusGoesToControlsThatCanTakeIt) {
    CControlSet controls(kTemplate);
    CRecorder recorder;
    controls.SetFocus(1);
    controls.Attach(&recorder);
    controls.SetFocus(2);  // disabled
    controls.SetFocus(3);  // hidden
    EXPECT_EQ(controls.Focus(), 1);
    EXPECT_TRUE(recorder.Take().empty());
    controls.SetFocus(1);
    EXPECT_EQ(recorder.Take(), (CChanges{{1, EControlChange::Focus}}));

    controls.Show(4, false);
    EXPECT_EQ(controls.Focus(), 1);
    controls.Show(1, false);
    EXPECT_EQ(controls.Focus(), 0);
    controls.Show(4, true);
    controls.SetFocus(4);
    controls.Enable(4, false);
    EXPECT_EQ(controls.Focus(), 0);
}
