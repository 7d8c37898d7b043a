// The commands of the main window: its menus and its tool bar.

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <utility>

#include "machine/MachineCommands.h"
#include "platform/qt/ToolBar.h"
#include "power/PowerCommands.h"
#include "shell/frmAbout.h"
#include "shell/frmSplash.h"
#include "shell/modString.h"
#include "shell/modToolCommands.h"
#include "window/fraDisplay.h"
#include "window/frmMain.h"

namespace tarnwick {

// ---- pieces of a menu

QMenu* frmMain::AddMenu(const char* name, const QString& caption) {
  QMenu* menu = menuBar()->addMenu(caption);
  menu->setObjectName(name);
  ShowHintsOf(menu);
  return menu;
}

QMenu* frmMain::AddSubmenu(QMenu* menu, const char* name, const QString& caption) {
  QMenu* submenu = menu->addMenu(caption);
  submenu->setObjectName(name);
  ShowHintsOf(submenu);
  return submenu;
}

/// An item has the hint of its button. The toolkit counts a mouse over that as one over the item, too.
void frmMain::ShowHintsOf(QMenu* menu) {
  connect(menu, &QMenu::hovered, this, [this, menu](const QAction* item) {
    if (menu->isVisible()) ShowStatus(NumberedText(HintOfItem(item->objectName().toStdString())), "");
  });
  connect(menu, &QMenu::aboutToHide, this, [this] { ShowStatus("", ""); });
}

QAction* frmMain::AddItem(QMenu* menu, const char* name, const QString& caption, const char* key,
                          std::function<void()> command) {
  QAction* item = menu->addAction(caption);
  item->setObjectName(name);
  item->setShortcut(QKeySequence(key));
  item->setMenuRole(QAction::NoRole);
  Bind(item, std::move(command));
  return item;
}

void frmMain::Bind(QAction* item, std::function<void()> command) {
  connect(item, &QAction::triggered, this,
          [this, item, command = std::move(command)] { Run(item->objectName().toStdString(), command); });
}

QAction* frmMain::AddSeparator(QMenu* menu, const char* name) {
  QAction* separator = menu->addSeparator();
  separator->setObjectName(name);
  return separator;
}

void frmMain::AddViewItem(QMenu* menu, const char* name, const QString& caption, const char* key,
                          std::function<bool()> command) {
  AddItem(menu, name, caption, key, [this, command = std::move(command)] { ShowView(command()); });
}

// ---- menus

void frmMain::MakeMenu() {
  MakeFileMenu();
  MakeViewMenu();
  MakeDesignMenu();
  MakeTablesMenu();
  MakeToolsMenu();
  MakeHelpMenu();
  MakeToolBar();
}

void frmMain::MakeFileMenu() {
  PrintCommands& printing = hosts_.Printing;
  QMenu* file = mnuFile_ = AddMenu("mnuFile", tr("&File"));
  AddItem(file, "mnuItemNew", tr("&New"), "", [this] { documents_.New(); });
  AddItem(file, "mnuItemStepByStep", tr("Ne&w Step by Step"), "", [this] { documents_.NewStepByStep(); });
  AddItem(file, "mnuItemOpen", tr("&Open"), "", [this] { documents_.Open(); });
  AddItem(file, "mnuItemSave", tr("&Save"), "", [this] { documents_.Save(); });
  AddItem(file, "mnuItemSaveAs", tr("Save &As"), "", [this] { documents_.SaveAs(); });
  AddSeparator(file, "mnuItemFileSep4");
  QMenu* exports = AddSubmenu(file, "mnuItemExport", tr("Export"));
  AddItem(exports, "mnuItemExportDxf", tr("Drawing to a Dxf File"), "", [this] { documents_.ExportDxf(); });
  AddItem(exports, "mnuItemSaveText", tr("Information to a Text File"), "",
          [this] { documents_.SaveText(); });
  AddItem(exports, "mnuItemExportPdf", tr("Print Outs to a Pdf File"), "",
          [&printing] { printing.ExportPdf(); });
  AddSeparator(file, "mnuItemFileSep1");
  AddItem(file, "mnuItemPrint", tr("&Print"), "", [&printing] { printing.PrintSaw(); });
  QMenu* prints = AddSubmenu(file, "mnuItemPrintOnly", tr("P&rint Outs"));
  AddItem(prints, "mnuItemPrintInfo", tr("&Information Sheet"), "",
          [&printing] { printing.PrintInfoOnly(); });
  AddItem(prints, "mnuItemPrintShape", tr("&Toothshape"), "", [&printing] { printing.PrintShapeOnly(); });
  AddItem(prints, "mnuItemPrintVariable", tr("&Variable Pitch Segment"), "",
          [&printing] { printing.PrintVariableSegment(); });
  AddSeparator(file, "mnuSepFile2")->setVisible(false);
  mnuRecentFiles_ = {AddSeparator(file, "mnuRecentFiles(0)")};
  belowRecentFiles_ = AddSeparator(file, "mnuItemFileSep3");
  // Closing is no command among the others: it waits for the one that runs.
  QAction* exit = file->addAction(tr("E&xit"), this, &QWidget::close);
  exit->setObjectName("mnuItemExit");
  exit->setMenuRole(QAction::NoRole);
}

void frmMain::AddRecentItem() {
  const auto index = static_cast<std::size_t>(mnuRecentFiles_.size());
  auto* item = new QAction(mnuFile_);
  item->setObjectName(QString("mnuRecentFiles(%1)").arg(index));
  item->setMenuRole(QAction::NoRole);
  mnuFile_->insertAction(belowRecentFiles_, item);
  Bind(item, [this, index] { documents_.OpenRecent(index - 1); });
  mnuRecentFiles_.append(item);
}

void frmMain::MakeViewMenu() {
  QMenu* view = AddMenu("mnuView", tr("&View"));
  OpenDesign& d = design_;
  AddViewItem(view, "mnuItemAll", tr("View All"), "Ctrl+A", [&d] { return d.ViewAll(); });
  AddViewItem(view, "mnuItemFullScale", tr("View Full Scale 1/1"), "Ctrl+F",
              [&d] { return d.ViewOneToOne(); });
  AddViewItem(view, "mnuItemVarSegment", tr("View Variable Segment"), "Ctrl+S",
              [&d] { return d.ViewSegment(); });
  AddViewItem(view, "mnuItemLast", tr("Last View"), "Ctrl+L", [&d] { return d.View.ShowLastView(); });
  AddViewItem(view, "mnuItemIn", tr("Zoom In"), "Ctrl+I", [&d] { return d.View.ZoomIn(); });
  AddViewItem(view, "mnuItemOut", tr("Zoom Out"), "Ctrl+O", [&d] { return d.View.ZoomOut(); });
  AddSeparator(view, "mnuItemViewSep1");
  AddDirections(view);
}

void frmMain::AddDirections(QMenu* view) {
  QMenu* directions = AddSubmenu(view, "mnuItemTeethDirection", tr("Direction of Teeth"));
  const auto add = [&](const char* name, const QString& caption, std::int16_t direction) {
    QAction* item = AddItem(directions, name, caption, "",
                            [this, direction] { documents_.SetTeethDirection(direction); });
    item->setCheckable(true);
    // A click turns the mark by itself, whatever comes of the command.
    connect(item, &QAction::triggered, this, [this] { ShowTeethDirection(); });
    return item;
  };
  mnuItemLeftRight_ = add("mnuItemLeftRight", tr("Left to Right"), LeftToRight);
  mnuItemRightLeft_ = add("mnuItemRightLeft", tr("Right to Left"), RightToLeft);
}

void frmMain::MakeDesignMenu() {
  QMenu* design = AddMenu("mnuDesign", tr("&Design"));
  AddItem(design, "mnuItemMain", tr("Main Screen"), "", [this] { editors_.OpenMain(); });
  AddItem(design, "mnuItemGeneral", tr("General Information"), "", [this] { editors_.OpenGeneral(); });
  AddItem(design, "mnuItemToothShape", tr("Tooth Shape Editor"), "", [this] { editors_.OpenToothShape(); });
  AddItem(design, "mnuItemVariable", tr("Variable Pitch"), "", [this] { variable_.OpenVariable(); });
  AddItem(design, "mnuItemPower", tr("Power Requirements"), "", [this] { OpenPowerEditor(ForPower()); });
}

PowerDesk frmMain::ForPower() { return {program_, hosts_.Dialogs, hosts_.Power, *this}; }

MachineDesk frmMain::ForMachine() { return {program_, hosts_.Dialogs, hosts_.Machine, *this}; }

void frmMain::MakeTablesMenu() {
  QMenu* tables = AddMenu("mnuTables", tr("Ta&bles"));
  AddItem(tables, "mnuItemPlateGauge", tr("Plate Gauge"), "", [this] { OpenPlateGauges(ForMachine()); });
}

void frmMain::MakeToolsMenu() {
  QMenu* tools = AddMenu("mnuTools", tr("&Tools"));
  AddItem(tools, "mnuItemBandLength", tr("Band Length Calculator"), "",
          [this] { OpenBandCalculator(ForMachine()); });
  AddItem(tools, "mnuItemPowerCalc", tr("Power Calculator"), "", [this] { OpenPowerCalculator(ForPower()); });
  QAction* calculator = AddItem(tools, "mnuItemCalculator", tr("Calculator"), "", [] {});  // never shown
  calculator->setVisible(false);
  calculator->setEnabled(false);
  AddSeparator(tools, "mnuItemToolsSep1");
  AddItem(tools, "mnuItemOptions", tr("&Options"), "", [this] { ShowOptions(); });
}

void frmMain::MakeHelpMenu() {
  HelpViewer& manual = program_.Out.Help;
  QMenu* help = AddMenu("mnuHelp", tr("&Help"));
  AddItem(help, "mnuItemContents", tr("&Contents"), "", [&manual] { manual.ShowContents(); });
  AddItem(help, "mnuItemSearch", tr("&Search For Help On..."), "", [&manual] { manual.ShowSearch(); });
  AddItem(help, "mnuItemTech", tr("Obtain Technical Help..."), "", [&manual] { manual.ShowSupport(); });
  AddItem(help, "mnuItemSplash", tr("Splash"), "", [this] { frmSplash(this).exec(); });
  AddSeparator(help, "mnuSepHelp1");
  AddItem(help, "mnuItemAbout", tr("&About"), "", [this] { frmAbout(program_.Out.Help, this).exec(); });
}

// ---- tool bar

void frmMain::MakeToolBar() {
  toolBar_ = new ToolBar(*display_, this);
  toolBar_->AddCommandsOf(*this);
  addToolBar(toolBar_);
  connect(toolBar_, &ToolBar::Pointed, this, [this](const QString& hint) { Say(hint); });
}

}  // namespace tarnwick
