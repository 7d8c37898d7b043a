#pragma once

#include <QString>
#include <span>
#include <vector>

#include "entry/modFormat.h"
#include "platform/qt/PanelFrame.h"
#include "window/modPanelField.h"

class QGridLayout;
class QLineEdit;

namespace tarnwick {

/// A panel made of a table of fields: headings, captions, boxes in one column, OK and Cancel at the foot. It
/// holds no value of its own and tells what is done to it.
class FieldPanel : public PanelFrame {
  Q_OBJECT

 public:
  ~FieldPanel() override;

  /// @param panel  the whole width
  /// @param more   what the boxes get of it beyond their least
  void SetWidth(int panel, int more);

  /// Shows the value just accepted in a box, be it zero.
  void ShowAccepted(const PanelField& field, const BandSaw& saw, const DisplayFormat& format);

 signals:
  void Pressed(const tarnwick::PanelField& field);  // a box or its caption
  void Typed(const tarnwick::PanelField& field, const QString& text);
  void TypingEnded();  // the focus goes elsewhere, or Enter
  void Ticked(bool ticked);
  void Accepted();
  void Cancelled();
  void Hovered(const tarnwick::PanelField* field);  // by mouse or Tab; nullptr: none
  void ButtonHovered(int text);                     // OK or Cancel: its numbered hint; 0: none

 protected:
  struct Button {
    const char* Name;
    int Hint;  // its number
  };
  FieldPanel(std::span<const PanelField> fields, Button ok, Button cancel, QWidget* parent);

  /// Writes what differs, and fires nothing. While the panel shows, a zero that the user has given stays.
  void FillBoxes(const BandSaw& saw, const DisplayFormat& format);
  void ShowState(const PanelField& field, BoxState state);

 private:
  struct Line {
    const PanelField* Field;
    QLabel* Caption;  // none beside a check box
    QWidget* Box;
  };

  struct Foot {
    QPushButton* Pressed;
    int Hint;
  };

  void AddLine(QGridLayout* grid, const PanelField& field);
  [[nodiscard]] QLabel* MakeCaption(const PanelField& field, QWidget* box);
  [[nodiscard]] QWidget* MakeBox(const PanelField& field);
  void MakePage(std::span<const PanelField> fields);
  void MakeFoot(Button ok, Button cancel);
  static void Write(QLineEdit& box, const QString& text);
  [[nodiscard]] bool KeepsZero(const Line& line, const BandSaw& saw, const DisplayFormat& format) const;
  [[nodiscard]] const Line* LineOf(const QObject* control) const;
  void TellHover(const QObject* control, bool isOver) override;

  std::vector<Line> lines_;
  std::vector<Foot> buttons_;
};

}  // namespace tarnwick
