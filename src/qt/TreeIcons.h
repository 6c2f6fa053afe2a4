#pragma once

#include <QIcon>
#include <array>

#include "window/TreeModel.h"

// What stands before the items of a tree: the desktop's own icons, and drawn ones for those that it lacks.
class CTreeIcons {
  public:
    CTreeIcons();
    const QIcon& Of(ETreeIcon icon) const { return m_arrIcons[static_cast<std::size_t>(icon)]; }

    // The drawn one.
    static QIcon Draw(ETreeIcon icon);

  private:
    static constexpr std::size_t kIcons = static_cast<std::size_t>(ETreeIcon::Folder) + 1;
    std::array<QIcon, kIcons> m_arrIcons;
};
