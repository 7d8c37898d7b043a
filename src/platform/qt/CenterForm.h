#pragma once

class QDialog;

namespace tarnwick {

/// Has a dialog open in the middle of the work area (the desktop less its task bars), on the screen of the
/// window that it belongs to. Frame and title bar count; one that is too large begins at the top left. Once
/// the user has moved it, it stays where it is.
void CenterForm(QDialog& form);

}  // namespace tarnwick
