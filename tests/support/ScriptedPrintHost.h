#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "print/PrintHost.h"
#include "print/PrinterChoice.h"

namespace tarnwick::test {

/// Somebody at the windows of printing, doing as planned: acts are taken in their order, one a window. A
/// window that nobody planned fails the test; one that an act leaves open is closed by its own button. What
/// is shown is written into a list.
class ScriptedPrintHost final : public PrintHost {
 public:
  using Act = std::function<void(PrinterChoice&)>;

  explicit ScriptedPrintHost(std::vector<std::string>& log) : log_(log) {}
  ~ScriptedPrintHost() override {
    EXPECT_FALSE(showing_) << "the notice stays";
    EXPECT_TRUE(Acts.empty()) << "fewer windows than planned";
  }
  ScriptedPrintHost(const ScriptedPrintHost&) = delete;
  ScriptedPrintHost& operator=(const ScriptedPrintHost&) = delete;

  void RunPrinter(PrinterChoice& choice) override { Perform("frmPrinter", choice); }
  void RunPrinterPage(PrinterChoice& choice) override { Perform("frmPrinterPage", choice); }

  std::optional<PrinterSetup> RunSetup(const std::string& printer,
                                       const std::optional<PrinterSetup>& current) override {
    log_.push_back("set up " + printer);
    SetupOpenedOn = current;
    return Setup;
  }

  void ShowPrintMsg(int page, int pages) override {
    showing_ = true;
    log_.push_back("notice " + std::to_string(page) + " of " + std::to_string(pages));
  }
  void HidePrintMsg() override {
    EXPECT_TRUE(showing_) << "there is no notice";
    showing_ = false;
    log_.emplace_back("no notice");
  }

  std::deque<Act> Acts;
  std::optional<PrinterSetup> Setup;  // what the setup dialog is left with; nullopt: cancelled
  std::optional<PrinterSetup> SetupOpenedOn;

 private:
  void Perform(const char* name, PrinterChoice& choice) {
    log_.emplace_back(name);
    if (Acts.empty()) {
      ADD_FAILURE() << "nobody planned " << name;
    } else {
      const Act act = Acts.front();
      Acts.pop_front();
      act(choice);
    }
    if (choice.IsOpen()) choice.PressCancel();
  }

  std::vector<std::string>& log_;
  bool showing_ = false;
};

}  // namespace tarnwick::test
