#pragma once

#include <QList>
#include <QMainWindow>
#include <QTimer>
#include <functional>

#include "shell/DocumentCommands.h"
#include "shell/OneCommand.h"
#include "shell/Program.h"
#include "variable/VariableCommands.h"
#include "window/Editors.h"
#include "window/WindowHosts.h"

class QAction;
class QGridLayout;
class QLabel;
class QLineEdit;
class QMenu;
class QRadioButton;
class QScreen;
class QStackedWidget;

namespace tarnwick {

struct MachineDesk;
struct PowerDesk;
class fraDisplay;
class fraGeneral;
class fraMain;
class FieldPanel;
class fraToothShape;
class fraVariable;
class frmAnime;
class ToolBar;

/// The main window: the band, the panel of the design beside it, the commands, the lines that say what is
/// what.
class frmMain final : public QMainWindow, private MainView, private DocumentView {
  Q_OBJECT

 public:
  /// @param program  started; it outlives the window, as what `hosts` names does
  frmMain(Program& program, const WindowHosts& hosts);
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
  QLineEdit* AddPanel(const char* name, const QString& caption, const char* widest);
  void BindPanels();
  void BindEditor(FieldPanel& panel, void (Editors::*ok)(), void (Editors::*cancel)());
  void BindVariable();

  // One function for each menu, in the order of its items.
  void MakeMenu();
  void MakeFileMenu();
  void MakeViewMenu();
  void MakeDesignMenu();
  void MakeTablesMenu();
  void MakeToolsMenu();
  void MakeHelpMenu();
  void MakeToolBar();
  QMenu* AddMenu(const char* name, const QString& caption);
  QMenu* AddSubmenu(QMenu* menu, const char* name, const QString& caption);
  void ShowHintsOf(QMenu* menu);
  QAction* AddItem(QMenu* menu, const char* name, const QString& caption, const char* key,
                   std::function<void()> command);
  QAction* AddSeparator(QMenu* menu, const char* name);
  /// An item of the View menu: what it does answers whether to redraw.
  void AddViewItem(QMenu* menu, const char* name, const QString& caption, const char* key,
                   std::function<bool()> command);
  void AddDirections(QMenu* view);
  void AddRecentItem();
  void Bind(QAction* item, std::function<void()> command);

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
  void Say(const QString& status, const QString& hint = {});

  // ---- what the document commands ask of the window
  void ShowCaption() override;
  void ShowRecentFiles() override;
  void ShowTeethDirection() override;
  void SetBusy(bool busy) override;
  void ShowAnimation() override;
  void HideAnimation() override;
  void LetEventsRun() override;

  // ---- commands
  /// Runs a command unless another one runs.
  /// @param procedure  its name, for the message of a failure
  void Run(std::string_view procedure, const std::function<void()>& command);
  void End();

  // ---- showing
  [[nodiscard]] PowerDesk ForPower();
  [[nodiscard]] MachineDesk ForMachine();
  void ShowOptions();
  void TakeUnits(std::int16_t impMetric);
  void TurnQuickClickOn();
  void ApplySettings();
  void ShowColours();
  void ShowHint(const PanelField* field);
  void ShowHintOfRow(const InfoRow* row);
  [[nodiscard]] int HelpTopic() const;
  void ShowView(bool changed);
  void ShowTimeDate();
  void Arrange();

  Program& program_;
  OpenDesign& design_;  // the program's
  WindowHosts hosts_;
  Editors editors_;
  VariableCommands variable_;
  DocumentCommands documents_;
  OneCommand commands_;
  bool begun_ = false;
  bool toClose_ = false;  // once the command that runs is over
  int helpTopic_ = 0;     // of the box or row under the mouse, or that the keys have reached

  fraDisplay* display_ = nullptr;
  frmAnime* frmAnime_ = nullptr;
  QStackedWidget* panels_ = nullptr;
  QWidget* panelColumn_ = nullptr;
  fraMain* fraMain_ = nullptr;
  fraToothShape* fraToothShape_ = nullptr;
  fraVariable* fraVariable_ = nullptr;
  fraGeneral* fraGeneral_ = nullptr;
  QRadioButton* optImperial_ = nullptr;
  QRadioButton* optMetric_ = nullptr;
  ToolBar* toolBar_ = nullptr;
  QMenu* mnuFile_ = nullptr;
  QAction* belowRecentFiles_ = nullptr;
  QList<QAction*> mnuRecentFiles_;  // by index: the separator, and an item for each file that was there
  QAction* mnuItemLeftRight_ = nullptr;
  QAction* mnuItemRightLeft_ = nullptr;
  QWidget* focusBeforeBusy_ = nullptr;
  QWidget* hintStrip_ = nullptr;
  QGridLayout* hintRow_ = nullptr;
  QLabel* lblStatus_ = nullptr;
  QLabel* lblHint_ = nullptr;
  QLineEdit* txtScale_ = nullptr;
  QLineEdit* panTimeDate_ = nullptr;
  QTimer tmrClock_;
  QTimer tmrRecovery_;
};

}  // namespace tarnwick
