#include "qt/HelpBench.h"

namespace tarnwick {

using namespace test;

// The window of the manual: topics, finding, pages.
class HelpWindowTest : public QObject, private HelpBench {
  Q_OBJECT

 private slots:
  void init() { Begin(); }
  void cleanup() { End(); }

  void opensThePageOfEveryTopic_data();
  void opensThePageOfEveryTopic();
  void opensTheContentsForATopicWithoutPage_data();
  void opensTheContentsForATopicWithoutPage();
  void opensContentsSearchAndSupport();
  void keepsThePageWhenTheIndexIsAskedFor();
  void reachesEveryPageThroughItsContents();
  void jumpsFromTheIndex();
  void searchesTheText() { SearchTheText(); }
  void searchesBeforeAllPagesAreRead();
  void saysThatNoPageHasTheWords();
  void goesBackForwardAndHome();
  void findsWordsOnThePage();
  void enlargesTextAndPictures();
  void showsPicturesFinely();
  void showsEveryPictureAndStyleThatAPageNames();
  void followsEveryLinkOfEveryPage();
  void closesOnEscape();
  void comesBackWhenMinimised();
  void staysOneWindow();
  void doesNotKeepTheProgramRunning();
};

// ---- topics

void HelpWindowTest::opensThePageOfEveryTopic_data() {
  QTest::addColumn<int>("topic");
  for (const ParameterRow& row : Parameters()) {
    if (row.HelpTopic != 0) QTest::addRow("%s", ToQt(row.Title).toUtf8().constData()) << row.HelpTopic;
  }
  QTest::newRow("Seat") << HelpTopicOfTitle(SeatTitle);
}

void HelpWindowTest::opensThePageOfEveryTopic() {
  QFETCH(int, topic);
  help_->ShowTopic(topic);
  QVERIFY(Window()->isVisible());
  QVERIFY(!Title().isEmpty());
  QVERIFY(Address() != ContentsAddress);
  QVERIFY(Page()->toPlainText().size() > 100);
}

void HelpWindowTest::opensTheContentsForATopicWithoutPage_data() {
  QTest::addColumn<int>("topic");
  for (const int topic : {0, -1, 1, 299, 99999}) QTest::addRow("%d", topic) << topic;
}

void HelpWindowTest::opensTheContentsForATopicWithoutPage() {
  QFETCH(int, topic);
  help_->ShowTopic(213);
  help_->ShowTopic(topic);
  QCOMPARE(Address(), QString(ContentsAddress));
}

void HelpWindowTest::opensContentsSearchAndSupport() {
  auto pane = [] { return Find<QTabWidget>("tabHelp")->currentWidget(); };
  help_->ShowSupport();
  QVERIFY(Title().contains("help", Qt::CaseInsensitive));
  const QString support = Address();
  QVERIFY(support != ContentsAddress);
  help_->ShowSearch();
  QVERIFY(pane()->findChild<QLineEdit*>("txtHelpIndex"));
  QTRY_VERIFY(Find<QLineEdit>("txtHelpIndex")->hasFocus());
  help_->ShowContents();
  QCOMPARE(Address(), QString(ContentsAddress));
  QCOMPARE(pane(), Find<QHelpContentWidget>("treHelpContents"));
}

void HelpWindowTest::keepsThePageWhenTheIndexIsAskedFor() {
  help_->ShowSearch();
  QVERIFY(!Title().isEmpty());  // a first page of its own
  help_->ShowTopic(213);
  const QString gullet = Address();
  help_->ShowSearch();
  QCOMPARE(Address(), gullet);
}

// ---- finding

void HelpWindowTest::reachesEveryPageThroughItsContents() {
  help_->ShowTopic(213);
  auto* tree = Find<QHelpContentWidget>("treHelpContents");
  QTRY_VERIFY(tree->model()->rowCount() > 0);
  QTRY_VERIFY(tree->currentIndex().isValid());  // marks the page that is open
  ShowPane("&Contents");
  QModelIndex last = tree->model()->index(0, 0);
  QSet<QString> pages;
  for (; last.isValid(); last = tree->indexBelow(last)) {
    tree->expand(last);
    tree->scrollTo(last);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(last).center());
    QVERIFY2(!Title().isEmpty(), qPrintable(last.data().toString()));
    QCOMPARE(tree->currentIndex(), last);
    pages.insert(Address());
  }
  QVERIFY(pages.size() > 30);
}

void HelpWindowTest::jumpsFromTheIndex() {
  help_->ShowSearch();
  const QString before = Address();
  auto* list = Find<QHelpIndexWidget>("lstHelpIndex");
  QTRY_VERIFY(list->model()->rowCount() > 0);
  QTest::keyClicks(Find<QLineEdit>("txtHelpIndex"), "gullet d");
  QVERIFY(list->currentIndex().data().toString().startsWith("gullet d", Qt::CaseInsensitive));
  QTest::keyClick(Find<QLineEdit>("txtHelpIndex"), Qt::Key_Return);
  QVERIFY(Address() != before);
  const QString byIndex = Address();
  help_->ShowTopic(213);
  QCOMPARE(Address(), byIndex);
}

void HelpWindowTest::searchesBeforeAllPagesAreRead() {
  help_->ShowContents();
  ShowPane("&Search");
  auto* words = Find<QLineEdit>("txtHelpSearch");
  QTest::keyClicks(words, "gull");  // a word half typed
  QTest::keyClick(words, Qt::Key_Return);
  QTRY_VERIFY(Find<QListWidget>("lstHelpSearch")->count() > 0);
  QTRY_VERIFY(Address() != ContentsAddress);  // Enter opens the first page found
}

void HelpWindowTest::saysThatNoPageHasTheWords() {
  help_->ShowContents();
  ShowPane("&Search");
  auto* words = Find<QLineEdit>("txtHelpSearch");
  for (const char* odd : {"xyzzy", "\"", "("}) {
    words->setText("gullet");
    QTRY_VERIFY(Find<QListWidget>("lstHelpSearch")->count() > 0);
    words->setText(odd);
    QTRY_COMPARE(Find<QListWidget>("lstHelpSearch")->count(), 0);
    QCOMPARE(Find<QLabel>("lblHelpSearch")->text(), QString("No page has these words."));
  }
  words->clear();
  QTRY_COMPARE(Find<QLabel>("lblHelpSearch")->text(), QString());
}

void HelpWindowTest::goesBackForwardAndHome() {
  help_->ShowTopic(213);
  const QString first = Address();
  QVERIFY(!Find<QToolButton>("cmdHelpBack")->isEnabled());
  help_->ShowTopic(200);
  const QString second = Address();
  QVERIFY(QTest::qWaitForWindowActive(Window()));
  Press("cmdHelpBack");
  QCOMPARE(Address(), first);
  Press("cmdHelpForward");
  QCOMPARE(Address(), second);
  QTest::keyClick(Page(), Qt::Key_Left, Qt::AltModifier);
  QCOMPARE(Address(), first);
  QTest::keyClick(Page(), Qt::Key_Right, Qt::AltModifier);
  QCOMPARE(Address(), second);
  Press("cmdHelpHome");
  QCOMPARE(Address(), QString(ContentsAddress));
}

void HelpWindowTest::findsWordsOnThePage() {
  help_->ShowTopic(213);
  QVERIFY(QTest::qWaitForWindowActive(Window()));
  auto* words = Find<QLineEdit>("txtHelpFind");
  QVERIFY(!words->isVisible());
  QTest::keyClick(Page(), Qt::Key_F, Qt::ControlModifier);
  QVERIFY(words->isVisible());
  QTest::keyClicks(words, "gullet");
  QTest::keyClick(words, Qt::Key_Return);
  QCOMPARE(Page()->textCursor().selectedText().toLower(), QString("gullet"));
  const int once = Page()->textCursor().position();
  QTest::keyClick(words, Qt::Key_F3);
  QVERIFY(Page()->textCursor().position() != once);
  QTest::keyClick(words, Qt::Key_F3, Qt::ShiftModifier);
  QCOMPARE(Page()->textCursor().position(), once);
  words->setText("xyzzy");
  QTest::keyClick(words, Qt::Key_Return);
  QCOMPARE(Find<QLabel>("lblHelpFind")->text(), QString("Not on this page."));
  QTest::keyClick(words, Qt::Key_Escape);  // first the bar, then the window
  QVERIFY(!words->isVisible());
  QVERIFY(Window()->isVisible());
}

// ---- pages

namespace {

/// Width of the first picture of the page as it is laid out, and of its pixels.
struct Widths {
  double Shown = 0;
  int Pixels = 0;
};

Widths FirstPicture() {
  QTextDocument* text = Page()->document();
  for (QTextBlock block = text->begin(); block.isValid(); block = block.next()) {
    for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
      const QTextImageFormat format = piece.fragment().charFormat().toImageFormat();
      if (!format.isValid()) continue;
      const auto image = text->resource(QTextDocument::ImageResource, QUrl(format.name())).value<QImage>();
      const double shown = format.width() > 0 ? format.width() : image.deviceIndependentSize().width();
      return {shown, image.width()};
    }
  }
  return {};
}

}  // namespace

void HelpWindowTest::enlargesTextAndPictures() {
  help_->ShowTopic(213);
  QVERIFY(QTest::qWaitForWindowActive(Window()));
  const double height = Page()->document()->size().height();
  const double picture = FirstPicture().Shown;
  QVERIFY(picture > 0);
  auto* normal = Find<QToolButton>("cmdHelpNormal");
  QCOMPARE(normal->text(), QString("100 %"));
  for (int i = 0; i < 10; ++i) QTest::keyClick(Page(), Qt::Key_Plus, Qt::ControlModifier);
  QCOMPARE(normal->text(), QString("200 %"));
  QVERIFY(Page()->document()->size().height() > 1.5 * height);
  QCOMPARE(FirstPicture().Shown, 2 * picture);
  QTest::keyClick(Page(), Qt::Key_0, Qt::ControlModifier);
  QCOMPARE(Page()->document()->size().height(), height);
  QTest::keyClick(Page(), Qt::Key_Minus, Qt::ControlModifier);
  QCOMPARE(normal->text(), QString("90 %"));
  for (int i = 0; i < 50; ++i) Press("cmdHelpSmaller");
  QCOMPARE(normal->text(), QString("50 %"));
  for (int i = 0; i < 50; ++i) Press("cmdHelpLarger");
  QCOMPARE(normal->text(), QString("300 %"));
  Press("cmdHelpNormal");
  QCOMPARE(normal->text(), QString("100 %"));
}

void HelpWindowTest::showsPicturesFinely() {
  help_->ShowTopic(213);
  const Widths picture = FirstPicture();
  QCOMPARE(picture.Pixels, qRound(picture.Shown * Page()->devicePixelRatioF()));
}

namespace {

/// Shows every page that the contents name, one after the other.
void ForEachPage(const std::function<void()>& look) {
  auto* tree = Find<QHelpContentWidget>("treHelpContents");
  QTRY_VERIFY(tree->model()->rowCount() > 0);
  tree->expandAll();
  for (QModelIndex at = tree->model()->index(0, 0); at.isValid(); at = tree->indexBelow(at)) {
    emit tree->clicked(at);
    look();
  }
}

/// All that the pages refer to, as addresses; `reference` picks it from a format.
void ForEachFormat(const std::function<void(const QTextFormat&)>& look) {
  for (const QTextFormat& format : Page()->document()->allFormats()) look(format);
}

}  // namespace

void HelpWindowTest::showsEveryPictureAndStyleThatAPageNames() {
  help_->ShowContents();
  int pictures = 0;
  ForEachPage([&] {
    ForEachFormat([&](const QTextFormat& format) {
      if (!format.isImageFormat()) return;
      const QUrl name(format.toImageFormat().name());
      const QVariant image = Page()->document()->resource(QTextDocument::ImageResource, name);
      QVERIFY2(!image.value<QImage>().isNull(), qPrintable(Address() + ": " + name.toString()));
      ++pictures;
    });
  });
  QVERIFY(pictures > 0);
}

void HelpWindowTest::followsEveryLinkOfEveryPage() {
  help_->ShowContents();
  QSet<QUrl> links;
  ForEachPage([&] {
    ForEachFormat([&](const QTextFormat& format) {
      const QUrl link = Page()->source().resolved(QUrl(format.stringProperty(QTextFormat::AnchorHref)));
      if (link.scheme() == "qthelp") links.insert(link);
    });
  });
  for (const QUrl& link : links) {
    Page()->setSource(link);
    QVERIFY2(!Title().isEmpty(), qPrintable(link.toString()));
  }
}

// ---- the window

void HelpWindowTest::closesOnEscape() {
  help_->ShowContents();
  QVERIFY(QTest::qWaitForWindowActive(Window()));
  QTest::keyClick(Page(), Qt::Key_Escape);
  QVERIFY(!Window()->isVisible());
  help_->ShowTopic(213);
  QVERIFY(Window()->isVisible());
}

void HelpWindowTest::comesBackWhenMinimised() {
  help_->ShowContents();
  Window()->showMinimized();
  QVERIFY(Window()->isMinimized());
  help_->ShowTopic(213);
  QVERIFY(!Window()->isMinimized());
  QVERIFY(QTest::qWaitForWindowActive(Window()));
}

void HelpWindowTest::staysOneWindow() {
  help_->ShowContents();
  const QWidget* first = Window();
  Window()->move(77, 88);
  Window()->resize(700, 500);
  help_->ShowTopic(213);
  QCOMPARE(Window(), first);
  QCOMPARE(first->pos(), QPoint(77, 88));
  QCOMPARE(first->size(), QSize(700, 500));
  QVERIFY(!first->isModal());
}

void HelpWindowTest::doesNotKeepTheProgramRunning() {
  QWidget other;
  other.show();
  help_->ShowContents();
  QTimer::singleShot(0, &other, &QWidget::close);
  QTimer::singleShot(5000, qApp, [] { QApplication::exit(1); });
  QCOMPARE(QApplication::exec(), 0);
}

}  // namespace tarnwick

QTEST_MAIN(tarnwick::HelpWindowTest)
#include "HelpWindow_test.moc"
