#include "qt/OptionsBench.h"

namespace tarnwick {

using namespace test;

// The options: what the window shows, takes over and gives up.
class frmCfgTest : public QObject, private OptionsBench {
  Q_OBJECT

 private slots:
  void init() { Begin(); }
  void cleanup() { Close(); }

  void hasItsFrames_data();
  void hasItsFrames();
  void showsTheSettingsInForce();
  void opensWithoutAChange();
  void enablesApplyByEachControl_data();
  void enablesApplyByEachControl();
  void takesTheUnits();
  void takesThePowerRequirements();
  void takesTheCustomerLines();
  void turnsQuickClickOffAndOn();
  void setsTheLineThickness();
  void setsTheDxfSize_data();
  void setsTheDxfSize();
  void keepsADxfSizeOfNoPosition();
  void appliesAndStays();
  void acceptsByOk_data();
  void acceptsByOk();
  void appliesNothingByOkWithoutAChange();
  void cancels_data();
  void cancels();
  void keepsWhatWasAppliedWhenCancelled();
  void opensTheManual();
  void namesEveryControl();
  void tabsInReadingOrder_data();
  void tabsInReadingOrder();
  void hasAccessKeys();
  void alignsItsBoxes();
  void clipsNothing_data();
  void clipsNothing();
  void scrollsWhereTheLettersAreTooLarge();
};

// ---- what it shows

void frmCfgTest::hasItsFrames_data() {
  QTest::addColumn<int>("page");
  QTest::addColumn<QString>("caption");
  const auto row = [](const char* name, int page, const char* caption) {
    QTest::newRow(name) << page << caption;
  };
  row("fraUnits", General, "Units");
  row("Frame1", General, "Accuracy:");
  row("fraDecimal", General, "Decimal Places:");
  row("fraScales", General, "Scaling Factors");
  row("Frame2", General, "Bandsaw Information Window");
  row("fracolors", Colors, "Colors");
  row("fraLineThick", PrinterAndDxf, "Printer Line Thickness");
  row("fraPrintPowerReq", PrinterAndDxf, "Power Requirements");
  row("fraDxfMemory", PrinterAndDxf, "Dxf File Size");
  row("fraCustomer", UserInformation, "User Information:");
}

void frmCfgTest::hasItsFrames() {
  QFETCH(int, page);
  Open();
  TurnTo(page);
  auto* frame = Find<QGroupBox>(QTest::currentDataTag());
  QVERIFY(frame->isVisible());
  QTEST(frame->title(), "caption");
}

void frmCfgTest::showsTheSettingsInForce() {
  inForce_.MainImpMetric = 1;
  inForce_.Calculation.DecimalPlaces = 6;
  inForce_.Calculation.DisplayPlaces = 4;
  inForce_.Calculation.DxfSaveColor = 2;
  inForce_.Display.DisplayScale = 0.9;
  inForce_.PrintPowerReq = true;
  inForce_.PrintLineThick = 12;
  inForce_.Customer.Email = "mill@tarnwick.example";
  Open();
  QCOMPARE(window_->windowTitle(), QString("Options"));
  QVERIFY(Find<QRadioButton>("optMetric")->isChecked());
  QVERIFY(!Find<QRadioButton>("optImperial")->isChecked());
  QCOMPARE(Box("txtDecimalPlaces")->text(), QString("6"));
  QCOMPARE(Box("txtDisplayPlaces")->text(), QString("4"));
  QCOMPARE(Box("txtDisplayScale")->text(), QString("0.9"));
  QVERIFY(!Find<QCheckBox>("chkQuickClick")->isChecked());
  QVERIFY(Find<QCheckBox>("chkPrintPowerReq")->isChecked());
  QCOMPARE(Find<QScrollBar>("hscPrintThick")->value(), 12);
  QCOMPARE(TextOf("lblPrintThick"), QString("12"));
  QCOMPARE(Box("txtEmail")->text(), QString("mill@tarnwick.example"));
  QVERIFY(Find<ColourSwatch>("lblDxfColor")->Shown() == DxfPaletteColour(2));
  QCOMPARE(Find<ColourSwatch>("lblDxfColor")->text(), QString("2"));
  QStringList captions;
  for (const QLabel* label : window_->findChildren<QLabel*>()) captions.append(label->text());
  for (const char* text :
       {"1 = thin, 20 = thick", "Use scroll bar to adjust line thickness.", "Small Files   (Faster)",
        "Large Files    (Slower)", "Number of Decimal Places Used For Calculations:",
        "Number of Decimal Places Used For Displaying Values:",
        "Change to Alter Scaling Factor of Graphics to be Displayed", "Name:", "Address:", "City:",
        "Prov/State:", "Country:", "Postal/Zip Code:", "Phone:", "Fax:", "E-mail:"}) {
    QVERIFY2(captions.contains(text), text);
  }
  QCOMPARE(Find<QCheckBox>("chkPrintPowerReq")->text(), QString("Include Power Requirements on Printout"));
}

void frmCfgTest::opensWithoutAChange() {
  Open();
  QVERIFY(!ApplyEnabled());
  QCOMPARE(Find<QPushButton>("cmdApply")->text(), QString("&Apply"));
  QVERIFY(window_->isModal());
  for (int page = 0; page < Pages; ++page) {
    TurnTo(page);
    QVERIFY(!ApplyEnabled());
  }
}

// ---- changes

void frmCfgTest::enablesApplyByEachControl_data() {
  QTest::addColumn<int>("page");
  for (int page = 0; page < Pages; ++page) {
    for (const QString& name : PageControls(page)) {
      if (name != "optImperial" && name != "lblDxfColor") QTest::newRow(qPrintable(name)) << page;
    }
  }
}

void frmCfgTest::enablesApplyByEachControl() {
  QFETCH(int, page);
  colours_.Answers = {Orange};
  Open();
  TurnTo(page);
  Change(QTest::currentDataTag());
  QVERIFY(ApplyEnabled());
  QCOMPARE(applied_, 0);
}

void frmCfgTest::takesTheUnits() {
  Open();
  Change("optMetric");
  QVERIFY(Find<QRadioButton>("optMetric")->isChecked());
  QVERIFY(!Find<QRadioButton>("optImperial")->isChecked());
  Press("cmdApply");
  QCOMPARE(inForce_.MainImpMetric, std::int16_t{1});
  Change("optImperial");
  Press("cmdOk");
  QCOMPARE(inForce_.MainImpMetric, std::int16_t{0});
}

void frmCfgTest::takesThePowerRequirements() {
  Open();
  TurnTo(PrinterAndDxf);
  Tick("chkPrintPowerReq");
  Press("cmdOk");
  QVERIFY(inForce_.PrintPowerReq);
}

void frmCfgTest::takesTheCustomerLines() {
  Open();
  TurnTo(UserInformation);
  for (const QString& name : CustomerNames) Type(name, "The " + name);
  Press("cmdOk");
  const CustomerLines& lines = inForce_.Customer;
  const std::string held[] = {lines.Name,       lines.Address, lines.City, lines.Province, lines.Country,
                              lines.PostalCode, lines.Phone,   lines.Fax,  lines.Email};
  for (int i = 0; i < CustomerNames.size(); ++i) {
    QCOMPARE(QString::fromStdString(held[i]), "The " + CustomerNames[i]);
  }
}

void frmCfgTest::turnsQuickClickOffAndOn() {
  Open();
  auto* box = Find<QCheckBox>("chkQuickClick");
  QCOMPARE(box->text(), QString("Turn Quick Click Display Off"));
  QCOMPARE(box->toolTip(), QString("Check to turn off quick click display."));
  Tick("chkQuickClick");
  QVERIFY(box->isChecked());
  Press("cmdApply");
  QVERIFY(!inForce_.QuickClick);
  QVERIFY(!box->isChecked());
  QCOMPARE(box->text(), QString("Turn Quick Click Display On"));
  QCOMPARE(box->toolTip(), QString("Check to turn on quick click display."));
  Tick("chkQuickClick");
  Press("cmdOk");
  QVERIFY(inForce_.QuickClick);
}

// ---- bars

void frmCfgTest::setsTheLineThickness() {
  Open();
  TurnTo(PrinterAndDxf);
  auto* bar = Find<QScrollBar>("hscPrintThick");
  auto* sample = Find<QLabel>("lblLineThickness");
  const QSize window = window_->size();
  const int below = Find<QWidget>("fraPrintPowerReq")->y();
  QCOMPARE(bar->minimum(), 1);
  QCOMPARE(bar->maximum(), 20);
  bar->setFocus();
  for (int thickness = 1; thickness <= 20; ++thickness) {
    QCOMPARE(bar->value(), thickness);
    QCOMPARE(TextOf("lblPrintThick"), QString::number(thickness));
    QTRY_COMPARE(sample->height(), thickness);
    QVERIFY(sample->width() > 100);
    QCOMPARE(Find<QWidget>("fraPrintPowerReq")->y(), below);
    QTest::keyClick(bar, Qt::Key_Right);
  }
  QCOMPARE(window_->size(), window);
  QTest::keyClick(bar, Qt::Key_Home);
  QCOMPARE(TextOf("lblPrintThick"), QString("1"));
  QTest::keyClick(bar, Qt::Key_End);
  Press("cmdOk");
  QCOMPARE(inForce_.PrintLineThick, std::int16_t{20});
}

void frmCfgTest::setsTheDxfSize_data() {
  QTest::addColumn<int>("position");
  QTest::addColumn<int>("memory");
  QTest::addColumn<QString>("number");
  QTest::newRow("1") << 1 << 8000 << "1000";
  QTest::newRow("2") << 2 << 16000 << "2000";
  QTest::newRow("3") << 3 << 32000 << "4000";
  QTest::newRow("4") << 4 << 64000 << "8000";
  QTest::newRow("5") << 5 << 128000 << "16000";
  QTest::newRow("6") << 6 << 256000 << "32000";
  QTest::newRow("7") << 7 << 512000 << "64000";
}

void frmCfgTest::setsTheDxfSize() {
  QFETCH(int, position);
  QFETCH(int, memory);
  QFETCH(QString, number);
  const QString text = "Number of lines, arcs and circles\n" + number;
  inForce_.Calculation.MemorySize = memory;
  Open();
  auto* bar = Find<QScrollBar>("hscDxfMemory");
  QCOMPARE(bar->minimum(), 1);
  QCOMPARE(bar->maximum(), 7);
  QCOMPARE(bar->value(), position);
  QCOMPARE(TextOf("lblDxfNumber"), text);

  inForce_.Calculation.MemorySize = position == 1 ? 512000 : 8000;
  Open();
  TurnTo(PrinterAndDxf);
  bar = Find<QScrollBar>("hscDxfMemory");
  bar->setFocus();
  const Qt::Key key = bar->value() < position ? Qt::Key_Right : Qt::Key_Left;
  for (int steps = std::abs(bar->value() - position); steps > 0; --steps) QTest::keyClick(bar, key);
  QCOMPARE(TextOf("lblDxfNumber"), text);
  Press("cmdOk");
  QCOMPARE(inForce_.Calculation.MemorySize, memory);
}

void frmCfgTest::keepsADxfSizeOfNoPosition() {
  inForce_.Calculation.MemorySize = 100000;
  Open();
  QVERIFY(!ApplyEnabled());
  Change("optMetric");
  Press("cmdOk");
  QCOMPARE(inForce_.Calculation.MemorySize, 100000);
}

// ---- Apply, OK, Cancel

void frmCfgTest::appliesAndStays() {
  Open();
  Change("optMetric");
  QCOMPARE(inForce_.MainImpMetric, std::int16_t{0});
  Press("cmdApply");
  QCOMPARE(inForce_.MainImpMetric, std::int16_t{1});
  QCOMPARE(applied_, 1);
  QVERIFY(!ApplyEnabled());
  QVERIFY(window_->isVisible());
  Change("optImperial");
  QVERIFY(ApplyEnabled());
  QTest::keyClick(window_.get(), Qt::Key_A, Qt::AltModifier);
  QTRY_COMPARE(applied_, 2);
  QCOMPARE(inForce_.MainImpMetric, std::int16_t{0});
}

void frmCfgTest::acceptsByOk_data() {
  QTest::addColumn<int>("way");
  QTest::newRow("cmdOk") << 0;
  QTest::newRow("Enter") << 1;
  QTest::newRow("Enter on the key pad") << 2;
  QTest::newRow("access key") << 3;
}

void frmCfgTest::acceptsByOk() {
  QFETCH(int, way);
  Open();
  Change("optMetric");
  if (way == 0) Press("cmdOk");
  if (way == 1) QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
  if (way == 2) QTest::keyClick(window_->focusWidget(), Qt::Key_Enter);
  if (way == 3) QTest::keyClick(window_.get(), Qt::Key_O, Qt::AltModifier);
  QTRY_VERIFY(!window_->isVisible());
  QCOMPARE(inForce_.MainImpMetric, std::int16_t{1});
  QCOMPARE(applied_, 1);
}

void frmCfgTest::appliesNothingByOkWithoutAChange() {
  Open();
  Press("cmdOk");
  QVERIFY(!window_->isVisible());
  QCOMPARE(applied_, 0);
}

void frmCfgTest::cancels_data() {
  QTest::addColumn<int>("way");
  QTest::newRow("cmdCancel") << 0;
  QTest::newRow("Escape") << 1;
  QTest::newRow("the window's button") << 2;
}

void frmCfgTest::cancels() {
  QFETCH(int, way);
  Open();
  Change("optMetric");
  if (way == 0) Press("cmdCancel");
  if (way == 1) QTest::keyClick(window_->focusWidget(), Qt::Key_Escape);
  if (way == 2) QVERIFY(window_->close());
  QVERIFY(!window_->isVisible());
  QVERIFY(!dialog_->IsOpen());
  QCOMPARE(inForce_.MainImpMetric, std::int16_t{0});
  QCOMPARE(applied_, 0);
}

void frmCfgTest::keepsWhatWasAppliedWhenCancelled() {
  Open();
  Change("optMetric");
  Press("cmdApply");
  Type("txtDecimalPlaces", "9");
  Press("cmdCancel");
  QCOMPARE(inForce_.MainImpMetric, std::int16_t{1});
  QCOMPARE(inForce_.Calculation.DecimalPlaces, std::int16_t{5});
  QCOMPARE(applied_, 1);
}

void frmCfgTest::opensTheManual() {
  Open();
  Type("txtDecimalPlaces", "9");
  QTest::keyClick(window_->focusWidget(), Qt::Key_F1);
  QCOMPARE(help_.Asked, std::vector<std::string>{"topic 600"});
  QVERIFY(window_->isVisible());
}

// ---- order and looks

void frmCfgTest::namesEveryControl() {
  Open();
  QCOMPARE(window_->objectName(), QString("frmCfg"));
  QStringList controls = ButtonNames + QStringList{"SSTab1"};
  for (int page = 0; page < Pages; ++page) controls += PageControls(page);
  QCOMPARE(test::BadlySpoken(*window_, controls), QStringList());
  QCOMPARE(Box("txtPostalCode")->accessibleName(), QString("Postal/Zip Code"));
  QCOMPARE(Find<QCheckBox>("chkQuickClick")->accessibleName(), QString("Turn Quick Click Display Off"));
  QCOMPARE(Find<ColourSwatch>("lblSawSample")->accessibleDescription(),
           QString("Red 0, green 255, blue 255"));
}

void frmCfgTest::tabsInReadingOrder_data() {
  QTest::addColumn<QStringList>("order");
  QTest::newRow("General") << QStringList(
      {"optImperial", "txtDecimalPlaces", "txtDisplayPlaces", "txtDisplayScale", "chkQuickClick"});
  QTest::newRow("Colors") << SwatchNames;
  QTest::newRow("Printer and Dxf") << PageControls(PrinterAndDxf);
  QTest::newRow("User Information") << CustomerNames;
}

void frmCfgTest::tabsInReadingOrder() {
  QFETCH(QStringList, order);
  Open();
  auto* tabs = Find<QTabWidget>("SSTab1");
  QVERIFY(tabs->tabBar()->hasFocus());
  Tick("chkQuickClick");  // Apply is reached once there is something to apply
  tabs->tabBar()->setFocus();
  while (tabs->tabText(tabs->currentIndex()).remove('&') != QTest::currentDataTag()) {
    QTest::keyClick(tabs->tabBar(), Qt::Key_Right);
  }
  order.prepend("qt_tabwidget_tabbar");
  order += ButtonNames;
  QCOMPARE(test::TabOrder(*window_), order);
}

void frmCfgTest::hasAccessKeys() {
  Open();
  auto* tabs = Find<QTabWidget>("SSTab1");
  QString keys = test::AccessKeys(*window_);
  for (int page = 0; page < Pages; ++page) keys += tabs->tabText(page).section('&', 1).left(1).toUpper();
  QCOMPARE(keys, QString("OCAGLPU"));
  const QStringList titles = {"General", "Colors", "Printer and Dxf", "User Information"};
  for (const int page : {3, 2, 1, 0}) {
    QTest::keyClick(window_.get(), Qt::Key(keys[3 + page].unicode()), Qt::AltModifier);
    QTRY_COMPARE(tabs->currentIndex(), page);
    QCOMPARE(tabs->tabText(page).remove('&'), titles[page]);
  }
}

void frmCfgTest::alignsItsBoxes() {
  Open();
  const auto place = [this](const QString& name) {
    auto* control = Find<QWidget>(name);
    return QRect(control->mapTo(window_.get(), QPoint()), control->size());
  };
  const auto inOneColumn = [&](int page, const QStringList& names) {
    TurnTo(page);
    for (const QString& name : names) {
      QCOMPARE(place(name).left(), place(names.first()).left());
      QCOMPARE(place(name).right(), place(names.first()).right());
    }
    for (qsizetype i = 1; i < names.size(); ++i)
      QVERIFY(place(names[i]).top() > place(names[i - 1]).bottom());
  };
  inOneColumn(General, NumberNames);
  inOneColumn(Colors, SwatchNames);
  inOneColumn(UserInformation, CustomerNames);
}

void frmCfgTest::clipsNothing_data() {
  QTest::addColumn<int>("points");
  for (int points = 9; points <= 14; ++points) QTest::addRow("%d points", points) << points;
}

void frmCfgTest::clipsNothing() {
  QFETCH(int, points);
  const QFont before = QApplication::font();
  QFont font = before;
  font.setPointSize(points);
  QApplication::setFont(font);
  inForce_.Calculation.MemorySize = 512000;
  inForce_.PrintLineThick = 20;
  Open();
  QVERIFY2(window_->width() <= 800 && window_->height() <= 600,
           qPrintable(QString("%1 x %2").arg(window_->width()).arg(window_->height())));
  for (int page = 0; page < Pages; ++page) {
    TurnTo(page);
    QStringList controls = ButtonNames;
    for (auto* label : window_->findChildren<QLabel*>()) {
      if (label->objectName().isEmpty()) label->setObjectName("caption " + label->text());
      if (label->objectName() != "lblLineThickness") controls += label->objectName();  // has no text
    }
    for (const QString& name : PageControls(page)) {
      if (!NumberNames.contains(name)) controls += name;  // wide enough for its figures alone
    }
    QCOMPARE(test::Clipped(*window_, controls).join(", "), QString());
    const auto* area = qobject_cast<QScrollArea*>(Find<QTabWidget>("SSTab1")->widget(page));
    QVERIFY(!area->verticalScrollBar()->isVisible() && !area->horizontalScrollBar()->isVisible());
  }
  for (const QString& name : NumberNames) {
    const int figures = Box(name)->fontMetrics().horizontalAdvance("0.6667");
    QVERIFY(Box(name)->contentsRect().width() > figures);
  }
  QApplication::setFont(before);
}

void frmCfgTest::scrollsWhereTheLettersAreTooLarge() {
  const QFont before = QApplication::font();
  QFont font = before;
  font.setPointSize(26);
  QApplication::setFont(font);
  Open();
  const QSize screen = window_->screen()->availableSize();
  QVERIFY(window_->width() <= screen.width() && window_->height() <= screen.height());
  for (const QString& name : ButtonNames) {
    QVERIFY(window_->rect().contains(Find<QWidget>(name)->geometry()));
  }
  auto* pages = Find<QTabWidget>("SSTab1");
  for (int page = 0; page < Pages; ++page) {
    TurnTo(page);
    const auto* area = qobject_cast<QScrollArea*>(pages->currentWidget());
    QVERIFY(area);
    for (const auto key : {Qt::Key_Tab, Qt::Key_Backtab}) {
      int seen = 0;
      pages->setFocus();
      for (int i = 0; i < PageControls(page).size() + ButtonNames.size() + 1; ++i) {
        QTest::keyClick(window_->focusWidget(), key);
        const auto* control = window_->focusWidget();  // the keys bring it into sight
        if (!area->isAncestorOf(control)) continue;
        const QRect place(control->mapTo(area->viewport(), QPoint()), control->size());
        QVERIFY2(area->viewport()->rect().intersected(place).height() == place.height(),
                 qPrintable(control->objectName()));
        ++seen;
      }
      QVERIFY(seen > 0);
    }
  }
  QVERIFY(qobject_cast<QScrollArea*>(pages->widget(General))->verticalScrollBar()->maximum() > 0);
  QApplication::setFont(before);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::frmCfgTest)
#include "frmCfg_test.moc"
