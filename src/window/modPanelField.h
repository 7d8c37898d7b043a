#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "entry/modFormat.h"
#include "entry/modParameter.h"
#include "model/modBandSaw.h"

namespace tarnwick {

/// What a click on a box of an editor's panel does.
enum class BoxAct {
  Ask,       // opens the dialog of its parameter
  AskSeat,   // asks whether there is a seat
  Type,      // is typed into
  Tick,      // a check box
  MustUse,   // says which editor owns the figure
  ReadOnly,  // a result
};

/// One box of the tooth shape editor or of the general information.
struct PanelField {
  std::string_view Control;  // its name
  std::string_view Caption;
  std::string_view Group;  // heading above it; fields of one group stand together
  BoxAct Act;
  Parameter Asked;  // of Ask
  int Text;         // numbered hint, or of MustUse the numbered text that names the owner; 0: none
  std::string (*Shown)(const BandSaw& saw, const DisplayFormat& format);  // empty for what is not set
  void (*Take)(BandSaw& saw, std::string_view text) = nullptr;            // of Type: the text typed, UTF-8
  int MostCharacters = 0;                                                 // of Type
};

/// The boxes of fraToothShape in the working order: style, length, teeth, pitch, width, angles, gullet, seat,
/// results. One fills them in from top to bottom, as no radius survives without a pitch.
[[nodiscard]] std::span<const PanelField> ToothFields();

/// The boxes of fraGeneral: its own first, then those that other editors own.
[[nodiscard]] std::span<const PanelField> GeneralFields();

/// What a box shows of a value that was accepted in its dialog: a zero, too, as the user has just given it.
[[nodiscard]] std::string AcceptedText(const PanelField& field, const BandSaw& saw,
                                       const DisplayFormat& format);

/// How a box of fraToothShape stands for a tooth style and with or without a seat.
enum class BoxState { Hidden, ReadOnly, Clickable };
[[nodiscard]] BoxState ToothBoxState(const PanelField& field, int toothStyle, bool hasSeat);

/// The help topic of what a box or a row asks; 0 for one that asks nothing.
[[nodiscard]] int HelpTopicOf(BoxAct act, Parameter asked);

/// The hint and the second hint line of a box.
struct BoxHint {
  std::string_view Status, Hint;
};
[[nodiscard]] BoxHint HintOfBox(const PanelField& field);

}  // namespace tarnwick
