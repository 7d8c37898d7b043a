#include "platform/qt/LineIcon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <optional>
#include <utility>

namespace tarnwick {
namespace {

constexpr qreal FadedOpacity = 0.38;

QString FileOf(const QString& name) { return ":/icons/" + name + ".svg"; }

/// The shape counts, the colour it is drawn in does not: a drawing cannot know the desktop's.
class LineIconEngine final : public QIconEngine {
 public:
  LineIconEngine(QString name, std::optional<QPalette> palette)
      : name_(std::move(name)), palette_(std::move(palette)), drawing_(FileOf(name_)) {
    drawing_.setAspectRatioMode(Qt::KeepAspectRatio);
  }

  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
    const qreal ratio = painter->device()->devicePixelRatio();
    QImage picture(place.size() * ratio, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    Draw(picture, mode);
    painter->drawImage(place, picture);
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    Draw(picture, mode);
    return QPixmap::fromImage(std::move(picture));
  }

  QIconEngine* clone() const override { return new LineIconEngine(name_, palette_); }
  QString key() const override { return "tarnwick-line"; }
  QString iconName() override { return name_; }
  bool isNull() override { return !drawing_.isValid(); }

 private:
  void Draw(QImage& picture, QIcon::Mode mode) {
    if (picture.isNull()) return;
    QPainter painter(&picture);
    drawing_.render(&painter, QRectF(QPointF(), QSizeF(picture.size())));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), ColourIn(mode));
  }

  [[nodiscard]] QColor ColourIn(QIcon::Mode mode) const {
    const QPalette palette = palette_.value_or(QGuiApplication::palette());
    const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
    QColor colour = palette.color(QPalette::Active, role);
    if (mode == QIcon::Disabled) colour.setAlphaF(static_cast<float>(FadedOpacity * colour.alphaF()));
    return colour;
  }

  QString name_;
  std::optional<QPalette> palette_;  // none: the desktop's
  QSvgRenderer drawing_;
};

QIcon MakeIcon(const QString& name, std::optional<QPalette> palette) {
  if (!QFile::exists(FileOf(name))) return {};
  return QIcon(new LineIconEngine(name, std::move(palette)));
}

}  // namespace

QIcon LineIcon(const QString& name) { return MakeIcon(name, std::nullopt); }

QIcon LineIcon(const QString& name, const QPalette& palette) { return MakeIcon(name, palette); }

}  // namespace tarnwick
