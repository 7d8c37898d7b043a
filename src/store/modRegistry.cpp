#include "store/modRegistry.h"

#ifdef _WIN32

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

namespace tarnwick {
namespace {

std::wstring Wide(std::string_view utf8) {
  const int length = static_cast<int>(utf8.size());
  std::wstring wide(
      static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0)), 0);
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string Narrow(std::wstring_view wide) {
  const int length = static_cast<int>(wide.size());
  const int size = WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(size), 0);
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, utf8.data(), size, nullptr, nullptr);
  return utf8;
}

std::error_code ErrorOf(LSTATUS status) { return {static_cast<int>(status), std::system_category()}; }

/// An open key, closed at the end of its scope.
class Key {
 public:
  Key() = default;
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() {
    if (key_ != nullptr) RegCloseKey(key_);
  }

  LSTATUS Open(std::string_view application, std::string_view section, REGSAM access) {
    return RegOpenKeyExW(HKEY_CURRENT_USER, PathOf(application, section).c_str(), 0, access, &key_);
  }
  LSTATUS Create(std::string_view application, std::string_view section) {
    return RegCreateKeyExW(HKEY_CURRENT_USER, PathOf(application, section).c_str(), 0, nullptr, 0, KEY_WRITE,
                           nullptr, &key_, nullptr);
  }
  [[nodiscard]] HKEY Handle() const { return key_; }

 private:
  static std::wstring PathOf(std::string_view application, std::string_view section) {
    return Wide("Software\\" + std::string(application) + '\\' + std::string(section));
  }

  HKEY key_ = nullptr;
};

}  // namespace

bool WindowsRegistry::KeyExists(std::string_view application, std::string_view section) {
  return Key().Open(application, section, KEY_READ) == ERROR_SUCCESS;
}

std::error_code WindowsRegistry::CreateKey(std::string_view application, std::string_view section) {
  return ErrorOf(Key().Create(application, section));
}

std::string WindowsRegistry::GetValue(std::string_view application, std::string_view section,
                                      std::string_view name) {
  Key key;
  if (key.Open(application, section, KEY_READ) != ERROR_SUCCESS) return {};
  const std::wstring wideName = Wide(name);
  DWORD size = 0;  // bytes, with the terminating zero
  constexpr DWORD texts = RRF_RT_REG_SZ;
  if (RegGetValueW(key.Handle(), nullptr, wideName.c_str(), texts, nullptr, nullptr, &size) !=
      ERROR_SUCCESS) {
    return {};
  }
  std::wstring value(size / sizeof(wchar_t), 0);
  if (RegGetValueW(key.Handle(), nullptr, wideName.c_str(), texts, nullptr, value.data(), &size) !=
      ERROR_SUCCESS) {
    return {};
  }
  return Narrow(value.c_str());
}

std::error_code WindowsRegistry::SetValue(std::string_view application, std::string_view section,
                                          std::string_view name, std::string_view value) {
  Key key;
  if (const LSTATUS failed = key.Open(application, section, KEY_WRITE); failed != ERROR_SUCCESS) {
    return ErrorOf(failed);
  }
  const std::wstring text = Wide(value);
  const auto* bytes = reinterpret_cast<const BYTE*>(text.c_str());
  return ErrorOf(RegSetValueExW(key.Handle(), Wide(name).c_str(), 0, REG_SZ, bytes,
                                static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t))));
}

std::error_code WindowsRegistry::Finish(std::string_view, std::string_view) { return {}; }

}  // namespace tarnwick

#endif
