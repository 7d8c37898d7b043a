#include "machine/frmGauge.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QPalette>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>
#include <QtMath>

#include "machine/modGaugeDraw.h"
#include "platform/qt/DrawingSurface.h"
#include "platform/qt/Language.h"
#include "platform/qt/NamedControls.h"

namespace tarnwick {
namespace {

constexpr int Topic = 520;

Colour ToColour(const QColor& colour) {
  return Rgb(static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
             static_cast<std::uint8_t>(colour.blue()));
}

/// Those of the desktop's own tables.
GaugeColours ColoursOf(const QPalette& palette) {
  return {.Ground = ToColour(palette.color(QPalette::Base)),
          .Head = ToColour(palette.color(QPalette::Button)),
          .Lines = ToColour(palette.color(QPalette::Mid)),
          .Texts = ToColour(palette.color(QPalette::Text))};
}

/// The table for those who listen: a line for each gauge.
QString SpokenTable(const DisplayFormat& format) {
  QStringList lines;
  for (const GaugeRow& row : GaugeTable(format)) {
    QStringList line;
    for (const std::string& text : row) line.append(Translated(text).trimmed());
    lines.append(line.join(", "));
  }
  return lines.join('\n');
}

}  // namespace

frmGauge::frmGauge(const DisplayFormat& format, HelpViewer& help, QWidget* parent)
    : FormWindow("frmGauge", tr("Plate Gauge"), Topic, help, parent), format_(format) {
  MakeTable();
  QPushButton* cmdOk = MakeButton("cmdOk", tr("&OK"));
  cmdOk->setDefault(true);
  connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);

  auto* middle = new QVBoxLayout;
  middle->addWidget(picGauge_, 0, Qt::AlignCenter);
  auto* foot = new QHBoxLayout;
  foot->addStretch();
  foot->addWidget(cmdOk);
  Arrange(middle, foot);
  cmdOk->setFocus();
}

void frmGauge::MakeTable() {
  picGauge_ = new DrawingSurface;
  picGauge_->setObjectName("picGauge");
  picGauge_->setAccessibleName(tr("Gauges and their thickness"));
  picGauge_->setAccessibleDescription(SpokenTable(format_));
  picGauge_->setFocusPolicy(Qt::NoFocus);  // nothing in it is chosen
  picGauge_->setAttribute(Qt::WA_TransparentForMouseEvents);
  picGauge_->SetDrawing([this](Canvas& canvas) { DrawGauges(canvas, unit_, ColoursOf(palette()), format_); });
  FitFont();
}

void frmGauge::FitFont() {
  const QFontMetricsF metrics(picGauge_->font());
  unit_ = GaugeUnit(format_, [&metrics](std::string_view text) {
    return PixelSize{metrics.horizontalAdvance(Translated(text)), metrics.height()};
  });
  const auto [width, height] = GaugeSize(unit_);
  picGauge_->setFixedSize(qCeil(width), qCeil(height));
  picGauge_->Redraw();
}

void frmGauge::changeEvent(QEvent* event) {
  FormWindow::changeEvent(event);
  if (!picGauge_) return;
  if (event->type() == QEvent::FontChange) FitFont();
  if (event->type() == QEvent::PaletteChange) picGauge_->Redraw();
}

}  // namespace tarnwick
