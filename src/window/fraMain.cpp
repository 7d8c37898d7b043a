#include "window/fraMain.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "platform/qt/DownwardBar.h"
#include "platform/qt/Language.h"
#include "platform/qt/PanelWidth.h"
#include "platform/qt/RowList.h"
#include "shell/modString.h"
#include "window/modRowScroll.h"

namespace tarnwick {
namespace {

constexpr int RingWidth = 2;

/// The frame about the rows, which shows that they have the focus: they themselves lie partly out of sight.
class RowFrame final : public QFrame {
 public:
  explicit RowFrame(QWidget* parent) : QFrame(parent) { setFrameStyle(QFrame::StyledPanel | QFrame::Plain); }
  void Watch(const RowList* rows) {
    rows_ = rows;
    connect(rows, &RowList::FocusChanged, this, [this] { update(); });
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QFrame::paintEvent(event);
    if (!rows_ || !rows_->hasFocus()) return;
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Highlight), RingWidth));
    painter.drawRect(rect().adjusted(1, 1, -1, -1));
  }

 private:
  const RowList* rows_ = nullptr;
};

/// Black on white on every desktop.
void MakePaper(QWidget* widget) {
  QPalette paper = widget->palette();
  for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button})
    paper.setColor(role, Qt::white);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    paper.setColor(role, Qt::black);
  widget->setPalette(paper);
  widget->setAutoFillBackground(true);
}

}  // namespace

fraMain::fraMain(QWidget* parent) : QWidget(parent) {
  setObjectName("fraMain");
  setAccessibleName(tr("Information on the band saw"));
  MakeRows();
  SetWidth(LeastWidth(), 0);
}

/// Rows that lose the focus while the panel goes have nobody left to tell.
fraMain::~fraMain() {
  picSawData_->disconnect();
  PicSlide_->removeEventFilter(this);
}

void fraMain::MakeRows() {
  auto* frame = new RowFrame(this);
  picSawInfo_ = frame;
  picSawInfo_->setObjectName("picSawInfo");
  PicSlide_ = new QWidget(picSawInfo_);
  PicSlide_->setObjectName("PicSlide");
  MakePaper(PicSlide_);
  PicSlide_->installEventFilter(this);
  picSawData_ = new RowList(PicSlide_);
  picSawData_->setObjectName("picSawData");
  picSawData_->setAccessibleName(tr("Values of the band saw"));
  frame->Watch(picSawData_);
  vscSawInfo_ = new DownwardBar(picSawInfo_);
  vscSawInfo_->setObjectName("vscSawInfo");
  vscSawInfo_->setAccessibleName(tr("Move the values"));
  wayBack_ = new QPushButton(Translated(NumberedText(QuickOnText)), PicSlide_);
  wayBack_->setObjectName("cmdQuickClick");
  wayBack_->setAccessibleName(wayBack_->text());
  wayBack_->setAccessibleDescription(Translated(NumberedText(QuickOnHint)));
  wayBack_->setFlat(true);
  QFont underlined = wayBack_->font();
  underlined.setUnderline(true);  // on plain paper it must show that it can be pressed
  wayBack_->setFont(underlined);
  wayBack_->setCursor(Qt::PointingHandCursor);
  wayBack_->hide();

  auto* row = new QHBoxLayout(picSawInfo_);
  row->setContentsMargins(RingWidth, RingWidth, RingWidth, RingWidth);
  row->setSpacing(0);
  row->addWidget(PicSlide_, 1);
  row->addWidget(vscSawInfo_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(PanelMargin, PanelMargin, PanelMargin, PanelMargin);
  column->addWidget(picSawInfo_);

  connect(picSawData_, &RowList::RowPressed, this, &fraMain::RowPressed);
  connect(picSawData_, &RowList::RowHovered, this, &fraMain::RowHovered);
  connect(picSawData_, &RowList::RowReached, this, [this](const InfoRow& reached) {
    vscSawInfo_->setValue(BarToSee(reached.Box, vscSawInfo_->value(), PicSlide_->height()));
  });
  connect(vscSawInfo_, &DownwardBar::valueChanged, this, [this] {
    PlaceRows();
    picSawData_->HighlightUnderMouse();
  });
  connect(wayBack_, &QPushButton::clicked, this, &fraMain::QuickClickAsked);
}

void fraMain::ShowSawInfo(const BandSaw& saw, const DisplayFormat& format) {
  {
    const QSignalBlocker unnoticed(vscSawInfo_);
    vscSawInfo_->setValue(0);
  }
  picSawData_->ShowRows(BuildSawInfo(saw, format, PicSlide_->width()), saw.ToothStyle);
  FitRows();
}

/// The range of the bar, and the list as wide as its frame.
void fraMain::FitRows() {
  const QSignalBlocker unnoticed(vscSawInfo_);
  const double shown = PicSlide_->height();
  vscSawInfo_->setRange(LowestBar(picSawData_->HeightOfRows(), shown), 0);
  vscSawInfo_->setPageStep(RowsOfPage(shown));
  picSawData_->resize(PicSlide_->width(), std::max(picSawData_->HeightOfRows(), PicSlide_->height()));
  wayBack_->setGeometry({{PanelMargin, PanelMargin}, wayBack_->sizeHint()});
  PlaceRows();
}

void fraMain::PlaceRows() {
  picSawData_->move(0, static_cast<int>(std::lround(TopOfRows(vscSawInfo_->value()))));
}

void fraMain::ShowQuickClick(bool on) {
  picSawData_->setVisible(on);
  vscSawInfo_->setVisible(on);
  wayBack_->setVisible(!on);
}

int fraMain::LeastWidth() const { return LeastPanelWidth(*this); }

void fraMain::SetWidth(int panel, int more) {
  setFixedWidth(panel);
  picSawData_->SetValueColumn(picSawData_->LeastValueColumn() + panel - LeastWidth() - more);
}

const SawInfo& fraMain::Rows() const { return picSawData_->Rows(); }

bool fraMain::eventFilter(QObject* watched, QEvent* event) {
  if (watched == PicSlide_ && event->type() == QEvent::Resize) FitRows();
  return QWidget::eventFilter(watched, event);
}

/// Wherever the mouse is on the panel, its wheel turns the bar.
void fraMain::wheelEvent(QWheelEvent* event) {
  vscSawInfo_->Turn(*event);
  event->accept();
}

}  // namespace tarnwick
