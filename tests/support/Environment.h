#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>

namespace tarnwick::test {

/// A variable of the environment, for this process and those that it starts, as it is to be during a test:
/// set, or not there at all. Afterwards it is as it was.
class EnvironmentVariable {
 public:
  EnvironmentVariable(std::string name, const std::optional<std::string>& value) : name_(std::move(name)) {
    if (const char* before = std::getenv(name_.c_str())) before_ = before;
    Set(value);
  }
  EnvironmentVariable(const EnvironmentVariable&) = delete;
  EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
  ~EnvironmentVariable() { Set(before_); }

 private:
  void Set(const std::optional<std::string>& value) const {
#ifdef _WIN32
    _putenv_s(name_.c_str(), value.value_or("").c_str());
#else
    if (value)
      setenv(name_.c_str(), value->c_str(), 1);
    else
      unsetenv(name_.c_str());
#endif
  }

  std::string name_;
  std::optional<std::string> before_;
};

}  // namespace tarnwick::test
