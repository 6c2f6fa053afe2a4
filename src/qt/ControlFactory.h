#pragma once

#include <memory>

#include "qt/ControlWidget.h"

class CMouseRouter;

// The widget for a control's kind. Null for a kind that has none (a place that the dialog draws on, a group),
// and for a view that the dialog does not have.
std::unique_ptr<CControlWidget> CreateControlWidget(const CControlContext& context, CMouseRouter& router);
