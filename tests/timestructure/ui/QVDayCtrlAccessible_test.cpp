#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include "hostkit/LanguageFile.h"
#include "tests/support/FakeHost.h"
#include "timestructure/ui/QVDayCtrl.h"
#include "tools/Utf8.h"

namespace {

QString Told(QVDayCtrl& dial, QAccessible::Text what) {
  return QAccessible::queryAccessibleInterface(&dial)->text(what);
}

void SetupMorning(QVDayCtrl& dial) {
  XmlDocument document;
  ASSERT_TRUE(
      document.Parse("<day><slot><from>08:00</from><to>14:00</to></slot>"
                     "<slot><from>22:00</from><to>24:00</to></slot></day>"));
  dial.Setup(document.Root(), nullptr);
}

TEST(QVDayCtrlAccessible, TellsPlainTimesWithoutAHost) {
  ASSERT_EQ(QVLoadString::Get(), nullptr);
  QVDayCtrl dial;
  EXPECT_EQ(Told(dial, QAccessible::Description), QString());
  SetupMorning(dial);
  EXPECT_EQ(Told(dial, QAccessible::Description), QStringLiteral("08:00-14:00; 22:00-24:00"));
}

TEST(QVDayCtrlAccessible, TellsPlainTimesToAHostThatLacksTheWords) {
  const qv::InstalledFakeHost host;
  QVDayCtrl dial;
  SetupMorning(dial);
  EXPECT_EQ(Told(dial, QAccessible::Name), QString());
  EXPECT_EQ(Told(dial, QAccessible::Description), QStringLiteral("08:00-14:00; 22:00-24:00"));
}

struct LanguageCase {
  const char* file;
  QString name;
  QString told;
  QString empty;
};

TEST(QVDayCtrlAccessible, TellsTheSlotsInTheWordsOfTheHost) {
  const LanguageCase cases[] = {
      {"en", "Day dial", "from 08:00 to 14:00; from 22:00 to 24:00", "No time slots"},
      {"es", "Esfera del día", "de 08:00 a 14:00; de 22:00 a 24:00", "Sin franjas horarias"}};
  for (const auto& [file, name, told, empty] : cases) {
    qv::LanguageFile language;
    const std::string path = std::string(QV_PROJECT_DIR "/languages/") + file + ".txt";
    ASSERT_TRUE(language.Load(qv::FromUtf8(path)));
    const qv::Installed<QVLoadString> installed(language);
    QVDayCtrl dial;
    EXPECT_EQ(Told(dial, QAccessible::Name), name);
    EXPECT_EQ(Told(dial, QAccessible::Description), empty);
    SetupMorning(dial);
    EXPECT_EQ(Told(dial, QAccessible::Description), told);
  }
}

TEST(QVDayCtrlAccessible, TellsHourTypeAndTimesOfTheSlotUnderTheMouse) {
  qv::LanguageFile language;
  ASSERT_TRUE(language.Load(qv::FromUtf8(QV_PROJECT_DIR "/languages/en.txt")));
  const qv::Installed<QVLoadString> installed(language);
  XmlDocument document;
  ASSERT_TRUE(document.Parse(
      "<r><day><slot><id>p</id><from>01:00</from><to>05:00</to></slot></day>"
      "<hourTypes><hour><id>p</id><name>Peak &lt;b&gt;</name></hour></hourTypes></r>"));
  QVDayCtrl dial;
  dial.resize(600, 300);
  dial.Setup(document.Root()->Node(L"day"), document.Root()->Node(L"hourTypes"));
  EXPECT_EQ(Told(dial, QAccessible::Description), "Peak <b>: from 01:00 to 05:00");
  const auto tipAt = [&dial](const QPoint& place) {
    QHelpEvent help(QEvent::ToolTip, place, dial.mapToGlobal(place));
    QApplication::sendEvent(&dial, &help);
    return QToolTip::text();
  };
  const QPoint atThree(146 + 60, 150);
  EXPECT_EQ(tipAt(atThree), "<p>Peak &lt;b&gt;: from 01:00 to 05:00</p>");
  for (const QPoint place : {QPoint(146 - 60, 150), QPoint(2, 2)}) {
    tipAt(atThree);
    tipAt(place);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }))
        << "neither at nine nor outside";
  }
}

TEST(QVDayCtrlAccessible, FollowsEachSetup) {
  QVDayCtrl dial;
  SetupMorning(dial);
  const BYTE map[] = {0, 0, 1, 0, 0};
  dial.Setup(map, 5);
  EXPECT_EQ(Told(dial, QAccessible::Description), QStringLiteral("00:00-00:02; 00:03-00:04"));
  dial.Setup(static_cast<const BYTE*>(nullptr), 0);
  EXPECT_EQ(Told(dial, QAccessible::Description), QString());
}

TEST(QVDayCtrlAccessible, KeepsANameThatItsOwnerHasGiven) {
  QVDayCtrl dial;
  dial.setAccessibleName(QStringLiteral("Working day"));
  SetupMorning(dial);
  EXPECT_EQ(Told(dial, QAccessible::Name), QStringLiteral("Working day"));
}

}  // namespace
