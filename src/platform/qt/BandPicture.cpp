#include "platform/qt/BandPicture.h"

#include <QPainter>
#include <QRectF>
#include <QString>
#include <QSvgRenderer>

namespace tarnwick {

BandPicture::BandPicture(QWidget* parent)
    : QWidget(parent), drawing_(std::make_unique<QSvgRenderer>(QString(":/drawings/Band.svg"))) {
  setAccessibleName(tr("Picture of a band saw blade"));
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

BandPicture::~BandPicture() = default;

QSize BandPicture::sizeHint() const { return drawing_->defaultSize(); }

int BandPicture::heightForWidth(int width) const {
  const QSize drawn = drawing_->defaultSize();
  return (width * drawn.height() + drawn.width() - 1) / drawn.width();
}

void BandPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), PictureGround);
  painter.setRenderHint(QPainter::Antialiasing);
  // Down from the top, as wide as there is room: the drawing keeps its shape.
  const QSizeF drawn = drawing_->defaultSize();
  drawing_->render(&painter, QRectF(0, 0, width(), width() * drawn.height() / drawn.width()));
}

}  // namespace tarnwick
