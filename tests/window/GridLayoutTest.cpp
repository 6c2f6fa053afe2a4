#include "window/GridLayout.h"

#include <gtest/gtest.h>

#include "window/Events.h"

namespace {

// Five rows of two, and one more item.
constexpr CGridLayout kGrid{.sizeCell = {91, 69}, .ptFirst = {2, 8}, .sizeStep = {95, 80}, .nColumns = 2};
constexpr int kCount = 11;

}  // namespace

TEST(GridLayout, APointHasTheItemAroundIt) {
    EXPECT_EQ(kGrid.PlaceOf(0), (CRect{2, 8, 93, 77}));
    EXPECT_EQ(kGrid.PlaceOf(3), (CRect{97, 88, 188, 157}));
    for (int y = 0; y < 600; ++y)
        for (int x = 0; x < 200; ++x) {
            int nFound = -1;
            for (int i = 0; i < kCount; ++i)
                if (x >= 2 + i % 2 * 95 && x < 93 + i % 2 * 95 && y >= 8 + i / 2 * 80 && y < 77 + i / 2 * 80)
                    nFound = i;
            ASSERT_EQ(kGrid.ItemAt({x, y}, kCount), nFound) << x << "," << y;
        }
}

TEST(GridLayout, KeysEndOnANeighbour) {
    const struct {
        int nKey;
        int arrEnds[6];  // from -1, 0, 3, 8, 9, 10
    } kKeys[] = {{kKeyLeft, {0, 0, 2, 7, 8, 9}},   {kKeyRight, {0, 1, 4, 9, 10, 10}},
                 {kKeyUp, {0, 0, 1, 6, 7, 8}},     {kKeyDown, {0, 2, 5, 10, 10, 10}},
                 {kKeyPageUp, {0, 0, 1, 2, 3, 4}}, {kKeyPageDown, {0, 6, 9, 10, 10, 10}},
                 {kKeyHome, {0, 0, 0, 0, 0, 0}},   {kKeyEnd, {10, 10, 10, 10, 10, 10}},
                 {'A', {-1, -1, -1, -1, -1, -1}}};
    constexpr int kFrom[] = {-1, 0, 3, 8, 9, 10};
    for (const auto& row : kKeys)
        for (std::size_t i = 0; i < std::size(kFrom); ++i)
            EXPECT_EQ(kGrid.Neighbour(kFrom[i], row.nKey, kCount, 3), row.arrEnds[i]) << row.nKey << " " << i;
    EXPECT_EQ(kGrid.Neighbour(-1, kKeyEnd, 0, 3), -1);
}
