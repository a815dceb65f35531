// The letters that reach controls by keyboard, in each language.
#include <gtest/gtest.h>

#include <QKeySequence>
#include <QLabel>
#include <map>

#include "calendar/ui/CDlgCalendar.h"
#include "calendar/ui/CDlgFastSelection.h"
#include "conditions/ui/CDlgConditions.h"
#include "conditions/ui/CDlgConditionsNewModify.h"
#include "editor/ui/CDlgAddModifyDiscriminator.h"
#include "hostkit/LanguageFile.h"
#include "manager/ui/CDlgSetupDiscriminators.h"
#include "tests/support/DialogTest.h"
#include "timestructure/ui/CDlgAddModifyDayType.h"
#include "timestructure/ui/CDlgAddModifyHourType.h"
#include "timestructure/ui/CDlgAddModifyTimeSlot.h"
#include "timestructure/ui/CDlgDayTypes.h"
#include "timestructure/ui/CDlgHourTypes.h"
#include "tools/Utf8.h"

namespace qv {
namespace {

/// The captions on show that have a mnemonic, by its letter.
std::multimap<QString, QString> MnemonicsOf(const QWidget& window) {
  std::multimap<QString, QString> mnemonics;
  const auto add = [&](const QWidget* control, const QString& caption) {
    const QString letter = QKeySequence::mnemonic(caption).toString();
    if (control->isVisible() && !letter.isEmpty()) {
      mnemonics.emplace(letter, caption);
    }
  };
  for (const auto* button : window.findChildren<QAbstractButton*>()) {
    add(button, button->text());
  }
  for (const auto* label : window.findChildren<QLabel*>()) {
    add(label, label->text());
    EXPECT_TRUE(label->buddy() || !label->text().contains('&')) << label->text().toStdString();
  }
  return mnemonics;
}

class Mnemonics : public DialogTest, public testing::WithParamInterface<const char*> {
 protected:
  Mnemonics() {
    EXPECT_TRUE(texts.Load(FromUtf8(std::string(LANGUAGES_FOLDER "/") + GetParam())));
    QVLoadString::Install(&texts);
    EXPECT_TRUE(document.Parse("<main><hourTypes/><dayTypes/><calendar/></main>"));
  }

  void ExpectOneForEach(CDialog& dialog, std::size_t least) {
    Play(dialog, [&] {
      const auto mnemonics = MnemonicsOf(dialog);
      EXPECT_GE(mnemonics.size(), least);
      for (const auto& [letter, caption] : mnemonics) {
        EXPECT_EQ(mnemonics.count(letter), 1U)
            << letter.toStdString() << ": " << caption.toStdString();
      }
      dialog.close();
    });
  }

  XmlNode* Part(const wchar_t* tag) { return document.Root()->Node(tag); }

  LanguageFile texts;
  XmlDocument document;
};

TEST_P(Mnemonics, AreUnequalInTheManager) {
  CDlgSetupDiscriminators dialog(nullptr, nullptr);
  ExpectOneForEach(dialog, 4);
}

TEST_P(Mnemonics, AreUnequalInTheEditorOfADiscriminator) {
  CDlgAddModifyDiscriminator dialog(nullptr, nullptr, nullptr);
  ExpectOneForEach(dialog, 7);
}

TEST_P(Mnemonics, AreUnequalInTheListsOfTypes) {
  CDlgHourTypes hours(nullptr, Part(L"hourTypes"), Part(L"dayTypes"));
  ExpectOneForEach(hours, 3);
  CDlgDayTypes days(nullptr, Part(L"dayTypes"), Part(L"calendar"), Part(L"hourTypes"));
  ExpectOneForEach(days, 3);
}

TEST_P(Mnemonics, AreUnequalInTheEditorsOfTypesAndSlots) {
  XmlNode hour(L"hour");
  CDlgAddModifyHourType hourEditor(nullptr, Part(L"hourTypes"), &hour);
  ExpectOneForEach(hourEditor, 2);
  host->AddDevice(embeddedDriver);
  CDlgAddModifyHourType withValue(nullptr, Part(L"hourTypes"), &hour);
  ExpectOneForEach(withValue, 3);
  XmlNode day(L"day");
  CDlgAddModifyDayType dayEditor(nullptr, &day, Part(L"dayTypes"), Part(L"hourTypes"));
  ExpectOneForEach(dayEditor, 5);
  XmlNode slot(L"slot");
  CDlgAddModifyTimeSlot slotEditor(nullptr, Part(L"hourTypes"), &slot, 0xFFFFFF);
  ExpectOneForEach(slotEditor, 4);
}

TEST_P(Mnemonics, AreUnequalInTheCalendarAndTheFastSelection) {
  CDlgCalendar calendar(nullptr, Part(L"calendar"), Part(L"dayTypes"), Part(L"hourTypes"));
  ExpectOneForEach(calendar, 1);
  CDlgFastSelection fastSelection(nullptr, Part(L"dayTypes"), 2026);
  ExpectOneForEach(fastSelection, 20);
}

TEST_P(Mnemonics, AreUnequalInTheDialogsOfConditions) {
  XmlNode conditions(L"conditions");
  CDlgConditions list(nullptr, &conditions);
  ExpectOneForEach(list, 3);
  XmlNode condition(L"condition");
  CDlgConditionsNewModify editor(nullptr, &condition, &conditions);
  ExpectOneForEach(editor, 2);
}

INSTANTIATE_TEST_SUITE_P(Languages, Mnemonics, testing::Values("en.txt", "es.txt"),
                         [](const auto& language) {
                           return std::string(language.param).substr(0, 2);
                         });

}  // namespace
}  // namespace qv
