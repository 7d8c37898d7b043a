#pragma once

#include <functional>

#include "entry/DialogHost.h"
#include "entry/modFormat.h"
#include "entry/modParameter.h"
#include "model/modBandSaw.h"
#include "platform/Messages.h"

namespace tarnwick {

/// Asks the user for the measures of a design, each by its own dialog, and stores what comes back in the
/// record's own unit. No range is checked: the calculation judges.
struct Questions {
  DialogHost& Host;
  Messages& Say;
  DisplayFormat Format;
  std::function<void()> SaveSettings;  // called after every dialog, cancelled ones too

  /// Asks for a parameter of the record.
  /// @return whether the user accepted a value; when not, `saw` is untouched. A text that is no style, tip or
  ///         join counts as not accepted; a whole number beyond its field's range leaves the field alone.
  bool Ask(Parameter parameter, BandSaw& saw) const;

  /// Asks for a measure that lies elsewhere, such as one tooth of a segment.
  bool Ask(Parameter parameter, int toothStyle, double& value) const;

  /// Whether the band has a seat; the dialog opens on the present state.
  bool AskSeat(Flag& state) const;

 private:
  [[nodiscard]] std::string Answer(Parameter parameter, int toothStyle) const;
};

}  // namespace tarnwick
