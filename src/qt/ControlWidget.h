#pragma once

#include <QWidget>

#include "window/Control.h"

class CDialog;
class CPictures;

// What a control's widget is built from.
struct CControlContext {
    CDialog& dialog;
    const CControl& control;  // lives as long as the dialog
    CPictures& pictures;
    int nDensity;
    QWidget* pParent;
};

// The widget of one control. Place, visibility, being enabled and focus are the dialog view's business; the
// rest of what a control shows is mirrored here, and what the user does is told to the dialog from here.
class CControlWidget {
  public:
    virtual ~CControlWidget() = default;
    virtual QWidget& Widget() = 0;
    // The control has changed; called for every kind of change.
    virtual void Mirror(EControlChange /*change*/) {}
    // The density of the screen has changed.
    virtual void SetDensity(int /*nDensity*/) {}
};
