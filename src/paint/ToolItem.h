#pragma once

#include "paint/OptionGrid.h"

// A tool as the panel knows it: the place of its button, which draws itself, and its options.
class CToolItem : public CSkinItem {
  public:
    CToolItem() : CSkinItem({}, kEdgeNone) {}

    void Draw(CClientArea& client) const override { DrawEdge(client); }

    // Null for a tool without options.
    COptionGrid* m_pGrid = nullptr;
};
