#include "platform/qt/QtPrintQueue.h"

#include <QLibrary>
#include <QPrintEngine>
#include <QPrinter>
#include <QString>
#include <QStringList>
#include <QtGlobal>
#include <string>

namespace tarnwick {

#ifdef Q_OS_UNIX
namespace {

constexpr auto QueueOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);  // names and values by turns
constexpr const char* Scaling = "print-scaling";
constexpr const char* Quality = "print-quality";
constexpr const char* High = "5";
constexpr int FirstFailure = 0x400;  // of the answers of a queue

/// A function of the client library that the toolkit has loaded already; nullptr when there is none.
template <class Function>
Function OfLibrary(const char* name) {
  return reinterpret_cast<Function>(QLibrary::resolve("cups", "2", name));
}

class QueueErrors final : public std::error_category {
 public:
  [[nodiscard]] const char* name() const noexcept override { return "print queue"; }

  /// In the queue's own words, as long as it has said nothing else since.
  [[nodiscard]] std::string message(int answer) const override {
    const auto last = OfLibrary<int (*)()>("cupsLastError");
    const auto words = OfLibrary<const char* (*)()>("cupsLastErrorString");
    if (last && words && last() == answer && words()) return words();
    const auto general = OfLibrary<const char* (*)(int)>("ippErrorString");
    return general ? general(answer) : "The print queue has refused the job.";
  }
};

}  // namespace

void AskOfQueue(QPrinter& printer, bool high) {
  const QStringList set = printer.printEngine()->property(QueueOptions).toStringList();
  QStringList options;
  for (qsizetype i = 0; i + 1 < set.size(); i += 2) {
    if (set[i] != Scaling && set[i] != Quality) options << set[i] << set[i + 1];
  }
  options << Scaling << "none";
  if (high) options << Quality << High;
  printer.printEngine()->setProperty(QueueOptions, options);
}

std::error_code LastQueueAnswer() {
  static const QueueErrors errors;
  const auto last = OfLibrary<int (*)()>("cupsLastError");
  const int answer = last ? last() : 0;
  return answer < FirstFailure ? std::error_code() : std::error_code(answer, errors);
}

#else

void AskOfQueue(QPrinter& /*printer*/, bool /*high*/) {}
std::error_code LastQueueAnswer() { return {}; }

#endif

}  // namespace tarnwick
