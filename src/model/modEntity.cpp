#include "model/modEntity.h"

#include "platform/Messages.h"

namespace tarnwick {

void EntityList::Clear() {
  Header = {};
  Entities.clear();
  Repetitions.clear();
  Lost = 0;
}

void AppendEntities(EntityList& target, const EntityList& source, int memorySize, Messages& messages) {
  constexpr double LinesPerEntity = 8;
  const std::size_t total = target.Count() + source.Count();
  if (memorySize / LinesPerEntity < static_cast<double>(total)) {
    messages.Show({.Text = "Increase dxf memory!"});
    return;
  }
  if (target.Entities.empty()) target.Header = source.Header;
  target.Lost += source.Lost;
  target.Entities.insert(target.Entities.end(), source.Entities.begin(), source.Entities.end());
}

}  // namespace tarnwick
