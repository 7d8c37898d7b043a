#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>

#include "shell/Program.h"
#include "window/Editors.h"

class QAction;
class QGridLayout;
class QLabel;
class QLineEdit;
class QMenu;
class QRadioButton;
class QScreen;
class QStackedWidget;

namespace tarnwick {

class fraDisplay;
class fraGeneral;
class fraMain;
class FieldPanel;
class fraToothShape;
class ToolBar;

/// The main window: the band, the panel of the design beside it, the commands, the lines that say what is
/// what.
class frmMain final : public QMainWindow, private MainView {
 public:
  /// @param program  started; it outlives the window, as `dialogs` does
  frmMain(Program& program, DialogHost& dialogs);
  ~frmMain() override;

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // ---- making
  void MakeCentre();
  QWidget* MakePanels();
  QWidget* MakeUnits();
  QWidget* MakeHintStrip();
  void MakeStatusBar();
  QLineEdit* AddPanel(const char* name, const char* caption, const char* widest);
  void BindPanels();
  void BindEditor(FieldPanel& panel, void (Editors::*ok)(), void (Editors::*cancel)());

  void MakeMenu();
  void MakeViewMenu();
  void MakeDesignMenu();
  QMenu* AddMenu(const char* name, const char* caption);
  QAction* AddItem(QMenu* menu, const char* name, const char* caption, const char* key,
                   std::function<void()> command);
  /// An item of the View menu: what it does answers whether to redraw.
  void AddViewItem(QMenu* menu, const char* name, const char* caption, const char* key,
                   std::function<bool()> command);

  // ---- starting
  void FillWorkArea();
  void KeepWithin(const QScreen& screen);
  void StayOnScreen();
  void BeginSoon();
  void BeginWork();

  // ---- what the editors ask of the window
  void ShowPanel(Panel panel) override;
  [[nodiscard]] Panel CurrentPanel() const override;
  void ShowSawInfo() override;
  void FillBoxes() override;
  void ShowUnits() override;
  void DrawSaw() override;
  void ShowStatus(std::string_view status, std::string_view hint) override;

  // ---- showing
  void ShowOptions();
  void TurnQuickClickOn();
  void ApplySettings();
  void ShowColours();
  void ShowHint(const PanelField* field);
  void ShowHintOfRow(const InfoRow* row);
  [[nodiscard]] int HelpTopic() const;
  void ShowAll();
  void ShowCaption();
  void ShowView(bool changed);
  void ShowTimeDate();
  void Arrange();

  Program& program_;
  OpenDesign& design_;  // the program's
  Editors editors_;
  bool begun_ = false;
  int helpTopic_ = 0;  // of the box or row under the mouse, or that the keys have reached

  fraDisplay* display_ = nullptr;
  QStackedWidget* panels_ = nullptr;
  QWidget* panelColumn_ = nullptr;
  fraMain* fraMain_ = nullptr;
  fraToothShape* fraToothShape_ = nullptr;
  fraGeneral* fraGeneral_ = nullptr;
  QRadioButton* optImperial_ = nullptr;
  QRadioButton* optMetric_ = nullptr;
  ToolBar* toolBar_ = nullptr;
  QWidget* hintStrip_ = nullptr;
  QGridLayout* hintRow_ = nullptr;
  QLabel* lblStatus_ = nullptr;
  QLabel* lblHint_ = nullptr;
  QLineEdit* txtScale_ = nullptr;
  QLineEdit* panTimeDate_ = nullptr;
  QTimer tmrClock_;
};

}  // namespace tarnwick
