#include "platform/qt/DownwardBar.h"

#include <QApplication>
#include <QWheelEvent>
#include <algorithm>

namespace tarnwick {
namespace {

constexpr int Notch = 120;  // units of one notch of a plain wheel

}  // namespace

DownwardBar::DownwardBar(QWidget* parent) : QScrollBar(Qt::Vertical, parent) {
  setInvertedAppearance(true);
  connect(this, &QScrollBar::actionTriggered, this, &DownwardBar::Mirror);
}

/// The toolkit turns the thumb over, but its arrows and areas still add downward.
void DownwardBar::Mirror(int action) {
  switch (action) {
    case SliderSingleStepAdd:
      return setSliderPosition(value() - singleStep());
    case SliderSingleStepSub:
      return setSliderPosition(value() + singleStep());
    case SliderPageStepAdd:
      return setSliderPosition(value() - pageStep());
    case SliderPageStepSub:
      return setSliderPosition(value() + pageStep());
    case SliderToMinimum:
      return setSliderPosition(maximum());
    case SliderToMaximum:
      return setSliderPosition(minimum());
    default:
      break;
  }
}

void DownwardBar::Turn(const QWheelEvent& wheel) {
  const int unitsPerStep = Notch / std::clamp(QApplication::wheelScrollLines(), 1, Notch);
  turned_ += wheel.angleDelta().y();
  const int steps = turned_ / unitsPerStep;
  turned_ -= steps * unitsPerStep;
  setValue(value() + steps * singleStep());
}

void DownwardBar::wheelEvent(QWheelEvent* event) {
  Turn(*event);
  event->accept();
}

}  // namespace tarnwick
