#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include "window/Choosers.h"

// The window in which a face is chosen, each shown in its own type, regular or bold, with a line to try it.
class CFontWindow : public QDialog {
  public:
    CFontWindow(const CFontChoice& start, QWidget* pParent);

    CFontChoice Choice() const;

  private:
    void FillFaces(const CFontChoice& start);
    void LayOut();
    void ShowSample();

    QLabel m_labelFace;
    QLabel m_labelStyle;
    QListWidget m_listFaces;
    QListWidget m_listStyles;
    QLabel m_sample;
    QDialogButtonBox m_buttons;
};
