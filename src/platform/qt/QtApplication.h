#pragma once

class QApplication;

namespace tarnwick {

/// Names the program to the desktop, shows its icon, and gives it the desktop's look and language.
void SetUpApplication(QApplication& application);

}  // namespace tarnwick
