#include "platform/qt/Language.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

#include "platform/qt/QtFileDialogs.h"
#include "platform/qt/QtMessages.h"
#include "platform/qt/QtText.h"
#include "power/modPowerRequired.h"
#include "power/modWood.h"
#include "print/PrintCommands.h"
#include "qt/EveryWindow.h"
#include "qt/ReadTexts.h"
#include "shell/SavePath.h"
#include "shell/modFailure.h"
#include "shell/modString.h"
#include "store/modFileNotes.h"

namespace tarnwick {
namespace {

constexpr const char* Catalogue = TARNWICK_SAMPLES_DIR "/../translations/tarnwick.ts";

using Texts = QSet<std::pair<QString, QString>>;  // context, source

/// What a translator finds to translate.
Texts ReadCatalogue() {
  QFile file(Catalogue);
  if (!file.open(QIODevice::ReadOnly)) qFatal("there is no catalogue");
  Texts texts;
  QString context;
  for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext()) {
    if (!xml.isStartElement()) continue;
    if (xml.name() == u"name") context = xml.readElementText();
    if (xml.name() == u"source") texts.insert({context, xml.readElementText()});
  }
  return texts;
}

/// A language in which every text of the catalogue, and of the toolkit, stands in brackets.
class Brackets final : public QTranslator {
 public:
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* context, const char* source, const char*, int) const override {
    const bool isOfToolkit = *context == 'Q';
    const QString text = QString::fromUtf8(source);
    if (!isOfToolkit && !known_.contains({context, text})) return {};
    return "[!" + text + "!]";
  }

 private:
  Texts known_ = ReadCatalogue();
};

QString Bracketed(const char* text) { return QString("[!%1!]").arg(text); }

/// What of a text stands in no brackets and is no data: nothing.
QString Untranslated(QString text) {
  static const QRegularExpression inner(R"(\[!(?:(?!\[!|!\]).)*!\])",
                                        QRegularExpression::DotMatchesEverythingOption);
  while (text.contains(inner)) text.remove(inner);
  for (const Wood& wood : Woods()) text.remove(ToQt(wood.Name));
  static const QRegularExpression data(
      R"(3:05 pm  Nov 21, 2026)"                                                            // the time
      R"(|\d[\d./ ]*((in²|cm²|in|cm|mm|ft|m|deg|rpms|Rpms|fpm|mpm|Fpm|Mpm|ga)(?!\w)\*?)?)"  // figures
      R"(|\bTarnwick\b|\w+\.bs[wp]\b|^/\S+)"                                                // program, files
      R"(|^ ?Cedar$| Cedar$|^(Alpha|Beta)$)"                                                // typed; printers
      R"(|\([A-Z]\)$)");                                                                    // keys
  text.remove(data);
  return text.contains(QRegularExpression("[A-Za-z]")) ? text : QString();
}

}  // namespace

class LanguageTest : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { QCoreApplication::removeTranslator(&brackets_); }

  void saysEveryTextOfAWindowInTheLanguage();
  void saysEveryHintInTheLanguage();
  void saysMessagesInTheLanguage_data();
  void saysMessagesInTheLanguage();
  void namesFilesOfADialogInTheLanguage();
  void takesANameOfTheListInTheLanguage();
  void leavesTheProgramAsItIsWithoutOne();
  void loadsTheCatalogueOfTheDesktop();

 private:
  void Speak() { QCoreApplication::installTranslator(&brackets_); }

  Brackets brackets_;
};

void LanguageTest::saysEveryTextOfAWindowInTheLanguage() {
  Speak();
  QStringList left;
  int seen = 0;
  test::VisitEveryWindow([&](QWidget& window) {
    for (const QString& text : test::TextsOf(window)) {
      ++seen;
      if (!Untranslated(text).isEmpty()) left += window.objectName() + ": " + text;
    }
  });
  left.removeDuplicates();
  QVERIFY2(left.isEmpty(), qPrintable(left.join('\n')));
  QVERIFY2(seen > 2000, qPrintable(QString::number(seen)));
}

void LanguageTest::saysEveryHintInTheLanguage() {
  Speak();
  for (int number = 1; number <= QuickOffText; ++number) {
    const std::string_view text = NumberedText(number);
    if (!text.empty()) QCOMPARE(Translated(text), "[!" + ToQt(text) + "!]");
  }
}

void LanguageTest::saysMessagesInTheLanguage_data() {
  QTest::addColumn<QString>("title");
  QTest::addColumn<QString>("text");
  QTest::addColumn<QString>("said");
  QTest::newRow("program's name") << "Tarnwick"
                                  << "File is two large"
                                  << "[!File is two large!]";
  QTest::newRow("blanks and lines")
      << "Save File."
      << "     Bandsaw file has changed!\n\nDo you want to save this file?              "
      << "     [!Bandsaw file has changed!!]\n\n[!Do you want to save this file?!]              ";
  const Box replace = ReplaceQuestion("/saws/Seat: 7.bsw");
  QTest::newRow("a path")
      << ToQt(replace.Title) << ToQt(replace.Text)
      << "/saws/Seat: 7.bsw\n[!This file already exists.!]\n[!Do you want to replace it?!]";
  QTest::newRow("figures")
      << "Print Segment"
      << "To print out one complete segment of\nvariable pitch teeth requires 12 pages.\n\nDo "
         "you wish to continue?"
      << "[!To print out one complete segment of!]\n[!variable pitch teeth requires 12 "
         "pages.!]\n\n[!Do you wish to continue?!]";
  QTest::newRow("an address")
      << "Tarnwick" << ToQt(SavedInNewerVersion())
      << "[!File was saved in a newer version of this program!!]\n[!Some information may not "
         "be available to the version!]\n[!you are currently using!!]\n[!Contact "
         "www.tarnwick.example for an update.!]";
  QTest::newRow("put together") << "Information Required" << ToQt(MissingPowerData({}))
                                << "[!Teeth are required to calculate power requirements.!]";
}

void LanguageTest::saysMessagesInTheLanguage() {
  QFETCH(QString, title);
  QFETCH(QString, text);
  QFETCH(QString, said);
  Speak();
  bool seen = false;
  QTimer::singleShot(0, this, [&] {
    auto* shown = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    seen = shown && shown->text() == said && Untranslated(shown->windowTitle()).isEmpty() &&
           Untranslated(shown->button(QMessageBox::Yes)->text()).isEmpty();
    if (shown && !seen) qWarning() << shown->windowTitle() << shown->text();
    if (shown) shown->reject();
  });
  QtMessages messages;
  messages.Show({.Title = title.toStdString(), .Text = text.toStdString(), .Offer = Buttons::YesNo});
  QVERIFY(seen);
}

void LanguageTest::namesFilesOfADialogInTheLanguage() {
  Speak();
  QStringList filters;
  QString title;
  QTimer::singleShot(0, this, [&] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    if (!dialog) return;
    filters = dialog->nameFilters();
    title = dialog->windowTitle();
    dialog->reject();
  });
  QtFileDialogs files;
  QVERIFY(
      !files.AskOpen({.Filter = "DXF Files (*.dxf)|*.dxf|All Files (*.*)|*.*", .Folder = "", .Name = ""}));
  QCOMPARE(title, Bracketed("Open"));
  QCOMPARE(filters, QStringList({"[!DXF Files (*.dxf)!] (*.dxf)", "[!All Files (*.*)!] (*.*)"}));
}

/// The list shows a name in the language; what is stored is the program's own.
void LanguageTest::takesANameOfTheListInTheLanguage() {
  Speak();
  test::RecordingHelpViewer help;
  CollectedMessages ignored;
  ValueDialog dialog = PrepareDialog(Parameter::ToothStyle, SquareBack, {}, ignored);
  frmCDialog window(dialog, help);
  window.show();
  auto* list = test::Named<QListWidget>(window, "ListValues");
  auto* box = test::Named<QLineEdit>(window, "txtValue");
  QCOMPARE(list->item(1)->text(), Bracketed("Round Back"));
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(1)).center());
  QCOMPARE(box->text(), Bracketed("Round Back"));
  QCOMPARE(dialog.Value(), "Round Back");
  box->selectAll();
  QTest::keyClicks(box, Bracketed("O Shape"));
  QCOMPARE(dialog.Value(), "O Shape");
  QTest::mouseClick(test::Named<QPushButton>(window, "cmdOk"), Qt::LeftButton);
  QCOMPARE(dialog.Result(), "O Shape");
}

void LanguageTest::leavesTheProgramAsItIsWithoutOne() {
  for (const char* text : {"", " ", "\n", "     Saw %1 file 3.50 has changed!  \n\n%2  ", "20 Percent",
                           "100 %", "Rückschliff 1.234.500 in²"}) {
    QCOMPARE(Translated(text), QString::fromUtf8(text));
  }
}

/// Beside the program lies the catalogue of a German, with "Hook Angle:" alone in it.
void LanguageTest::loadsTheCatalogueOfTheDesktop() {
  const QByteArray german = QByteArray::fromBase64(
      "PLhkGMrvnJXNIRy/YKG93acAAAACZGVCAAAAEARLx1oAAAA3BsoZBAAAAABpAAAAcQMAAAAUACUAMQAgAFAAcgBvAH"
      "oAZQBuAHQIAAAAAAYAAAAKJTEgUGVyY2VudAcAAAAEY29yZQEDAAAAFgBTAHAAYQBuAHcAaQBuAGsAZQBsADoIAAAA"
      "AAYAAAALSG9vayBBbmdsZToHAAAABGNvcmUBiAAAAAIBAQ==");
  const QString place = QCoreApplication::applicationDirPath() + "/tarnwick_de.qm";
  QFile file(place);
  QVERIFY(file.open(QIODevice::WriteOnly) && file.write(german) == german.size());
  file.close();
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  SpeakLanguageOf(*QCoreApplication::instance());
  QLocale::setDefault(before);
  QFile::remove(place);
  QCOMPARE(Translated("Hook Angle:"), QString("Spanwinkel:"));
  QCOMPARE(Translated(" 30 Percent"), QString(" 30 Prozent"));
  QCOMPARE(Translated("Gullet Depth:"), QString("Gullet Depth:"));
  for (QTranslator* translator : QCoreApplication::instance()->findChildren<QTranslator*>())
    delete translator;
  QCOMPARE(Translated("Hook Angle:"), QString("Hook Angle:"));
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::LanguageTest)
#include "Language_test.moc"
