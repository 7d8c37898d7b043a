#include "platform/qt/QtPaperKinds.h"

#include <QSizeF>

namespace tarnwick {
namespace {

struct Kind {
  int Number;
  double Width, Height;  // inches
};

// Those that have a layout of their own. What the toolkit knows as number 14 is narrower.
constexpr Kind Kinds[] = {{LetterPaper, 8.5, 11}, {SmallLetterPaper, 8.5, 11},
                          {LegalPaper, 8.5, 14},  {40, 8.5, 12},
                          {41, 8.5, 13},          {14, 8.5, 13}};

QPageSize PageSizeOf(const Kind& kind) {
  return QPageSize(QSizeF(kind.Width, kind.Height), QPageSize::Inch);  // finds the name that it has
}

}  // namespace

std::optional<QPageSize> PageSizeOf(int paperKind) {
  for (const Kind& kind : Kinds) {
    if (kind.Number == paperKind) return PageSizeOf(kind);
  }
  const QPageSize size(QPageSize::id(paperKind));
  if (paperKind <= 0 || !size.isValid() || size.id() == QPageSize::Custom) return std::nullopt;
  return size;
}

int PaperKindOf(const QPageSize& size) {
  for (const Kind& kind : Kinds) {
    if (size.isEquivalentTo(PageSizeOf(kind))) return kind.Number;
  }
  return size.windowsId();
}

}  // namespace tarnwick
