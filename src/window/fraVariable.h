#pragma once

#include <QString>
#include <array>

#include "platform/qt/PanelFrame.h"
#include "variable/VariableValues.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLayout;
class QPushButton;
class QRadioButton;

namespace tarnwick {

class MeasureBox;

/// The variable pitch editor. It holds no value of its own and tells what is done to it; what it shows is
/// given to it after everything that may have changed it.
class fraVariable final : public PanelFrame {
  Q_OBJECT

 public:
  explicit fraVariable(QWidget* parent = nullptr);
  ~fraVariable() override;

  /// Writes what differs, and fires nothing.
  void Show(const VariableValues& values, const DisplayFormat& format);

  /// @param panel  the whole width
  /// @param more   what the boxes get of it beyond their least
  void SetWidth(int panel, int more);

 signals:
  // By the user alone, and by a press on what is already set too.
  void EntryChosen(int entry);
  void PatternClicked(int index);
  void VarDepthTicked(bool ticked);
  void PitchPressed(int k);
  void DepthPressed(int k);
  void ResetPressed();
  void PrintPressed();
  void Accepted();
  void Cancelled();
  /// What the control under the mouse, or that Tab has reached, is for, with its help topic; empty and 0:
  /// none. A press on a figure of another editor tells which one that is.
  void Hovered(const QString& hint, int topic);

 private:
  static constexpr int Rows = VariableValues::Rows;

  struct ToothRow {
    QLabel* Label;
    MeasureBox* Pitch;
    MeasureBox* Depth;
  };

  QLayout* MakeSegment();
  QWidget* MakePatterns();
  QWidget* MakeVarDepth();
  QLayout* MakeTeeth();
  QPushButton* MakePrint();
  void MakeFoot();
  MeasureBox* AddCount(QGridLayout* grid, const char* name, const QString& caption);
  void AddCaption(QGridLayout* grid, const QString& text);
  void AddColumnHead(QGridLayout* grid, int column, const QString& text);
  void AddTooth(QGridLayout* grid, int k);
  void AddAverages(QGridLayout* grid);
  MeasureBox* MakeBox(const QString& name, const QString& spoken, bool opens);
  void Name(QWidget* control, const QString& name, const QString& spoken);
  void ShowEntries(const VariableValues& values);
  void ShowPattern(int pattern);
  void TellOwner(const QObject& box);
  void TellHover(const QObject* control, bool isOver) override;

  QComboBox* cboPattern_ = nullptr;
  std::array<QRadioButton*, Patterns> optPattern_{};
  QCheckBox* chkVarDepth_ = nullptr;
  std::array<ToothRow, Rows> teeth_{};
  MeasureBox* txtAverageSpace_ = nullptr;
  MeasureBox* txtAverageDepth_ = nullptr;
  MeasureBox* txtVariableNumTeeth_ = nullptr;
  MeasureBox* txtNumberOfSegments_ = nullptr;
  MeasureBox* txtSegmentSize_ = nullptr;
};

}  // namespace tarnwick
