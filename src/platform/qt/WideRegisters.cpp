#include "platform/qt/WideRegisters.h"

#include <QCoreApplication>

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>
#endif

namespace tarnwick {
namespace {

#if defined(__x86_64__) && defined(__GNUC__)

bool HasWideRegisters() {
  static const bool has = __builtin_cpu_supports("avx") != 0;
  return has;
}

__attribute__((target("avx"))) void Release() { _mm256_zeroupper(); }

#else

bool HasWideRegisters() { return false; }
void Release() {}

#endif

class Releaser final : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* /*watched*/, QEvent* /*event*/) override {
    ReleaseWideRegisters();
    return false;
  }
};

}  // namespace

void ReleaseWideRegisters() {
  if (HasWideRegisters()) Release();
}

void ReleaseWideRegistersForEvents(QCoreApplication& application) {
  application.installEventFilter(new Releaser(&application));
}

}  // namespace tarnwick
