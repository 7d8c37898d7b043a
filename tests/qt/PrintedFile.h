#pragma once

#include <QImage>
#include <QProcess>
#include <QRect>
#include <QRegularExpression>
#include <QSizeF>
#include <QStringList>
#include <QTest>
#include <vector>

namespace tarnwick::test {

/// What a program of the system has to say; the test ends when it fails.
inline QByteArray OutputOf(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.setProcessChannelMode(QProcess::SeparateChannels);
  process.start(program, arguments);
  if (!process.waitForFinished() || process.exitCode() != 0) {
    qFatal("%s: %s %s", qPrintable(program), qPrintable(process.errorString()),
           process.readAllStandardError().constData());
  }
  return process.readAllStandardOutput();
}

/// A word on a sheet: where its letters begin and end, in points.
struct PrintedWord {
  QString Text;
  double Left{}, Top{}, Right{}, Bottom{};
};

/// A PDF file as other programs read it.
class PrintedFile {
 public:
  explicit PrintedFile(QString path) : path_(std::move(path)) {}

  [[nodiscard]] int Pages() const { return Info("Pages: +(\\d+)").captured(1).toInt(); }
  [[nodiscard]] QString Title() const { return Info("Title: +(.*)").captured(1); }

  /// Of the first page, in points.
  [[nodiscard]] QSizeF Size() const {
    const QRegularExpressionMatch size = Info("Page size: +([\\d.]+) x ([\\d.]+)");
    return {size.captured(1).toDouble(), size.captured(2).toDouble()};
  }

  [[nodiscard]] std::vector<PrintedWord> Words(int page = 1) const {
    const QString number = QString::number(page);
    const QString text =
        QString::fromUtf8(OutputOf("pdftotext", {"-bbox", "-f", number, "-l", number, path_, "-"}));
    const QRegularExpression word(
        R"re(<word xMin="(.+?)" yMin="(.+?)" xMax="(.+?)" yMax="(.+?)">(.*?)</word>)re");
    std::vector<PrintedWord> words;
    for (auto found = word.globalMatch(text); found.hasNext();) {
      const QRegularExpressionMatch match = found.next();
      words.push_back({match.captured(5), match.captured(1).toDouble(), match.captured(2).toDouble(),
                       match.captured(3).toDouble(), match.captured(4).toDouble()});
    }
    return words;
  }

  /// Its words, a blank between two.
  [[nodiscard]] QString Text(int page = 1) const {
    QStringList words;
    for (const PrintedWord& word : Words(page)) words += word.Text;
    return words.join(' ');
  }

  /// A part of a sheet as it comes out of a printer of 1440 dots to the inch: a pixel is a twip.
  [[nodiscard]] QImage Part(const QRect& twips, int page = 1) const {
    return Picture(page, {"-r", "1440", "-x", QString::number(twips.x()), "-y", QString::number(twips.y()),
                          "-W", QString::number(twips.width()), "-H", QString::number(twips.height())});
  }

  /// A sheet as a whole. A pixel is ten twips.
  [[nodiscard]] QImage Sheet(int page = 1) const { return Picture(page, {"-r", "144"}); }

 private:
  [[nodiscard]] QRegularExpressionMatch Info(const char* pattern) const {
    return QRegularExpression(pattern).match(QString::fromUtf8(OutputOf("pdfinfo", {path_})));
  }

  [[nodiscard]] QImage Picture(int page, QStringList arguments) const {
    const QString number = QString::number(page);
    arguments << "-mono"
              << "-f" << number << "-l" << number << path_;
    return QImage::fromData(OutputOf("pdftoppm", arguments)).convertToFormat(QImage::Format_RGB32);
  }

  QString path_;
};

/// The box of what is black, in the pixels of the picture; empty when nothing is.
inline QRect BlackBox(const QImage& picture) {
  QRect box;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      if (qGray(picture.pixel(x, y)) < 128) box |= QRect(x, y, 1, 1);
    }
  }
  return box;
}

/// The same on the sheet itself.
inline QRect BlackBox(const PrintedFile& file, const QRect& twips, int page = 1) {
  const QRect box = BlackBox(file.Part(twips, page));
  return box.isEmpty() ? box : box.translated(twips.topLeft());
}

}  // namespace tarnwick::test
