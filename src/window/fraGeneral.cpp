#include "window/fraGeneral.h"

namespace tarnwick {

fraGeneral::fraGeneral(QWidget* parent)
    : FieldPanel(GeneralFields(), {"cmdGeneralOK", 72}, {"cmdGeneralCancel", 73}, parent) {
  setObjectName("fraGeneral");
  setAccessibleName(tr("General information"));
}

}  // namespace tarnwick
