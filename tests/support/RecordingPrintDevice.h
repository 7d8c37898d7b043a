#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/PdfFiles.h"
#include "platform/PrintDevice.h"
#include "print/modPrintSheet.h"

namespace tarnwick::test {

using Texts = std::vector<std::string>;

/// Paper on which all letters are of one width, a share of their size.
class EvenRuler final : public TextRuler {
 public:
  static constexpr double Letter = 0.42;

  static PaperSize SizeOf(std::string_view text, const PrintFont& font) {
    const auto letters = std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; });
    return {static_cast<double>(letters) * Letter * font.Points * TwipsPerPoint,
            1.15 * font.Points * TwipsPerPoint};
  }
  [[nodiscard]] PaperSize TextSize(std::string_view text, const PrintFont& font) const override {
    return SizeOf(text, font);
  }
};

/// A job as it reached the printer: all that was drawn, page by page.
struct PrintedJob {
  enum class Fate { Running, Ended, Cancelled };
  std::string Printer, Title;
  PrinterSetup Setup;
  PrintQuality Quality{};
  std::vector<PrintSheet> Pages;
  Fate Is = Fate::Running;
};

/// Two printers, "Alpha" and "Beta", that keep every job. What is done with them is written into a list, and
/// what must not be done fails the test: to draw without a job, to begin a second one, to go on after a
/// failure.
class RecordingPrintDevice : public PrintDevice {
 public:
  explicit RecordingPrintDevice(Texts& log) : log_(log) {}
  ~RecordingPrintDevice() override { EXPECT_FALSE(running_) << "a job is left in the printer"; }
  RecordingPrintDevice(const RecordingPrintDevice&) = delete;
  RecordingPrintDevice& operator=(const RecordingPrintDevice&) = delete;

  // ---- the scene

  Texts Names{"Alpha", "Beta"};
  std::map<std::string, PrinterSetup> Own;  // of a printer that is newly chosen
  std::set<std::string> Gone;               // listed, but not there any more
  std::set<int> RefusedPaper;
  std::error_code FailsToBegin, FailsToEnd, FailsToTurn;
  int TurnsThatWork = 1000;  // NewPage
  bool Throws = false;       // at the first text
  bool IsFile = false;       // needs no choice

  // ---- afterwards

  std::vector<PrintedJob> Jobs;

  // ---- the device

  Texts Printers() override { return Names; }
  bool Choose(const std::string& printer) override {
    if (Gone.count(printer) > 0) return false;
    if (printer != current_) setup_ = Own[printer];
    current_ = printer;
    log_.push_back("choose " + printer);
    return true;
  }
  [[nodiscard]] PrinterSetup Setup() const override { return setup_; }
  bool SetUp(const PrinterSetup& setup) override {
    if (RefusedPaper.count(setup.Paper) > 0) return false;
    setup_ = setup;
    return true;
  }
  void SetQuality(PrintQuality quality) override { quality_ = quality; }

  std::error_code Begin(const std::string& title) override {
    EXPECT_FALSE(running_) << "a job is in the printer";
    EXPECT_TRUE(IsFile || !current_.empty()) << "nobody has chosen a printer";
    log_.push_back("begin " + title);
    Jobs.push_back({current_, title, setup_, quality_, {}});
    running_ = true;
    turns_ = 0;
    return Tried(FailsToBegin, true);
  }
  std::error_code NewPage() override {
    MayGoOn();
    EXPECT_FALSE(clipped_) << "the clip goes over the end of the page";
    log_.emplace_back("new page");
    return Tried(turns_++ < TurnsThatWork ? std::error_code() : FailsToTurn, true);
  }
  std::error_code End() override {
    MayGoOn();
    EXPECT_FALSE(clipped_) << "the clip goes over the end of the page";
    log_.emplace_back("end");
    if (!Tried(FailsToEnd, false)) Leave(PrintedJob::Fate::Ended);
    return FailsToEnd;
  }
  void Cancel() noexcept override {
    EXPECT_TRUE(running_) << "there is nothing to cancel";
    log_.emplace_back("cancel");
    Leave(PrintedJob::Fate::Cancelled);
  }

  void SetPen(const PrintPen& pen) override { Draw(SheetPen{pen}); }
  void SetClip(const PaperBox& box) override {
    clipped_ = true;
    Draw(SheetClip{box});
  }
  void EndClip() override { clipped_ = false; }
  [[nodiscard]] PaperSize TextSize(std::string_view text, const PrintFont& font) const override {
    return EvenRuler::SizeOf(text, font);
  }
  void Text(PaperSpot topLeft, std::string_view text, const PrintFont& font) override {
    if (Throws) throw std::system_error(std::make_error_code(std::errc::io_error));
    Draw(SheetText{topLeft, std::string(text), font});
  }
  void Line(PaperSpot from, PaperSpot to) override { Draw(SheetLine{from, to}); }
  void Arc(PaperSpot center, double radius, double start, double end) override {
    Draw(SheetArc{center, radius, start, end});
  }
  void Circle(PaperSpot center, double radius) override { Draw(SheetCircle{center, radius}); }
  void Polygon(std::span<const PaperSpot> corners) override {
    SheetSolid solid;
    ASSERT_EQ(corners.size(), solid.Corners.size());
    std::copy(corners.begin(), corners.end(), solid.Corners.begin());
    Draw(solid);
  }

 private:
  void MayGoOn() const {
    EXPECT_TRUE(running_) << "there is no job";
    EXPECT_FALSE(failed_) << "a job goes on after a failure";
  }
  std::error_code Tried(std::error_code failure, bool newPage) {
    failed_ = static_cast<bool>(failure);
    if (!failed_ && newPage) Jobs.back().Pages.emplace_back();
    return failure;
  }
  void Draw(SheetPiece piece) {
    MayGoOn();
    if (running_) Jobs.back().Pages.back().push_back(std::move(piece));
  }
  void Leave(PrintedJob::Fate fate) noexcept {
    if (!Jobs.empty()) Jobs.back().Is = fate;
    running_ = failed_ = clipped_ = false;
  }

  Texts& log_;
  std::string current_;
  PrinterSetup setup_;
  PrintQuality quality_{};
  int turns_ = 0;
  bool running_ = false, failed_ = false, clipped_ = false;
};

/// Files that are printed to: what came of each stays behind.
class RecordingPdfFiles final : public PdfFiles {
 public:
  explicit RecordingPdfFiles(Texts& log) : log_(log) {}

  std::unique_ptr<PrintDevice> File(const std::string& path) override {
    log_.push_back("file " + path);
    return std::make_unique<OneFile>(*this);
  }

  std::error_code FailsToBegin, FailsToEnd;
  std::vector<PrintedJob> Jobs;

 private:
  /// Hands its jobs over when it goes.
  class OneFile final : public RecordingPrintDevice {
   public:
    explicit OneFile(RecordingPdfFiles& files) : RecordingPrintDevice(files.log_), files_(files) {
      Names.clear();
      IsFile = true;
      FailsToBegin = files.FailsToBegin;
      FailsToEnd = files.FailsToEnd;
    }
    ~OneFile() override { files_.Jobs.insert(files_.Jobs.end(), Jobs.begin(), Jobs.end()); }
    OneFile(const OneFile&) = delete;
    OneFile& operator=(const OneFile&) = delete;

   private:
    RecordingPdfFiles& files_;
  };

  Texts& log_;
};

/// The texts of a sheet, in order.
inline Texts TextsOf(const PrintSheet& sheet) {
  Texts texts;
  for (const SheetPiece& piece : sheet) {
    if (const auto* text = std::get_if<SheetText>(&piece)) texts.push_back(text->Text);
  }
  return texts;
}

/// The text on a sheet that reads so; nullptr when there is none.
inline const SheetText* FindText(const PrintSheet& sheet, std::string_view words) {
  for (const SheetPiece& piece : sheet) {
    const auto* text = std::get_if<SheetText>(&piece);
    if (text && text->Text == words) return text;
  }
  return nullptr;
}

template <class Piece>
std::vector<Piece> PiecesOf(const PrintSheet& sheet) {
  std::vector<Piece> pieces;
  for (const SheetPiece& piece : sheet) {
    if (const auto* found = std::get_if<Piece>(&piece)) pieces.push_back(*found);
  }
  return pieces;
}

}  // namespace tarnwick::test
