#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <clocale>
#include <map>

#include "qt/MainWindow.h"
#include "qt/PowerWindow.h"
#include "qt/ReadTexts.h"
#include "store/modSettingsFile.h"

namespace tarnwick {
namespace {

using Results = std::map<std::string, std::string>;

constexpr const char* Country = "de_DE.UTF-8";

/// Somebody at work: he types and reads, and writes every file that there is to be written.
class Workday {
 public:
  Results Work() {
    main_.Open(test::FullDesign());
    TypeMeasures();
    ChangeSettings();
    Ask("mnuItemPower", "power");
    Ask("mnuItemBandLength", "machine");
    Ask("mnuItemPlateGauge", "gauges");
    WriteFiles();
    return results_;
  }

 private:
  std::string Shown(QWidget& window) const {
    return Placeless(test::TextsOf(window).join('\n').toStdString());
  }

  void Enter(const char* box, const QString& typed) {
    auto* control = test::Named<QWidget>(*main_.Window, box);
    if (!main_.BringUp(control)) qFatal("%s is out of sight", box);
    main_.User.Acts = {test::Types(typed)};
    QTest::mouseClick(control, Qt::LeftButton);
    results_[box + typed.toStdString()] = main_.TextOf(box).toStdString();
  }

  void TypeMeasures() {
    main_.Do("mnuItemToothShape");
    Enter("txtLength", "40 1/2");
    Enter("txtWidth", "9,75");
    Enter("txtHook", "27.25");
    Enter("txtGulletDepth", "3/4+0,0625");
    results_["panel"] = Shown(*main_.Window);
    test::Click(*main_.Window, "cmdToothOK");
    main_.Do("mnuItemMain");
    results_["rows"] =
        test::SpokenParts(test::Named<QWidget>(*main_.Window, "picSawData")).join('\n').toStdString();
    results_["scale"] = main_.TextOf("txtScale").toStdString();
  }

  void ChangeSettings() {
    main_.User.Acts = {[this](QDialog& options) {
      auto* scale = test::Named<QLineEdit>(options, "txtDisplayScale");
      scale->selectAll();
      QTest::keyClicks(scale, "1,25");
      results_["options"] = Shown(options);
      test::Click(options, "cmdOk");
    }};
    main_.Do("mnuItemOptions");
    const TemporaryFolder folder;
    SettingsFile store(folder.Path());
    CollectedMessages none;
    if (!SaveConfig(main_.Design().Settings, store, none)) qFatal("no settings are written");
    for (const auto& file : std::filesystem::recursive_directory_iterator(folder.Path())) {
      if (file.is_regular_file()) results_["settings file"] += Placeless(test::BytesOf(file.path()));
    }
  }

  void Ask(const char* command, const char* name) {
    main_.User.Acts = {[this, name](QDialog& window) {
      results_[name] = Shown(window);
      window.reject();
    }};
    main_.Do(command);
  }

  void WriteFiles() {
    main_.Program.Files.Paths = {Path("new.bsw"), Path("new.dxf"), Path("new.txt")};
    for (const char* command : {"mnuItemSaveAs", "mnuItemExportDxf", "mnuItemSaveText"}) main_.Do(command);
    for (const char* file : {"new.bsw", "new.dxf", "new.txt"})
      results_[file] = test::BytesOf(main_.Folder / file);
  }

  std::string Path(const char* name) const { return (main_.Folder / name).string(); }

  /// Each day has folders of its own.
  std::string Placeless(std::string text) const {
    for (const auto& folder : {main_.Folder.Path(), main_.Program.Documents.Path()}) {
      const std::string path = folder.string();
      for (std::size_t at = 0; (at = text.find(path, at)) != std::string::npos;)
        text.replace(at, path.size(), "@");
    }
    return text;
  }

  using TemporaryFolder = test::TemporaryFolder;

  test::MainWindow main_;
  Results results_;
};

}  // namespace

class commaLocaleTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void cleanup();

  void worksAlikeInACountryWithADecimalComma();

 private:
  QTemporaryDir countries_;
};

/// The country need not be installed.
void commaLocaleTest::initTestCase() {
  QProcess made;
  made.start("localedef", {"-i", "de_DE", "-f", "UTF-8", countries_.filePath(Country)});
  QVERIFY(made.waitForFinished() && made.exitCode() == 0);
  qputenv("LOCPATH", countries_.path().toUtf8());
}

void commaLocaleTest::cleanup() {
  std::setlocale(LC_ALL, "C");
  QLocale::setDefault(QLocale::c());
}

void commaLocaleTest::worksAlikeInACountryWithADecimalComma() {
  std::setlocale(LC_ALL, "C");
  QLocale::setDefault(QLocale::c());
  const Results plain = Workday().Work();

  QVERIFY(std::setlocale(LC_ALL, Country));
  QCOMPARE(std::localeconv()->decimal_point, ",");
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  QCOMPARE(QLocale().toString(0.5), QString("0,5"));
  Results there = Workday().Work();

  QCOMPARE(plain.at("txtWidth9,75"), std::string(" 9.750 in"));
  for (const char* file : {"new.bsw", "new.dxf", "new.txt", "settings file", "rows"})
    QVERIFY(!plain.at(file).empty());
  QVERIFY(plain.at("settings file").find("DisplayScale= 1.25\n") != std::string::npos);
  for (const auto& [name, text] : plain) {
    QVERIFY2(there[name] == text, (name + ":\n" + there[name].substr(0, 2000)).c_str());
  }
  QCOMPARE(there.size(), plain.size());
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::commaLocaleTest)
#include "commaLocale_test.moc"
