#pragma once

#include <QComboBox>
#include <QString>
#include <cstddef>
#include <optional>

#include "platform/qt/Language.h"
#include "power/modFeedIndex.h"

namespace tarnwick {

/// The list of the percentages that a gullet feed index may have. What the user chooses is `activated`.
class FeedIndexList final : public QComboBox {
 public:
  explicit FeedIndexList(const QString& spoken) {
    setObjectName("cboFeedIndex");
    setAccessibleName(spoken);
    for (const std::string& entry : FeedIndexEntries()) addItem(Translated(entry));
  }

  /// nullopt: an index that is none of them.
  void ShowEntry(std::optional<std::size_t> entry) { setCurrentIndex(entry ? static_cast<int>(*entry) : -1); }
};

}  // namespace tarnwick
