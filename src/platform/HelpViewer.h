#pragma once

namespace tarnwick {

/// Port: the manual, in a window beside the work. Every call shows that window and returns at once.
class HelpViewer {
 public:
  virtual ~HelpViewer() = default;

  /// The page of the numbered topic; the contents for 0 and for a number that no page has.
  virtual void ShowTopic(int topic) = 0;

  /// The first page, with the contents beside it.
  virtual void ShowContents() = 0;

  /// The index of words, ready to be typed into; the page that is open stays.
  virtual void ShowSearch() = 0;

  /// The page on where to get technical help.
  virtual void ShowSupport() = 0;
};

}  // namespace tarnwick
