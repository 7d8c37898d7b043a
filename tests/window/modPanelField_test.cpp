#include "window/modPanelField.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "support/TeethOf.h"

namespace tarnwick {
namespace {

constexpr DisplayFormat Inch{Imperial, 3, 5};
constexpr DisplayFormat Centimetre{Metric, 3, 5};

const PanelField* Find(std::span<const PanelField> fields, std::string_view control) {
  const auto found = std::find_if(fields.begin(), fields.end(),
                                  [control](const PanelField& field) { return field.Control == control; });
  return found == fields.end() ? nullptr : &*found;
}

/// A box that must be there.
const PanelField& BoxOf(std::span<const PanelField> fields, std::string_view control) {
  static const PanelField missing{};
  const PanelField* field = Find(fields, control);
  EXPECT_NE(field, nullptr) << control;
  return field == nullptr ? missing : *field;
}

const PanelField& Tooth(std::string_view control) { return BoxOf(ToothFields(), control); }
const PanelField& General(std::string_view control) { return BoxOf(GeneralFields(), control); }

// ---- which boxes stand for which style

/// One letter a style, 0 to 9. + clickable, r read-only, s clickable with a seat and else read-only, -
/// hidden.
struct StyleRow {
  const char* Control;
  const char* ByStyle;
  friend void PrintTo(const StyleRow& row, std::ostream* out) { *out << row.Control; }
};

const std::vector<StyleRow> ByStyle{{"txtToothStyle", "++++++++++"},
                                    {"txtLength", "++++++++++"},
                                    {"txtWidth", "++++++++++"},
                                    {"txtNumTeeth", "++++++++++"},
                                    {"txtPitch", "++++++++++"},
                                    {"txtHook", "++++++++++"},
                                    {"txtTipClearance", "++++++++++"},
                                    {"txtSeat", "++++++++++"},
                                    {"txtGulletDepth", "++++++++++"},
                                    {"txtClear", "+++++++rr+"},
                                    {"txtSeatWidth", "ssssssssss"},
                                    {"txtSeatHeight", "ssssssssss"},
                                    {"txtGulletRadius", "++++---+--"},
                                    {"txt1stGulletRad", "----+++-++"},
                                    {"txt2ndGulletRad", "----+++--+"},
                                    {"txt3rdGulletRad", "-----+---+"},
                                    {"txtGulletBottomAngle", "------+---"},
                                    {"txtGulletWidth", "----+++-++"},
                                    {"txtGulletBackAngle", "+++++++--+"},
                                    {"txtGulletBackRadius", "--+-+++--+"},
                                    {"txtFrostWidth", "---------+"},
                                    {"txtFrostHeight", "---------+"},
                                    {"txtFrostRadius", "---------+"},
                                    {"txtFrostAngle", "---------+"},
                                    {"txtSharpAngle", "rrrrrrrrrr"},
                                    {"txtFaceLength", "rrrrrrrrrr"},
                                    {"txtGulletArea", "rrrrrrrrrr"},
                                    {"txtAreaBelowTip", "rrrrrrrrrr"}};

class ToothBox : public testing::TestWithParam<StyleRow> {};

TEST_P(ToothBox, StandsAsTheStyleAndTheSeatHaveIt) {
  const PanelField* field = Find(ToothFields(), GetParam().Control);
  ASSERT_NE(field, nullptr);
  for (int style = 0; style <= 9; ++style) {
    for (const bool seat : {false, true}) {
      const char letter = GetParam().ByStyle[style];
      const BoxState want = letter == '-'                              ? BoxState::Hidden
                            : letter == '+' || (letter == 's' && seat) ? BoxState::Clickable
                                                                       : BoxState::ReadOnly;
      EXPECT_EQ(ToothBoxState(*field, style, seat), want) << "style " << style << (seat ? ", seat" : "");
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Each, ToothBox, testing::ValuesIn(ByStyle),
                         [](const auto& row) { return std::string(row.param.Control); });

TEST(ToothBoxes, AreTheseAndThreeThatTheGeneralInformationOwns) {
  std::set<std::string_view> own, foreign;
  for (const StyleRow& row : ByStyle) own.insert(row.Control);
  for (const PanelField& field : ToothFields()) {
    if (own.count(field.Control) > 0) continue;
    foreign.insert(field.Control);
    EXPECT_EQ(field.Act, BoxAct::MustUse) << field.Control;
    EXPECT_EQ(field.Text, 104) << field.Control;
    for (int style = 0; style <= 9; ++style)
      EXPECT_NE(ToothBoxState(field, style, false), BoxState::Hidden) << field.Control;
  }
  EXPECT_EQ(foreign.size(), 3u);
}

TEST(ToothBoxes, StandInTheOrderInWhichOneFillsThemIn) {
  std::vector<std::string_view> order;
  for (const PanelField& field : ToothFields()) order.push_back(field.Control);
  const auto place = [&order](std::string_view control) {
    return std::find(order.begin(), order.end(), control) - order.begin();
  };
  const std::vector<std::string_view> first{"txtToothStyle", "txtLength", "txtNumTeeth", "txtPitch",
                                            "txtWidth"};
  for (std::size_t i = 0; i < first.size(); ++i) EXPECT_EQ(order.at(i), first[i]);
  for (const char* angle : {"txtHook", "txtClear"}) {
    EXPECT_LT(place("txtWidth"), place(angle));
    for (const char* gullet : {"txtGulletRadius", "txt1stGulletRad", "txt2ndGulletRad", "txt3rdGulletRad",
                               "txtGulletWidth", "txtGulletDepth"})
      EXPECT_LT(place(angle), place(gullet));
  }
}

TEST(Boxes, HaveNamesOfTheirOwnInTheWindow) {
  std::set<std::string_view> names;
  for (const auto fields : {ToothFields(), GeneralFields()}) {
    for (const PanelField& field : fields) {
      EXPECT_TRUE(names.insert(field.Control).second) << field.Control;
      EXPECT_FALSE(field.Caption.empty()) << field.Control;
      EXPECT_NE(field.Shown, nullptr) << field.Control;
    }
  }
}

TEST(Boxes, OfOnePanelCanBeToldApartByTheirWords) {
  for (const auto fields : {ToothFields(), GeneralFields()}) {
    std::set<std::pair<std::string_view, std::string_view>> words;
    for (const PanelField& field : fields)
      EXPECT_TRUE(words.emplace(field.Group, field.Caption).second) << field.Control;
  }
}

TEST(Boxes, OfOneGroupStandTogether) {
  for (const auto fields : {ToothFields(), GeneralFields()}) {
    std::set<std::string_view> done;
    std::string_view last = fields.front().Group;
    for (const PanelField& field : fields) {
      if (field.Group == last) continue;
      EXPECT_TRUE(done.insert(last).second);
      EXPECT_EQ(done.count(field.Group), 0u) << field.Control;
      last = field.Group;
    }
  }
}

// ---- what a click does

TEST(ToothBoxes, OpenTheDialogOfTheirMeasure) {
  const std::map<std::string, Parameter> asked{{"txtToothStyle", Parameter::ToothStyle},
                                               {"txtLength", Parameter::BandLength},
                                               {"txtWidth", Parameter::BandWidth},
                                               {"txtNumTeeth", Parameter::NumTeeth},
                                               {"txtPitch", Parameter::Pitch},
                                               {"txtHook", Parameter::HookAngle},
                                               {"txtTipClearance", Parameter::TipClearance},
                                               {"txtGulletDepth", Parameter::GulletDepth},
                                               {"txtClear", Parameter::ClearanceAngle},
                                               {"txtSeatWidth", Parameter::SeatWidth},
                                               {"txtSeatHeight", Parameter::SeatHeight},
                                               {"txtGulletRadius", Parameter::GulletRadius},
                                               {"txt1stGulletRad", Parameter::FirstGulletRadius},
                                               {"txt2ndGulletRad", Parameter::SecondGulletRadius},
                                               {"txt3rdGulletRad", Parameter::ThirdGulletRadius},
                                               {"txtGulletBottomAngle", Parameter::GulletBottomAngle},
                                               {"txtGulletWidth", Parameter::GulletWidth},
                                               {"txtGulletBackAngle", Parameter::GulletBackAngle},
                                               {"txtGulletBackRadius", Parameter::GulletBackRadius},
                                               {"txtFrostWidth", Parameter::FrostNotchWidth},
                                               {"txtFrostHeight", Parameter::FrostNotchHeight},
                                               {"txtFrostRadius", Parameter::FrostNotchRadius},
                                               {"txtFrostAngle", Parameter::FrostNotchAngle}};
  for (const auto& [control, parameter] : asked) {
    EXPECT_EQ(Tooth(control).Act, BoxAct::Ask) << control;
    EXPECT_EQ(Tooth(control).Asked, parameter) << control;
  }
  EXPECT_EQ(Tooth("txtSeat").Act, BoxAct::AskSeat);
  for (const char* result : {"txtSharpAngle", "txtFaceLength", "txtGulletArea", "txtAreaBelowTip"})
    EXPECT_EQ(Tooth(result).Act, BoxAct::ReadOnly) << result;
}

TEST(GeneralBoxes, OpenTheDialogOfTheirMeasure) {
  const std::map<std::string, Parameter> asked{{"txtTipType", Parameter::TipType},
                                               {"txtPlateThick", Parameter::PlateThickness},
                                               {"txtKerf", Parameter::TipKerf},
                                               {"txtJoinStyle", Parameter::JoinStyle}};
  for (const auto& [control, parameter] : asked) {
    EXPECT_EQ(General(control).Act, BoxAct::Ask) << control;
    EXPECT_EQ(General(control).Asked, parameter) << control;
  }
  EXPECT_EQ(General("chkBothEdges").Act, BoxAct::Tick);
  EXPECT_EQ(General("txtSideClear").Act, BoxAct::ReadOnly);
  for (const char* typed : {"txtDesignBy", "txtCustName", "txtQuantity", "txtAdditional1st",
                            "txtAdditional2nd", "txtAdditional3rd"})
    EXPECT_EQ(General(typed).Act, BoxAct::Type) << typed;
}

TEST(GeneralBoxes, NameTheOwnersOfTheOthers) {
  std::map<int, int> owners;
  for (const PanelField& field : GeneralFields())
    if (field.Act == BoxAct::MustUse) ++owners[field.Text];
  EXPECT_EQ(owners, (std::map<int, int>{{100, 6}, {101, 3}, {102, 2}, {103, 5}}));
  EXPECT_EQ(General("txtGenLength").Text, 100);
  EXPECT_EQ(General("txtGenWidth").Text, 100);
}

TEST(GeneralBoxes, StandAheadOfThoseThatOthersOwn) {
  bool foreign = false;
  for (const PanelField& field : GeneralFields()) {
    if (field.Act == BoxAct::MustUse) foreign = true;
    EXPECT_EQ(field.Act == BoxAct::MustUse, foreign) << field.Control;
  }
}

// ---- hints

TEST(BoxHints, AreThoseOfTheirNumbers) {
  const std::map<std::string, std::pair<int, std::string>> tooth{
      {"txtToothStyle", {1, "Click to activate tooth style input box."}},
      {"txtLength", {2, "Click to activate bandSaw length input box."}},
      {"txtNumTeeth", {3, "Click to activate number of teeth input box."}},
      {"txtHook", {4, "Click to activate hook angle input box."}},
      {"txtClear", {6, "Click to activate clearance angle input box."}},
      {"txtGulletRadius", {7, "Click to activate gullet radius input box."}},
      {"txt1stGulletRad", {8, "Click to activate the first gullet radius input box."}},
      {"txt2ndGulletRad", {9, "Click to activate the second gullet radius input box."}},
      {"txt3rdGulletRad", {10, "Click to activate the third gullet radius input box."}},
      {"txtGulletDepth", {11, "Click to activate the gullet depth input box."}},
      {"txtGulletBackRadius", {12, "Click to activate the back radius input box."}},
      {"txtGulletBottomAngle", {13, "Click to activate the bottom angle input box."}},
      {"txtWidth", {14, "Click to activate the bandsaw width input box."}},
      {"txtPitch", {15, "Click to activate the tooth pitch input box."}},
      {"txtGulletWidth", {16, "Click to activate the gullet width input box."}},
      {"txtGulletBackAngle", {17, "Click to activate the tooth back angle input box."}},
      {"txtTipClearance", {18, "Click to activate the tip clearance input box."}},
      {"txtSeat", {19, "Click to activate the seat input box."}},
      {"txtSeatWidth", {20, "Click to activate the seat width input box."}},
      {"txtSeatHeight", {21, "Click to activate the seat height input box."}},
      {"txtGulletArea", {45, "The area or average area of the tooth gullet."}},
      {"txtAreaBelowTip", {46, "The area or average area of gullet below tip."}}};
  for (const auto& [control, hint] : tooth) {
    EXPECT_EQ(Tooth(control).Text, hint.first) << control;
    EXPECT_EQ(HintOfBox(Tooth(control)).Status, hint.second) << control;
    EXPECT_EQ(HintOfBox(Tooth(control)).Hint,
              control == "txtHook" ? "Hint: Add one degree to hook if BandSaw has a seat." : "")
        << control;
  }
  const std::map<std::string, std::pair<int, std::string>> general{
      {"txtDesignBy", {37, "Type the name of the bandsaws designer here."}},
      {"txtCustName", {38, "Type the name of the company the bandsaw is for."}},
      {"txtQuantity", {39, "Type the number of bandsaws required."}},
      {"txtTipType", {40, "Click to activate the type of tip input box."}},
      {"txtPlateThick", {41, "Click to activate the plate thickness input box."}},
      {"txtKerf", {42, "Click to activate the tip kerf input box."}}};
  for (const auto& [control, hint] : general) {
    EXPECT_EQ(General(control).Text, hint.first) << control;
    EXPECT_EQ(HintOfBox(General(control)).Status, hint.second) << control;
    EXPECT_EQ(HintOfBox(General(control)).Hint, "") << control;
  }
}

TEST(BoxHints, OfCommentsTellTheirLength) {
  for (const char* control : {"txtAdditional1st", "txtAdditional2nd", "txtAdditional3rd"}) {
    EXPECT_EQ(HintOfBox(General(control)).Status, "For additional comments!");
    EXPECT_EQ(HintOfBox(General(control)).Hint, "Maximum 40 characters per line.");
  }
}

TEST(BoxHints, AreNoneForTheNotchAndForResultsWithoutANumber) {
  for (const char* control : {"txtFrostWidth", "txtFrostHeight", "txtFrostRadius", "txtFrostAngle",
                              "txtSharpAngle", "txtFaceLength"}) {
    EXPECT_EQ(HintOfBox(Tooth(control)).Status, "") << control;
    EXPECT_EQ(HintOfBox(Tooth(control)).Hint, "") << control;
  }
}

// ---- what the boxes show

BandSaw Set() {
  BandSaw saw = test::TeethOf(TripleRadius);
  saw.ContainsInfo.Teeth = False;  // what is not set shows empty then
  saw.GulletInfo.AreaBelowTip = 0.5;
  saw.GeneralInfo.TipType = 2;
  saw.DesignInfo.JoinStyle = OverlapJoin;
  saw.GeneralInfo.PlateThick = 0.065;
  saw.GeneralInfo.Kerf = 0.15;
  saw.GeneralInfo.SideClear = 0.0425;
  saw.GeneralInfo.Quantity = 3;
  saw.CustomerInfo.DesignBy.Assign("A. Filer");
  saw.CustomerInfo.CustName.Assign("Oak & Sons");
  saw.DesignInfo.Comment1.Assign("first");
  saw.DesignInfo.Comment2.Assign("second");
  saw.DesignInfo.Comment3.Assign("third");
  return saw;
}

struct ShownRow {
  const char* Control;
  const char *Inch, *Metric;
  const char* NotSet;  // in either system
  friend void PrintTo(const ShownRow& row, std::ostream* out) { *out << row.Control; }
};

class BoxText : public testing::TestWithParam<ShownRow> {
 protected:
  static const PanelField& Field() {
    const PanelField* tooth = Find(ToothFields(), GetParam().Control);
    return tooth != nullptr ? *tooth : General(GetParam().Control);
  }
};

TEST_P(BoxText, ShowsTheFigureInBothSystems) {
  EXPECT_EQ(Field().Shown(Set(), Inch), GetParam().Inch);
  EXPECT_EQ(Field().Shown(Set(), Centimetre), GetParam().Metric);
}

TEST_P(BoxText, ShowsWhatIsNotSet) {
  EXPECT_EQ(Field().Shown(BandSaw{}, Inch), GetParam().NotSet);
  EXPECT_EQ(Field().Shown(BandSaw{}, Centimetre), GetParam().NotSet);
}

const std::vector<ShownRow> Shown{{"txtToothStyle", " Triple Radius", " Triple Radius", ""},
                                  {"txtLength", " 20.000 ft", " 6.096 m", ""},
                                  {"txtWidth", " 5.000 in", " 12.700 cm", ""},
                                  {"txtNumTeeth", " 120", " 120", ""},
                                  {"txtPitch", " 2.000 in", " 5.080 cm", ""},
                                  {"txtHook", " 25.000 deg", " 25.000 deg", ""},
                                  {"txtClear", " 12.000 deg", " 12.000 deg", ""},
                                  {"txtTipClearance", " 0.030 in", " 0.762 mm", ""},
                                  {"txtSeat", " Yes", " Yes", " No"},
                                  {"txtSeatWidth", " 0.060 in", " 1.524 mm", ""},
                                  {"txtSeatHeight", " 0.175 in", " 4.445 mm", ""},
                                  {"txtGulletRadius", " 0.500 in", " 1.270 cm", ""},
                                  {"txt1stGulletRad", " 0.250 in", " 0.635 cm", ""},
                                  {"txt2ndGulletRad", " 0.750 in", " 1.905 cm", ""},
                                  {"txt3rdGulletRad", " 0.375 in", " 0.953 cm", ""},
                                  {"txtGulletBottomAngle", " 7.000 deg", " 7.000 deg", ""},
                                  {"txtGulletWidth", " 0.800 in", " 2.032 cm", ""},
                                  {"txtGulletDepth", " 0.700 in", " 1.778 cm", ""},
                                  {"txtGulletBackAngle", " 35.000 deg", " 35.000 deg", ""},
                                  {"txtGulletBackRadius", " 0.125 in", " 0.318 cm", ""},
                                  {"txtFrostWidth", " 0.100 in", " 2.540 mm", ""},
                                  {"txtFrostHeight", " 0.200 in", " 5.080 mm", ""},
                                  {"txtFrostRadius", " 0.050 in", " 1.270 mm", ""},
                                  {"txtFrostAngle", " 20.000 deg", " 20.000 deg", ""},
                                  {"txtSharpAngle", " 53.000 deg", " 53.000 deg", ""},
                                  {"txtFaceLength", " 0.400 in", " 10.160 mm", ""},
                                  {"txtGulletArea", " 0.900 in²", " 5.806 cm²", ""},
                                  {"txtAreaBelowTip", " 0.500 in²", " 3.226 cm²", ""},
                                  {"txtTipType", " Swagged", " Swagged", " None"},
                                  {"txtJoinStyle", " Overlap Join", " Overlap Join", " Right Angle Join"},
                                  {"txtPlateThick", " 0.065 in", " 1.651 mm", ""},
                                  {"txtKerf", " 0.150 in", " 3.810 mm", ""},
                                  {"txtSideClear", " 0.043 in", " 1.080 mm", ""},
                                  {"txtGenLength", " 20.000 ft", " 6.096 m", ""},
                                  {"txtGenWidth", " 5.000 in", " 12.700 cm", ""},
                                  {"txtDesignBy", "A. Filer", "A. Filer", ""},
                                  {"txtCustName", "Oak & Sons", "Oak & Sons", ""},
                                  {"txtAdditional1st", "first", "first", ""},
                                  {"txtAdditional2nd", "second", "second", ""},
                                  {"txtAdditional3rd", "third", "third", ""}};

INSTANTIATE_TEST_SUITE_P(Each, BoxText, testing::ValuesIn(Shown),
                         [](const auto& row) { return std::string(row.param.Control); });

TEST(BoxTexts, AreEmptyForZeroEvenOfACompleteTooth) {
  BandSaw saw;
  saw.ContainsInfo = {True, True, True, True, {}};
  for (const std::span<const PanelField> fields : {ToothFields(), GeneralFields()}) {
    for (const PanelField& field : fields) {
      const std::string shown = field.Shown(saw, Inch);
      EXPECT_EQ(shown.find('0'), std::string::npos) << field.Control << shown;
    }
  }
}

TEST(BoxTexts, TellAZeroThatWasJustAccepted) {
  const BandSaw zero, set = Set();
  const auto tooth = [](std::string_view control) { return *Find(ToothFields(), control); };
  EXPECT_EQ(AcceptedText(tooth("txtHook"), zero, Inch), " 0.000 deg");
  EXPECT_EQ(AcceptedText(tooth("txtLength"), zero, Centimetre), " 0.000 m");
  EXPECT_EQ(AcceptedText(tooth("txtTipClearance"), zero, Centimetre), " 0.000 mm");
  EXPECT_EQ(AcceptedText(General("txtKerf"), zero, Inch), " 0.000 in");
  EXPECT_EQ(AcceptedText(tooth("txtLength"), set, Inch), " 20.000 ft");
  // Of a choice there is no zero, and a result was never accepted.
  EXPECT_EQ(AcceptedText(tooth("txtToothStyle"), zero, Inch), "");
  EXPECT_EQ(AcceptedText(tooth("txtSeat"), zero, Inch), " No");
  EXPECT_EQ(AcceptedText(tooth("txtGulletArea"), zero, Inch), "");
  EXPECT_EQ(AcceptedText(General("txtTipType"), zero, Inch), " None");
  EXPECT_EQ(AcceptedText(General("txtGenHook"), zero, Inch), "");
}

TEST(HelpTopic, IsThatOfTheDialog) {
  EXPECT_EQ(HelpTopicOf(BoxAct::Ask, Parameter::BandLength), 201);
  EXPECT_EQ(HelpTopicOf(BoxAct::AskSeat, {}), 216);
  for (const BoxAct act : {BoxAct::Type, BoxAct::Tick, BoxAct::MustUse, BoxAct::ReadOnly})
    EXPECT_EQ(HelpTopicOf(act, Parameter::BandLength), 0);
}

TEST(BoxTexts, OfEveryToothBoxIsLookedAt) {
  std::set<std::string_view> names;
  for (const ShownRow& row : Shown) names.insert(row.Control);
  for (const StyleRow& row : ByStyle) EXPECT_EQ(names.count(row.Control), 1u) << row.Control;
}

TEST(BoxTexts, OfForeignFiguresShowsThem) {
  BandSaw saw = Set();
  saw.GeneralInfo.VariablePitch = True;
  saw.GeneralInfo.NumVariables = 5;
  saw.DesignInfo.SegmentLength = 10;
  saw.MachineInfo.WheelDia = 5;
  saw.MachineInfo.CenterToCenter = 8;
  saw.MachineInfo.Width = 9;
  saw.GeneralInfo.ShaftSpeed = 510;
  saw.GeneralInfo.DepthOfCut = 11;
  saw.GeneralInfo.FeedRate = 100;
  saw.GeneralInfo.WoodType.Assign("Oak (White)");
  saw.GeneralInfo.HorsePower = 31.25;
  std::multiset<std::string> shown;
  for (const PanelField& field : GeneralFields())
    if (field.Act == BoxAct::MustUse) shown.insert(field.Shown(saw, Inch));
  EXPECT_EQ(shown, (std::multiset<std::string>{" 20.000 ft", " 5.000 in", " 2.000 in", " 120", " 25.000 deg",
                                               " Triple Radius", " 5.000 ft", " 8.000 ft", " 9.000 in", " 5",
                                               " 10.000 in", " 510 rpms", " 11.000 in", " 100 fpm",
                                               " Oak (White)", " 31.250"}));
  std::multiset<std::string> inTheToothPanel;
  for (const PanelField& field : ToothFields())
    if (field.Act == BoxAct::MustUse) inTheToothPanel.insert(field.Shown(saw, Inch));
  EXPECT_EQ(inTheToothPanel, (std::multiset<std::string>{" 0.065 in", " 0.150 in", " Swagged"}));
}

TEST(BoxTexts, OfTextsIsUtf8WithoutTheirPadding) {
  BandSaw saw;
  saw.CustomerInfo.DesignBy.Assign("S\xE4ger  ");
  EXPECT_EQ(General("txtDesignBy").Shown(saw, Inch), "Säger");
}

// ---- typing

struct TypedRow {
  const char* Control;
  int Most;
  std::string_view (*Stored)(const BandSaw& saw);
  friend void PrintTo(const TypedRow& row, std::ostream* out) { *out << row.Control; }
};

class TypedBox : public testing::TestWithParam<TypedRow> {
 protected:
  std::string Take(std::string_view text) {
    General(GetParam().Control).Take(saw_, text);
    return Stored();
  }
  std::string Stored() const { return std::string(GetParam().Stored(saw_)); }
  std::string Padded(std::string text) const {
    text.resize(static_cast<std::size_t>(GetParam().Most), ' ');
    return text;
  }
  BandSaw saw_;
};

TEST_P(TypedBox, SaysHowMuchItTakes) {
  EXPECT_EQ(General(GetParam().Control).MostCharacters, GetParam().Most);
}

TEST_P(TypedBox, TakesATextAndPadsIt) {
  EXPECT_EQ(Take("Oak & Sons"), Padded("Oak & Sons"));
  EXPECT_EQ(Take("Elm"), Padded("Elm"));
  EXPECT_EQ(General(GetParam().Control).Shown(saw_, Inch), "Elm");
}

TEST_P(TypedBox, LeavesATextThatWasNeverGivenAllZero) {
  EXPECT_EQ(Take(""), std::string(static_cast<std::size_t>(GetParam().Most), '\0'));
}

TEST_P(TypedBox, IsBlanksOnceItWasEmptied) {
  Take("Oak");
  EXPECT_EQ(Take(""), Padded(""));
}

TEST_P(TypedBox, CutsAtItsLength) {
  const auto most = static_cast<std::size_t>(GetParam().Most);
  EXPECT_EQ(Take(std::string(most, 'x')), std::string(most, 'x'));
  EXPECT_EQ(Take(std::string(most, 'y') + "z"), std::string(most, 'y'));
}

TEST_P(TypedBox, CountsCharactersNotBytes) {
  std::string typed;
  for (int i = 0; i < 60; ++i) typed += "ä";
  EXPECT_EQ(Take(typed), std::string(static_cast<std::size_t>(GetParam().Most), '\xE4'));
}

TEST_P(TypedBox, PutsAQuestionMarkForACharacterThatADesignCannotHold) {
  EXPECT_EQ(Take("S\xC3\xA4ge \xE6\x9C\xA8"), Padded("S\xE4ge ?"));
}

INSTANTIATE_TEST_SUITE_P(
    Each, TypedBox,
    testing::Values(
        TypedRow{"txtDesignBy", 50, [](const BandSaw& s) { return s.CustomerInfo.DesignBy.View(); }},
        TypedRow{"txtCustName", 50, [](const BandSaw& s) { return s.CustomerInfo.CustName.View(); }},
        TypedRow{"txtAdditional1st", 40, [](const BandSaw& s) { return s.DesignInfo.Comment1.View(); }},
        TypedRow{"txtAdditional2nd", 40, [](const BandSaw& s) { return s.DesignInfo.Comment2.View(); }},
        TypedRow{"txtAdditional3rd", 40, [](const BandSaw& s) { return s.DesignInfo.Comment3.View(); }}),
    [](const auto& row) { return std::string(row.param.Control); });

TEST(QuantityBox, TakesAWholeNumber) {
  BandSaw saw;
  const PanelField& box = General("txtQuantity");
  const auto taken = [&](std::string_view text) {
    box.Take(saw, text);
    return saw.GeneralInfo.Quantity;
  };
  EXPECT_EQ(taken("12"), 12);
  EXPECT_EQ(taken(" 7 "), 7);
  EXPECT_EQ(taken("100000"), 100000);
  EXPECT_EQ(taken(""), 0);
  EXPECT_EQ(taken("four"), 0);
}

TEST(QuantityBox, ShowsWhatItTook) {
  BandSaw saw;
  const PanelField& box = General("txtQuantity");
  saw.GeneralInfo.Quantity = 1200;
  BandSaw other;
  box.Take(other, box.Shown(saw, Inch));
  EXPECT_EQ(other.GeneralInfo.Quantity, 1200);
}

TEST(Boxes, ThatAreNotTypedIntoTakeNoText) {
  for (const auto fields : {ToothFields(), GeneralFields()}) {
    for (const PanelField& field : fields) {
      EXPECT_EQ(field.Take != nullptr, field.Act == BoxAct::Type) << field.Control;
    }
  }
}

}  // namespace
}  // namespace tarnwick
