#pragma once

#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace tarnwick {

// Paper is measured in twips: X to the right, Y downward, from the corner of the sheet itself, not from where
// a printer's margin ends.
inline constexpr double TwipsPerInch = 1440;
inline constexpr double TwipsPerPoint = 20;

struct PaperSpot {
  double X{}, Y{};
  bool operator==(const PaperSpot&) const = default;
};

struct PaperSize {
  double Width{}, Height{};
};

struct PaperBox {
  double Left{}, Top{}, Right{}, Bottom{};
  [[nodiscard]] double Width() const { return Right - Left; }
  [[nodiscard]] double Height() const { return Bottom - Top; }
  bool operator==(const PaperBox&) const = default;
};

/// The face is the one of the main window's drawing; the device knows it.
struct PrintFont {
  double Points{};
  bool Bold = false;
  bool operator==(const PrintFont&) const = default;
};

/// A pen is black.
struct PrintPen {
  int Width = 1;        // of the printer's own dots, whatever its resolution
  bool Dotted = false;  // solid otherwise
  bool operator==(const PrintPen&) const = default;
};

/// Kinds of paper by their numbers on Windows, which are the same everywhere here. All are 8.5 inches wide.
enum PaperKind : int { LetterPaper = 1, SmallLetterPaper = 2, LegalPaper = 5 };

enum class PaperOrientation : int { Portrait = 1, Landscape = 2 };
enum class PrintQuality { Normal, High };

/// What the platform's print setup dialog settles, and what a job goes by.
struct PrinterSetup {
  int Paper = LetterPaper;  // a PaperKind, or any other number
  PaperOrientation Turned = PaperOrientation::Portrait;
  int Copies = 1;
  bool operator==(const PrinterSetup&) const = default;
};

/// Port: how much room texts take on the paper in use. May be asked at any time, also ahead of a job.
class TextRuler {
 public:
  virtual ~TextRuler() = default;
  /// In twips; the height is that of a line. Texts are UTF-8, every blank counts.
  [[nodiscard]] virtual PaperSize TextSize(std::string_view text, const PrintFont& font) const = 0;
};

/// Port: a printer, or a file that is printed to. It carries out, it never decides, and it asks nobody
/// anything.
///
/// A job is Begin, drawing on its first page, NewPage and drawing for each page more, End. One job runs at a
/// time. Begin, NewPage and End answer with what failed; then, and on every other way out of a job that has
/// not ended, the caller calls Cancel, and nothing of the job may remain: no pages in a queue, no file.
/// std::errc::operation_canceled is the answer when the user has stopped the job in a dialog of the
/// platform's own. Drawing reports nothing; what fails there is told by the next NewPage or End. Numbers that
/// are none, or beyond all paper, are no reason to fail: nothing is drawn of them.
class PrintDevice : public TextRuler {
 public:
  /// Names of the printers installed, in the system's order. No stand-ins for a printer, such as a file. A
  /// device that is a file has none.
  [[nodiscard]] virtual std::vector<std::string> Printers() = 0;

  /// Makes the printer of that name the current one, until another is chosen. A printer that is newly current
  /// starts with its own setup, the one that is current already keeps what was set.
  /// @return false when there is no such printer (any more); the current one stays
  [[nodiscard]] virtual bool Choose(const std::string& printer) = 0;

  [[nodiscard]] virtual PrinterSetup Setup() const = 0;
  /// For the jobs to come. @return false when the printer cannot take that kind of paper
  [[nodiscard]] virtual bool SetUp(const PrinterSetup& setup) = 0;
  virtual void SetQuality(PrintQuality quality) = 0;

  /// Begins a job with its first page, in the setup in force.
  /// @param title  by which the queue lists it
  [[nodiscard]] virtual std::error_code Begin(const std::string& title) = 0;
  [[nodiscard]] virtual std::error_code NewPage() = 0;
  [[nodiscard]] virtual std::error_code End() = 0;
  virtual void Cancel() noexcept = 0;

  // Drawing. A page begins with a solid pen of one dot and without a clip.

  /// Of the lines that follow. A dotted line has dots that the eye can tell apart on paper.
  virtual void SetPen(const PrintPen& pen) = 0;
  /// Nothing is drawn outside of the box from here on; texts are cut too.
  virtual void SetClip(const PaperBox& box) = 0;
  virtual void EndClip() = 0;

  /// `topLeft`: of the box that TextSize measures.
  virtual void Text(PaperSpot topLeft, std::string_view text, const PrintFont& font) = 0;
  virtual void Line(PaperSpot from, PaperSpot to) = 0;
  /// Degrees from the X axis, anticlockwise as the eye sees it, from `start` to `end`; a whole circle when
  /// they are one angle.
  virtual void Arc(PaperSpot center, double radius, double start, double end) = 0;
  virtual void Circle(PaperSpot center, double radius) = 0;
  /// A closed figure, filled in black.
  virtual void Polygon(std::span<const PaperSpot> corners) = 0;
};

}  // namespace tarnwick
