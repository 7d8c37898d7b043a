#include "print/modPrintSheet.h"

namespace tarnwick {
namespace {

/// Sends each piece as it is.
class Walker {
 public:
  explicit Walker(PrintDevice& device) : device_(device) {}

  void operator()(const SheetText& text) { device_.Text(text.TopLeft, text.Text, text.Font); }
  void operator()(const SheetLine& line) { device_.Line(line.From, line.To); }
  void operator()(const SheetArc& arc) { device_.Arc(arc.Center, arc.Radius, arc.Start, arc.End); }
  void operator()(const SheetCircle& circle) { device_.Circle(circle.Center, circle.Radius); }
  void operator()(const SheetSolid& solid) { device_.Polygon(solid.Corners); }
  void operator()(const SheetPen& pen) { device_.SetPen(pen.Pen); }
  void operator()(const SheetClip& clip) {
    device_.SetClip(clip.Box);
    clipped_ = true;
  }

  void End() {
    if (clipped_) device_.EndClip();
  }

 private:
  PrintDevice& device_;
  bool clipped_ = false;
};

}  // namespace

void SendSheet(const PrintSheet& sheet, PrintDevice& device) {
  Walker walker(device);
  for (const SheetPiece& piece : sheet) std::visit(walker, piece);
  walker.End();
}

}  // namespace tarnwick
