#pragma once

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <stdexcept>

namespace tarnwick::test {

/// While it lives, the permissions of files hold for this thread, whoever runs the tests: root passes over
/// them otherwise.
class OrdinaryUser {
 public:
  OrdinaryUser() {
    Call(SYS_capget, before_);
    Data now[2] = {before_[0], before_[1]};
    now[0].effective &= ~(1U << CAP_DAC_OVERRIDE | 1U << CAP_DAC_READ_SEARCH);
    Call(SYS_capset, now);
  }
  OrdinaryUser(const OrdinaryUser&) = delete;
  OrdinaryUser& operator=(const OrdinaryUser&) = delete;
  ~OrdinaryUser() { Call(SYS_capset, before_); }

 private:
  using Data = __user_cap_data_struct;

  static void Call(long number, Data (&data)[2]) {
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    if (syscall(number, &header, data) != 0) throw std::runtime_error("capabilities of the process");
  }

  Data before_[2]{};
};

}  // namespace tarnwick::test
