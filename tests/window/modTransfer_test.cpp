#include "window/modTransfer.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/FieldChanges.h"

namespace tarnwick {
namespace {

using test::ChangedFields;
using test::DesignOfEveryField;
using Names = std::set<std::string>;

TEST(BeginTransfer, TakesTheWholeDesignTwice) {
  const BandSaw saw = DesignOfEveryField();
  const Transfer transfer = BeginTransfer(saw);
  EXPECT_EQ(ChangedFields(saw, transfer.TransferSaw), Names{});
  EXPECT_EQ(ChangedFields(saw, transfer.TransferOld), Names{});
}

TEST(BackFromPower, TakesTheDesignAndKeepsTheOneBefore) {
  BandSaw saw = DesignOfEveryField(), sawEdit;
  const BandSaw before = saw;
  Transfer transfer = BeginTransfer(saw);
  transfer.TransferSaw.GeneralInfo.FeedRate = 250;
  TakeFromPower(transfer, saw, sawEdit);
  EXPECT_EQ(saw.GeneralInfo.FeedRate, 250);
  EXPECT_EQ(ChangedFields(before, sawEdit), Names{});
}

TEST(BackFromPower, HasAPowerSectionOnceThereIsAPower) {
  for (const auto& [power, want] : {std::pair{0.0, False}, {-1.0, False}, {0.001, True}}) {
    for (const Flag before : {False, True}) {
      BandSaw saw, sawEdit;
      Transfer transfer = BeginTransfer(saw);
      transfer.TransferSaw.GeneralInfo.HorsePower = power;
      transfer.TransferSaw.ContainsInfo.Power = before;
      TakeFromPower(transfer, saw, sawEdit);
      EXPECT_EQ(saw.ContainsInfo.Power, want) << power;
    }
  }
}

TEST(BackFromPower, ChangesNothingElse) {
  BandSaw saw = DesignOfEveryField(), sawEdit;
  const BandSaw before = saw;
  saw.ContainsInfo.Power = True;
  Transfer transfer = BeginTransfer(saw);
  TakeFromPower(transfer, saw, sawEdit);
  EXPECT_EQ(ChangedFields(before, saw), Names{"ContainsInfo.Power"});
}

class BackFromBandCalc : public testing::Test {
 protected:
  BackFromBandCalc() {
    saw_.Length = 20;
    saw_.Pitch = 2;
    saw_.NumTeeth = 120;
    transfer_ = BeginTransfer(saw_);
  }
  BandSaw saw_;
  Transfer transfer_;
};

TEST_F(BackFromBandCalc, CountsTheTeethAnewForAnotherLength) {
  transfer_.TransferSaw.Length = 30;
  TakeFromBandCalc(transfer_, saw_);
  EXPECT_EQ(saw_.Length, 30);
  EXPECT_EQ(saw_.NumTeeth, 0);
  EXPECT_EQ(saw_.Pitch, 2);
  EXPECT_EQ(ChangedFields(saw_, transfer_.TransferSaw), Names{});
}

TEST_F(BackFromBandCalc, KeepsTheTeethOfADesignWithoutAPitch) {
  for (const double pitch : {0.0, -1.0}) {
    saw_.Length = 20;
    saw_.Pitch = pitch;
    saw_.NumTeeth = 120;
    transfer_ = BeginTransfer(saw_);
    transfer_.TransferSaw.Length = 30;
    TakeFromBandCalc(transfer_, saw_);
    EXPECT_EQ(saw_.Length, 30);
    EXPECT_EQ(saw_.NumTeeth, 120);
  }
}

TEST_F(BackFromBandCalc, TakesWheelsWithoutTouchingTheTeeth) {
  transfer_.TransferSaw.MachineInfo.WheelDia = 5;
  transfer_.TransferSaw.ContainsInfo.Machine = True;
  const BandSaw before = saw_;
  TakeFromBandCalc(transfer_, saw_);
  EXPECT_EQ(ChangedFields(before, saw_), (Names{"ContainsInfo.Machine", "MachineInfo.WheelDia"}));
  EXPECT_EQ(saw_.NumTeeth, 120);
}

TEST_F(BackFromBandCalc, ChangesNothingWhenNothingWasChanged) {
  saw_ = DesignOfEveryField();
  const BandSaw before = saw_;
  transfer_ = BeginTransfer(saw_);
  TakeFromBandCalc(transfer_, saw_);
  EXPECT_EQ(ChangedFields(before, saw_), Names{});
}

TEST_F(BackFromBandCalc, GoesByTheLengthOfTheDesignThatIsOpen) {
  saw_.Length = 25;
  TakeFromBandCalc(transfer_, saw_);
  EXPECT_EQ(saw_.Length, 20);
  EXPECT_EQ(saw_.NumTeeth, 0);
}

}  // namespace
}  // namespace tarnwick
