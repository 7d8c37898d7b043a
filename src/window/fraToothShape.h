#pragma once

#include "platform/qt/FieldPanel.h"

namespace tarnwick {

/// The tooth shape editor.
class fraToothShape final : public FieldPanel {
  Q_OBJECT

 public:
  explicit fraToothShape(QWidget* parent = nullptr);

  /// Shows a design, with the boxes of its style and seat.
  void Fill(const BandSaw& saw, const DisplayFormat& format);
  /// The boxes of a style, with or without a seat as the design that was filled in last.
  void ShowStyleFields(int style);

 private:
  bool hasSeat_ = false;
};

}  // namespace tarnwick
