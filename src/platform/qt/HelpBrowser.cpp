#include "platform/qt/HelpBrowser.h"

#include <QDesktopServices>
#include <QEvent>
#include <QHelpEngineCore>
#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QSvgRenderer>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFragment>
#include <QTextImageFormat>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>

namespace tarnwick {
namespace {

constexpr int Margin = 20;            // about the text, in pixels at 100 percent
constexpr auto Pages = "qthelp";      // scheme of the addresses within the manual
constexpr int NotchOfTheWheel = 120;  // in the toolkit's own unit

}  // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent), size_(font().pointSizeF()) {
  document()->setDocumentMargin(Margin);
  setOpenLinks(false);
  connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
    if (link.scheme() == Pages || link.isRelative()) {
      setSource(link);
    } else {
      QDesktopServices::openUrl(link);
    }
  });
}

void HelpBrowser::SetZoom(int percent) {
  const int zoom = std::clamp(percent, SmallestZoom, LargestZoom);
  if (zoom == zoom_) return;
  zoom_ = zoom;
  QFont larger = font();
  larger.setPointSizeF(size_ * zoom_ / 100);
  setFont(larger);
  ShowAnew();
  emit Zoomed(zoom_);
}

/// The page once more, for another size, palette or screen, at the place where it is being read.
void HelpBrowser::ShowAnew() {
  if (source().isEmpty()) return;
  QScrollBar* bar = verticalScrollBar();
  const double read = bar->maximum() > 0 ? double(bar->value()) / bar->maximum() : 0;
  reload();
  bar->setValue(int(read * bar->maximum()));
}

QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
  if (!engine_ || name.scheme() != Pages) return {};
  const QByteArray bytes = engine_->fileData(name);
  return type == QTextDocument::ImageResource && name.path().endsWith(".svg") ? Picture(bytes)
                                                                              : QVariant(bytes);
}

QVariant HelpBrowser::Picture(const QByteArray& svg) const {
  QSvgRenderer drawing(svg);
  if (!drawing.isValid()) return {};
  const double fineness = devicePixelRatioF();
  QImage picture((QSizeF(drawing.defaultSize()) * (fineness * zoom_ / 100)).toSize(),
                 QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  drawing.render(&painter);
  painter.end();
  picture.setDevicePixelRatio(fineness);
  return picture;
}

void HelpBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
  QTextBrowser::doSetSource(name, type);
  EnlargePictures();
}

/// A page may say how large its pictures are: that is meant at 100 percent.
void HelpBrowser::EnlargePictures() {
  QTextCursor change(document());
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
      const QTextFragment fragment = piece.fragment();
      QTextImageFormat picture = fragment.charFormat().toImageFormat();
      if (!picture.isValid() || !picture.hasProperty(QTextFormat::ImageWidth)) continue;
      picture.setWidth(picture.width() * zoom_ / 100);
      picture.setHeight(picture.height() * zoom_ / 100);
      change.setPosition(fragment.position());
      change.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
      change.setCharFormat(picture);
    }
  }
}

void HelpBrowser::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  // The colour of links is settled when a page is read.
  if (event->type() == QEvent::PaletteChange) ShowAnew();
}

void HelpBrowser::showEvent(QShowEvent* event) {
  QTextBrowser::showEvent(event);
  connect(window()->windowHandle(), &QWindow::screenChanged, this, &HelpBrowser::ShowAnew,
          Qt::UniqueConnection);
}

void HelpBrowser::wheelEvent(QWheelEvent* event) {
  if (event->modifiers() & Qt::ControlModifier) {
    ZoomBy(event->angleDelta().y() / NotchOfTheWheel);
    event->accept();
  } else {
    QTextBrowser::wheelEvent(event);
  }
}

}  // namespace tarnwick
