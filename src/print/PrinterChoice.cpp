#include "print/PrinterChoice.h"

namespace tarnwick {

void PrinterChoice::Select(std::size_t printer) {
  if (printer >= printers_.size() || printer == selected_) return;
  selected_ = printer;
  setup_.reset();
}

void PrinterChoice::PressSetup() {
  if (std::optional<PrinterSetup> setup = setupDialog_(Name(), setup_)) setup_ = setup;
}

void PrinterChoice::Close(bool accepted) {
  accepted_ = accepted;
  open_ = false;
}

}  // namespace tarnwick
