#pragma once

class QPrinter;
class QWidget;

namespace tarnwick {

/// Opens the platform's dialog on how a printer prints; where the platform has none, the toolkit's.
/// @param printer  as it was set last; set anew when the user accepts
/// @return false when the user cancels
[[nodiscard]] bool RunPrintSetup(QPrinter& printer, QWidget* parent);

}  // namespace tarnwick
