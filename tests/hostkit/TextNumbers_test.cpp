// The numbers of the texts are what hosts know: each stays with its text.
#include <gtest/gtest.h>

#include <set>

#include "host/Text.h"
#include "tests/hostkit/TextHeader.h"

namespace qv {
namespace {

struct NumberedText {
  Text text;
  unsigned number;
};

constexpr NumberedText table[] = {
    {Text::Name, 355},
    {Text::Description, 284},
    {Text::Add, 415},
    {Text::Modify, 416},
    {Text::Remove, 420},
    {Text::Ok, 428},
    {Text::Cancel, 429},
    {Text::ConfirmOk, 311},
    {Text::ConfirmCancel, 312},
    {Text::DayTypes, 431},
    {Text::HourTypes, 472},
    {Text::Conditions, 36424},
    {Text::TimeSlots, 461},
    {Text::From, 462},
    {Text::To, 463},
    {Text::Diagram, 339},
    {Text::Colour, 411},
    {Text::NameNotAllowed, 32764},
    {Text::TypeNameTaken, 466},
    {Text::TypeColourTaken, 465},
    {Text::SlotStartAfterEnd, 469},
    {Text::DiscriminatorListTitle, 32367},
    {Text::Discriminators, 32370},
    {Text::Exit, 419},
    {Text::Copy, 732},
    {Text::Paste, 742},
    {Text::RemoveDiscriminatorsQuestion, 32368},
    {Text::DiscriminatorFileNotDeleted, 32369},
    {Text::ReadingDiscriminators, 60000},
    {Text::ReadingProgress, 60004},
    {Text::AddDiscriminatorTitle, 32359},
    {Text::ModifyDiscriminatorTitle, 32360},
    {Text::DiscriminatorType, 544},
    {Text::CalendarLink, 424},
    {Text::DayTypesLink, 426},
    {Text::HourTypesLink, 427},
    {Text::SetZeroOutsideSlot, 35235},
    {Text::DiscriminatorNameMissing, 32363},
    {Text::DiscriminatorNameTaken, 32365},
    {Text::DescriptionWithQuote, 32366},
    {Text::LinkNotReady, 60005},
    {Text::DiscriminatorNotSaved, 32362},
    {Text::HourTypeListTitle, 478},
    {Text::AddHourTypeTitle, 476},
    {Text::ModifyHourTypeTitle, 475},
    {Text::HourTypeValue, 38293},
    {Text::HourTypeNameMissing, 477},
    {Text::HourTypeNameForbidden, 483},
    {Text::DayTypeListTitle, 479},
    {Text::AddDayTypeTitle, 459},
    {Text::ModifyDayTypeTitle, 460},
    {Text::DayTypeNameMissing, 464},
    {Text::DayTypeNameForbidden, 484},
    {Text::SlotHourOutOfRange, 467},
    {Text::SlotMinuteOutOfRange, 468},
    {Text::SlotsOverlap, 470},
    {Text::DayNotCoveredQuestion, 471},
    {Text::AddSlotTitle, 473},
    {Text::ModifySlotTitle, 474},
    {Text::NoHourType, 480},
    {Text::SlotHours, 60009},
    {Text::SlotMinutes, 60010},
    {Text::DiscriminatorNotOpened, 60034},
    {Text::DiscriminatorDamagedAt, 60035},
    {Text::DiscriminatorDamaged, 60036},
    {Text::DiscriminatorToRemove, 60030},
    {Text::AndMore, 60031},
    {Text::FailedFile, 60032},
    {Text::FailureReason, 60033},
    {Text::SlotTold, 60037},
    {Text::GapTold, 60038},
    {Text::DayDialName, 60006},
    {Text::DayDialSlot, 60007},
    {Text::DayDialEmpty, 60008},
    {Text::DayDialTyped, 60039},
    {Text::CalendarTitle, 919},
    {Text::FastSelectionButton, 433},
    {Text::UnmarkDates, 457},
    {Text::CalendarMonday, 34857},
    {Text::CalendarTuesday, 34858},
    {Text::CalendarWednesday, 34859},
    {Text::CalendarThursday, 34860},
    {Text::CalendarFriday, 34861},
    {Text::CalendarSaturday, 34862},
    {Text::CalendarSunday, 34863},
    {Text::FastSelectionTitle, 456},
    {Text::Year, 432},
    {Text::Weekdays, 434},
    {Text::Months, 435},
    {Text::DayType, 455},
    {Text::Monday, 449},
    {Text::Tuesday, 450},
    {Text::Wednesday, 451},
    {Text::Thursday, 452},
    {Text::Friday, 453},
    {Text::Saturday, 454},
    {Text::Sunday, 448},
    {Text::January, 436},
    {Text::February, 437},
    {Text::March, 438},
    {Text::April, 439},
    {Text::May, 440},
    {Text::June, 441},
    {Text::July, 442},
    {Text::August, 443},
    {Text::September, 444},
    {Text::October, 445},
    {Text::November, 446},
    {Text::December, 447},
    {Text::ConditionListTitle, 36422},
    {Text::ConditionBox, 32478},
    {Text::RemoveConditionsQuestion, 36423},
    {Text::AddConditionTitle, 32018},
    {Text::ModifyConditionTitle, 32010},
    {Text::Condition, 32008},
    {Text::ExpressionMissing, 32449},
    {Text::ExpressionInvalid, 32446},
    {Text::ResultNotLogical, 32485},
    {Text::ExpressionUsesModule, 37540},
    {Text::ConditionNameMissing, 37014},
    {Text::ConditionNameTaken, 37013},
    {Text::VariableSelection, 196},
    {Text::Discriminator, 32355},
    {Text::OneVariableAtMost, 32336},
    {Text::VariablesAtMost, 197},
    {Text::NoDayTypesYet, 60050},
    {Text::YearName, 60060},
    {Text::YearDate, 60061},
    {Text::YearDateTyped, 60062},
    {Text::YearDateUntyped, 60063},
    {Text::YearWeek, 60064},
    {Text::YearBefore, 60065},
    {Text::YearAfter, 60066},
    {Text::MarksBefore, 60067},
    {Text::MarksAfter, 60068},
    {Text::LegendName, 60069},
    {Text::WithoutDayType, 60070},
    {Text::LegendDays, 60071},
    {Text::YearUndo, 60072},
    {Text::YearRedo, 60073},
    {Text::CopyWeek, 60074},
    {Text::PasteWeek, 60075},
    {Text::CopyMonth, 60076},
    {Text::PasteMonth, 60077},
    {Text::RepeatByWeekday, 60078},
    {Text::RepeatByDate, 60079},
    {Text::InsertKey, 60040},
    {Text::DeleteKey, 60041},
    {Text::EmptyList, 60042},
    {Text::MessageYes, 60001},
    {Text::MessageNo, 60002},
    {Text::MessageOk, 60003},
};

TEST(TextNumbers, AreThoseThatHostsKnow) {
  for (const auto& [text, number] : table) {
    EXPECT_EQ(Number(text), number);
  }
}

TEST(TextNumbers, AreAllInTheTable) {
  std::set<unsigned> inTable;
  for (const auto& [text, number] : table) {
    EXPECT_TRUE(inTable.insert(number).second) << "twice: " << number;
  }
  for (const auto& [number, enumerator] : ReadEnum()) {
    EXPECT_TRUE(inTable.contains(number)) << "not in the table: " << enumerator.name;
  }
}

TEST(TextNumbers, HeaderIsReadWhole) {
  const auto texts = ReadEnum();
  EXPECT_GT(texts.size(), 100U);
  EXPECT_TRUE(texts.contains(Number(Text::Name)));
  EXPECT_TRUE(texts.contains(Number(Text::MessageOk)));
  EXPECT_EQ(Placeholders(texts.at(Number(Text::ReadingProgress)).comment),
            (std::vector<std::string>{"%d", "%d"}));
}

}  // namespace
}  // namespace qv
