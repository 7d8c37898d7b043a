#pragma once

#include <memory>

#include "platform/HelpViewer.h"
#include "platform/qt/HelpCollection.h"

namespace tarnwick {

class HelpWindow;

/// The manual in a window of the program's own, which is made, and the manual unpacked, when it is first
/// asked for.
class QtHelpViewer final : public HelpViewer {
 public:
  explicit QtHelpViewer(HelpFiles files = {});
  ~QtHelpViewer() override;

  void ShowTopic(int topic) override;
  void ShowContents() override;
  void ShowSearch() override;
  void ShowSupport() override;

 private:
  HelpWindow& Window();

  HelpFiles files_;
  std::unique_ptr<HelpWindow> window_;
};

}  // namespace tarnwick
