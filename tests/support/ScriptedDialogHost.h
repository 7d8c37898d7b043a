#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "entry/DialogHost.h"

namespace tarnwick::test {

/// What somebody does while a dialog is open.
using ValueAct = std::function<void(ValueDialog&)>;
using YesNoAct = std::function<void(YesNoDialog&)>;

/// Types into the box and presses the button.
inline ValueAct Enters(std::string_view text) {
  return [typed = std::string(text)](ValueDialog& dialog) {
    dialog.Type(typed);
    dialog.PressOk();
  };
}

/// Clicks an entry of the list and presses the button.
inline ValueAct Picks(std::size_t entry) {
  return [entry](ValueDialog& dialog) {
    dialog.SelectEntry(entry);
    dialog.PressOk();
  };
}

/// Types something, then thinks better of it.
inline ValueAct Cancels() {
  return [](ValueDialog& dialog) {
    dialog.Type("7");
    dialog.PressCancel();
  };
}

inline YesNoAct Says(bool answer) {
  return [answer](YesNoDialog& dialog) {
    dialog.Choose(answer);
    dialog.PressOk();
  };
}

inline YesNoAct AcceptsAsItOpens() {
  return [](YesNoDialog& dialog) { dialog.PressOk(); };
}

inline YesNoAct DeclinesToSay() {
  return [](YesNoDialog& dialog) {
    dialog.Choose(!dialog.Answer());
    dialog.PressCancel();
  };
}

/// Somebody who answers questions as planned: acts are taken in their order, one a dialog. A question that
/// nobody planned, or one that an act leaves open, fails the test and is cancelled.
class ScriptedDialogHost : public DialogHost {
 public:
  void Run(ValueDialog& dialog) override {
    Titles.push_back(dialog.Title());
    Pictures.push_back(dialog.PictureKey());
    Prompts.push_back(dialog.Prompt());
    Lists.push_back(dialog.List());
    Perform(Values, dialog);
  }

  void Run(YesNoDialog& dialog) override {
    Titles.push_back(dialog.Title());
    Pictures.push_back(dialog.PictureKey());
    Prompts.push_back(dialog.Prompt());
    OpenedOn.push_back(dialog.Answer());
    Perform(YesNos, dialog);
  }

  std::deque<ValueAct> Values;
  std::deque<YesNoAct> YesNos;

  // What was asked, in order.
  std::vector<std::string> Titles, Pictures, Prompts;
  std::vector<std::vector<std::string>> Lists;  // of value dialogs
  std::vector<bool> OpenedOn;                   // of yes-or-no dialogs

 private:
  template <class Act, class Dialog>
  static void Perform(std::deque<Act>& acts, Dialog& dialog) {
    if (acts.empty()) {
      ADD_FAILURE() << "nobody expected the question \"" << dialog.Title() << '"';
      dialog.PressCancel();
      return;
    }
    const Act act = acts.front();
    acts.pop_front();
    act(dialog);
    if (!dialog.IsOpen()) return;
    ADD_FAILURE() << '"' << dialog.Title() << "\" was left open";
    dialog.PressCancel();
  }
};

}  // namespace tarnwick::test
