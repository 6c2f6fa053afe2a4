#include "qt/ControlFactory.h"

#include "qt/BitmapButton.h"
#include "qt/BitmapLabel.h"
#include "qt/CheckTableWidget.h"
#include "qt/ComboWidget.h"
#include "qt/EditWidget.h"
#include "qt/IconListWidget.h"
#include "qt/MarkBox.h"
#include "qt/PictureGridWidget.h"
#include "qt/PictureListWidget.h"
#include "qt/PlainButton.h"
#include "qt/ProgressWidget.h"
#include "qt/ScrollViewWidget.h"
#include "qt/SliderWidget.h"
#include "qt/TextLabel.h"
#include "qt/TextListWidget.h"
#include "qt/TreeWidget.h"
#include "window/Dialog.h"

std::unique_ptr<CControlWidget> CreateControlWidget(const CControlContext& context, CMouseRouter& router) {
    switch (context.control.kind) {
        case EControlKind::Button:
            return std::make_unique<CPlainButton>(context);
        case EControlKind::BitmapButton:
            return std::make_unique<CBitmapButton>(context);
        case EControlKind::BitmapLabel:
            return std::make_unique<CBitmapLabel>(context);
        case EControlKind::Radio:
        case EControlKind::Check:
            return std::make_unique<CMarkBox>(context);
        case EControlKind::Static:
            return std::make_unique<CTextLabel>(context);
        case EControlKind::Group:
        case EControlKind::Place:
            return nullptr;
        case EControlKind::Edit:
            return std::make_unique<CEditWidget>(context);
        case EControlKind::Combo:
            return std::make_unique<CComboWidget>(context);
        case EControlKind::TextList:
            return std::make_unique<CTextListWidget>(context);
        case EControlKind::CheckTable:
            return std::make_unique<CCheckTableWidget>(context);
        case EControlKind::PictureList:
            return std::make_unique<CPictureListWidget>(context);
        case EControlKind::PictureGrid:
            return std::make_unique<CPictureGridWidget>(context);
        case EControlKind::IconList:
            return std::make_unique<CIconListWidget>(context);
        case EControlKind::Tree:
            return std::make_unique<CTreeWidget>(context);
        case EControlKind::Slider:
            return std::make_unique<CSliderWidget>(context);
        case EControlKind::Progress:
            return std::make_unique<CProgressWidget>(context);
        case EControlKind::View:
            break;
    }
    CScrollView* pView = context.dialog.ViewOf(context.control.nId);
    if (pView == nullptr) return nullptr;
    return std::make_unique<CScrollViewWidget>(*pView, router, context.pParent);
}
