#pragma once

#include <string>
#include <vector>

#include "platform/HelpViewer.h"

namespace tarnwick::test {

/// Opens nothing and remembers what was asked for: "topic 213", "contents", "search", "support".
class RecordingHelpViewer final : public HelpViewer {
 public:
  void ShowTopic(int topic) override { Asked.push_back("topic " + std::to_string(topic)); }
  void ShowContents() override { Asked.emplace_back("contents"); }
  void ShowSearch() override { Asked.emplace_back("search"); }
  void ShowSupport() override { Asked.emplace_back("support"); }

  std::vector<std::string> Asked;
};

}  // namespace tarnwick::test
