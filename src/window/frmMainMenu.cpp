// The commands of the main window: its menus and its tool bar.

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <utility>

#include "platform/qt/ToolBar.h"
#include "window/fraDisplay.h"
#include "window/frmMain.h"

namespace tarnwick {

QMenu* frmMain::AddMenu(const char* name, const char* caption) {
  QMenu* menu = menuBar()->addMenu(tr(caption));
  menu->setObjectName(name);
  return menu;
}

QAction* frmMain::AddItem(QMenu* menu, const char* name, const char* caption, const char* key,
                          std::function<void()> command) {
  QAction* item = menu->addAction(tr(caption));
  item->setObjectName(name);
  item->setShortcut(QKeySequence(key));
  item->setMenuRole(QAction::NoRole);
  connect(item, &QAction::triggered, this, [command = std::move(command)] { command(); });
  return item;
}

void frmMain::AddViewItem(QMenu* menu, const char* name, const char* caption, const char* key,
                          std::function<bool()> command) {
  AddItem(menu, name, caption, key, [this, command = std::move(command)] { ShowView(command()); });
}

void frmMain::MakeMenu() {
  QMenu* file = AddMenu("mnuFile", "&File");
  AddItem(file, "mnuItemExit", "E&xit", "", [this] { close(); });
  MakeViewMenu();
  MakeDesignMenu();
  QMenu* tools = AddMenu("mnuTools", "&Tools");
  AddItem(tools, "mnuItemOptions", "&Options", "", [this] { ShowOptions(); });

  toolBar_ = new ToolBar(*display_, this);
  toolBar_->setObjectName("tlbMainWindow");
  toolBar_->AddCommandsOf(*this);
  addToolBar(toolBar_);
  connect(toolBar_, &ToolBar::Pointed, this,
          [this](const QString& hint) { ShowStatus(hint.toStdString(), ""); });
}

void frmMain::MakeViewMenu() {
  QMenu* view = AddMenu("mnuView", "&View");
  OpenDesign& d = design_;
  AddViewItem(view, "mnuItemAll", "View All", "Ctrl+A", [&d] { return d.ViewAll(); });
  AddViewItem(view, "mnuItemFullScale", "View Full Scale 1/1", "Ctrl+F", [&d] { return d.ViewOneToOne(); });
  AddViewItem(view, "mnuItemVarSegment", "View Variable Segment", "Ctrl+S", [&d] { return d.ViewSegment(); });
  AddViewItem(view, "mnuItemLast", "Last View", "Ctrl+L", [&d] { return d.View.ShowLastView(); });
  AddViewItem(view, "mnuItemIn", "Zoom In", "Ctrl+I", [&d] { return d.View.ZoomIn(); });
  AddViewItem(view, "mnuItemOut", "Zoom Out", "Ctrl+O", [&d] { return d.View.ZoomOut(); });
}

void frmMain::MakeDesignMenu() {
  QMenu* design = AddMenu("mnuDesign", "&Design");
  AddItem(design, "mnuItemMain", "Main Screen", "", [this] { editors_.OpenMain(); });
  AddItem(design, "mnuItemGeneral", "General Information", "", [this] { editors_.OpenGeneral(); });
  AddItem(design, "mnuItemToothShape", "Tooth Shape Editor", "", [this] { editors_.OpenToothShape(); });
}

}  // namespace tarnwick
