#pragma once

#include <QColor>
#include <QImage>
#include <QPoint>
#include <algorithm>
#include <cmath>

#include "platform/qt/QtCanvas.h"

namespace tarnwick::test {

/// How far apart two colours are: the largest difference of a channel.
inline int Difference(const QColor& a, const QColor& b) {
  return std::max(
      {std::abs(a.red() - b.red()), std::abs(a.green() - b.green()), std::abs(a.blue() - b.blue())});
}

/// The pixel around `spot` (device-independent) that comes closest to `colour`, as its distance from it.
inline int NearestTo(const QImage& picture, QPointF spot, Colour colour, int reach = 1) {
  const QPoint centre = (spot * picture.devicePixelRatio()).toPoint();
  int best = 256;
  for (int y = centre.y() - reach; y <= centre.y() + reach; ++y) {
    for (int x = centre.x() - reach; x <= centre.x() + reach; ++x) {
      if (picture.valid(x, y)) best = std::min(best, Difference(picture.pixelColor(x, y), ToQt(colour)));
    }
  }
  return best;
}

/// Whether a stroke of `colour` on black runs within a pixel of `spot`. Antialiasing spreads it over two.
inline bool HasStroke(const QImage& picture, QPointF spot, Colour colour) {
  return NearestTo(picture, spot, colour) < 140;
}

inline int CountOf(const QImage& picture, Colour colour) {
  int count = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y) == ToQt(colour) ? 1 : 0;
  }
  return count;
}

}  // namespace tarnwick::test
