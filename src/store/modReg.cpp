#include "store/modReg.h"

#include "model/modCharacters.h"

namespace tarnwick {
namespace {

constexpr std::size_t LongestValue = 255;  // characters

bool Tell(std::error_code failure, Messages& messages) {
  if (!failure) return true;
  messages.Show({.Text = "Error " + std::to_string(failure.value())});
  return false;
}

}  // namespace

std::string Registry::GetValue(std::string_view name) const {
  if (!KeyExists()) return {};
  const std::string value = store_.GetValue(ApplicationKey, section_, name);
  return std::string(FirstCharacters(value, LongestValue));
}

bool Registry::SetValue(std::string_view name, std::string_view value, Messages& messages) const {
  if (!KeyExists() && !Tell(store_.CreateKey(ApplicationKey, section_), messages)) return false;
  return Tell(store_.SetValue(ApplicationKey, section_, name, value), messages);
}

bool Registry::Finish(Messages& messages) const {
  return Tell(store_.Finish(ApplicationKey, section_), messages);
}

}  // namespace tarnwick
