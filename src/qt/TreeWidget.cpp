#include "qt/TreeWidget.h"

#include "qt/FontMapping.h"
#include "qt/SkinColors.h"

namespace {

constexpr char kStyle[] =
    "QTreeView { border: none; background: #ffffff; color: #222a28; selection-background-color: #e88f36;"
    " selection-color: #ffffff; }";

}  // namespace

CTreeWidget::CTreeWidget(const CControlContext& context) : QTreeView(context.pParent) {
    setStyleSheet(QString(kStyle) + kScrollBarStyle);
    setFont(MapFont({}, 12));
    setHeaderHidden(true);
    setEditTriggers(NoEditTriggers);
}
