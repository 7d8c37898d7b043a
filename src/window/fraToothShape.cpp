#include "window/fraToothShape.h"

namespace tarnwick {

fraToothShape::fraToothShape(QWidget* parent)
    : FieldPanel(ToothFields(), {"cmdToothOK", 70}, {"cmdToothCancel", 71}, parent) {
  setObjectName("fraToothShape");
  setAccessibleName(tr("Tooth shape"));
  ShowStyleFields(SquareBack);
}

void fraToothShape::Fill(const BandSaw& saw, const DisplayFormat& format) {
  hasSeat_ = saw.SeatInfo.State != False;
  ShowStyleFields(saw.ToothStyle);
  FillBoxes(saw, format);
}

void fraToothShape::ShowStyleFields(int style) {
  for (const PanelField& field : ToothFields()) ShowState(field, ToothBoxState(field, style, hasSeat_));
}

}  // namespace tarnwick
