#include "print/PrintJob.h"

namespace tarnwick {
namespace {

/// A job in a device: gone when it does not come to its end.
class RunningJob {
 public:
  explicit RunningJob(PrintDevice& device) : device_(device) {}
  RunningJob(const RunningJob&) = delete;
  RunningJob& operator=(const RunningJob&) = delete;
  ~RunningJob() {
    if (!ended_) device_.Cancel();
  }

  std::error_code End() {
    const std::error_code failure = device_.End();
    ended_ = !failure;
    return failure;
  }

 private:
  PrintDevice& device_;
  bool ended_ = false;
};

}  // namespace

std::error_code RunPrintJob(const PrintJob& job, PrintDevice& device,
                            const std::function<void(int sheet)>& beginSheet) {
  RunningJob running(device);
  for (int number = 1; number <= job.Sheets; ++number) {
    if (beginSheet) beginSheet(number);
    const std::error_code failure = number == 1 ? device.Begin(job.Title) : device.NewPage();
    if (failure) return failure;
    SendSheet(job.Sheet(number), device);
  }
  return running.End();
}

}  // namespace tarnwick
