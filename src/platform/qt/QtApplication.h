#pragma once

class QApplication;

namespace tarnwick {

/// Names the program to the desktop and gives it the desktop's look.
void SetUpApplication(QApplication& application);

}  // namespace tarnwick
