#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/support/Saving.h"
#include "tests/support/ScriptedPrompter.h"
#include "timestructure/TimeSlotForm.h"
#include "tools/XmlDocument.h"

namespace qv {

inline constexpr TimeField fromHours{SlotEdge::From, true};
inline constexpr TimeField fromMinutes{SlotEdge::From, false};
inline constexpr TimeField toHours{SlotEdge::To, true};
inline constexpr TimeField toMinutes{SlotEdge::To, false};

inline std::unique_ptr<XmlNode> Parsed(const std::string& text) {
  XmlDocument document;
  EXPECT_TRUE(document.Parse(text.c_str()));
  return std::make_unique<XmlNode>(*document.Root());
}

/// A minute of the day, as in "10:15".
inline int At(int hours, int minutes) { return hours * 60 + minutes; }

class TimeSlotFormTest : public testing::Test {
 protected:
  /// A form of a slot with these values.
  TimeSlotForm& Open(const std::string& id, const std::string& from, const std::string& to) {
    slot = Parsed("<slot><id>" + id + "</id><from>" + from + "</from><to>" + to + "</to></slot>");
    form = std::make_unique<TimeSlotForm>(*slot, HourTypes(*hours));
    return *form;
  }

  /// The positions of the four spins, as in "07:30-24:00".
  std::wstring Shown() const {
    return Format(
        L"%02d:%02d-%02d:%02d",
        {form->Times().Spin(fromHours).Position(), form->Times().Spin(fromMinutes).Position(),
         form->Times().Spin(toHours).Position(), form->Times().Spin(toMinutes).Position()});
  }

  std::wstring Stored() const {
    return std::wstring(slot->Value(L"id").ToView()) + L" " +
           std::wstring(slot->Value(L"from").ToView()) + L"-" +
           std::wstring(slot->Value(L"to").ToView());
  }

  void ExpectLocked(TimeField minutes, bool locked) const {
    EXPECT_EQ(form->Times().Spin(minutes).Upper(), locked ? 0 : 59);
    EXPECT_EQ(form->IsSpinEnabled(minutes), !locked);
  }

  std::unique_ptr<XmlNode> hours = Parsed(
      "<hourTypes><hour><id>p</id><name>Peak</name><color>0000FF</color></hour><other/>"
      "<hour><id>v</id><name>Valley</name><color>ff0000</color></hour></hourTypes>");
  std::unique_ptr<XmlNode> slot;
  std::unique_ptr<TimeSlotForm> form;
  ScriptedPrompter prompter;
};

}  // namespace qv
