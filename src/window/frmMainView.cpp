// What the main window shows, and when.

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QStackedWidget>

#include "platform/qt/Language.h"
#include "platform/qt/QtCanvas.h"
#include "platform/qt/QtText.h"
#include "platform/qt/TabStep.h"
#include "shell/OptionsDialog.h"
#include "shell/frmCfg.h"
#include "shell/modTimeDate.h"
#include "shell/modWindowSize.h"
#include "variable/modSegmentHint.h"
#include "window/fraDisplay.h"
#include "window/fraGeneral.h"
#include "window/fraMain.h"
#include "window/fraToothShape.h"
#include "window/fraVariable.h"
#include "window/frmMain.h"
#include "window/modSelect.h"

namespace tarnwick {
// ---- what the editors ask of the window

void frmMain::ShowPanel(Panel panel) {
  const auto show = [this](QWidget* frame) { panels_->setCurrentWidget(frame); };
  panels_->setVisible(panel != Panel::None);
  switch (panel) {
    case Panel::Main:
      return show(fraMain_);
    case Panel::ToothShape:
      return show(fraToothShape_);
    case Panel::General:
      return show(fraGeneral_);
    case Panel::Variable:
      return show(fraVariable_);
    case Panel::None:
      break;
  }
}

Panel frmMain::CurrentPanel() const {
  const QWidget* frame = panels_->currentWidget();
  if (panels_->isHidden()) return Panel::None;
  if (frame == fraToothShape_) return Panel::ToothShape;
  if (frame == fraVariable_) return Panel::Variable;
  return frame == fraGeneral_ ? Panel::General : Panel::Main;
}

void frmMain::ShowSawInfo() { fraMain_->ShowSawInfo(design_.Saw, design_.Format()); }

void frmMain::FillBoxes() {
  variable_.FollowDesign();
  fraToothShape_->Fill(design_.Saw, design_.Format());
  fraGeneral_->Fill(design_.Saw, design_.Format());
  fraVariable_->Show(variable_.Values(), design_.Format());
}

void frmMain::ShowUnits() { (design_.ImpMetric == Metric ? optMetric_ : optImperial_)->setChecked(true); }

void frmMain::DrawSaw() {
  variable_.FollowDesign();
  ShowView(true);
}

void frmMain::ShowStatus(std::string_view status, std::string_view hint) {
  Say(Translated(status), Translated(hint));
}

/// Only what differs is written: the mouse moves often, and the line would flicker.
void frmMain::Say(const QString& status, const QString& hint) {
  const auto show = [](QLabel& label, const QString& text) {
    if (label.text() == text) return;
    label.setText(text);
    label.setAccessibleDescription(text);  // a label with a name of its own keeps its text to itself
  };
  show(*lblStatus_, status);
  show(*lblHint_, hint);
}

// ---- hints and help

void frmMain::ShowHint(const PanelField* field) {
  const BoxHint hint = field ? HintOfBox(*field) : BoxHint{};
  helpTopic_ = field ? HelpTopicOf(field->Act, field->Asked) : 0;
  ShowStatus(hint.Status, hint.Hint);
}

void frmMain::ShowHintOfRow(const InfoRow* row) {
  const RowCode code = row ? row->Code : RowCode::Blank;
  const RowAct act = ActOfRow(code, design_.Saw.ToothStyle);
  const BoxHint hint = HintOfRow(code);
  helpTopic_ = HelpTopicOf(act.Act, act.Asked);
  ShowStatus(hint.Status, hint.Hint);
}

/// The box with the focus has its topic, wherever the mouse is.
int frmMain::HelpTopic() const {
  const std::string focus = focusWidget() ? focusWidget()->objectName().toStdString() : std::string();
  for (const std::span<const PanelField> fields : {ToothFields(), GeneralFields()}) {
    for (const PanelField& field : fields) {
      if (field.Control == focus) return HelpTopicOf(field.Act, field.Asked);
    }
  }
  const int topic = SegmentTopic(focus);
  return topic != 0 ? topic : helpTopic_;
}

/// The units explain themselves to the mouse, and to Tab as long as the focus stays.
bool frmMain::eventFilter(QObject* watched, QEvent* event) {
  const auto* option = qobject_cast<QRadioButton*>(watched);
  const QString hint = option ? option->accessibleDescription() : QString();
  if (event->type() == QEvent::Enter || (event->type() == QEvent::FocusIn && IsTabStep(*event))) Say(hint);
  const bool isLeft = event->type() == QEvent::Leave || event->type() == QEvent::FocusOut;
  if (isLeft && lblStatus_->text() == hint) ShowStatus("", "");
  return QMainWindow::eventFilter(watched, event);
}

void frmMain::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F1) {
    program_.Out.Help.ShowTopic(HelpTopic());
  } else {
    QMainWindow::keyPressEvent(event);
  }
}

// ---- size

void frmMain::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  if (isMinimized()) return;
  Arrange();
  ShowSawInfo();
}

void frmMain::Arrange() {
  const LayoutShares shares = SharesOf(width(), minimumWidth(), design_.Settings.Calculation.DecimalPlaces);
  const int panel = fraMain_->LeastWidth() + qRound(shares.Panel);
  const int values = qRound(shares.Values);
  panelColumn_->setFixedWidth(panel);
  fraMain_->SetWidth(panel, values);
  fraToothShape_->SetWidth(panel, values);
  fraGeneral_->SetWidth(panel, values);
  fraVariable_->SetWidth(panel, values);
  hintRow_->setColumnMinimumWidth(0, minimumWidth() / 2 + qRound(shares.Status));  // or a longer text's
}

// ---- settings

/// The buttons show the units in force, whether or not these could be changed.
void frmMain::TakeUnits(std::int16_t impMetric) {
  Run("optImperial", [&] { editors_.SetUnits(impMetric); });
  ShowUnits();
}

void frmMain::ShowOptions() {
  OptionsDialog options(
      design_.Settings, [this] { ApplySettings(); }, program_.Out.Say);
  frmCfg window(options, program_.Out.Colors, program_.Out.Help, this);
  window.exec();
  ApplySettings();
  program_.SaveSettings();
}

void frmMain::TurnQuickClickOn() {
  design_.Settings.QuickClick = true;
  ApplySettings();
  program_.SaveSettings();
}

void frmMain::ApplySettings() {
  design_.ApplySettings();
  ShowColours();
  fraMain_->ShowQuickClick(design_.Settings.QuickClick);
  ShowSawInfo();
  FillBoxes();
  ShowView(true);
}

void frmMain::ShowColours() {
  const DisplaySettings& colours = design_.Settings.Display;
  display_->ShowColours();
  QPalette palette = hintStrip_->palette();  // as the drawing: its text colour is made for its background
  palette.setColor(QPalette::Window, ToQt(colours.BackGroundColor));
  palette.setColor(QPalette::WindowText, ToQt(colours.TextColor));
  hintStrip_->setPalette(palette);
}

// ---- showing

void frmMain::ShowView(bool changed) {
  display_->ShowView(changed);
  txtScale_->setText(ToQt(design_.View.ScaleText()));
}

void frmMain::ShowTimeDate() {
  const QString text = ToQt(TimeDateText(program_.Out.Time.Now()));
  if (panTimeDate_->text() != text) panTimeDate_->setText(text);
}

}  // namespace tarnwick
