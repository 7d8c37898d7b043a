#pragma once

#include "platform/qt/FieldPanel.h"

namespace tarnwick {

/// The general information, with what other editors own of it.
class fraGeneral final : public FieldPanel {
  Q_OBJECT

 public:
  explicit fraGeneral(QWidget* parent = nullptr);

  void Fill(const BandSaw& saw, const DisplayFormat& format) { FillBoxes(saw, format); }
};

}  // namespace tarnwick
