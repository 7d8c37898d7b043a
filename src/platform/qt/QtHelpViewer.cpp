#include "platform/qt/QtHelpViewer.h"

#include <utility>

#include "platform/qt/HelpWindow.h"

namespace tarnwick {

QtHelpViewer::QtHelpViewer(HelpFiles files) : files_(std::move(files)) {}

QtHelpViewer::~QtHelpViewer() = default;

HelpWindow& QtHelpViewer::Window() {
  if (!window_) window_ = std::make_unique<HelpWindow>(files_);
  return *window_;
}

void QtHelpViewer::ShowTopic(int topic) { Window().ShowPage(QString("topic-%1").arg(topic)); }

void QtHelpViewer::ShowContents() { Window().ShowContents(); }

void QtHelpViewer::ShowSearch() { Window().ShowIndex(); }

void QtHelpViewer::ShowSupport() { Window().ShowPage("support"); }

}  // namespace tarnwick
