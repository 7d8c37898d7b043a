#pragma once

#include <QWidget>

#include "entry/modFormat.h"
#include "window/modDisplay.h"

class QPushButton;

namespace tarnwick {

class DownwardBar;
class RowList;

/// The information panel: the rows of what is known of a design, which a bar moves behind their frame.
class fraMain final : public QWidget {
  Q_OBJECT

 public:
  explicit fraMain(QWidget* parent = nullptr);
  ~fraMain() override;

  /// The rows made anew, from the top.
  void ShowSawInfo(const BandSaw& saw, const DisplayFormat& format);
  /// Without the quick click there are no rows, but the way back to them.
  void ShowQuickClick(bool on);

  /// Width at the smallest.
  [[nodiscard]] int LeastWidth() const;
  /// @param panel  the whole width
  /// @param more   what the values get of it beyond their least
  void SetWidth(int panel, int more);

  [[nodiscard]] const SawInfo& Rows() const;

 signals:
  void RowPressed(const tarnwick::InfoRow& row);  // the button is up again
  void RowHovered(const tarnwick::InfoRow* row);  // by mouse or keys; nullptr: none
  void QuickClickAsked();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void MakeRows();
  void FitRows();
  void PlaceRows();

  QWidget* picSawInfo_ = nullptr;
  QWidget* PicSlide_ = nullptr;
  RowList* picSawData_ = nullptr;
  DownwardBar* vscSawInfo_ = nullptr;
  QPushButton* wayBack_ = nullptr;
};

}  // namespace tarnwick
