#include "qt/FontWindow.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QPushButton>

#include "qt/FontMapping.h"
#include "qt/Text.h"

namespace {

constexpr int kFacePixels = 15;
constexpr int kSamplePixels = 28;
constexpr int kRowPixels = 24;

QFont FaceFont(const QString& strFace, int nPixels, bool bBold = false) {
    QFont font = MapFont(FromQt(strFace), nPixels);
    font.setBold(bBold);
    return font;
}

void AddRow(QListWidget& list, const QString& strText, const QFont& font) {
    auto pItem = std::make_unique<QListWidgetItem>(strText);
    pItem->setFont(font);
    pItem->setSizeHint({0, kRowPixels});
    list.addItem(pItem.release());
}

}  // namespace

CFontWindow::CFontWindow(const CFontChoice& start, QWidget* pParent)
    : QDialog(pParent),
      m_labelFace("字体(&F):"),
      m_labelStyle("字形(&Y):"),
      m_buttons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel) {
    setWindowTitle("字体");
    FillFaces(start);
    AddRow(m_listStyles, "常规", FaceFont({}, kFacePixels));
    AddRow(m_listStyles, "粗体", FaceFont({}, kFacePixels, true));
    m_listStyles.setCurrentRow(start.bBold ? 1 : 0);
    m_buttons.button(QDialogButtonBox::Ok)->setText("确定");
    m_buttons.button(QDialogButtonBox::Cancel)->setText("取消");
    LayOut();
    ShowSample();
    connect(&m_listFaces, &QListWidget::currentRowChanged, this, &CFontWindow::ShowSample);
    connect(&m_listStyles, &QListWidget::currentRowChanged, this, &CFontWindow::ShowSample);
    connect(&m_listFaces, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    connect(&m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(&m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

// A face that the machine lacks is offered too when it is the one in use, drawn with what stands in for it.
void CFontWindow::FillFaces(const CFontChoice& start) {
    QStringList arrFaces;
    for (const QString& strFace : QFontDatabase::families())
        if (!QFontDatabase::isPrivateFamily(strFace)) arrFaces.append(strFace);
    const QString strStart = ToQt(start.strFace);
    if (!strStart.isEmpty() && !arrFaces.contains(strStart)) arrFaces.prepend(strStart);
    for (const QString& strFace : arrFaces) AddRow(m_listFaces, strFace, FaceFont(strFace, kFacePixels));
    m_listFaces.setCurrentRow(static_cast<int>(std::max<qsizetype>(0, arrFaces.indexOf(strStart))));
    m_listFaces.setUniformItemSizes(true);
}

void CFontWindow::LayOut() {
    m_labelFace.setBuddy(&m_listFaces);
    m_labelStyle.setBuddy(&m_listStyles);
    m_listFaces.setMinimumSize(280, 220);
    m_listStyles.setFixedWidth(110);
    m_sample.setFixedHeight(64);
    m_sample.setAlignment(Qt::AlignCenter);
    m_sample.setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    m_sample.setBackgroundRole(QPalette::Base);
    m_sample.setAutoFillBackground(true);
    m_sample.setTextFormat(Qt::PlainText);
    auto pGrid = std::make_unique<QGridLayout>();
    pGrid->addWidget(&m_labelFace, 0, 0);
    pGrid->addWidget(&m_labelStyle, 0, 1);
    pGrid->addWidget(&m_listFaces, 1, 0);
    pGrid->addWidget(&m_listStyles, 1, 1);
    pGrid->addWidget(&m_sample, 2, 0, 1, 2);
    pGrid->addWidget(&m_buttons, 3, 0, 1, 2);
    setLayout(pGrid.release());
}

CFontChoice CFontWindow::Choice() const {
    const QListWidgetItem* pItem = m_listFaces.currentItem();
    return {pItem == nullptr ? std::string{} : FromQt(pItem->text()), m_listStyles.currentRow() == 1};
}

void CFontWindow::ShowSample() {
    const CFontChoice choice = Choice();
    m_sample.setFont(FaceFont(ToQt(choice.strFace), kSamplePixels, choice.bBold));
    m_sample.setText("文字样式 AaBb 123");
}
