#include "entry/StepByStep.h"

#include <cmath>
#include <cstdint>
#include <span>
#include <variant>

#include "model/modChecked.h"
#include "model/modDecim.h"
#include "power/modPower.h"

namespace tarnwick {
namespace {

// What becomes of a question that is declined.
struct Abort {};
struct Ignore {};  // the measure stays as it was
struct Default {
  double Value;
};
struct PartOfPitch {
  double Factor;  // of the average pitch in inches
};
struct PartOfPitchInFeet {
  double Factor;  // of CalcPitch, which is in feet: meant, the calculation widens what is too narrow
};
struct AskInstead {
  Parameter Id;  // declined as well: abort
};
using IfDeclined = std::variant<Abort, Ignore, Default, PartOfPitch, PartOfPitchInFeet, AskInstead>;

struct PlannedQuestion {
  Parameter Id;
  bool (*AskedFor)(const BandSaw&);
  IfDeclined Declined;
  void (*Accepted)(BandSaw&, int places) = nullptr;  // what follows from the answer
};

bool Always(const BandSaw&) { return true; }

template <ToothStyleNumber... Styles>
bool In(const BandSaw& saw) {
  return ((saw.ToothStyle == Styles) || ...);
}

template <ToothStyleNumber... Styles>
bool NotIn(const BandSaw& saw) {
  return !In<Styles...>(saw);
}

constexpr std::int16_t CarbideTip = 3;

bool HasTip(const BandSaw& saw) { return saw.GeneralInfo.TipType > 0; }

/// Feet divided by inches, as it stands: meant, the calculation settles pitch and count later.
void CountTeeth(BandSaw& saw, int /*places*/) {
  const Checked teeth = Quotient(saw.Length, saw.Pitch);
  if (teeth.Ok()) Let(saw.NumTeeth) = std::floor(teeth.OrZero());
}

void NoteGeneral(BandSaw& saw, int /*places*/) { saw.ContainsInfo.General = True; }

void NoteKerf(BandSaw& saw, int places) {
  NoteGeneral(saw, places);
  saw.GeneralInfo.SideClear = CalcSideClear(saw.GeneralInfo.PlateThick, saw.GeneralInfo.Kerf, places);
}

constexpr PlannedQuestion UpToTheTip[] = {
    {Parameter::ToothStyle, Always, Abort{}},
    {Parameter::WheelDiameter, Always, Ignore{}},
    {Parameter::BandLength, Always, Abort{}},
    {Parameter::BandWidth, Always, Abort{}},
    {Parameter::Pitch, Always, AskInstead{Parameter::NumTeeth}, CountTeeth},
    {Parameter::HookAngle, Always, Abort{}},
    {Parameter::ClearanceAngle, NotIn<NarrowStyle, OShape>, Default{8}},
    {Parameter::TipClearance, Always, Ignore{}},
    {Parameter::TipType, Always, Ignore{}},
};

// The seat is asked for in between.

constexpr PlannedQuestion FromThePlate[] = {
    {Parameter::PlateThickness, Always, Ignore{}, NoteGeneral},
    {Parameter::TipKerf, HasTip, Ignore{}, NoteKerf},
    {Parameter::GulletRadius, NotIn<DoubleRadius, TripleRadius, FlatBottom, NarrowStyle, OShape>,
     PartOfPitch{0.18}},
    {Parameter::FirstGulletRadius, In<DoubleRadius, TripleRadius, FlatBottom, OShape>, PartOfPitch{0.1}},
    {Parameter::SecondGulletRadius, In<DoubleRadius, TripleRadius, FlatBottom>, PartOfPitch{0.3}},
    {Parameter::ThirdGulletRadius, In<TripleRadius>, PartOfPitch{0.1}},
    {Parameter::GulletWidth, In<DoubleRadius, TripleRadius>, PartOfPitchInFeet{0.333}},
    {Parameter::GulletWidth, In<FlatBottom, OShape>, PartOfPitch{0.333}},
    {Parameter::GulletBottomAngle, In<FlatBottom>, Default{5}},
    {Parameter::GulletDepth, Always, Default{0}},
    {Parameter::GulletBackAngle, NotIn<NarrowStyle, OShape>, Default{15}},
    {Parameter::GulletBackRadius, In<RoundBack, DoubleRadius, TripleRadius, FlatBottom>, Default{0}},
};

/// Carries out what declining a question means. False: abort.
struct Declining {
  Parameter Id;
  BandSaw& Saw;
  const Questions& Desk;

  bool operator()(Abort) const { return false; }
  bool operator()(Ignore) const { return true; }
  bool operator()(AskInstead other) const { return Desk.Ask(other.Id, Saw); }

  bool operator()(Default fixed) const {
    Measure() = fixed.Value;
    return true;
  }

  bool operator()(PartOfPitch part) const {
    return StoreRounded(Quotient(Saw.Length * InchesPerFoot, Saw.NumTeeth) * part.Factor);
  }

  bool operator()(PartOfPitchInFeet part) const {
    return StoreRounded(CalcPitch(Saw.Length, Saw.NumTeeth, Desk.Format.DecimalPlaces) * part.Factor);
  }

 private:
  [[nodiscard]] double& Measure() const { return std::get<double& (*)(BandSaw&)>(RowOf(Id).Field)(Saw); }

  [[nodiscard]] bool StoreRounded(Checked value) const {
    Let(Measure()) = Rounding(Desk.Format.DecimalPlaces)(value);
    return true;
  }
};

/// False: abort.
bool AskOne(const PlannedQuestion& question, BandSaw& saw, const Questions& questions) {
  if (!question.AskedFor(saw)) return true;
  if (!questions.Ask(question.Id, saw)) {
    return std::visit(Declining{question.Id, saw, questions}, question.Declined);
  }
  if (question.Accepted) question.Accepted(saw, questions.Format.DecimalPlaces);
  return true;
}

/// False: abort, and nothing more is asked.
bool AskInOrder(std::span<const PlannedQuestion> plan, BandSaw& saw, const Questions& questions) {
  for (const PlannedQuestion& question : plan) {
    if (!AskOne(question, saw, questions)) return false;
  }
  return true;
}

/// A seat without both its measures is none.
void AskForSeat(BandSaw& saw, const Questions& questions) {
  BandSaw::Seat& seat = saw.SeatInfo;
  if (saw.GeneralInfo.TipType != CarbideTip || !questions.AskSeat(seat.State)) return;
  const bool measured = seat.State != False && questions.Ask(Parameter::SeatWidth, saw) &&
                        questions.Ask(Parameter::SeatHeight, saw);
  if (!measured) seat = {};
}

bool AskAll(BandSaw& saw, const Questions& questions) {
  if (!AskInOrder(UpToTheTip, saw, questions)) return false;
  AskForSeat(saw, questions);
  return AskInOrder(FromThePlate, saw, questions);
}

}  // namespace

bool StepByStepInput(BandSaw& saw, const Questions& questions) {
  if (!AskAll(saw, questions)) {
    ClearBandSaw(saw);
    return false;
  }
  if (In<SquareBack, NarrowStyle, OShape>(saw)) saw.GulletInfo.BackRadius = 0;
  saw.ContainsInfo.Teeth = True;
  return true;
}

void ClearBandSaw(BandSaw& saw) { saw = {}; }

}  // namespace tarnwick
