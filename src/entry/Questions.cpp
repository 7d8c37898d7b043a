#include "entry/Questions.h"

#include "model/modCharacters.h"
#include "model/modDecim.h"
#include "store/modCodePage.h"

namespace tarnwick {
namespace {

/// Brings an accepted text into its place. False: it is none of the names to choose from.
struct Storing {
  StoreRule Rule;
  const std::string& Text;
  const DisplayFormat& Format;
  BandSaw& Saw;

  bool operator()(std::monostate) const { return false; }

  bool operator()(double& (*field)(BandSaw&)) const {
    field(Saw) = StoredNumber(Rule, Text, Format);
    return true;
  }

  template <std::signed_integral Whole>
  bool operator()(Whole& (*field)(BandSaw&)) const {
    if (Rule == StoreRule::Integer) {
      if (const auto whole = WholeNumber<Whole>(ReadNumber(Text))) field(Saw) = *whole;
      return true;
    }
    const ChoiceName* choice = FindChoice(Rule, Text);
    if (choice) field(Saw) = choice->Code;
    return choice != nullptr;
  }

  bool operator()(FixedText<30>& (*field)(BandSaw&)) const {
    field(Saw).Assign(NearestCodePageText(Trimmed(Text)));
    return true;
  }
};

}  // namespace

std::string Questions::Answer(Parameter parameter, int toothStyle) const {
  ValueDialog dialog = PrepareDialog(parameter, toothStyle, Format, Say);
  Host.Run(dialog);
  return dialog.Result();
}

bool Questions::Ask(Parameter parameter, BandSaw& saw) const {
  const std::string answer = Answer(parameter, saw.ToothStyle);
  const ParameterRow& row = RowOf(parameter);
  const bool accepted = !answer.empty() && std::visit(Storing{row.Store, answer, Format, saw}, row.Field);
  SaveSettings();
  return accepted;
}

bool Questions::Ask(Parameter parameter, int toothStyle, double& value) const {
  const std::string answer = Answer(parameter, toothStyle);
  if (!answer.empty()) value = StoredNumber(RowOf(parameter).Store, answer, Format);
  SaveSettings();
  return !answer.empty();
}

bool Questions::AskSeat(Flag& state) const {
  YesNoDialog dialog(SeatPrompt, SeatKey, SeatTitle, state != False);
  Host.Run(dialog);
  const bool accepted = !dialog.Result().empty();
  if (accepted) state = TruthOf(dialog.Result()) ? True : False;
  SaveSettings();
  return accepted;
}

}  // namespace tarnwick
