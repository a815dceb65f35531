// What is to be seen of each dialog, line by line. After a change that is meant, build the target
// `golden`, and look at what differs.
#include <QApplication>
#include <QFontInfo>
#include <memory>

#include "calendar/ui/CDlgCalendar.h"
#include "calendar/ui/CDlgFastSelection.h"
#include "conditions/ui/CDlgConditions.h"
#include "conditions/ui/CDlgConditionsNewModify.h"
#include "editor/ui/CDlgAddModifyDiscriminator.h"
#include "manager/ui/CDlgSetupDiscriminators.h"
#include "tests/support/DialogTest.h"
#include "tests/support/Golden.h"
#include "tests/support/NamedCase.h"
#include "tests/support/Parsed.h"
#include "tests/support/WindowText.h"
#include "timestructure/ui/CDlgAddModifyDayType.h"
#include "timestructure/ui/CDlgAddModifyHourType.h"
#include "timestructure/ui/CDlgAddModifyTimeSlot.h"
#include "timestructure/ui/CDlgDayTypes.h"
#include "timestructure/ui/CDlgHourTypes.h"
#include "toolkit/Strings.h"

namespace qv {
namespace {

constexpr char discriminator[] =
    "<main><id>%1</id><name>%2</name><description>about</description>"
    "<setZeroOutsideSlot>T</setZeroOutsideSlot><type>%3</type></main>";

/// A discriminator of each type, and the parts of one.
class DialogGolden : public DirectoryDialogTest {
 public:
  DialogGolden() {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(12);
    font.setHintingPreference(QFont::PreferNoHinting);
    QApplication::setFont(font);
    EXPECT_EQ(QFontInfo(font).family(), font.family());
    host->setup.imagePath = ToWide(QStringLiteral(IMAGE_FOLDER "/"));
  }

  QString PutDiscriminator(const QString& name, const QString& type) const {
    return PutFile(
        QStringLiteral("1.%1.xdct").arg(name),
        QString::fromLatin1(discriminator).arg(QStringLiteral("1"), name, type).toUtf8());
  }

  /// Compares the dialog with its golden text, and leaves it.
  void Compare(CDialog&& dialog) {
    const char* name = testing::UnitTest::GetInstance()->current_test_info()->name();
    Play(dialog, [&] {
      ExpectGolden(std::string(GOLDEN_FOLDER "/") + name + ".txt",
                   WindowText(dialog, QDir(QStringLiteral(IMAGE_FOLDER))));
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
  }

  void CompareEditor(const QString& path) {
    const QVWideString file = ToWide(path);
    Compare(CDlgAddModifyDiscriminator(nullptr, nullptr, &file));
  }

  XmlNode& Day() const { return *days->Node(L"day"); }

  const std::unique_ptr<XmlNode> hours = Parsed(
      "<hourTypes><hour><id>p</id><name>peak</name><color>0000FF</color><value>7</value></hour>"
      "<hour><id>v</id><name>valley</name><color>FF0000</color></hour></hourTypes>");
  const std::unique_ptr<XmlNode> days = Parsed(
      "<dayTypes><day><id>1</id><name>work</name><color>80CCFF</color>"
      "<slot><id>p</id><from>00:00</from><to>12:30</to></slot>"
      "<slot><id>v</id><from>12:30</from><to>24:00</to></slot></day>"
      "<day><id>2</id><name>feast</name><color>FFFFFF</color></day></dayTypes>");
};

TEST_F(DialogGolden, Discriminators) {
  PutDiscriminator("tariff", "SLOTS");
  PutDiscriminator("alarm", "CONDITIONS");
  Compare(CDlgSetupDiscriminators(nullptr, nullptr));
}

TEST_F(DialogGolden, NewDiscriminator) {
  Compare(CDlgAddModifyDiscriminator(nullptr, nullptr, nullptr));
}

TEST_F(DialogGolden, DiscriminatorOfSlots) { CompareEditor(PutDiscriminator("tariff", "SLOTS")); }

TEST_F(DialogGolden, DiscriminatorOfConditions) {
  CompareEditor(PutDiscriminator("alarm", "CONDITIONS"));
}

TEST_F(DialogGolden, DiscriminatorOfAnEmbeddedInstallation) {
  host->AddDevice(L"KORVAXEMBEDDED");
  CompareEditor(PutDiscriminator("tariff", "SLOTS"));
}

TEST_F(DialogGolden, DayTypes) { Compare(CDlgDayTypes(nullptr, days.get(), nullptr, hours.get())); }

TEST_F(DialogGolden, DayType) {
  Compare(CDlgAddModifyDayType(nullptr, &Day(), days.get(), hours.get()));
}

TEST_F(DialogGolden, TimeSlot) {
  Compare(CDlgAddModifyTimeSlot(nullptr, hours.get(), Day().Node(L"slot"), 0x80CCFF));
}

TEST_F(DialogGolden, TimeSlotWithoutHourTypes) {
  const auto none = Parsed("<hourTypes/>");
  Compare(CDlgAddModifyTimeSlot(nullptr, none.get(), Day().Node(L"slot"), 0x80CCFF));
}

TEST_F(DialogGolden, HourTypes) { Compare(CDlgHourTypes(nullptr, hours.get(), nullptr)); }

TEST_F(DialogGolden, HourType) {
  Compare(CDlgAddModifyHourType(nullptr, hours.get(), hours->Node(L"hour")));
}

TEST_F(DialogGolden, HourTypeOfAnEmbeddedInstallation) {
  host->AddDevice(L"KORVAXEMBEDDED");
  Compare(CDlgAddModifyHourType(nullptr, hours.get(), hours->Node(L"hour")));
}

TEST_F(DialogGolden, Calendar) {
  const auto calendar = Parsed("<calendar/>");
  Compare(CDlgCalendar(nullptr, calendar.get(), days.get(), hours.get()));
}

TEST_F(DialogGolden, FastSelection) { Compare(CDlgFastSelection(nullptr, days.get(), 2026)); }

/// Conditions over a scripted host.
class ConditionGolden : public DialogGolden {
 public:
  ConditionGolden() {
    host->loadString.additions = {Text::AltUpKey,      Text::AltDownKey, Text::ComposeExpression,
                                  Text::PresentResult, Text::ResultTrue, Text::ExpressionNotKept};
    host->driverSupport.script[L"M.U > 20"] = {};
    host->driverSupport.script[L"M.U >"] = {
        .analysis = 0, .fault = ExpressionFault{{5, 0}, L"a value is missing"}};
    host->driverSupport.script[std::wstring(80, L'1')] = {.type = 0};
  }

  /// The editor of a condition with this expression.
  void CompareExpression(const std::wstring& expression) {
    XmlNode& condition = *conditions->Node(L"condition");
    condition.SetValue(L"exp", expression.c_str());
    Compare(CDlgConditionsNewModify(nullptr, &condition, conditions.get()));
  }

  const std::unique_ptr<XmlNode> conditions = Parsed(
      "<conditions><condition><name>cold</name><exp>M.U &lt;= 20</exp></condition>"
      "<condition><name>warm &amp; dry</name><exp>M.U &gt; 20</exp></condition>"
      "<condition><name>other</name><exp>1 = 1</exp></condition></conditions>");
};

TEST_F(ConditionGolden, Conditions) { Compare(CDlgConditions(nullptr, conditions.get())); }

TEST_F(ConditionGolden, NoConditions) {
  XmlNode none(L"conditions");
  Compare(CDlgConditions(nullptr, &none));
}

TEST_F(ConditionGolden, NewCondition) {
  XmlNode scratch(L"condition");
  Compare(CDlgConditionsNewModify(nullptr, &scratch, conditions.get()));
}

TEST_F(ConditionGolden, Condition) { CompareExpression(L"M.U > 20"); }

TEST_F(ConditionGolden, ConditionWithAFault) { CompareExpression(L"M.U >"); }

TEST_F(ConditionGolden, ConditionThatIsTooLong) { CompareExpression(std::wstring(80, L'1')); }

}  // namespace
}  // namespace qv
