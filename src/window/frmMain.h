#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <string>

#include "model/modColour.h"
#include "platform/Clock.h"
#include "platform/Messages.h"
#include "shell/OpenDesign.h"

class QAction;
class QLineEdit;
class QMenu;
class QScreen;
class QScrollBar;

namespace tarnwick {

class DrawingSurface;

/// The main window: the band, the bars that move it, the commands of the menu, the status bar.
class frmMain final : public QMainWindow {
 public:
  /// What the window starts with.
  struct Start {
    DisplaySettings Display{};
    CalculationSettings Calculation{};
    std::string CommandFile{};  // design to open once the window is there; empty: none
  };

  frmMain(const Start& start, Messages& messages, Clock& clock);

 protected:
  bool event(QEvent* event) override;

 private:
  void MakeDrawing();
  void MakeMenu();
  void MakeStatusBar();
  QLineEdit* AddPanel(const char* name, const char* caption, const char* widest);
  QAction* AddItem(QMenu* menu, const char* name, const char* caption, const char* key = "");
  /// An item of the View menu: what it does answers whether to redraw.
  void AddViewItem(QMenu* menu, const char* name, const char* caption, const char* key,
                   std::function<bool()> command);
  void BindBars();
  void BindSurface();

  void FillWorkArea();
  void KeepWithin(const QScreen& screen);
  void StayOnScreen();
  void BeginSoon();
  void BeginWork();

  void ShowCaption();
  void ShowView();
  void ShowTimeDate();
  void DrawIf(bool changed);

  DisplaySettings display_;
  std::string commandFile_;
  bool begun_ = false;
  Messages& messages_;
  Clock& clock_;
  OpenDesign design_;

  DrawingSurface* PicEditor_ = nullptr;
  QScrollBar* hscDisplay_ = nullptr;
  QScrollBar* vscDisplay_ = nullptr;
  QLineEdit* txtScale_ = nullptr;
  QLineEdit* panTimeDate_ = nullptr;
  QTimer tmrClock_;
};

}  // namespace tarnwick
