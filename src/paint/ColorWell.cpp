#include "paint/ColorWell.h"

void CColorWell::Draw(CClientArea& client) const {
    client.DrawBox(GetRect(), CColor{0, 0, 0}, m_brush.color);
    DrawEdge(client);
}
