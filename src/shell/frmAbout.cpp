#include "shell/frmAbout.h"

#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "platform/qt/BandPicture.h"
#include "platform/qt/CenterForm.h"
#include "platform/qt/Gaps.h"
#include "platform/qt/Language.h"
#include "platform/qt/NamedControls.h"
#include "shell/modAbout.h"

namespace tarnwick {
namespace {

constexpr int TextGap = 20;  // around the text

}  // namespace

frmAbout::frmAbout(HelpViewer& help, QWidget* parent) : QDialog(parent) {
  setObjectName("frmAbout");
  setWindowTitle(tr("About %1").arg(ProgramName));
  setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);

  auto* picture = new BandPicture(this);
  picture->setObjectName("PicAbout");
  QLabel* lblAbout = MakeLabel("lblAbout", Translated(AboutText()));
  lblAbout->setAccessibleName(lblAbout->text().simplified());
  lblAbout->setContentsMargins(TextGap, TextGap, TextGap, TextGap - Margin);
  QPushButton* cmdOk = MakeButton("cmdOk", tr("&OK"));
  cmdOk->setDefault(true);
  connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
  connect(new QShortcut(QKeySequence(Qt::Key_F1), this), &QShortcut::activated, this,
          [&help] { help.ShowContents(); });

  auto* foot = new QHBoxLayout;
  foot->setContentsMargins(Margin, 0, Margin, Margin);
  foot->addStretch();
  foot->addWidget(cmdOk);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(Margin);
  column->setSizeConstraint(QLayout::SetFixedSize);
  column->addWidget(picture);
  column->addWidget(lblAbout);
  column->addLayout(foot);
  CenterForm(*this);
}

}  // namespace tarnwick
