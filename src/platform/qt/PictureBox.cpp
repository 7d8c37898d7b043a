#include "platform/qt/PictureBox.h"

#include <QColor>
#include <QFile>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <QSvgRenderer>

namespace tarnwick {
namespace {

constexpr QSize DrawingSize(320, 240);  // as the drawings are made
constexpr int Frame = 1;
constexpr QRgb Sheet = qRgb(255, 255, 255);
constexpr QRgb Hairline = qRgb(176, 182, 188);  // seen on a light desktop and quiet on a dark one

QSize WithFrame(const QSize& size) { return size + QSize(2 * Frame, 2 * Frame); }

}  // namespace

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

PictureBox::~PictureBox() = default;

void PictureBox::ShowPicture(std::string_view key) {
  if (key == key_) return;
  key_ = key;
  drawing_.reset();
  const QString file = ":/pictures/" + QString::fromStdString(key_) + ".svg";
  if (QFile::exists(file)) {
    auto drawing = std::make_unique<QSvgRenderer>(file);
    drawing->setAspectRatioMode(Qt::KeepAspectRatio);
    if (drawing->isValid()) drawing_ = std::move(drawing);
  }
  update();
}

QSize PictureBox::sizeHint() const { return WithFrame(DrawingSize); }

QSize PictureBox::minimumSizeHint() const { return WithFrame(DrawingSize / 2); }

void PictureBox::paintEvent(QPaintEvent*) {
  if (!drawing_) return;
  const QRectF place(rect());
  const qreal hair = 1 / devicePixelRatioF();
  QPainter painter(this);
  painter.fillRect(place, QColor(Hairline));
  painter.fillRect(place.adjusted(hair, hair, -hair, -hair), QColor(Sheet));
  painter.setRenderHint(QPainter::Antialiasing);
  drawing_->render(&painter, place.adjusted(Frame, Frame, -Frame, -Frame));
}

}  // namespace tarnwick
