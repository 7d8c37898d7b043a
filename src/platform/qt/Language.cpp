#include "platform/qt/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QStringList>
#include <QTranslator>
#include <optional>
#include <utility>

#include "platform/qt/QtText.h"

namespace tarnwick {
namespace {

constexpr const char* CoreContext = "core";

/// nullopt: no catalogue knows the words.
std::optional<QString> Found(const QString& words) {
  QString said = QCoreApplication::translate(CoreContext, words.toUtf8().constData());
  if (said == words) return std::nullopt;
  return said;
}

std::optional<QString> FoundWithFigures(const QString& words) {
  static const QRegularExpression figure("\\d+(?:\\.\\d+)*");
  QString pattern;
  QStringList figures;
  qsizetype from = 0;
  for (auto it = figure.globalMatch(words); it.hasNext();) {
    const QRegularExpressionMatch match = it.next();
    figures.append(match.captured());
    pattern += words.mid(from, match.capturedStart() - from) + '%' + QString::number(figures.size());
    from = match.capturedEnd();
  }
  if (figures.isEmpty()) return std::nullopt;
  std::optional<QString> said = Found(pattern + words.mid(from));
  if (!said) return std::nullopt;
  for (const QString& number : std::as_const(figures)) said = said->arg(number);
  return said;
}

QString TranslatedLine(const QString& line) {
  const QString words = line.trimmed();
  if (words.isEmpty()) return line;
  std::optional<QString> said = Found(words);
  if (!said) said = FoundWithFigures(words);
  return said ? QString(line).replace(line.indexOf(words), words.size(), *said) : line;
}

void Speak(QCoreApplication& application, const char* catalogue, const QStringList& folders) {
  for (const QString& folder : folders) {
    auto* translator = new QTranslator(&application);
    if (translator->load(QLocale(), catalogue, "_", folder)) {
      QCoreApplication::installTranslator(translator);
      return;
    }
    delete translator;
  }
}

}  // namespace

QString Translated(std::string_view text) {
  QStringList lines = ToQt(text).split('\n');
  for (QString& line : lines) line = TranslatedLine(line);
  return lines.join('\n');
}

void SpeakLanguageOf(QCoreApplication& application) {
  Speak(application, "qtbase", {QLibraryInfo::path(QLibraryInfo::TranslationsPath)});
  Speak(application, "tarnwick", {":/translations", QCoreApplication::applicationDirPath()});
}

}  // namespace tarnwick
